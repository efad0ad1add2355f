// "关系式名称": asks for the name of a new common relation. Modal; the box
// opens holding the name it was last confirmed with.
#pragma once

#include <QDialog>

#include <string>

class QLineEdit;

class CDlgRelName : public QDialog {
 public:
  explicit CDlgRelName(QWidget* parent = nullptr);

  // The text of the box as "确定" took it.
  std::wstring GetName() const { return name_; }

 private:
  void OnOk();

  QLineEdit* edit_ = nullptr;
  std::wstring name_;
};
