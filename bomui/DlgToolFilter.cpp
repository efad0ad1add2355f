#include "DlgToolFilter.h"

#include <QComboBox>
#include <QFormLayout>
#include <QHBoxLayout>
#include <QPushButton>
#include <QVBoxLayout>

#include "SchemeFields.h"

CDlgToolFilter::CDlgToolFilter(const std::wstring& toolKey, QWidget* parent)
    : QDialog(parent), toolKey_(toolKey) {
  setWindowTitle("过滤设置");
  choice_ = new QComboBox(this);
  choice_->setObjectName("SchemeCombo");
  fields_ = new CSchemeFields(this);
  auto* ok = new QPushButton("确定", this);
  ok->setObjectName("OkButton");
  auto* cancel = new QPushButton("取消", this);
  cancel->setObjectName("CancelButton");

  auto* top = new QFormLayout;
  top->addRow("过滤方案:", choice_);
  auto* buttons = new QHBoxLayout;
  buttons->addStretch();
  buttons->addWidget(ok);
  buttons->addWidget(cancel);
  auto* main = new QVBoxLayout(this);
  main->addLayout(top);
  main->addWidget(fields_);
  main->addLayout(buttons);

  store_.GetSchemes(schemes_);
  choice_->addItem("无");
  for (const BomFilter& scheme : schemes_) choice_->addItem(QString::fromStdWString(scheme.ProjectName));
  connect(choice_, &QComboBox::currentIndexChanged, this, &CDlgToolFilter::ShowChoice);
  connect(ok, &QPushButton::clicked, this, &CDlgToolFilter::OnOk);
  connect(cancel, &QPushButton::clicked, this, &QDialog::reject);
  choice_->setCurrentIndex(store_.GetCurrentNumber(toolKey_));
  ShowChoice(choice_->currentIndex());
}

void CDlgToolFilter::ShowChoice(int index) {
  fields_->setEnabled(index > 0);
  if (index > 0) {
    fields_->ShowScheme(schemes_[index - 1]);
  } else {
    fields_->Clear();
  }
}

void CDlgToolFilter::OnOk() {
  int index = choice_->currentIndex();
  if (index > 0) store_.SetScheme(fields_->Edited(schemes_[index - 1]));
  store_.SetCurrentNumber(toolKey_, index);
  accept();
}
