// "零件清单过滤设置": the filter schemes of BomFilter.cfg edited one at a
// time. Schemes are neither added nor removed here; "应用" writes the
// selected one at once, and "取消" only closes.
#pragma once

#include <QDialog>

#include <vector>

#include "BomFilter.h"
#include "CfgOption.h"

class QListWidget;
class QTimer;
class CSchemeFields;

class CDlgBomFilterSet : public QDialog {
 public:
  explicit CDlgBomFilterSet(QWidget* parent = nullptr);

 private:
  void FillSchemeList();
  void ShowSelectedScheme();
  void OnApply();

  CCfgOption option_;
  std::vector<BomFilter> schemes_;
  QListWidget* schemeList_;
  CSchemeFields* fields_;
  QTimer* showTimer_;  // the fields follow a selection after 100 ms
};
