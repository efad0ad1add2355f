// "参数批量检查": reference attributes (from Params.csv, Params.xls or a
// model) held against a list of models, model by model, and written into
// the checked models from the cells. Modeless, top-most, at the top right
// corner of the screen at every show; at most one at a time.
#pragma once

#include <QDialog>

#include <string>
#include <vector>

#include "CfgOption.h"
#include "FilterAPI.h"
#include "ParamData.h"
#include "ParamSource.h"
#include "TkFile.h"
#include "TkLog.h"
#include "TkModel.h"

class QAbstractButton;
class QButtonGroup;
class QCheckBox;
class QLineEdit;
class QPushButton;
class QTimer;
class CDialogLayout;
class CListCtrlEx;

// The command's instance slot: the dialog left from the last opening goes
// with its state and a new one opens. Closing a dialog destroys it.
void ShowParamsSetDlg();

class CDlgParamsSet : public QDialog {
 public:
  // Values of "RadioParams" and "RadioMdl".
  enum Source { kSourceExcel = 0, kSourceMdl = 1, kSourceCsv = 2 };
  enum Scope { kScopeCurrent = 0, kScopeSession = 1 };

  explicit CDlgParamsSet(QWidget* parent = nullptr);
  ~CDlgParamsSet() override;

  // The opening: options, columns, the reference list and the models. Before
  // the window shows.
  void OnInitDialog();

 protected:
  bool eventFilter(QObject* watched, QEvent* event) override;

 private:
  void SetRefComboColumns(bool withKind);
  void LoadReferenceList();
  std::vector<ParamData> CollectCheckedRefs() const;
  void RebuildMdlColumns();
  void FillMdlList();
  std::vector<std::wstring> MdlRowCells(int row) const;
  void Refresh();

  void OnSource(int source);
  void OnChooseRefMdl();
  void OnEditSource();
  void OnScope(int scope);
  void OnChooseDir();
  void OnSetParams();
  void OnCreateParams();
  void OnFilterSet();
  void OnRefRightClick(const QPoint& viewportPos);
  void OnMdlRightClick(const QPoint& viewportPos);
  void SetSelectedChecks(CListCtrlEx* list, bool checked);
  void OpenSelectedMdls();

  CParamSource source_;
  CTkModel model_;
  CTkFile file_;
  CTkLog log_;
  CCfgOption option_;
  CFilterAPI filter_;
  std::vector<ParamData> sourceRows_;
  std::vector<ParamData> refs_;
  std::vector<ProMdl> mdls_;

  QButtonGroup* sources_ = nullptr;
  QButtonGroup* scopes_ = nullptr;
  QLineEdit* refPath_ = nullptr;
  QPushButton* refButton_ = nullptr;
  CListCtrlEx* refList_ = nullptr;
  QPushButton* filterButton_ = nullptr;
  QCheckBox* curPath_ = nullptr;
  QLineEdit* dir_ = nullptr;
  QPushButton* dirButton_ = nullptr;
  CListCtrlEx* mdlList_ = nullptr;
  QCheckBox* defValue_ = nullptr;
  QPushButton* setButton_ = nullptr;
  QTimer* checkTimer_ = nullptr;
  CDialogLayout* layout_ = nullptr;
};
