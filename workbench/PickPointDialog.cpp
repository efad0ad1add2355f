#include "PickPointDialog.h"

#include <QDialog>
#include <QDialogButtonBox>
#include <QDoubleSpinBox>
#include <QFormLayout>
#include <QLabel>
#include <QVBoxLayout>

namespace {

QDoubleSpinBox* Coordinate(QWidget* parent, const char* name) {
  auto* box = new QDoubleSpinBox(parent);
  box->setObjectName(name);
  box->setRange(-1e6, 1e6);
  box->setDecimals(2);
  return box;
}

}  // namespace

std::optional<std::wstring> AskPickPoint(QWidget* parent, const std::wstring& prompt) {
  QDialog dialog(parent);
  dialog.setObjectName("PickPointDialog");
  dialog.setWindowTitle("选择位置");
  auto* layout = new QVBoxLayout(&dialog);
  auto* promptLabel = new QLabel(QString::fromStdWString(prompt), &dialog);
  promptLabel->setObjectName("PickPrompt");
  layout->addWidget(promptLabel);
  auto* form = new QFormLayout;
  QDoubleSpinBox* x = Coordinate(&dialog, "PickX");
  QDoubleSpinBox* y = Coordinate(&dialog, "PickY");
  form->addRow("X", x);
  form->addRow("Y", y);
  layout->addLayout(form);
  auto* buttons = new QDialogButtonBox(QDialogButtonBox::Ok | QDialogButtonBox::Cancel, &dialog);
  QObject::connect(buttons, &QDialogButtonBox::accepted, &dialog, &QDialog::accept);
  QObject::connect(buttons, &QDialogButtonBox::rejected, &dialog, &QDialog::reject);
  layout->addWidget(buttons);
  if (dialog.exec() != QDialog::Accepted) return std::nullopt;
  return QString("%1,%2").arg(x->value()).arg(y->value()).toStdWString();
}
