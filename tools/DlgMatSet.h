// "材料批量设置": the models of the current model or of the session with
// the material of each and the parameter columns of MatCol.cfg; materials
// picked for selected rows are assigned to the checked models at "保存",
// and the table goes to and comes back from a workbook. Modeless,
// top-most, at the top right corner of the screen at every show; at most
// one at a time.
#pragma once

#include <QDialog>

#include <string>
#include <vector>

#include "CfgOption.h"
#include "FilterAPI.h"
#include "ParamSource.h"
#include "TkFile.h"
#include "TkLog.h"
#include "TkMaterial.h"
#include "TkModel.h"
#include "TkParam.h"

class QButtonGroup;
class QCheckBox;
class QLineEdit;
class QPushButton;
class CListCtrlEx;

// The command's instance slot: the dialog left from the last opening goes
// with its state and a new one opens. Closing a dialog destroys it.
void ShowMatSetDlg();

class CDlgMatSet : public QDialog {
 public:
  enum Scope { kScopeCurrent = 0, kScopeSession = 1 };

  explicit CDlgMatSet(QWidget* parent = nullptr);
  ~CDlgMatSet() override;

  // The opening: options, the material names, the columns and the models.
  // Before the window shows.
  void OnInitDialog();

 protected:
  bool eventFilter(QObject* watched, QEvent* event) override;
  void resizeEvent(QResizeEvent* event) override;

 private:
  void CollectMatMdls(std::vector<ProMdl>& models);
  void FillMatList();
  void ChooseMaterial();
  void SetRowMaterials(const std::vector<int>& rows, const std::wstring& name, const std::wstring& path);
  void SaveMaterials();
  void ExportMatTable();
  void ImportMatTable();

  void OnCheckDir(bool on);
  void OnChooseDir();
  void OnFilterSet();
  void OnRightClick(const QPoint& viewportPos);
  void SetSelectedChecks(bool checked);
  void OpenSelectedMdls();
  // A spreadsheet failure ends the job where it stands; the user is told
  // its text and the dialog stays.
  template <typename Job>
  void ReportingSpreadsheetErrors(Job job);

  CParamSource source_;
  CTkModel model_;
  CTkParam param_;
  CTkFile file_;
  CTkMaterial material_;
  CTkLog log_;
  CCfgOption option_;
  CFilterAPI filter_;
  std::vector<ProMdl> mdls_;
  std::vector<std::wstring> names_;

  QButtonGroup* scopes_ = nullptr;
  QCheckBox* autoSave_ = nullptr;
  QCheckBox* checkDir_ = nullptr;
  QLineEdit* dir_ = nullptr;
  QPushButton* dirButton_ = nullptr;
  CListCtrlEx* list_ = nullptr;
  QPushButton* filterButton_ = nullptr;
  QPushButton* exportButton_ = nullptr;
  QPushButton* importButton_ = nullptr;
  QPushButton* saveButton_ = nullptr;
  QPushButton* cancelButton_ = nullptr;
};
