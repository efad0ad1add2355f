#include "DlgBomFilterSet.h"

#include <QHBoxLayout>
#include <QListWidget>
#include <QPushButton>
#include <QTimer>
#include <QVBoxLayout>

#include "SchemeFields.h"

CDlgBomFilterSet::CDlgBomFilterSet(QWidget* parent) : QDialog(parent) {
  setWindowTitle("零件清单过滤设置");
  schemeList_ = new QListWidget(this);
  schemeList_->setObjectName("SchemeList");
  fields_ = new CSchemeFields(this);
  auto* apply = new QPushButton("应用", this);
  apply->setObjectName("ApplyButton");
  auto* cancel = new QPushButton("取消", this);
  cancel->setObjectName("CancelButton");
  showTimer_ = new QTimer(this);
  showTimer_->setSingleShot(true);
  showTimer_->setInterval(100);

  auto* buttons = new QHBoxLayout;
  buttons->addStretch();
  buttons->addWidget(apply);
  buttons->addWidget(cancel);
  auto* right = new QVBoxLayout;
  right->addWidget(fields_);
  right->addStretch();
  right->addLayout(buttons);
  auto* main = new QHBoxLayout(this);
  main->addWidget(schemeList_);
  main->addLayout(right);

  connect(schemeList_, &QListWidget::currentRowChanged, showTimer_, qOverload<>(&QTimer::start));
  // A click on the row selected at opening changes no row, yet shows it.
  connect(schemeList_, &QListWidget::itemClicked, showTimer_, qOverload<>(&QTimer::start));
  connect(showTimer_, &QTimer::timeout, this, &CDlgBomFilterSet::ShowSelectedScheme);
  connect(apply, &QPushButton::clicked, this, &CDlgBomFilterSet::OnApply);
  connect(cancel, &QPushButton::clicked, this, &QDialog::reject);

  FillSchemeList();
  // Selected without a word to the fields: they stay empty until a click.
  QSignalBlocker quiet(schemeList_);
  schemeList_->setCurrentRow(0);
}

void CDlgBomFilterSet::FillSchemeList() {
  option_.GetBomFilters(schemes_);
  QSignalBlocker quiet(schemeList_);
  schemeList_->clear();
  for (const BomFilter& scheme : schemes_) schemeList_->addItem(QString::fromStdWString(scheme.ProjectName));
}

void CDlgBomFilterSet::ShowSelectedScheme() {
  int row = schemeList_->currentRow();
  if (row >= 0 && row < static_cast<int>(schemes_.size())) fields_->ShowScheme(schemes_[row]);
}

void CDlgBomFilterSet::OnApply() {
  int row = schemeList_->currentRow();
  if (row < 0 || row >= static_cast<int>(schemes_.size())) return;
  option_.SetBomFilter(fields_->Edited(schemes_[row]));
  FillSchemeList();
}
