#include "TextEntry.h"

#include <QApplication>
#include <QComboBox>
#include <QInputMethodEvent>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QTest>
#include <QTextEdit>

void TypeText(QWidget* field, const std::wstring& text) {
  if (auto* line = qobject_cast<QLineEdit*>(field)) {
    line->selectAll();
  } else if (auto* edit = qobject_cast<QTextEdit*>(field)) {
    edit->selectAll();
  } else if (auto* plain = qobject_cast<QPlainTextEdit*>(field)) {
    plain->selectAll();
  }
  if (text.empty()) {
    QTest::keyClick(field, Qt::Key_Delete);
    return;
  }
  QInputMethodEvent commit;
  commit.setCommitString(QString::fromStdWString(text));
  QApplication::sendEvent(field, &commit);
}

bool ChooseEntry(QComboBox* box, const std::wstring& text) {
  int index = box->findText(QString::fromStdWString(text), Qt::MatchExactly);
  if (index < 0) {
    if (!box->isEditable() || !box->lineEdit()) return false;
    TypeText(box->lineEdit(), text);
    return true;
  }
  box->setCurrentIndex(index);
  emit box->activated(index);
  emit box->textActivated(box->itemText(index));
  return true;
}

std::wstring NoEntry(const QComboBox* box, const std::wstring& text) {
  std::wstring entries;
  for (int i = 0; i < box->count(); ++i) entries += (i ? L", " : L"") + box->itemText(i).toStdWString();
  return L"no entry " + text + L" in the drop-down (" + (entries.empty() ? L"it is empty" : entries) + L")";
}
