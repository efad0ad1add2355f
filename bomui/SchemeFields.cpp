#include "SchemeFields.h"

#include <QComboBox>
#include <QFormLayout>
#include <QLineEdit>

#include "CfgOption.h"

namespace {
constexpr int kShowIndex = 0;
constexpr int kHideIndex = 1;
}  // namespace

CSchemeFields::CSchemeFields(QWidget* parent) : QWidget(parent) {
  name_ = new QLineEdit(this);
  name_->setObjectName("NameEdit");
  param_ = new QComboBox(this);
  param_->setObjectName("ParamCombo");
  param_->setEditable(true);
  param_->addItem(QString::fromStdWString(CCfgOption().GetModelNameKey()));
  keys_ = new QLineEdit(this);
  keys_->setObjectName("KeyEdit");
  keys_->setPlaceholderText("如:GB,GP");
  showOrHide_ = new QComboBox(this);
  showOrHide_->setObjectName("ShowCombo");
  showOrHide_->addItems({"显示", "屏蔽"});
  auto* form = new QFormLayout(this);
  form->setContentsMargins(0, 0, 0, 0);
  form->addRow("方案名称:", name_);
  form->addRow("参数名称:", param_);
  form->addRow("关键字:", keys_);
  form->addRow("显示或屏蔽:", showOrHide_);
  Clear();
}

void CSchemeFields::ShowScheme(const BomFilter& scheme) {
  name_->setText(QString::fromStdWString(scheme.ProjectName));
  param_->setEditText(QString::fromStdWString(scheme.RefParamName));
  keys_->setText(QString::fromStdWString(scheme.FilterKey));
  showOrHide_->setCurrentIndex(scheme.IsShow ? kShowIndex : kHideIndex);
}

void CSchemeFields::Clear() {
  name_->clear();
  param_->setEditText({});
  keys_->clear();
  showOrHide_->setCurrentIndex(-1);
}

BomFilter CSchemeFields::Edited(const BomFilter& scheme) const {
  BomFilter edited = scheme;
  edited.ProjectName = name_->text().toStdWString();
  edited.RefParamName = param_->currentText().toStdWString();
  edited.FilterKey = keys_->text().toStdWString();
  edited.IsShow = showOrHide_->currentIndex() == kShowIndex ? 1 : 0;
  return edited;
}
