#include "DlgRelName.h"

#include <QHBoxLayout>
#include <QLineEdit>
#include <QPushButton>
#include <QVBoxLayout>

CDlgRelName::CDlgRelName(QWidget* parent) : QDialog(parent) {
  setWindowTitle("关系式名称");
  setObjectName("DlgRelName");
  edit_ = new QLineEdit(this);
  edit_->setObjectName("NameEdit");
  edit_->setMinimumWidth(240);
  auto* ok = new QPushButton("确定", this);
  ok->setObjectName("OkButton");
  ok->setDefault(true);
  auto* cancel = new QPushButton("取消", this);
  cancel->setObjectName("CancelButton");
  auto* buttons = new QHBoxLayout;
  buttons->addStretch();
  buttons->addWidget(ok);
  buttons->addWidget(cancel);
  auto* layout = new QVBoxLayout(this);
  layout->addWidget(edit_);
  layout->addLayout(buttons);
  connect(ok, &QPushButton::clicked, this, &CDlgRelName::OnOk);
  connect(cancel, &QPushButton::clicked, this, &QDialog::reject);
}

void CDlgRelName::OnOk() {
  name_ = edit_->text().toStdWString();
  accept();
}
