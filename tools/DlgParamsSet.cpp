#include "DlgParamsSet.h"

#include <QButtonGroup>
#include <QCheckBox>
#include <QGroupBox>
#include <QLineEdit>
#include <QMenu>
#include <QMouseEvent>
#include <QPointer>
#include <QPushButton>
#include <QRadioButton>
#include <QTimer>

#include "BomListCells.h"
#include "DialogLayout.h"
#include "ListCtrlEx.h"
#include "MdlImage.h"
#include "ParamCheck.h"
#include "PlacedWidgets.h"
#include "ToolSlot.h"
#include "RowNumber.h"
#include "WindowRules.h"

namespace {

const wchar_t kToolKey[] = L"MdlChkTool";
constexpr int kDialogId = 2;
// A click on a reference row's check box changes it only after the click
// has been handled; the columns follow once it has.
constexpr int kCheckDelayMs = 100;

// Reference list columns.
enum RefCol { kRefIndex, kRefName, kRefKind, kRefType, kRefValue, kRefDesignated, kRefDescription };
// Model list columns in front of the attributes.
enum MdlCol { kMdlIndex, kMdlName, kMdlStatus };
// Control ids of the anchored controls.
enum ControlId { kRefFrame = 1, kRefList, kMdlFrame, kMdlList };

template <typename Entry>
std::vector<std::wstring> Texts(const std::vector<Entry>& entries) {
  std::vector<std::wstring> texts;
  for (const Entry& entry : entries) texts.push_back(entry.text);
  return texts;
}

// Options outside the radios' range open on the first one.
int Clamped(int option) { return option == 0 || option == 1 ? option : 0; }

QPointer<CDlgParamsSet> dlgParamsSet;

}  // namespace

void ShowParamsSetDlg() { ShowInSlot(dlgParamsSet); }

CDlgParamsSet::CDlgParamsSet(QWidget* parent) : QDialog(parent) {
  setWindowTitle("参数批量检查");
  setObjectName("DlgParamsSet");
  setAttribute(Qt::WA_DeleteOnClose);
  resize(780, 616);

  auto* refFrame = Named(new QGroupBox("参考属性", this), "RefFrame", {8, 4, 764, 250});
  sources_ = new QButtonGroup(this);
  Radio(sources_, kSourceCsv, "通过CSV", "RadioCsv", refFrame, {10, 20, 90, 24});
  Radio(sources_, kSourceExcel, "通过Excel", "RadioExcel", refFrame, {104, 20, 96, 24});
  Radio(sources_, kSourceMdl, "通过模型", "RadioMdl", refFrame, {204, 20, 90, 24});
  refPath_ = Named(new QLineEdit(refFrame), "RefPathEdit", {300, 20, 300, 24});
  refPath_->setReadOnly(true);
  refButton_ = Named(new QPushButton("...", refFrame), "RefPathButton", {604, 20, 32, 24});
  auto* editSource =
      Named(new QPushButton("编辑表格或模型", refFrame), "EditSourceButton", {642, 20, 114, 24});
  refList_ = Named(new CListCtrlEx(refFrame), "RefList", {8, 50, 748, 192});

  auto* mdlFrame = Named(new QGroupBox("模型", this), "MdlFrame", {8, 260, 764, 312});
  filterButton_ = Named(new QPushButton("过滤设置", mdlFrame), "FilterButton", {8, 20, 186, 24});
  scopes_ = new QButtonGroup(this);
  Radio(scopes_, kScopeCurrent, "当前模型", "RadioCurMdl", mdlFrame, {202, 20, 86, 24});
  Radio(scopes_, kScopeSession, "内存模型", "RadioSessionMdl", mdlFrame, {290, 20, 86, 24});
  curPath_ = Named(new QCheckBox("自动加载目录下模型", mdlFrame), "CheckCurPath", {380, 20, 150, 24});
  dir_ = Named(new QLineEdit(mdlFrame), "DirEdit", {534, 20, 180, 24});
  dir_->setReadOnly(true);
  dirButton_ = Named(new QPushButton("...", mdlFrame), "DirButton", {718, 20, 32, 24});
  mdlList_ = Named(new CListCtrlEx(mdlFrame), "MdlList", {8, 50, 748, 254});

  defValue_ = Named(new QCheckBox("使用参考属性", this), "CheckDefValue", {10, 582, 120, 24});
  auto* noGb = Named(new QCheckBox("不显示GB件", this), "CheckNoGb", {136, 582, 110, 24});
  noGb->hide();
  auto* create = Named(new QPushButton("创建参数", this), "CreateButton", {448, 580, 100, 28});
  create->hide();
  auto* check = Named(new QPushButton("属性检查", this), "CheckButton", {558, 580, 100, 28});
  setButton_ = Named(new QPushButton("属性设置", this), "SetButton", {668, 580, 100, 28});

  checkTimer_ = new QTimer(this);
  checkTimer_->setSingleShot(true);
  checkTimer_->setInterval(kCheckDelayMs);
  layout_ = new CDialogLayout(this);

  connect(sources_, &QButtonGroup::idClicked, this, &CDlgParamsSet::OnSource);
  connect(refButton_, &QPushButton::clicked, this, &CDlgParamsSet::OnChooseRefMdl);
  connect(editSource, &QPushButton::clicked, this, &CDlgParamsSet::OnEditSource);
  connect(scopes_, &QButtonGroup::idClicked, this, &CDlgParamsSet::OnScope);
  connect(curPath_, &QCheckBox::clicked, this, [this](bool on) { option_.SetCheckCurPath(on ? 1 : 0); });
  connect(dirButton_, &QPushButton::clicked, this, &CDlgParamsSet::OnChooseDir);
  connect(defValue_, &QCheckBox::clicked, this, [this](bool on) {
    option_.SetCheckDefValue(on ? 1 : 0);
    Refresh();
  });
  connect(check, &QPushButton::clicked, this, &CDlgParamsSet::FillMdlList);
  connect(setButton_, &QPushButton::clicked, this, &CDlgParamsSet::OnSetParams);
  connect(create, &QPushButton::clicked, this, &CDlgParamsSet::OnCreateParams);
  connect(filterButton_, &QPushButton::clicked, this, &CDlgParamsSet::OnFilterSet);
  connect(checkTimer_, &QTimer::timeout, this, &CDlgParamsSet::Refresh);
  refList_->viewport()->installEventFilter(this);
  mdlList_->viewport()->installEventFilter(this);

  layout_->Add(kAnchorStretchBoth, kRefFrame, refFrame);
  layout_->Add(kAnchorStretchBoth, kRefList, refList_);
  layout_->Add(kAnchorStretchBoth, kMdlFrame, mdlFrame);
  layout_->Add(kAnchorStretchBoth, kMdlList, mdlList_);
}

CDlgParamsSet::~CDlgParamsSet() = default;

void CDlgParamsSet::OnInitDialog() {
  MakeTopMost(this);
  KeepAtTopRightOnShow(this);
  int source = Clamped(option_.GetRadioParams());
  int scope = Clamped(option_.GetRadioMdl());
  sources_->button(source)->setChecked(true);
  scopes_->button(scope)->setChecked(true);
  curPath_->setChecked(option_.GetCheckCurPath() != 0);
  defValue_->setChecked(option_.GetCheckDefValue() != 0);
  setButton_->setEnabled(false);
  refButton_->setEnabled(source == kSourceMdl);
  curPath_->setEnabled(scope == kScopeSession);
  dirButton_->setEnabled(scope == kScopeSession);
  dir_->setText(QString::fromStdWString(file_.GetCurDir()));

  const wchar_t* refCols[] = {L"序号", L"属性名称", L"属性类型", L"参数类型", L"属性值", L"指定", L"说明"};
  const int refWidths[] = {50, 100, 150, 150, 100, 50, 200};
  for (int col = kRefIndex; col <= kRefDescription; ++col)
    refList_->InsertColumn(col, refCols[col], refWidths[col]);
  refList_->SetEditMode(CListCtrlEx::kModeEditColumns, {}, {kRefValue, kRefDescription});
  SetRefComboColumns(source != kSourceMdl);
  LoadReferenceList();
  RebuildMdlColumns();
  FillMdlList();
  layout_->Init(kDialogId);
  layout_->Enable(1);
  // Wider, never smaller nor taller than it opens.
  setMinimumSize(size());
  setMaximumHeight(height());
  filterButton_->setText(QString::fromStdWString(L"过滤方案: " + filter_.GetCurPrj(kToolKey)));
}

void CDlgParamsSet::SetRefComboColumns(bool withKind) {
  std::vector<PropCnType> kinds;
  std::vector<ParamCnType> types;
  std::vector<DesignationCn> designations;
  GetPropCnTypes(kinds);
  GetParamCnTypes(types);
  GetDesignationCns(designations);
  std::vector<ComboColumn> combos;
  if (withKind) combos.push_back({kRefKind, Texts(kinds)});
  combos.push_back({kRefType, Texts(types)});
  combos.push_back({kRefDesignated, Texts(designations)});
  refList_->SetComboColumns(combos);
}

void CDlgParamsSet::LoadReferenceList() {
  refList_->DeleteAllItems();
  int source = sources_->checkedId();
  if (source == kSourceExcel) {
    if (source_.ReadExcelParams(sourceRows_) != 1) {
      log_.ShowPrompt(L"无法获取参数Excel文件!", L"提示", 0, nullptr, 0);
      return;
    }
  } else if (source == kSourceCsv) {
    if (source_.ReadCsvParams(sourceRows_) != 1) {
      log_.ShowPrompt(L"无法获取参数CSV文件!", L"提示", 0, nullptr, 0);
      return;
    }
  } else {
    std::wstring path = refPath_->text().toStdWString();
    if (path.empty()) return;
    if (!file_.FileExists(path)) {
      log_.ShowPrompt(L"模型文件不存在", L"提示", 0, nullptr, 0);
      return;
    }
    source_.ReadMdlParams(path, sourceRows_);
  }
  for (int row = 0; row < static_cast<int>(sourceRows_.size()); ++row) {
    const ParamData& param = sourceRows_[row];
    refList_->InsertItem(row, RowNumberText(row), -1);
    refList_->SetItemText(row, kRefName, param.name);
    refList_->SetItemText(row, kRefKind, param.kind.text);
    refList_->SetItemText(row, kRefType, param.valueType.text);
    refList_->SetItemText(row, kRefValue, param.value);
    refList_->SetItemText(row, kRefDesignated, param.designated.text);
    refList_->SetItemText(row, kRefDescription, param.description);
    refList_->SetCheck(row, true);
  }
  setButton_->setEnabled(true);
}

std::vector<ParamData> CDlgParamsSet::CollectCheckedRefs() const {
  std::vector<ParamData> refs;
  for (int row = 0; row < refList_->GetItemCount(); ++row) {
    if (!refList_->GetCheck(row)) continue;
    ParamData ref;
    ref.name = refList_->GetItemText(row, kRefName);
    ref.kind.text = refList_->GetItemText(row, kRefKind);
    PropCnToKind(ref.kind.text, ref.kind.code);
    ref.valueType.text = refList_->GetItemText(row, kRefType);
    ParamCnToType(ref.valueType.text, ref.valueType.code);
    ref.value = refList_->GetItemText(row, kRefValue);
    ref.designated.text = refList_->GetItemText(row, kRefDesignated);
    ref.designated.flag = ref.designated.text == L"是" ? 1 : 0;
    ref.description = refList_->GetItemText(row, kRefDescription);
    refs.push_back(ref);
  }
  return refs;
}

void CDlgParamsSet::RebuildMdlColumns() {
  // A row's check mark belongs to the row, not to a column: it outlives
  // the columns, as the next filling relies on.
  std::vector<bool> checks;
  for (int row = 0; row < mdlList_->GetItemCount(); ++row) checks.push_back(mdlList_->GetCheck(row));
  for (int col = mdlList_->columnCount() - 1; col >= 0; --col) mdlList_->removeColumn(col);
  refs_ = CollectCheckedRefs();
  mdlList_->InsertColumn(kMdlIndex, L"序号", 50);
  mdlList_->InsertColumn(kMdlName, L"模型名称", 150);
  mdlList_->InsertColumn(kMdlStatus, L"状态", 100);
  for (int i = 0; i < static_cast<int>(refs_.size()); ++i)
    mdlList_->InsertColumn(i + kFirstAttrCol, refs_[i].name, 100);
  mdlList_->SetEditMode(CListCtrlEx::kModeEditColumns, {}, EditColumnsByPosition(refs_));
  for (int row = 0; row < static_cast<int>(checks.size()); ++row) mdlList_->SetCheck(row, checks[row]);
}

void CDlgParamsSet::FillMdlList() {
  int oldCount = mdlList_->GetItemCount();
  std::vector<bool> oldChecks;
  for (int row = 0; row < oldCount; ++row) oldChecks.push_back(mdlList_->GetCheck(row));

  if (scopes_->checkedId() == kScopeSession) {
    source_.CollectSessionMdls(curPath_->isChecked() ? dir_->text().toStdWString() : L"", mdls_);
  } else {
    source_.CollectCurrentMdls(mdls_);
  }
  for (int i = static_cast<int>(mdls_.size()) - 1; i >= 0; --i) {
    if (!filter_.IsShowMdl(mdls_[i], kToolKey)) mdls_.erase(mdls_.begin() + i);
  }
  int unitCol = UnitSystemColumn(refs_);

  mdlList_->DeleteAllItems();
  bool keepChecks = static_cast<int>(mdls_.size()) == oldCount;
  bool useRef = defValue_->isChecked();
  for (int row = 0; row < static_cast<int>(mdls_.size()); ++row) {
    ProMdl mdl = mdls_[row];
    mdlList_->InsertItem(row, RowNumberText(row), MdlImageOf(model_, mdl));
    mdlList_->SetItemText(row, kMdlName, model_.GetMdlName(mdl));
    bool checked = !keepChecks || oldChecks[row];
    if (checked) mdlList_->SetItemText(row, kMdlStatus, CheckMdlStatus(source_, mdl, refs_));
    mdlList_->SetCheck(row, checked);
    for (int i = 0; i < static_cast<int>(refs_.size()); ++i)
      mdlList_->SetItemText(row, i + kFirstAttrCol, AttrCellText(source_, model_, mdl, refs_[i], useRef));
    if (row == 0) {
      std::vector<ProUnitsystem> systems;
      model_.GetUnitSystems(mdl, systems);
      std::vector<std::wstring> names;
      for (const ProUnitsystem& system : systems) names.push_back(system.name);
      mdlList_->SetComboColumns({{unitCol, names}});
    }
  }
}

std::vector<std::wstring> CDlgParamsSet::MdlRowCells(int row) const {
  std::vector<std::wstring> cells;
  for (int col = 0; col < mdlList_->columnCount(); ++col) cells.push_back(mdlList_->GetItemText(row, col));
  return cells;
}

void CDlgParamsSet::Refresh() {
  RebuildMdlColumns();
  FillMdlList();
}

void CDlgParamsSet::OnSource(int source) {
  option_.SetRadioParams(source);
  refButton_->setEnabled(source == kSourceMdl);
  SetRefComboColumns(source != kSourceMdl);
  // The rows of a model source stay until a model is chosen.
  if (source != kSourceMdl) LoadReferenceList();
  Refresh();
}

void CDlgParamsSet::OnChooseRefMdl() {
  std::wstring path = file_.ChooseMdlFile(L"*.prt,*.asm", refPath_->text().toStdWString(), 1);
  if (path.empty()) return;
  refPath_->setText(QString::fromStdWString(path));
  LoadReferenceList();
  Refresh();
}

void CDlgParamsSet::OnEditSource() {
  int source = sources_->checkedId();
  if (source == kSourceMdl) {
    std::wstring path = refPath_->text().toStdWString();
    if (!path.empty()) source_.OpenReferenceMdl(path);
    return;
  }
  bool opened = source == kSourceExcel ? source_.OpenParamsXls() : source_.OpenParamsCsv();
  // The rows come back with the next click on the source's radio button.
  if (opened) refList_->DeleteAllItems();
}

void CDlgParamsSet::OnScope(int scope) {
  option_.SetRadioMdl(scope);
  curPath_->setEnabled(scope == kScopeSession);
  dirButton_->setEnabled(scope == kScopeSession);
  if (scope == kScopeSession) {
    FillMdlList();
  } else {
    Refresh();
  }
}

void CDlgParamsSet::OnChooseDir() {
  std::wstring dir = file_.ChooseDir(dir_->text().toStdWString());
  if (dir.empty()) return;
  dir_->setText(QString::fromStdWString(dir));
  Refresh();
}

void CDlgParamsSet::OnSetParams() {
  bool done = false;
  for (int row = 0; row < mdlList_->GetItemCount() && row < static_cast<int>(mdls_.size()); ++row) {
    if (!mdlList_->GetCheck(row)) continue;
    if (WriteRowAttrs(source_, model_, mdls_[row], refs_, MdlRowCells(row)) == 0) done = true;
  }
  if (done) log_.ShowPrompt(L"设置参数完成!", L"提示", 0, nullptr, 0);
  FillMdlList();
}

void CDlgParamsSet::OnCreateParams() {
  bool done = false;
  for (int row = 0; row < mdlList_->GetItemCount() && row < static_cast<int>(mdls_.size()); ++row) {
    if (!mdlList_->GetCheck(row)) continue;
    if (source_.ApplyParams(mdls_[row], RowParams(refs_, MdlRowCells(row)), 1, 0) == 0) done = true;
  }
  if (done) log_.ShowPrompt(L"设置参数完成!", L"提示", 0, nullptr, 0);
  FillMdlList();
}

void CDlgParamsSet::OnFilterSet() {
  close();
  filter_.LoadFilterDlg(kToolKey);
  ShowParamsSetDlg();
}

bool CDlgParamsSet::eventFilter(QObject* watched, QEvent* event) {
  if (event->type() == QEvent::MouseButtonRelease) {
    auto* mouse = static_cast<QMouseEvent*>(event);
    QPoint pos = mouse->position().toPoint();
    if (watched == refList_->viewport() && mouse->button() == Qt::LeftButton) {
      QModelIndex index = refList_->indexAt(pos);
      if (index.isValid() && index.column() == kRefIndex) checkTimer_->start();
    }
    if (watched == refList_->viewport() && mouse->button() == Qt::RightButton) OnRefRightClick(pos);
    if (watched == mdlList_->viewport() && mouse->button() == Qt::RightButton) OnMdlRightClick(pos);
  }
  return QDialog::eventFilter(watched, event);
}

void CDlgParamsSet::OnRefRightClick(const QPoint& viewportPos) {
  if (refList_->HitTestRow(viewportPos) < 0) return;
  QMenu menu(this);
  menu.setObjectName("RefListMenu");
  menu.addAction("选中", this, [this] {
    SetSelectedChecks(refList_, true);
    Refresh();
  });
  menu.addAction("取消", this, [this] {
    SetSelectedChecks(refList_, false);
    Refresh();
  });
  menu.exec(refList_->viewport()->mapToGlobal(viewportPos));
}

void CDlgParamsSet::OnMdlRightClick(const QPoint& viewportPos) {
  if (mdlList_->HitTestRow(viewportPos) < 0) return;
  QMenu menu(this);
  menu.setObjectName("MdlListMenu");
  menu.addAction("选中(&S)", this, [this] { SetSelectedChecks(mdlList_, true); });
  menu.addAction("取消(&U)", this, [this] { SetSelectedChecks(mdlList_, false); });
  menu.addAction("打开模型(&O)", this, &CDlgParamsSet::OpenSelectedMdls);
  menu.exec(mdlList_->viewport()->mapToGlobal(viewportPos));
}

void CDlgParamsSet::SetSelectedChecks(CListCtrlEx* list, bool checked) {
  for (int row : list->GetSelectedRows()) list->SetCheck(row, checked);
}

void CDlgParamsSet::OpenSelectedMdls() {
  std::vector<int> selected = mdlList_->GetSelectedRows();
  for (auto row = selected.rbegin(); row != selected.rend(); ++row) {
    int index = RowIndexOf(mdlList_->GetItemText(*row, kMdlIndex));
    if (index < 0 || index >= static_cast<int>(mdls_.size())) continue;
    int window = 0;
    model_.OpenMdlWindow(mdls_[index], window);
  }
}
