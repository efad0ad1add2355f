#include "DlgRelation.h"

#include <QCheckBox>
#include <QComboBox>
#include <QGroupBox>
#include <QLineEdit>
#include <QListWidget>
#include <QPointer>
#include <QPushButton>
#include <QTextEdit>

#include "CfgOption.h"
#include "DialogLayout.h"
#include "DlgRelName.h"
#include "FilterAPI.h"
#include "ListCtrlEx.h"
#include "MdlImage.h"
#include "MessageBox.h"
#include "ParamSource.h"
#include "PlacedWidgets.h"
#include "ToolSlot.h"
#include "ProMdl.h"
#include "RelationBatch.h"
#include "RelationStore.h"
#include "RowNumber.h"
#include "TkFile.h"
#include "TkLog.h"
#include "TkModel.h"
#include "TkRelation.h"
#include "WindowRules.h"

namespace {

const wchar_t kToolKey[] = L"RelationTool";
const wchar_t kCaption[] = L"提示";
constexpr int kDialogId = 3;
constexpr int kRowDigits = 3;

enum MdlCol { kColIndex, kColName, kColCommonName };
enum Target { kTargetMdl = 0, kTargetCmp = 1 };
// Control ids of the anchored controls.
enum ControlId {
  kRefFrame = 1,
  kMdlPath,
  kMdlPathButton,
  kEditMdl,
  kNames,
  kSaveRelation,
  kNewRelation,
  kDeleteRelation,
  kEditor,
  kMdlFrame,
  kDir,
  kDirButton,
  kMdlList,
  kTargetMdlRadio,
  kTargetCmpRadio,
  kOverwrite,
  kAdd,
  kDelete,
  kClear,
  kSaveMdls,
};

bool AskYesNo(QWidget* parent, const std::wstring& question) {
  return platform::MessageBox(parent, question, kCaption, platform::kMbYesNo) == platform::kIdYes;
}

QPointer<CDlgRelation> dlgRelation;

}  // namespace

void ShowRelationDlg() { ShowInSlot(dlgRelation); }

CDlgRelation::CDlgRelation(QWidget* parent) : QDialog(parent) {
  setWindowTitle("关系批量工具");
  setObjectName("DlgRelation");
  setAttribute(Qt::WA_DeleteOnClose);
  resize(700, 632);
  layout_ = new CDialogLayout(this);

  auto* refFrame = Named(new QGroupBox("参考属性", this), "RefFrame", {8, 4, 684, 318});
  sources_ = new QButtonGroup(this);
  Radio(sources_, kSourceMdl, "通过指定模型", "RadioSourceMdl", refFrame, {10, 20, 112, 24});
  Radio(sources_, kSourceStore, "通过常用关系式", "RadioSourceStore", refFrame, {124, 20, 124, 24});
  mdlPath_ = Named(new QLineEdit(refFrame), "MdlPathEdit", {252, 20, 300, 24});
  mdlPath_->setReadOnly(true);
  mdlPathButton_ = Named(new QPushButton("...", refFrame), "MdlPathButton", {556, 20, 28, 24});
  editMdl_ = Named(new QPushButton("编辑模型关系", refFrame), "EditMdlButton", {588, 20, 88, 24});
  names_ = Named(new QComboBox(refFrame), "NameCombo", {10, 50, 372, 24});
  saveRelation_ = Named(new QPushButton("保存常用关系", refFrame), "SaveRelationButton", {388, 50, 94, 24});
  newRelation_ = Named(new QPushButton("新增常用关系", refFrame), "NewRelationButton", {484, 50, 94, 24});
  deleteRelation_ =
      Named(new QPushButton("删除常用关系", refFrame), "DeleteRelationButton", {580, 50, 94, 24});
  nameList_ = Named(new QListWidget(refFrame), "NameList", {10, 80, 150, 230});
  editor_ = Named(new QTextEdit(refFrame), "RelationEdit", {166, 80, 510, 230});
  editor_->setAcceptRichText(false);

  auto* mdlFrame = Named(new QGroupBox("模型", this), "MdlFrame", {8, 326, 684, 262});
  filterButton_ = Named(new QPushButton("过滤设置", mdlFrame), "FilterButton", {8, 20, 170, 24});
  scopes_ = new QButtonGroup(this);
  Radio(scopes_, kScopeCurrent, "当前模型", "RadioCurMdl", mdlFrame, {184, 20, 80, 24});
  Radio(scopes_, kScopeSession, "内存模型", "RadioSessionMdl", mdlFrame, {266, 20, 80, 24});
  curPath_ = Named(new QCheckBox("自动加载目录下模型", mdlFrame), "CheckCurPath", {350, 20, 140, 24});
  dir_ = Named(new QLineEdit(mdlFrame), "DirEdit", {494, 20, 150, 24});
  dir_->setReadOnly(true);
  dirButton_ = Named(new QPushButton("...", mdlFrame), "DirButton", {648, 20, 28, 24});
  mdlList_ = Named(new CListCtrlEx(mdlFrame), "MdlList", {8, 50, 668, 204});

  targets_ = new QButtonGroup(this);
  auto* targetMdl = Radio(targets_, kTargetMdl, "模型关系", "RadioMdlRelation", this, {10, 598, 80, 24});
  auto* targetCmp = Radio(targets_, kTargetCmp, "元件关系", "RadioCmpRelation", this, {92, 598, 80, 24});
  auto* overwrite = Named(new QPushButton("覆盖关系", this), "OverwriteButton", {210, 596, 90, 28});
  auto* add = Named(new QPushButton("添加关系", this), "AddButton", {304, 596, 90, 28});
  auto* remove = Named(new QPushButton("删除关系", this), "DeleteButton", {398, 596, 90, 28});
  auto* clear = Named(new QPushButton("清除关系", this), "ClearButton", {492, 596, 90, 28});
  auto* saveMdls = Named(new QPushButton("保存勾选模型", this), "SaveMdlsButton", {586, 596, 106, 28});

  connect(sources_, &QButtonGroup::idClicked, this, &CDlgRelation::OnSource);
  connect(mdlPathButton_, &QPushButton::clicked, this, &CDlgRelation::OnChooseMdl);
  connect(editMdl_, &QPushButton::clicked, this, &CDlgRelation::OnEditMdl);
  // A choice of the user's, never a selection made by the dialog.
  connect(names_, &QComboBox::activated, this, &CDlgRelation::LoadRelationText);
  connect(nameList_, &QListWidget::itemDoubleClicked, this, &CDlgRelation::OnAppendName);
  connect(saveRelation_, &QPushButton::clicked, this, &CDlgRelation::OnSaveRelation);
  connect(newRelation_, &QPushButton::clicked, this, &CDlgRelation::OnNewRelation);
  connect(deleteRelation_, &QPushButton::clicked, this, &CDlgRelation::OnDeleteRelation);
  connect(filterButton_, &QPushButton::clicked, this, &CDlgRelation::OnFilterSet);
  connect(scopes_, &QButtonGroup::idClicked, this, &CDlgRelation::OnScope);
  connect(curPath_, &QCheckBox::clicked, this, [this](bool on) { CCfgOption().SetCheckCurPath(on ? 1 : 0); });
  connect(dirButton_, &QPushButton::clicked, this, &CDlgRelation::OnChooseDir);
  connect(overwrite, &QPushButton::clicked, this, [this] { OnWrite(RelationWrite::kOverwrite, false); });
  connect(add, &QPushButton::clicked, this, [this] { OnWrite(RelationWrite::kAdd, false); });
  connect(remove, &QPushButton::clicked, this, [this] { OnWrite(RelationWrite::kDelete, false); });
  connect(clear, &QPushButton::clicked, this, [this] { OnWrite(RelationWrite::kOverwrite, true); });
  connect(saveMdls, &QPushButton::clicked, this, &CDlgRelation::OnSaveMdls);

  layout_->Add(kAnchorStretchWidth, kEditor, editor_);
  layout_->Add(kAnchorStretchWidth, kRefFrame, refFrame);
  layout_->Add(kAnchorStretchWidth, kMdlPath, mdlPath_);
  layout_->Add(kAnchorStretchWidth, kNames, names_);
  layout_->Add(kAnchorStretchWidth, kDir, dir_);
  layout_->Add(kAnchorRight, kMdlPathButton, mdlPathButton_);
  layout_->Add(kAnchorRight, kSaveRelation, saveRelation_);
  layout_->Add(kAnchorRight, kNewRelation, newRelation_);
  layout_->Add(kAnchorRight, kDeleteRelation, deleteRelation_);
  layout_->Add(kAnchorRight, kEditMdl, editMdl_);
  layout_->Add(kAnchorRight, kDirButton, dirButton_);
  layout_->Add(kAnchorStretchBoth, kMdlList, mdlList_);
  layout_->Add(kAnchorStretchBoth, kMdlFrame, mdlFrame);
  layout_->Add(kAnchorBottom, kTargetMdlRadio, targetMdl);
  layout_->Add(kAnchorBottom, kTargetCmpRadio, targetCmp);
  layout_->Add(kAnchorBottom, kOverwrite, overwrite);
  layout_->Add(kAnchorBottom, kAdd, add);
  layout_->Add(kAnchorBottom, kDelete, remove);
  layout_->Add(kAnchorBottom, kClear, clear);
  layout_->Add(kAnchorBottom, kSaveMdls, saveMdls);
}

CDlgRelation::~CDlgRelation() = default;

void CDlgRelation::OnInitDialog() {
  MakeTopMost(this);
  layout_->Init(kDialogId);
  layout_->Enable(1);
  setMinimumSize(size());
  // Values outside the radios' range open on the first one.
  CCfgOption option;
  sources_->button(option.GetRadioParams() == kSourceMdl ? kSourceMdl : kSourceStore)->setChecked(true);
  scopes_->button(option.GetRadioMdl() == kScopeSession ? kScopeSession : kScopeCurrent)->setChecked(true);
  curPath_->setChecked(option.GetCheckCurPath() != 0);
  targets_->button(kTargetMdl)->setChecked(true);
  dir_->setText(QString::fromStdWString(CTkFile().GetCurDir()));
  filterButton_->setText(QString::fromStdWString(L"过滤方案: " + CFilterAPI().GetCurPrj(kToolKey)));
  FillRelationNames();
  LoadRelationText();
  mdlList_->InsertColumn(kColIndex, L"序号", 100);
  mdlList_->InsertColumn(kColName, L"模型名称", 200);
  mdlList_->InsertColumn(kColCommonName, L"中文名称", 200);
  FillRelationMdlList();
  EnableControls();
}

void CDlgRelation::EnableControls() {
  bool fromMdl = sources_->checkedId() == kSourceMdl;
  mdlPathButton_->setEnabled(fromMdl);
  editMdl_->setEnabled(fromMdl);
  for (QWidget* control :
       std::initializer_list<QWidget*>{names_, saveRelation_, newRelation_, deleteRelation_})
    control->setEnabled(!fromMdl);
  bool current = scopes_->checkedId() == kScopeCurrent;
  curPath_->setEnabled(!current);
  dirButton_->setEnabled(!current);
}

void CDlgRelation::LoadRelationText() {
  editor_->clear();
  if (sources_->checkedId() == kSourceStore) {
    std::wstring text;
    CTkFile().ReadFileText(GetSelRelationPath(), text);
    editor_->setPlainText(QString::fromStdWString(text));
    return;
  }
  std::wstring path = mdlPath_->text().toStdWString();
  if (path.empty()) return;
  ProMdl mdl = nullptr;
  if (CTkModel().LoadMdl(path, -1, mdl) != 0) {
    CTkLog().ShowPrompt(L"无法加载" + path, kCaption, platform::kMbOk, this, 0);
    return;
  }
  CTkRelation relation;
  ProRelset set{};
  std::vector<std::wstring> lines;
  if (relation.GetMdlRelset(mdl, set) != 0 || relation.GetRelationLines(set, lines) != 0) {
    CTkLog().ShowPrompt(L"无法获取关系式", kCaption, platform::kMbOk, this, 0);
    return;
  }
  std::wstring text;
  for (std::size_t i = 0; i < lines.size(); ++i) text += (i ? L"\n" : L"") + lines[i];
  editor_->setPlainText(QString::fromStdWString(text));
}

void CDlgRelation::FillRelationNames() {
  std::vector<std::wstring> names;
  ListRelationNames(names);
  names_->clear();
  nameList_->clear();
  for (const std::wstring& name : names) {
    names_->addItem(QString::fromStdWString(name));
    nameList_->addItem(QString::fromStdWString(name));
  }
  names_->setCurrentIndex(names.empty() ? -1 : 0);
}

std::wstring CDlgRelation::GetSelRelationPath() const {
  if (names_->currentIndex() < 0) return L"";
  return RelationPath(names_->currentText().toStdWString());
}

void CDlgRelation::FillRelationMdlList() {
  if (scopes_->checkedId() == kScopeSession) {
    CParamSource().CollectSessionMdls(curPath_->isChecked() ? dir_->text().toStdWString() : L"", mdls_);
  } else {
    CParamSource().CollectCurrentMdls(mdls_);
  }
  for (int i = static_cast<int>(mdls_.size()) - 1; i >= 0; --i) {
    if (!CFilterAPI().IsShowMdl(mdls_[i], kToolKey)) mdls_.erase(mdls_.begin() + i);
  }
  // Every refill checks every row, whatever was checked before.
  mdlList_->DeleteAllItems();
  CTkModel model;
  for (int row = 0; row < static_cast<int>(mdls_.size()); ++row) {
    ProMdl mdl = mdls_[row];
    mdlList_->InsertItem(row, RowNumberText(row, kRowDigits), MdlImageOf(model, mdl));
    mdlList_->SetItemText(row, kColName, model.GetMdlName(mdl));
    mdlList_->SetItemText(row, kColCommonName, model.GetMdlCommonName(mdl));
    mdlList_->SetCheck(row, true);
  }
}

std::vector<ProMdl> CDlgRelation::CheckedMdls() const {
  std::vector<ProMdl> checked;
  for (int row = 0; row < mdlList_->GetItemCount() && row < static_cast<int>(mdls_.size()); ++row) {
    if (mdlList_->GetCheck(row)) checked.push_back(mdls_[row]);
  }
  return checked;
}

void CDlgRelation::OnSource(int source) {
  EnableControls();
  LoadRelationText();
  CCfgOption().SetRadioParams(source);
}

void CDlgRelation::OnChooseMdl() {
  std::wstring path = CTkFile().ChooseMdlFile(L"*.asm,*.prt", L"", 0);
  if (!path.empty()) mdlPath_->setText(QString::fromStdWString(path));
  LoadRelationText();
}

void CDlgRelation::OnEditMdl() {
  std::wstring path = mdlPath_->text().toStdWString();
  if (path.empty()) {
    CTkLog().ShowPrompt(L"模型路径不能为空!", kCaption, platform::kMbOk, this, 0);
    return;
  }
  ProMdl mdl = nullptr;
  if (CTkModel().LoadMdl(path, -1, mdl) != 0) {
    CTkLog().ShowPrompt(L"无法加载" + path, kCaption, platform::kMbOk, this, 0);
    return;
  }
  int window = 0;
  CTkModel().OpenMdlWindow(mdl, window);
}

void CDlgRelation::OnScope(int scope) {
  FillRelationMdlList();
  CCfgOption().SetRadioMdl(scope);
  EnableControls();
}

void CDlgRelation::OnChooseDir() {
  std::wstring dir = CTkFile().ChooseDir(L"");
  if (!dir.empty()) dir_->setText(QString::fromStdWString(dir));
  FillRelationMdlList();
}

void CDlgRelation::OnFilterSet() {
  CFilterAPI().LoadFilterDlg(kToolKey);
  FillRelationMdlList();
  filterButton_->setText(QString::fromStdWString(L"过滤方案: " + CFilterAPI().GetCurPrj(kToolKey)));
}

void CDlgRelation::OnWrite(RelationWrite write, bool clear) {
  RelationTarget target = targets_->checkedId() == kTargetCmp ? RelationTarget::kCmp : RelationTarget::kMdl;
  WriteRelations(write, target, CheckedMdls(), clear ? L"" : editor_->toPlainText().toStdWString());
}

void CDlgRelation::OnSaveMdls() {
  for (ProMdl mdl : CheckedMdls()) ProMdlSave(mdl);
}

void CDlgRelation::OnAppendName() {
  QList<QListWidgetItem*> selected = nameList_->selectedItems();
  if (selected.isEmpty()) return;
  std::wstring text;
  CTkFile().ReadFileText(RelationPath(selected.front()->text().toStdWString()), text);
  editor_->setPlainText(editor_->toPlainText() + "\n" + QString::fromStdWString(text));
}

void CDlgRelation::OnSaveRelation() {
  std::wstring name = names_->currentText().toStdWString();
  std::wstring path = GetSelRelationPath();
  std::wstring text = editor_->toPlainText().toStdWString();
  if (!AskYesNo(this, L"确实保存当前关系式到" + name + L"?")) return;
  if (!path.empty()) CTkFile().AppendToFile(path, text);
  CTkLog().ShowPrompt(L"保存关系式成功!", kCaption, platform::kMbOk, this, 0);
}

void CDlgRelation::OnNewRelation() {
  std::vector<std::wstring> listed;
  for (int i = 0; i < names_->count(); ++i) listed.push_back(names_->itemText(i).toStdWString());
  CDlgRelName nameDlg(this);
  std::wstring name;
  for (;;) {
    if (nameDlg.exec() != QDialog::Accepted) return;
    name = nameDlg.GetName();
    NewRelationName check = CheckNewRelationName(name, listed);
    if (check == NewRelationName::kAccepted) break;
    if (check == NewRelationName::kEmpty) {
      CTkLog().ShowPrompt(L"关系式名称不能为空", kCaption, platform::kMbOk, this, 0);
      return;
    }
    CTkLog().ShowPrompt(L"该关系式名称已存在, 请重新输入", kCaption, platform::kMbOk, this, 0);
  }
  CTkFile().AppendToFile(RelationPath(name), editor_->toPlainText().toStdWString());
  FillRelationNames();
  CTkLog().ShowPrompt(L"新增常用关系成功", kCaption, platform::kMbOk, this, 0);
}

void CDlgRelation::OnDeleteRelation() {
  std::wstring name = names_->currentText().toStdWString();
  std::wstring path = GetSelRelationPath();
  if (!AskYesNo(this, L"确实删除关系式" + name + L"?")) return;
  if (!path.empty()) CTkFile().DelFile(path, 0);
  FillRelationNames();
}
