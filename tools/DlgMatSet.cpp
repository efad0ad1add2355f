#include "DlgMatSet.h"

#include <QButtonGroup>
#include <QCheckBox>
#include <QLineEdit>
#include <QMenu>
#include <QMouseEvent>
#include <QPointer>
#include <QPushButton>
#include <QRadioButton>

#include <exception>

#include "BomListCells.h"
#include "CodePage.h"
#include "DlgMatList.h"
#include "FileDialog.h"
#include "ListCtrlEx.h"
#include "MatTable.h"
#include "MaterialAssign.h"
#include "MaterialFiles.h"
#include "PlacedWidgets.h"
#include "ToolSlot.h"
#include "RowNumber.h"
#include "WindowRules.h"

namespace {

const wchar_t kToolKey[] = L"MatTool";
const wchar_t kCaption[] = L"提示";
constexpr int kParamDecimals = 2;
constexpr int kAssemblyImage = 15;
constexpr int kOtherImage = 14;

enum Col { kColIndex, kColName, kColMaterial, kColMaterialPath, kFirstParamCol };

// The resize rules: the list keeps its top left corner and leaves these
// margins; the buttons stand on one line above the bottom, the filter
// button from the left, the others with their right edges from the right.
constexpr int kListWidthMargin = 40;
constexpr int kListHeightMargin = 140;
constexpr int kButtonLineAboveBottom = 40;
constexpr int kFilterLeft = 20;
constexpr int kExportRightMargin = 350;
constexpr int kImportRightMargin = 250;
constexpr int kSaveRightMargin = 150;
constexpr int kCancelRightMargin = 14;
constexpr int kButtonWidth = 88;
constexpr int kButtonHeight = 28;

QPointer<CDlgMatSet> dlgMatSet;

}  // namespace

void ShowMatSetDlg() { ShowInSlot(dlgMatSet); }

CDlgMatSet::CDlgMatSet(QWidget* parent) : QDialog(parent) {
  setWindowTitle("材料批量设置");
  setObjectName("DlgMatSet");
  setAttribute(Qt::WA_DeleteOnClose);
  setMinimumSize(550, 300);

  scopes_ = new QButtonGroup(this);
  Radio(scopes_, kScopeCurrent, "显示当前零件模型", "RadioCurMdl", this, {20, 10, 150, 24});
  Radio(scopes_, kScopeSession, "显示内存零件模型", "RadioSessionMdl", this, {176, 10, 150, 24});
  autoSave_ = Named(new QCheckBox("自动保存零件", this), "CheckAutoSave", {340, 10, 130, 24});
  checkDir_ = Named(new QCheckBox("设置目录内零件: ", this), "CheckDir", {20, 40, 150, 24});
  dir_ = Named(new QLineEdit(this), "DirEdit", {176, 40, 480, 24});
  dir_->setReadOnly(true);
  dirButton_ = Named(new QPushButton("...", this), "DirButton", {662, 40, 32, 24});
  list_ = Named(new CListCtrlEx(this), "MatList", {20, 72, 720, 368});
  filterButton_ = Named(new QPushButton("过滤设置", this), "FilterButton", {});
  exportButton_ = Named(new QPushButton("导出材料表", this), "ExportButton", {});
  importButton_ = Named(new QPushButton("导入材料表", this), "ImportButton", {});
  saveButton_ = Named(new QPushButton("保存", this), "SaveButton", {});
  cancelButton_ = Named(new QPushButton("取消", this), "CancelButton", {});
  resize(760, 508);

  connect(checkDir_, &QCheckBox::clicked, this, &CDlgMatSet::OnCheckDir);
  connect(dirButton_, &QPushButton::clicked, this, &CDlgMatSet::OnChooseDir);
  connect(scopes_, &QButtonGroup::idClicked, this, &CDlgMatSet::FillMatList);
  connect(autoSave_, &QCheckBox::clicked, this, [this](bool on) { option_.SetCheckAutoSave(on ? 1 : 0); });
  connect(filterButton_, &QPushButton::clicked, this, &CDlgMatSet::OnFilterSet);
  connect(exportButton_, &QPushButton::clicked, this, &CDlgMatSet::ExportMatTable);
  connect(importButton_, &QPushButton::clicked, this, &CDlgMatSet::ImportMatTable);
  connect(saveButton_, &QPushButton::clicked, this, &CDlgMatSet::SaveMaterials);
  connect(cancelButton_, &QPushButton::clicked, this, &CDlgMatSet::close);
  list_->viewport()->installEventFilter(this);
}

CDlgMatSet::~CDlgMatSet() = default;

void CDlgMatSet::OnInitDialog() {
  MakeTopMost(this);
  KeepAtTopRightOnShow(this);
  bool showLoadDir = option_.GetShowLoadDir() != 0;
  checkDir_->setChecked(showLoadDir && option_.GetCheckDir() != 0);
  autoSave_->setChecked(option_.GetCheckAutoSave() != 0);
  dir_->setText(QString::fromStdWString(file_.GetCurDir()));
  // The scope is not stored: every opening shows the current model's.
  scopes_->button(kScopeCurrent)->setChecked(true);
  if (!showLoadDir) {
    checkDir_->hide();
    dir_->hide();
    dirButton_->hide();
  }

  std::wstring materialDir;
  material_.GetMaterialDir(materialDir);
  if (materialDir.empty()) {
    log_.ShowPrompt(L"请通过选项pro_material_dir设置材料目录", kCaption, 0, nullptr, 0);
  } else {
    std::vector<std::wstring> subdirectories;
    material_.ListMaterialFiles(materialDir, L"*.mtl", names_, subdirectories, 1);
  }
  if (names_.empty()) saveButton_->setEnabled(false);
  filterButton_->setText(QString::fromStdWString(L"过滤方案: " + filter_.GetCurPrj(kToolKey)));

  list_->InsertColumn(kColIndex, L"序号", 50);
  list_->InsertColumn(kColName, L"模型名称", 200);
  list_->InsertColumn(kColMaterial, L"材料名称", 100);
  list_->InsertColumn(kColMaterialPath, L"材料目录", 0);
  std::vector<ParamCol> cols;
  option_.GetMatCols(cols);
  for (const ParamCol& col : cols) list_->InsertColumn(list_->columnCount(), col.title, col.width);
  FillMatList();
}

void CDlgMatSet::CollectMatMdls(std::vector<ProMdl>& models) {
  models.clear();
  std::wstring dir = checkDir_->isChecked() ? dir_->text().toStdWString() : L"";
  if (scopes_->checkedId() == kScopeCurrent) {
    source_.CollectCurrentMdls(models);
  } else {
    source_.CollectSessionMdls(dir, models);
  }
  for (int i = static_cast<int>(models.size()) - 1; i >= 0; --i) {
    if (!filter_.IsShowMdl(models[i], kToolKey)) models.erase(models.begin() + i);
  }
}

void CDlgMatSet::FillMatList() {
  CollectMatMdls(mdls_);
  saveButton_->setEnabled(!mdls_.empty());
  std::vector<ParamCol> cols;
  option_.GetMatCols(cols);
  list_->DeleteAllItems();
  for (int row = 0; row < static_cast<int>(mdls_.size()); ++row) {
    ProMdl mdl = mdls_[row];
    std::wstring name;
    int type = 0;
    source_.GetMdlNameAndKind(mdl, name, type);
    list_->InsertItem(row, RowNumberText(row), type == CTkModel::kAssembly ? kAssemblyImage : kOtherImage);
    list_->SetItemText(row, kColName, name);
    list_->SetItemText(row, kColMaterial, material_.GetMdlMaterialName(mdl));
    list_->SetItemText(row, kColMaterialPath, L"");
    for (int i = 0; i < static_cast<int>(cols.size()); ++i)
      list_->SetItemText(row, kFirstParamCol + i,
                         param_.GetMdlParamValue(mdl, cols[i].paramName, kParamDecimals));
    list_->SetCheck(row, true);
  }
}

void CDlgMatSet::ChooseMaterial() {
  std::vector<int> rows = list_->GetSelectedRows();
  std::wstring materialDir;
  material_.GetMaterialDir(materialDir);
  if (option_.GetMatListStyle() == 1) {
    CDlgMatList pick(names_, this);
    if (pick.exec() != QDialog::Accepted) return;
    SetRowMaterials(rows, pick.Choice(), MaterialFilePath(materialDir, pick.Choice()));
    return;
  }
  std::optional<std::wstring> path =
      platform::ChooseFileToOpen(this, L"Creo材料 (*.mtl)|*.mtl|Creo材料 (*.mat)|*.mat||", materialDir);
  if (!path) return;
  SetRowMaterials(rows, MaterialNameOfFile(*path), *path);
}

void CDlgMatSet::SetRowMaterials(const std::vector<int>& rows, const std::wstring& name,
                                 const std::wstring& path) {
  for (auto row = rows.rbegin(); row != rows.rend(); ++row) {
    list_->SetItemText(*row, kColMaterial, name);
    list_->SetItemText(*row, kColMaterialPath, path);
  }
}

void CDlgMatSet::SaveMaterials() {
  if (static_cast<int>(mdls_.size()) != list_->GetItemCount()) {
    log_.ShowPrompt(L"内存中模型与表格显示有出入, 请重新打开对话框!", kCaption, 0, nullptr, 0);
    return;
  }
  for (int row = 0; row < list_->GetItemCount(); ++row) {
    if (!list_->GetCheck(row)) continue;
    AssignRowMaterial(material_, mdls_[row], list_->GetItemText(row, kColMaterial),
                      list_->GetItemText(row, kColMaterialPath), autoSave_->isChecked());
  }
  FillMatList();
}

template <typename Job>
void CDlgMatSet::ReportingSpreadsheetErrors(Job job) {
  try {
    job();
  } catch (const std::exception& error) {
    log_.ShowPrompt(platform::ToWide(error.what()), kCaption, 0, nullptr, 0);
  }
}

void CDlgMatSet::ExportMatTable() {
  std::vector<MatTableRow> rows;
  for (int row = 0; row < list_->GetItemCount(); ++row) {
    rows.push_back({list_->GetItemText(row, kColIndex), list_->GetItemText(row, kColName),
                    list_->GetItemText(row, kColMaterial)});
  }
  ReportingSpreadsheetErrors([&rows] { WriteMatTable(rows); });
}

void CDlgMatSet::ImportMatTable() {
  ReportingSpreadsheetErrors([this] {
    ReadMatTable(list_->GetItemCount(), [this](int row, const std::wstring& material) {
      list_->SetItemText(row, kColMaterial, material);
    });
  });
}

void CDlgMatSet::OnCheckDir(bool on) {
  option_.SetCheckDir(on ? 1 : 0);
  FillMatList();
}

void CDlgMatSet::OnChooseDir() {
  std::wstring dir = file_.ChooseDir(dir_->text().toStdWString());
  if (dir.empty()) return;
  dir_->setText(QString::fromStdWString(dir));
  FillMatList();
}

void CDlgMatSet::OnFilterSet() {
  filter_.LoadFilterDlg(kToolKey);
  FillMatList();
  filterButton_->setText(QString::fromStdWString(L"过滤方案: " + filter_.GetCurPrj(kToolKey)));
}

void CDlgMatSet::resizeEvent(QResizeEvent* event) {
  QDialog::resizeEvent(event);
  const int w = width();
  const int h = height();
  list_->resize(w - kListWidthMargin, h - kListHeightMargin);
  const int top = h - kButtonLineAboveBottom;
  auto endAt = [&](QPushButton* button, int rightMargin) {
    button->setGeometry(w - rightMargin - kButtonWidth, top, kButtonWidth, kButtonHeight);
  };
  filterButton_->setGeometry(kFilterLeft, top, kButtonWidth, kButtonHeight);
  endAt(exportButton_, kExportRightMargin);
  endAt(importButton_, kImportRightMargin);
  endAt(saveButton_, kSaveRightMargin);
  endAt(cancelButton_, kCancelRightMargin);
}

bool CDlgMatSet::eventFilter(QObject* watched, QEvent* event) {
  if (watched == list_->viewport() && event->type() == QEvent::MouseButtonRelease) {
    auto* mouse = static_cast<QMouseEvent*>(event);
    if (mouse->button() == Qt::RightButton) OnRightClick(mouse->position().toPoint());
  }
  return QDialog::eventFilter(watched, event);
}

void CDlgMatSet::OnRightClick(const QPoint& viewportPos) {
  if (list_->HitTestRow(viewportPos) < 0) return;
  QMenu menu(this);
  menu.setObjectName("MatListMenu");
  menu.addAction("选择材料(&M)", this, &CDlgMatSet::ChooseMaterial);
  menu.addAction("打开模型(&O)", this, &CDlgMatSet::OpenSelectedMdls);
  menu.addAction("选择(&S)", this, [this] { SetSelectedChecks(true); });
  menu.addAction("取消(&C)", this, [this] { SetSelectedChecks(false); });
  menu.exec(list_->viewport()->mapToGlobal(viewportPos));
}

void CDlgMatSet::SetSelectedChecks(bool checked) {
  for (int row : list_->GetSelectedRows()) list_->SetCheck(row, checked);
}

void CDlgMatSet::OpenSelectedMdls() {
  std::vector<int> selected = list_->GetSelectedRows();
  for (auto row = selected.rbegin(); row != selected.rend(); ++row) {
    int index = RowIndexOf(list_->GetItemText(*row, kColIndex));
    if (index < 0 || index >= static_cast<int>(mdls_.size())) continue;
    int window = 0;
    model_.OpenMdlWindow(mdls_[index], window);
  }
}
