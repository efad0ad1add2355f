#include "DlgBomShow.h"

#include <QButtonGroup>
#include <QCheckBox>
#include <QComboBox>
#include <QGroupBox>
#include <QHBoxLayout>
#include <QLineEdit>
#include <QMenu>
#include <QMouseEvent>
#include <QPushButton>
#include <QRadioButton>

#include "BomDrawing.h"
#include "BomListCells.h"
#include "CodePage.h"
#include "DialogLayout.h"
#include "DlgBomFilterSet.h"
#include "DlgFilter.h"
#include "DlgLoad.h"
#include "FilterRules.h"
#include "ListCtrlEx.h"
#include "MessageBox.h"
#include "ProMdl.h"
#include "ProMenu.h"
#include "WindowRules.h"

#include <exception>

namespace {

constexpr int kDialogId = 1;
constexpr int kImagePart = 14;
constexpr int kImageAssembly = 15;
constexpr int kLevelMulti = 1;
const wchar_t kTreeExpandMacro[] =
    L"~ Activate `main_dlg_cur` `user_custom_page_85272048:ProCmdMdlTreeExpandOne`;";
const wchar_t kReplaceMacro[] = L"~ Command `ProCmdReplace`;";

// Control ids of the anchored controls.
enum ControlId { kList = 1, kOutDirGroup, kFileNameGroup, kExportButton, kSaveButton, kCloseButton };

QGroupBox* Group(QWidget* parent, const char* title, const QRect& rect) {
  auto* group = new QGroupBox(title, parent);
  group->setGeometry(rect);
  return group;
}

template <typename Widget>
Widget* Named(Widget* widget, const char* name, const QRect& rect) {
  widget->setObjectName(name);
  widget->setGeometry(rect);
  return widget;
}

void LoadMacro(const std::wstring& macro) {
  std::wstring text = macro;
  ProMacroLoad(text.data());
}

std::vector<std::wstring> SplitTrimmed(const std::wstring& text) {
  std::vector<std::wstring> pieces;
  CTkFile().SplitText(text, pieces, L',', 1);
  return pieces;
}

}  // namespace

CDlgBomShow::CDlgBomShow(QWidget* parent) : QDialog(parent) {
  setWindowTitle("零件清单显示");
  setObjectName("DlgBomShow");
  setMinimumSize(710, 400);
  resize(840, 560);

  QGroupBox* levelGroup = Group(this, "层级选项", {8, 4, 260, 52});
  levels_ = new QButtonGroup(this);
  const char* levelNames[] = {"LevelSingle", "LevelMulti", "LevelSummary"};
  const char* levelTexts[] = {"单层清单", "多层清单", "汇总清单"};
  for (int level = 0; level < 3; ++level) {
    auto* radio = Named(new QRadioButton(levelTexts[level], levelGroup), levelNames[level],
                        {10 + level * 82, 22, 80, 22});
    levels_->addButton(radio, level);
  }
  QGroupBox* filterGroup = Group(this, "过滤", {274, 4, 210, 52});
  filterBox_ = Named(new QComboBox(filterGroup), "FilterCombo", {8, 22, 130, 24});
  auto* filterSet = Named(new QPushButton("设置", filterGroup), "FilterSetButton", {144, 22, 58, 24});
  QGroupBox* sortGroup = Group(this, "多层清单排序", {490, 4, 140, 52});
  sortBox_ = Named(new QComboBox(sortGroup), "SortCombo", {8, 22, 124, 24});
  QGroupBox* outputGroup = Group(this, "输出选项", {636, 4, 196, 52});
  excelCheck_ = Named(new QCheckBox("Excel", outputGroup), "ExcelCheck", {8, 22, 58, 22});
  textCheck_ = Named(new QCheckBox("Text", outputGroup), "TextCheck", {68, 22, 54, 22});
  drawingCheck_ = Named(new QCheckBox("Drawing", outputGroup), "DrawingCheck", {122, 22, 72, 22});

  list_ = Named(new CListCtrlEx(this), "BomList", {8, 62, 824, 400});
  QGroupBox* outDirGroup = Group(this, "输出目录", {8, 468, 420, 50});
  outDir_ = Named(new QLineEdit(outDirGroup), "OutDirEdit", {8, 20, 366, 24});
  auto* chooseDir = Named(new QPushButton("...", outDirGroup), "OutDirButton", {380, 20, 32, 24});
  QGroupBox* fileNameGroup = Group(this, "文件名称", {436, 468, 396, 50});
  fileName_ = Named(new QLineEdit(fileNameGroup), "FileNameEdit", {8, 20, 380, 24});
  auto* exportButton = Named(new QPushButton("输出", this), "ExportButton", {572, 526, 80, 28});
  saveParams_ = Named(new QPushButton("保存参数", this), "SaveParamButton", {662, 526, 80, 28});
  auto* close = Named(new QPushButton("关闭", this), "CloseButton", {752, 526, 80, 28});

  layout_ = new CDialogLayout(this);
  layout_->Add(kAnchorStretchBoth, kList, list_);
  layout_->Add(kAnchorBottom, kOutDirGroup, outDirGroup);
  layout_->Add(kAnchorBottom, kFileNameGroup, fileNameGroup);
  layout_->Add(kAnchorBottom, kExportButton, exportButton);
  layout_->Add(kAnchorBottom, kSaveButton, saveParams_);
  layout_->Add(kAnchorBottom, kCloseButton, close);

  connect(levels_, &QButtonGroup::idClicked, this, &CDlgBomShow::OnLevel);
  connect(excelCheck_, &QCheckBox::clicked, this, [this](bool on) { option_.SetExportExcel(on ? 1 : 0); });
  connect(textCheck_, &QCheckBox::clicked, this, [this](bool on) { option_.SetExportText(on ? 1 : 0); });
  connect(drawingCheck_, &QCheckBox::clicked, this, [this](bool on) { option_.SetExportCurMdl(on ? 1 : 0); });
  connect(sortBox_, &QComboBox::currentIndexChanged, this, &CDlgBomShow::OnSortChanged);
  connect(filterBox_, &QComboBox::currentIndexChanged, this, &CDlgBomShow::OnFilterChanged);
  connect(filterSet, &QPushButton::clicked, this, &CDlgBomShow::OnFilterSet);
  connect(chooseDir, &QPushButton::clicked, this, &CDlgBomShow::OnChooseDir);
  connect(exportButton, &QPushButton::clicked, this, &CDlgBomShow::OnExport);
  connect(saveParams_, &QPushButton::clicked, this, &CDlgBomShow::OnSaveParams);
  connect(close, &QPushButton::clicked, this, &QDialog::close);
  list_->viewport()->installEventFilter(this);
}

CDlgBomShow::~CDlgBomShow() = default;

void CDlgBomShow::OnInitDialog() {
  MakeTopMost(this);
  KeepAtTopRightOnShow(this);
  SetUpList();
  SetUpControls();
  TakeAnchors();
  RunLoad(nullptr);
}

void CDlgBomShow::SetUpList() {
  option_.GetColInfos(cols_);
  std::vector<int> editCols;
  std::vector<ComboColumn> comboCols;
  int listCol = 0;
  for (const ColInfo& col : cols_) {
    if (!col.show) continue;
    list_->InsertColumn(listCol, col.name, col.width);
    if (col.editType == 1) editCols.push_back(listCol);
    if (col.editType == 2) comboCols.push_back({listCol, SplitTrimmed(col.comboItems)});
    ++listCol;
  }
  list_->SetEditMode(CListCtrlEx::kModeEditColumns, {}, editCols);
  list_->SetComboColumns(comboCols);
}

void CDlgBomShow::SetUpControls() {
  QSignalBlocker quietSort(sortBox_);
  QSignalBlocker quietFilter(filterBox_);
  int type = 0;
  model_.GetCurMdlType(type);
  if (QAbstractButton* level = levels_->button(option_.GetLevelType())) level->setChecked(true);
  excelCheck_->setChecked(option_.GetExportExcel() != 0);
  textCheck_->setChecked(option_.GetExportText() != 0);
  drawingCheck_->setChecked(option_.GetExportCurMdl() != 0);
  if (type != CTkModel::kDrawing) {
    drawingCheck_->setChecked(false);
    drawingCheck_->setEnabled(false);
  }
  outDir_->setText(QString::fromStdWString(file_.GetCurDir()));
  fileName_->setText(QString::fromStdWString(model_.GetCurMdlName() + L"_零件明细"));
  saveParams_->setEnabled(option_.GetEnableSaveParamBtn() != 0);

  sortBox_->addItem("模型目录树");
  std::vector<unsigned> sortPositions;
  option_.GetSortCols(sortPositions);
  for (unsigned position : sortPositions) {
    // A position past the column table offers nothing to sort by.
    ColInfo col = position < cols_.size() ? cols_[position] : ColInfo{};
    sortBox_->addItem(QString::fromStdWString(col.name));
    sortCols_.push_back(col);
  }
  sortBox_->setCurrentIndex(option_.GetDefSortComboIndex());
  sortBox_->setEnabled(levels_->checkedId() == kLevelMulti);
  FillFilterBox();
  if (filterBox_->count() > 0) filterBox_->setCurrentIndex(0);
}

void CDlgBomShow::FillFilterBox() {
  std::vector<BomFilter> schemes;
  option_.GetBomFilters(schemes);
  QSignalBlocker quiet(filterBox_);
  filterBox_->clear();
  for (const BomFilter& scheme : schemes) filterBox_->addItem(QString::fromStdWString(scheme.ProjectName));
  if (!schemes.empty()) curFilter_ = schemes[0];
}

void CDlgBomShow::TakeAnchors() {
  layout_->Init(kDialogId);
  layout_->Enable(1);
}

void CDlgBomShow::RunLoad(const FilterData* filterData) {
  CDlgLoad load(this, filterData);
  load.exec();
}

BomListRequest CDlgBomShow::CurrentRequest() const {
  BomListRequest request;
  request.level = std::max(levels_->checkedId(), 0);
  request.sortSelection = sortBox_->currentIndex();
  request.filterIndex = filterBox_->currentIndex();
  return request;
}

void CDlgBomShow::ShowListCtrl(const FilterData* filterData) {
  BomListContents contents = CollectList(CurrentRequest(), filterData);
  if (contents.valid) FillList(contents);
}

BomListContents CDlgBomShow::CollectList(const BomListRequest& request, const FilterData* filterData) {
  BomListContents contents;
  log_.LogStatus(L"#QK~DlgBomShow~ShowListCtrl~GetChek", 0);
  std::vector<BomFilter> schemes;
  option_.GetBomFilters(schemes);
  if (request.filterIndex < 0 || request.filterIndex >= static_cast<int>(schemes.size())) return contents;
  curFilter_ = schemes[request.filterIndex];
  BomCollectFilter filter = MakeCollectFilter(curFilter_, option_.GetModelNameKey());

  rows_.clear();
  auto takeShown = [this](const std::vector<BomMdl>& collected) {
    for (const BomMdl& row : collected) {
      if (IsRowShown(row)) rows_.push_back(row);
    }
  };
  if (request.level == 1) {
    bom_.GetAllLeveBomMdls(filter, allLevelRows_, option_.GetShowSamAsmCmps());
    if (request.sortSelection > 0 && request.sortSelection <= static_cast<int>(sortCols_.size())) {
      std::vector<BomMdl> sorted;
      bom_.SortLevelBomMdls(allLevelRows_, sortCols_[request.sortSelection - 1].paramName, sorted);
      takeShown(sorted);
    } else {
      takeShown(allLevelRows_);
    }
  } else if (request.level == 2) {
    bom_.GetBomMdls(filter, summaryRows_);
    takeShown(summaryRows_);
    contents.sortEnabled = true;
  } else {
    bom_.GetFirstLevelBomMdls(filter, firstLevelRows_);
    takeShown(firstLevelRows_);
    contents.sortEnabled = true;
  }
  log_.LogStatus(L"#QK~DlgBomShow~ShowListCtrl~GetMdls", 0);
  log_.LogStatus(L"#QK~DlgBomShow~ShowListCtrl~MdlNum: " + std::to_wstring(rows_.size()), 0);

  CBomListCells cells(option_.GetLevelSign(), option_.GetMassDecimalPlacesNum());
  for (int i = 0; i < static_cast<int>(rows_.size()); ++i) {
    BomListRow listRow;
    for (const ColInfo& col : cols_) {
      if (col.show) listRow.cells.push_back(cells.CellText(col, rows_[i], i));
    }
    int type = 0;
    model_.GetMdlType(rows_[i].mdl, type);
    listRow.image = type == CTkModel::kAssembly ? kImageAssembly : kImagePart;
    // The in-list filter takes out the rows of its values, and only from the
    // table: `rows_` keeps them and the numbers keep their gaps.
    bool removed = filterData && filterData->col >= 0 &&
                   filterData->col < static_cast<int>(listRow.cells.size()) &&
                   IsRemovedByFilter(*filterData, listRow.cells[filterData->col]);
    if (!removed) contents.table.push_back(std::move(listRow));
  }
  contents.rows = rows_;
  contents.valid = true;
  return contents;
}

void CDlgBomShow::FillList(const BomListContents& contents) {
  list_->EnableSort(contents.sortEnabled ? 1 : 0);
  list_->DeleteAllItems();
  for (int row = 0; row < static_cast<int>(contents.table.size()); ++row) {
    const BomListRow& listRow = contents.table[row];
    for (int col = 0; col < static_cast<int>(listRow.cells.size()); ++col) {
      if (col == 0) {
        list_->InsertItem(row, listRow.cells[0], listRow.image);
      } else {
        list_->SetItemText(row, col, listRow.cells[col]);
      }
    }
    list_->SetCheck(row, true);
  }
}

const BomMdl* CDlgBomShow::RowOfListRow(int listRow) const {
  int index = RowIndexOf(list_->GetItemText(listRow, 0));
  return index >= 0 && index < static_cast<int>(rows_.size()) ? &rows_[index] : nullptr;
}

int CDlgBomShow::SaveListParams() {
  for (int listRow = 0; listRow < list_->GetItemCount(); ++listRow) {
    const BomMdl* row = RowOfListRow(listRow);
    if (!row) continue;
    int listCol = 0;
    for (const ColInfo& col : cols_) {
      if (!col.show) continue;
      if (!col.paramName.empty() && col.paramType != PARAMTYPE_PARENTMDL) {
        std::wstring text = list_->GetItemText(listRow, listCol);
        int type = ParamValueTypeOf(col.valueType);
        if (param_.SetMdlParamValue(row->mdl, col.paramName, type, text) != 0) {
          param_.CreateMdlParam(row->mdl, col.paramName, type, text);
        }
      }
      ++listCol;
    }
  }
  return 1;
}

BomOutputTarget CDlgBomShow::OutputTarget() const {
  return {outDir_->text().toStdWString(), fileName_->text().toStdWString()};
}

BomCheckedRows CDlgBomShow::CheckedRows(int rowCount) const {
  BomCheckedRows rows;
  int colCount = list_->columnCount();
  for (int listRow = 0; listRow < rowCount && listRow < list_->GetItemCount(); ++listRow) {
    if (!list_->GetCheck(listRow)) continue;
    std::vector<std::wstring> cells;
    for (int col = 0; col < colCount; ++col) cells.push_back(list_->GetItemText(listRow, col));
    rows.push_back(std::move(cells));
  }
  return rows;
}

int CDlgBomShow::ExportToExcel(int rowCount) { return WriteBomExcel(OutputTarget(), CheckedRows(rowCount)); }
int CDlgBomShow::ExportToText(int rowCount) {
  return WriteBomText(OutputTarget(), cols_, CheckedRows(rowCount));
}
int CDlgBomShow::ExportToDrawing(int rowCount) {
  int type = 0;
  model_.GetCurMdlType(type);
  if (type != CTkModel::kDrawing) return 1;
  std::vector<int> pixelWidths;
  for (int col = 0; col < list_->columnCount(); ++col) pixelWidths.push_back(list_->columnWidth(col));
  // The header follows the column table as it is now, not as the list was
  // made: a table changed meanwhile no longer fits the list's columns.
  std::vector<ColInfo> cols;
  option_.GetColInfos(cols);
  return WriteBomDrawing(BomDrawingColumnWidths(pixelWidths), BomDrawingTable(cols, CheckedRows(rowCount)));
}

void CDlgBomShow::OnLevel(int level) {
  option_.SetLevelType(level);
  RunLoad(nullptr);
  sortBox_->setEnabled(level == kLevelMulti);
}

void CDlgBomShow::OnSortChanged(int selection) {
  if (IsSortParamMissing(selection, sortCols_)) {
    log_.ShowPrompt(L"排序参数不能为空", L"提示", 0, nullptr, 0);
    return;
  }
  RunLoad(nullptr);
}

void CDlgBomShow::OnFilterChanged(int index) {
  std::vector<BomFilter> schemes;
  option_.GetBomFilters(schemes);
  if (index < 0 || index >= static_cast<int>(schemes.size())) return;
  curFilter_ = schemes[index];
  RunLoad(nullptr);
}

void CDlgBomShow::OnFilterSet() {
  int remembered = filterBox_->currentIndex();
  CDlgBomFilterSet settings(this);
  settings.exec();
  FillFilterBox();
  {
    QSignalBlocker quiet(filterBox_);
    filterBox_->setCurrentIndex(
        remembered >= 0 && remembered < filterBox_->count() ? remembered : (filterBox_->count() ? 0 : -1));
  }
  ShowListCtrl(nullptr);
}

void CDlgBomShow::OnChooseDir() {
  std::wstring dir = file_.ChooseDir(outDir_->text().toStdWString());
  if (!dir.empty()) outDir_->setText(QString::fromStdWString(dir));
}

void CDlgBomShow::OnExport() {
  int rowCount = list_->GetItemCount();
  if (option_.GetSaveParamBeforExport()) SaveListParams();
  int type = 0;
  model_.GetCurMdlType(type);
  // A spreadsheet failure breaks the outputs off where it happens; the user
  // is told its text, as the framework reports what reaches a handler, and
  // the dialog stays.
  try {
    if (drawingCheck_->isChecked() && type == CTkModel::kDrawing) ExportToDrawing(rowCount);
    if (excelCheck_->isChecked()) ExportToExcel(rowCount);
    if (textCheck_->isChecked()) ExportToText(rowCount);
  } catch (const std::exception& error) {
    log_.ShowPrompt(platform::ToWide(error.what()), L"提示", platform::kMbOk, nullptr, 0);
  }
}

void CDlgBomShow::OnSaveParams() {
  SaveListParams();
  ShowListCtrl(nullptr);
  log_.ShowPrompt(L"参数信息保存完成!", L"提示", 0, nullptr, 0);
}

bool CDlgBomShow::eventFilter(QObject* watched, QEvent* event) {
  if (watched == list_->viewport() && event->type() == QEvent::MouseButtonRelease) {
    auto* mouse = static_cast<QMouseEvent*>(event);
    QPoint pos = mouse->position().toPoint();
    if (mouse->button() == Qt::LeftButton) OnRowClick(pos);
    if (mouse->button() == Qt::RightButton) OnRightClick(pos);
  }
  return QDialog::eventFilter(watched, event);
}

void CDlgBomShow::OnRowClick(const QPoint& viewportPos) {
  activateWindow();
  int listRow = list_->HitTestRow(viewportPos);
  if (listRow < 0) {
    bom_.ClearHighLight();
    return;
  }
  const BomMdl* row = RowOfListRow(listRow);
  if (!row) return;
  BomMdl copy = *row;
  bom_.HighLightBomMdl(copy);
  LoadMacro(kTreeExpandMacro);
  activateWindow();
}

void CDlgBomShow::OnRightClick(const QPoint& viewportPos) {
  rightRow_ = list_->HitTestRow(viewportPos);
  if (rightRow_ < 0) return;
  QMenu menu(this);
  menu.setObjectName("BomListMenu");
  menu.addAction("打开模型(&O)", this, [this] { ForSelectedRowsFromLast(&CDlgBomShow::OpenModel); });
  menu.addAction("打开同名工程图(&D)", this,
                 [this] { ForSelectedRowsFromLast(&CDlgBomShow::OpenSameNameDrawing); });
  menu.addSeparator();
  menu.addAction("选中行选择(&S)", this, [this] { SetChecks(true, true); });
  menu.addAction("选中行取消(&C)", this, [this] { SetChecks(true, false); });
  menu.addSeparator();
  menu.addAction("全部选择(&E)", this, [this] { SetChecks(false, true); });
  menu.addAction("全部取消(&A)", this, [this] { SetChecks(false, false); });
  menu.addSeparator();
  menu.addAction("界面中过滤(&F)", this, &CDlgBomShow::OnInListFilter);
  menu.addSeparator();
  menu.addAction("元件替换(&R)", this, &CDlgBomShow::OnReplaceComponent);
  menu.exec(list_->viewport()->mapToGlobal(viewportPos));
}

void CDlgBomShow::ForSelectedRowsFromLast(void (CDlgBomShow::*action)(const BomMdl&)) {
  std::vector<int> selected = list_->GetSelectedRows();
  for (auto listRow = selected.rbegin(); listRow != selected.rend(); ++listRow) {
    if (const BomMdl* row = RowOfListRow(*listRow)) (this->*action)(*row);
  }
}

void CDlgBomShow::OpenModel(const BomMdl& row) {
  int window = 0;
  model_.OpenMdlWindow(row.mdl, window);
}

void CDlgBomShow::OpenSameNameDrawing(const BomMdl& row) {
  ProName name{};
  if (ProMdlNameGet(row.mdl, name) != PRO_TK_NO_ERROR) return;
  ProMdl drawing = nullptr;
  if (model_.LoadMdl(name, CTkModel::kDrawing, drawing) != 0) return;
  int window = 0;
  model_.OpenMdlWindow(drawing, window);
}

void CDlgBomShow::SetChecks(bool selectedOnly, bool checked) {
  if (selectedOnly) {
    for (int listRow : list_->GetSelectedRows()) list_->SetCheck(listRow, checked);
    return;
  }
  for (int listRow = 0; listRow < list_->GetItemCount(); ++listRow) list_->SetCheck(listRow, checked);
}

void CDlgBomShow::OnInListFilter() {
  std::vector<unsigned> filterCols;
  option_.GetFilterCols(filterCols);
  std::vector<FilterData> columns;
  for (unsigned col : filterCols) {
    std::vector<std::wstring> texts;
    for (int listRow = 0; listRow < list_->GetItemCount(); ++listRow)
      texts.push_back(list_->GetItemText(listRow, col));
    columns.push_back(CollectColumnValues(static_cast<int>(col), texts));
  }
  CDlgFilter dialog(this);
  dialog.SetFilterColumns(columns);
  if (dialog.exec() != QDialog::Accepted) return;
  FilterData result;
  dialog.GetFilterResult(result);
  RunLoad(&result);
}

void CDlgBomShow::OnReplaceComponent() {
  LoadMacro(kReplaceMacro);
  close();
}
