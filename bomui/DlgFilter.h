// "过滤": the in-list filter's choice. The user picks a column and checks
// values; with "包含" the checked values stay, with "排除" they go. The
// result lists the values whose rows are to be taken out.
#pragma once

#include <QDialog>

#include <vector>

#include "FilterData.h"

class QComboBox;
class CListCtrlEx;

class CDlgFilter : public QDialog {
 public:
  explicit CDlgFilter(QWidget* parent = nullptr);

  // Before opening: the columns offered, each with its values.
  void SetFilterColumns(const std::vector<FilterData>& columns);
  // After closing with OK.
  void GetFilterResult(FilterData& result) const;

 private:
  void ShowColumnValues(int index);
  void OnOk();

  std::vector<FilterData> columns_;
  FilterData result_;
  QComboBox* mode_;    // "包含", "排除"
  QComboBox* column_;  // the columns' names
  CListCtrlEx* values_;
};
