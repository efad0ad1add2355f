// "零件清单设置": the column table of Tbl.cfg edited one column at a time,
// and the Excel template opened or replaced. Modal. A column is stored when
// the user leaves its line for another one or presses "应用"; closing stores
// nothing. The list dialog sees a change the next time it opens.
#pragma once

#include <QDialog>

#include <vector>

#include "CfgOption.h"
#include "ColFields.h"
#include "ColInfo.h"
#include "TkFile.h"
#include "TkLog.h"

class QCheckBox;
class QComboBox;
class QLineEdit;
class QListWidget;
class QPushButton;

class CDlgBomSet : public QDialog {
 public:
  explicit CDlgBomSet(QWidget* parent = nullptr);

 private:
  void FillColList();
  ColInfo ReadColFields() const;
  void ShowCol(const ColInfo& col);
  void EnableParamName(int paramType);
  bool IsSelValid() const;

  void OnColSelChange();
  void OnApply();
  void OnEditTemplate();
  void OnReplaceTemplate();
  std::wstring TemplatePath() const;

  CCfgOption option_;
  CTkFile file_;
  CTkLog log_;
  std::vector<ColInfo> cols_;
  int sel_ = 0;
  // The fields hold a column only from the first selection on; before it
  // there is no column being left to store.
  bool colShown_ = false;

  QListWidget* colList_ = nullptr;
  QLineEdit* name_ = nullptr;
  QLineEdit* width_ = nullptr;
  QComboBox* editType_ = nullptr;
  QLineEdit* comboItems_ = nullptr;
  QLineEdit* defaultValue_ = nullptr;
  QComboBox* paramName_ = nullptr;
  QComboBox* paramType_ = nullptr;
  QComboBox* valueType_ = nullptr;
  QCheckBox* show_ = nullptr;
  QPushButton* apply_ = nullptr;
};
