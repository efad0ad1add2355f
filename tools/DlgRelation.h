// "关系批量工具": one relation text, taken from a common relation or from a
// model and edited at will, written into the checked models as model or
// component relations by overwriting, adding or deleting. Modeless,
// top-most, at most one at a time. Shares its source and model choices with
// the batch parameter check ("ParamsSetDlg" in Params.cfg).
#pragma once

#include <QDialog>

#include <string>
#include <vector>

#include "ProObjects.h"

class QButtonGroup;
class QCheckBox;
class QComboBox;
class QLineEdit;
class QListWidget;
class QPushButton;
class QTextEdit;
class CDialogLayout;
class CListCtrlEx;
enum class RelationWrite;

// The command's instance slot: the dialog left from the last opening goes
// with its state and a new one opens. Closing a dialog destroys it.
void ShowRelationDlg();

class CDlgRelation : public QDialog {
 public:
  // Values of "RadioParams" and "RadioMdl".
  enum Source { kSourceStore = 0, kSourceMdl = 1 };
  enum Scope { kScopeCurrent = 0, kScopeSession = 1 };

  explicit CDlgRelation(QWidget* parent = nullptr);
  ~CDlgRelation() override;

  // The opening: options, the store's names, the editor's text and the
  // models. Before the window shows.
  void OnInitDialog();

 private:
  void EnableControls();
  void LoadRelationText();
  void FillRelationNames();
  void FillRelationMdlList();
  // The common relation selected in the combo; empty when none is.
  std::wstring GetSelRelationPath() const;
  std::vector<ProMdl> CheckedMdls() const;

  void OnSource(int source);
  void OnChooseMdl();
  void OnEditMdl();
  void OnScope(int scope);
  void OnChooseDir();
  void OnFilterSet();
  void OnWrite(RelationWrite write, bool clear);
  void OnSaveMdls();
  void OnAppendName();
  void OnSaveRelation();
  void OnNewRelation();
  void OnDeleteRelation();

  std::vector<ProMdl> mdls_;  // index-parallel to the rows of the model list

  QButtonGroup* sources_ = nullptr;
  QLineEdit* mdlPath_ = nullptr;
  QPushButton* mdlPathButton_ = nullptr;
  QPushButton* editMdl_ = nullptr;
  QComboBox* names_ = nullptr;
  QListWidget* nameList_ = nullptr;
  QPushButton* saveRelation_ = nullptr;
  QPushButton* newRelation_ = nullptr;
  QPushButton* deleteRelation_ = nullptr;
  QTextEdit* editor_ = nullptr;
  QPushButton* filterButton_ = nullptr;
  QButtonGroup* scopes_ = nullptr;
  QCheckBox* curPath_ = nullptr;
  QLineEdit* dir_ = nullptr;
  QPushButton* dirButton_ = nullptr;
  CListCtrlEx* mdlList_ = nullptr;
  QButtonGroup* targets_ = nullptr;
  CDialogLayout* layout_ = nullptr;
};
