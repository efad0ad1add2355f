// The modal dialog behind CFilterAPI::LoadFilterDlg: the tool's current
// scheme chosen from the stored ones ("无" for none) and edited in place.
// "确定" writes the edited scheme and the choice; "取消" writes nothing.
#pragma once

#include <QDialog>

#include <string>
#include <vector>

#include "BomFilter.h"
#include "ToolFilterStore.h"

class QComboBox;
class CSchemeFields;

class CDlgToolFilter : public QDialog {
 public:
  explicit CDlgToolFilter(const std::wstring& toolKey, QWidget* parent = nullptr);

 private:
  void ShowChoice(int index);
  void OnOk();

  std::wstring toolKey_;
  CToolFilterStore store_;
  std::vector<BomFilter> schemes_;
  QComboBox* choice_;  // entry 0 "无", then the schemes in order
  CSchemeFields* fields_;
};
