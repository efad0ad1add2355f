#include "DlgFilter.h"

#include <QComboBox>
#include <QHBoxLayout>
#include <QHeaderView>
#include <QPushButton>
#include <QVBoxLayout>

#include "FilterRules.h"
#include "ListCtrlEx.h"
#include "TkLog.h"

namespace {
constexpr int kIncludeIndex = 0;
}  // namespace

CDlgFilter::CDlgFilter(QWidget* parent) : QDialog(parent) {
  setWindowTitle("过滤");
  mode_ = new QComboBox(this);
  mode_->setObjectName("ModeCombo");
  mode_->addItems({"包含", "排除"});
  column_ = new QComboBox(this);
  column_->setObjectName("ColumnCombo");
  values_ = new CListCtrlEx(this);
  values_->setObjectName("ValueList");
  values_->InsertColumn(0, L"可过滤内容", 200);
  values_->horizontalHeader()->setStretchLastSection(true);
  auto* ok = new QPushButton("确定", this);
  ok->setObjectName("OkButton");
  auto* cancel = new QPushButton("取消", this);
  cancel->setObjectName("CancelButton");

  auto* boxes = new QHBoxLayout;
  boxes->addWidget(mode_);
  boxes->addWidget(column_);
  auto* buttons = new QHBoxLayout;
  buttons->addStretch();
  buttons->addWidget(ok);
  buttons->addWidget(cancel);
  auto* main = new QVBoxLayout(this);
  main->addLayout(boxes);
  main->addWidget(values_);
  main->addLayout(buttons);

  connect(column_, &QComboBox::currentIndexChanged, this, &CDlgFilter::ShowColumnValues);
  connect(ok, &QPushButton::clicked, this, &CDlgFilter::OnOk);
  connect(cancel, &QPushButton::clicked, this, &QDialog::reject);
}

void CDlgFilter::SetFilterColumns(const std::vector<FilterData>& columns) {
  columns_ = columns;
  QSignalBlocker quiet(column_);
  column_->clear();
  for (const FilterData& column : columns_) column_->addItem(QString::fromStdWString(column.name));
  column_->setCurrentIndex(columns_.empty() ? -1 : 0);
  ShowColumnValues(column_->currentIndex());
}

void CDlgFilter::GetFilterResult(FilterData& result) const { result = result_; }

void CDlgFilter::ShowColumnValues(int index) {
  values_->DeleteAllItems();
  if (index < 0 || index >= static_cast<int>(columns_.size())) return;
  const std::vector<std::wstring>& values = columns_[index].values;
  for (int row = 0; row < static_cast<int>(values.size()); ++row) values_->InsertItem(row, values[row], -1);
}

void CDlgFilter::OnOk() {
  int index = column_->currentIndex();
  // Without a column there is nothing to read.
  if (index < 0 || index >= static_cast<int>(columns_.size())) return;
  const FilterData& column = columns_[index];
  if (static_cast<int>(column.values.size()) != values_->GetItemCount()) {
    CTkLog().ShowPrompt(L"数据有误, 请核实!", L"提示", 0, nullptr, 0);
    return;
  }
  std::vector<bool> checked;
  for (int row = 0; row < values_->GetItemCount(); ++row) checked.push_back(values_->GetCheck(row));
  result_ = MakeFilterResult(column, checked, mode_->currentIndex() == kIncludeIndex);
  accept();
}
