#include "DlgBomSet.h"

#include <QCheckBox>
#include <QComboBox>
#include <QGridLayout>
#include <QGroupBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QPushButton>
#include <QSignalBlocker>
#include <QVBoxLayout>

#include "FileDialog.h"
#include "Files.h"
#include "MessageBox.h"
#include "Shell.h"

namespace {

// The list box is emptied by removing this many lines from the top.
constexpr int kMaxListLines = 99;

template <typename Widget>
Widget* Named(Widget* widget, const char* name) {
  widget->setObjectName(name);
  return widget;
}

QComboBox* FixedCombo(QWidget* parent, const char* name, const QStringList& items) {
  auto* combo = Named(new QComboBox(parent), name);
  combo->addItems(items);
  // Nothing shows before a column is selected.
  combo->setCurrentIndex(-1);
  return combo;
}

QString ToQt(const std::wstring& text) { return QString::fromStdWString(text); }

}  // namespace

CDlgBomSet::CDlgBomSet(QWidget* parent) : QDialog(parent) {
  setWindowTitle("零件清单设置");
  setObjectName("DlgBomSet");

  auto* colGroup = new QGroupBox("清单列设置", this);
  colList_ = Named(new QListWidget(colGroup), "ColList");
  name_ = Named(new QLineEdit(colGroup), "NameEdit");
  width_ = Named(new QLineEdit(colGroup), "WidthEdit");
  editType_ = FixedCombo(colGroup, "EditTypeCombo", {"不可修改", "插入修改", "下拉修改"});
  comboItems_ = Named(new QLineEdit(colGroup), "ComboItemsEdit");
  defaultValue_ = Named(new QLineEdit(colGroup), "DefaultValueEdit");
  paramName_ = Named(new QComboBox(colGroup), "ParamNameCombo");
  paramName_->setEditable(true);
  std::vector<ParamTypeName> typeNames;
  option_.GetParamTypeNames(typeNames);
  QStringList typeTexts;
  for (const ParamTypeName& typeName : typeNames) typeTexts.push_back(ToQt(typeName.name));
  paramType_ = FixedCombo(colGroup, "ParamTypeCombo", typeTexts);
  valueType_ = FixedCombo(colGroup, "ValueTypeCombo", {"字符串", "整数", "实数"});
  show_ = Named(new QCheckBox("显示该列", colGroup), "ShowCheck");
  apply_ = Named(new QPushButton("应用", colGroup), "ApplyButton");

  auto* fields = new QGridLayout;
  auto addRow = [&](const char* caption, QWidget* field, const char* hint) {
    int row = fields->rowCount();
    fields->addWidget(new QLabel(caption, colGroup), row, 0);
    fields->addWidget(field, row, 1);
    if (hint) fields->addWidget(new QLabel(hint, colGroup), row, 2);
  };
  addRow("列头名称", name_, nullptr);
  addRow("列宽", width_, nullptr);
  addRow("编辑类型", editType_, nullptr);
  addRow("下拉备选", comboItems_, "请用逗号,隔开");
  addRow("默认值", defaultValue_, "无参数时显示此值");
  addRow("参数名称", paramName_, nullptr);
  addRow("参数类型", paramType_, nullptr);
  addRow("参数值类型", valueType_, "创建参数用");
  fields->addWidget(show_, fields->rowCount(), 1);
  auto* fieldColumn = new QVBoxLayout;
  fieldColumn->addLayout(fields);
  fieldColumn->addStretch();
  fieldColumn->addWidget(apply_, 0, Qt::AlignRight);
  auto* colLayout = new QHBoxLayout(colGroup);
  colLayout->addWidget(colList_);
  colLayout->addLayout(fieldColumn);

  auto* templateGroup = new QGroupBox("Excel模板设置", this);
  auto* editTemplate = Named(new QPushButton("编辑模板", templateGroup), "EditTemplateButton");
  auto* replaceTemplate = Named(new QPushButton("替换模板", templateGroup), "ReplaceTemplateButton");
  auto* templateLayout = new QHBoxLayout(templateGroup);
  templateLayout->addWidget(editTemplate);
  templateLayout->addWidget(replaceTemplate);
  templateLayout->addStretch();
  auto* close = Named(new QPushButton("关闭", this), "CloseButton");

  auto* bottom = new QHBoxLayout;
  bottom->addWidget(templateGroup);
  bottom->addStretch();
  bottom->addWidget(close, 0, Qt::AlignBottom);
  auto* main = new QVBoxLayout(this);
  main->addWidget(colGroup);
  main->addLayout(bottom);

  // The selection, not the current line, which the list moves to its top
  // by itself when it takes the focus.
  connect(colList_, &QListWidget::itemSelectionChanged, this, &CDlgBomSet::OnColSelChange);
  connect(paramType_, &QComboBox::currentIndexChanged, this, &CDlgBomSet::EnableParamName);
  connect(apply_, &QPushButton::clicked, this, &CDlgBomSet::OnApply);
  connect(editTemplate, &QPushButton::clicked, this, &CDlgBomSet::OnEditTemplate);
  connect(replaceTemplate, &QPushButton::clicked, this, &CDlgBomSet::OnReplaceTemplate);
  connect(close, &QPushButton::clicked, this, &QDialog::accept);

  FillColList();
  apply_->setEnabled(false);
}

void CDlgBomSet::FillColList() {
  QSignalBlocker quiet(colList_);
  for (int removed = 0; removed < kMaxListLines && colList_->count() > 0; ++removed)
    delete colList_->takeItem(0);
  option_.GetColInfos(cols_);
  for (const ColInfo& col : cols_) colList_->addItem(ToQt(ColListLine(col)));
  colList_->setCurrentRow(-1);
}

ColInfo CDlgBomSet::ReadColFields() const {
  ColFields fields;
  fields.name = name_->text().toStdWString();
  fields.width = width_->text().toStdWString();
  fields.editType = editType_->currentIndex();
  fields.comboItems = comboItems_->text().toStdWString();
  fields.defaultValue = defaultValue_->text().toStdWString();
  fields.paramName = paramName_->currentText().toStdWString();
  fields.paramType = paramType_->currentIndex();
  fields.valueType = valueType_->currentIndex();
  fields.show = show_->isChecked();
  return ColInfoOfFields(sel_, fields);
}

void CDlgBomSet::ShowCol(const ColInfo& col) {
  QSignalBlocker quiet(paramType_);
  name_->setText(ToQt(col.name));
  width_->setText(QString::number(col.width));
  editType_->setCurrentIndex(col.editType);
  comboItems_->setText(ToQt(col.comboItems));
  defaultValue_->setText(ToQt(col.defaultValue));
  paramName_->setCurrentText(ToQt(col.paramName));
  paramType_->setCurrentIndex(col.paramType);
  valueType_->setCurrentIndex(col.valueType);
  show_->setChecked(col.show != 0);
  EnableParamName(col.paramType);
}

// A column of the parent's name reads no parameter.
void CDlgBomSet::EnableParamName(int paramType) {
  bool parentName = paramType == PARAMTYPE_PARENTNAME;
  if (parentName) paramName_->setCurrentText(QString());
  paramName_->setEnabled(!parentName);
}

bool CDlgBomSet::IsSelValid() const {
  return colShown_ && sel_ >= 0 && sel_ < static_cast<int>(cols_.size());
}

void CDlgBomSet::OnColSelChange() {
  QList<QListWidgetItem*> selected = colList_->selectedItems();
  if (selected.isEmpty()) return;
  int row = colList_->row(selected.front());
  if (IsSelValid()) option_.SetColInfo(ReadColFields());
  sel_ = row;
  // The list reads a row's index back from its first column, which so keeps
  // its kind.
  paramType_->setEnabled(sel_ != 0);
  option_.GetColInfos(cols_);
  if (sel_ < static_cast<int>(cols_.size())) {
    ShowCol(cols_[sel_]);
    colShown_ = true;
  }
  apply_->setEnabled(true);
}

void CDlgBomSet::OnApply() {
  option_.SetColInfo(ReadColFields());
  FillColList();
  apply_->setEnabled(false);
}

std::wstring CDlgBomSet::TemplatePath() const { return file_.GetAppDir() + L"\\template\\BOM.xls"; }

void CDlgBomSet::OnEditTemplate() { platform::ShellOpen(TemplatePath(), platform::kSwShowNormal); }

// The copy is not checked, so a failed one reports success all the same, and
// the old template is gone by then.
void CDlgBomSet::OnReplaceTemplate() {
  std::optional<std::wstring> chosen = platform::ChooseFileToOpen(this, L"Worksheet Files (*.xls)|*.xls||");
  if (!chosen) return;
  platform::DeletePermanently(TemplatePath());
  platform::CopyFile(*chosen, TemplatePath(), false);
  log_.ShowPrompt(L"模板替换成功!", L"提示", platform::kMbOk, this, 0);
}
