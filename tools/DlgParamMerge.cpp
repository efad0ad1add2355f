#include "DlgParamMerge.h"

#include <QComboBox>
#include <QGroupBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QMouseEvent>
#include <QPushButton>
#include <QSignalBlocker>
#include <QVBoxLayout>

#include "ListCtrlEx.h"
#include "ParamMergeOrder.h"
#include "ProMdl.h"
#include "RowNumber.h"
#include "WindowRules.h"

namespace {

// The list shows every value with this many decimals, whatever the
// decimals chosen for the preview.
constexpr int kListDecimals = 6;
constexpr int kFirstDecimals = 2;
constexpr int kColName = 1;

template <typename Widget>
Widget* Named(Widget* widget, const char* name) {
  widget->setObjectName(name);
  return widget;
}

ProMdl CurrentMdl() {
  ProMdl mdl = nullptr;
  return ProMdlCurrentGet(&mdl) == PRO_TK_NO_ERROR ? mdl : nullptr;
}

QWidget* LabelledRow(QWidget* parent, const char* caption, QWidget* field) {
  auto* row = new QWidget(parent);
  auto* layout = new QHBoxLayout(row);
  layout->setContentsMargins(0, 0, 0, 0);
  auto* label = new QLabel(caption, row);
  label->setMinimumWidth(72);
  field->setParent(row);
  layout->addWidget(label);
  layout->addWidget(field, 1);
  return row;
}

}  // namespace

CDlgParamMerge::CDlgParamMerge(QWidget* parent) : QDialog(parent) {
  setWindowTitle("参数合并");
  setObjectName("DlgParamMerge");

  auto* paramGroup = new QGroupBox("现有模型参数", this);
  paramList_ = Named(new CListCtrlEx(paramGroup), "ParamList");
  paramList_->SetCheckBoxes(false);  // a plain report of the model's parameters
  paramList_->setMinimumSize(370, 240);
  auto* paramLayout = new QVBoxLayout(paramGroup);
  paramLayout->addWidget(paramList_);

  auto* mergeGroup = new QGroupBox("合并顺序", this);
  mergeList_ = Named(new QListWidget(mergeGroup), "MergeList");
  mergeList_->setSelectionMode(QAbstractItemView::SingleSelection);
  mergeList_->setSortingEnabled(false);
  remove_ = Named(new QPushButton("-", mergeGroup), "RemoveButton");
  moveUp_ = Named(new QPushButton("^", mergeGroup), "UpButton");
  moveDown_ = Named(new QPushButton("∨", mergeGroup), "DownButton");
  auto* moves = new QVBoxLayout;
  for (QPushButton* button : {remove_, moveUp_, moveDown_}) {
    button->setFixedWidth(32);
    moves->addWidget(button);
  }
  moves->addStretch();
  auto* mergeLayout = new QHBoxLayout(mergeGroup);
  mergeLayout->addWidget(mergeList_, 1);
  mergeLayout->addLayout(moves);

  name_ = Named(new QLineEdit, "NameEdit");
  decimals_ = Named(new QComboBox, "DecimalsCombo");
  for (int count = 0; count <= 6; ++count) decimals_->addItem(QString::number(count));
  decimals_->setCurrentIndex(kFirstDecimals);
  preview_ = Named(new QLineEdit, "PreviewEdit");
  create_ = Named(new QPushButton("创建", this), "CreateButton");
  create_->setDefault(true);
  auto* cancel = Named(new QPushButton("取消", this), "CancelButton");
  auto* buttons = new QHBoxLayout;
  buttons->addStretch();
  buttons->addWidget(create_);
  buttons->addWidget(cancel);

  auto* right = new QVBoxLayout;
  right->addWidget(mergeGroup, 1);
  right->addWidget(LabelledRow(this, "新参数名称", name_));
  right->addWidget(LabelledRow(this, "小数点位数", decimals_));
  right->addWidget(LabelledRow(this, "参数值预览", preview_));
  right->addLayout(buttons);
  auto* layout = new QHBoxLayout(this);
  layout->addWidget(paramGroup, 3);
  layout->addLayout(right, 2);

  paramList_->viewport()->installEventFilter(this);
  connect(remove_, &QPushButton::clicked, this, &CDlgParamMerge::OnRemove);
  connect(moveUp_, &QPushButton::clicked, this, &CDlgParamMerge::OnMoveUp);
  connect(moveDown_, &QPushButton::clicked, this, &CDlgParamMerge::OnMoveDown);
  connect(mergeList_, &QListWidget::itemSelectionChanged, this, [this] {
    UpdateButtons();
    UpdatePreview();
  });
  connect(name_, &QLineEdit::textChanged, this, [this] {
    UpdateButtons();
    UpdatePreview();
  });
  connect(decimals_, &QComboBox::currentIndexChanged, this, &CDlgParamMerge::UpdatePreview);
  connect(create_, &QPushButton::clicked, this, &CDlgParamMerge::OnCreate);
  connect(cancel, &QPushButton::clicked, this, &QDialog::reject);

  MakeTopMost(this);
  paramList_->InsertColumn(0, L"序号", 50);
  paramList_->InsertColumn(1, L"参数名称", 200);
  paramList_->InsertColumn(2, L"参数值", 100);
  FillParamList();
  UpdateButtons();
}

void CDlgParamMerge::FillParamList() {
  paramList_->DeleteAllItems();
  ProMdl mdl = CurrentMdl();
  if (!mdl) return;
  std::vector<std::wstring> names;
  param_.GetMdlParamNames(mdl, names);
  for (int row = 0; row < static_cast<int>(names.size()); ++row) {
    paramList_->InsertItem(row, RowNumberText(row), -1);
    paramList_->SetItemText(row, kColName, names[row]);
    paramList_->SetItemText(row, 2, param_.GetMdlParamValue(mdl, names[row], kListDecimals));
  }
}

void CDlgParamMerge::UpdateButtons() {
  bool selected = SelectedMergePos() >= 0;
  for (QPushButton* button : {remove_, moveUp_, moveDown_}) button->setEnabled(selected);
  ProMdl mdl = CurrentMdl();
  std::wstring name = name_->text().toStdWString();
  create_->setEnabled(mdl && !name.empty() && param_.GetMdlParamType(mdl, name) == CTkParam::kNoValue);
}

void CDlgParamMerge::UpdatePreview() {
  ProMdl mdl = CurrentMdl();
  if (!mdl) return;
  preview_->setText(
      QString::fromStdWString(JoinParamValues(param_, mdl, MergeNames(), decimals_->currentIndex())));
}

bool CDlgParamMerge::eventFilter(QObject* watched, QEvent* event) {
  if (watched == paramList_->viewport() && event->type() == QEvent::MouseButtonDblClick)
    OnParamDoubleClick(paramList_->HitTestRow(static_cast<QMouseEvent*>(event)->position().toPoint()));
  return QDialog::eventFilter(watched, event);
}

void CDlgParamMerge::OnParamDoubleClick(int row) {
  if (row >= 0 && row < paramList_->GetItemCount())
    mergeList_->addItem(QString::fromStdWString(paramList_->GetItemText(row, kColName)));
  UpdateButtons();
  UpdatePreview();
}

void CDlgParamMerge::OnRemove() {
  std::vector<std::wstring> names = MergeNames();
  RemoveMergeName(names, SelectedMergePos());
  ShowMergeNames(names);
}

void CDlgParamMerge::OnMoveUp() {
  std::vector<std::wstring> names = MergeNames();
  MoveMergeNameUp(names, SelectedMergePos());
  ShowMergeNames(names);
}

void CDlgParamMerge::OnMoveDown() {
  std::vector<std::wstring> names = MergeNames();
  MoveMergeNameDown(names, SelectedMergePos());
  ShowMergeNames(names);
}

void CDlgParamMerge::OnCreate() {
  ProMdl mdl = CurrentMdl();
  if (!mdl) return;
  param_.CreateMdlParam(mdl, name_->text().toStdWString(), CTkParam::kText, preview_->text().toStdWString());
  FillParamList();
  UpdateButtons();
}

std::vector<std::wstring> CDlgParamMerge::MergeNames() const {
  std::vector<std::wstring> names;
  for (int row = 0; row < mergeList_->count(); ++row)
    names.push_back(mergeList_->item(row)->text().toStdWString());
  return names;
}

int CDlgParamMerge::SelectedMergePos() const {
  QList<QListWidgetItem*> selected = mergeList_->selectedItems();
  return selected.isEmpty() ? -1 : mergeList_->row(selected.first());
}

void CDlgParamMerge::ShowMergeNames(const std::vector<std::wstring>& names) {
  {
    QSignalBlocker quiet(mergeList_);
    mergeList_->clear();
    for (const std::wstring& name : names) mergeList_->addItem(QString::fromStdWString(name));
  }
  UpdateButtons();
  UpdatePreview();
}
