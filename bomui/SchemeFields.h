// The four fields of a filter scheme, as both scheme dialogs show them:
// "方案名称:", "参数名称:" (typed, or the model name entry), "关键字:" and
// "显示或屏蔽:".
#pragma once

#include <QWidget>

#include "BomFilter.h"

class QComboBox;
class QLineEdit;

class CSchemeFields : public QWidget {
 public:
  explicit CSchemeFields(QWidget* parent = nullptr);

  void ShowScheme(const BomFilter& scheme);
  void Clear();
  // The record with name, parameter and keys from the fields, and IsShow 1
  // when "显示" is selected.
  BomFilter Edited(const BomFilter& scheme) const;

 private:
  QLineEdit* name_;
  QComboBox* param_;
  QLineEdit* keys_;
  QComboBox* showOrHide_;
};
