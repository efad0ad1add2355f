// "参数合并": a new string parameter of the current model made of the values
// of existing parameters, picked by double clicks in the order they are
// joined. Modal and top-most; nothing is stored between openings, and the
// model is neither saved nor regenerated.
#pragma once

#include <QDialog>

#include <string>
#include <vector>

#include "TkParam.h"

class QComboBox;
class QLineEdit;
class QListWidget;
class QPushButton;
class CListCtrlEx;

class CDlgParamMerge : public QDialog {
 public:
  explicit CDlgParamMerge(QWidget* parent = nullptr);

 protected:
  bool eventFilter(QObject* watched, QEvent* event) override;

 private:
  void FillParamList();
  void UpdateButtons();
  void UpdatePreview();

  // `row` -1 when the pointer is off the rows.
  void OnParamDoubleClick(int row);
  void OnRemove();
  void OnMoveUp();
  void OnMoveDown();
  void OnCreate();

  std::vector<std::wstring> MergeNames() const;
  int SelectedMergePos() const;
  // Shows `names` with nothing selected, as a list box does after a change.
  void ShowMergeNames(const std::vector<std::wstring>& names);

  CTkParam param_;
  CListCtrlEx* paramList_ = nullptr;
  QListWidget* mergeList_ = nullptr;
  QPushButton* remove_ = nullptr;
  QPushButton* moveUp_ = nullptr;
  QPushButton* moveDown_ = nullptr;
  QLineEdit* name_ = nullptr;
  QComboBox* decimals_ = nullptr;
  QLineEdit* preview_ = nullptr;
  QPushButton* create_ = nullptr;
};
