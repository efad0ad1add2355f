#include "DlgMatList.h"

#include <QListWidget>
#include <QVBoxLayout>

CDlgMatList::CDlgMatList(const std::vector<std::wstring>& names, QWidget* parent) : QDialog(parent) {
  setWindowTitle("材料清单");
  setObjectName("DlgMatList");
  resize(220, 320);
  list_ = new QListWidget(this);
  list_->setObjectName("MatNameList");
  list_->setSortingEnabled(true);
  list_->addItem(QString());
  for (const std::wstring& name : names) list_->addItem(QString::fromStdWString(name));
  auto* layout = new QVBoxLayout(this);
  layout->setContentsMargins(0, 0, 0, 0);
  layout->addWidget(list_);
  connect(list_, &QListWidget::itemDoubleClicked, this, &CDlgMatList::OnDoubleClick);
}

void CDlgMatList::OnDoubleClick(QListWidgetItem* item) {
  choice_ = item->text().toStdWString();
  accept();
}
