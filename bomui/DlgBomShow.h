// "零件清单显示": the bill of materials of the current model as a table with
// check boxes. The user changes level, sort order and filter, edits cells,
// writes them to the models and starts the outputs. Modeless and top-most,
// at the top right corner of the screen at every show.
//
// Filling the list has two halves: the collection and every host call of the
// cells (CollectList, safe on a worker thread, touches no widget) and the
// table filled from its result (FillList, on the UI thread).
#pragma once

#include <QDialog>

#include <vector>

#include "BomExport.h"
#include "BomFilter.h"
#include "BomMdl.h"
#include "CfgOption.h"
#include "ColInfo.h"
#include "FilterData.h"
#include "TkBOM.h"
#include "TkFile.h"
#include "TkLog.h"
#include "TkModel.h"
#include "TkParam.h"

class QButtonGroup;
class QCheckBox;
class QComboBox;
class QLineEdit;
class QPushButton;
class CListCtrlEx;
class CDialogLayout;

// What the controls say about the list to collect, read on the UI thread.
struct BomListRequest {
  int level = 0;          // 0 single, 1 multi, 2 summary
  int sortSelection = 0;  // entry of the sort box; 0 the model tree
  int filterIndex = -1;   // entry of the filter box
};

// One list row as collected: the cells of the shown columns and its image.
struct BomListRow {
  std::vector<std::wstring> cells;
  int image = 0;
};

struct BomListContents {
  bool valid = false;  // false: no scheme to filter with, the list stays empty
  std::vector<BomMdl> rows;
  std::vector<BomListRow> table;
  bool sortEnabled = false;
};

class CDlgBomShow : public QDialog {
 public:
  explicit CDlgBomShow(QWidget* parent = nullptr);
  ~CDlgBomShow() override;

  // The opening: columns, controls, anchors and the first filling under
  // CDlgLoad. Before the window shows.
  void OnInitDialog();

  // Fills the list on this thread; `filterData` null or the in-list filter.
  void ShowListCtrl(const FilterData* filterData);
  BomListRequest CurrentRequest() const;
  BomListContents CollectList(const BomListRequest& request, const FilterData* filterData);
  void FillList(const BomListContents& contents);

  // Writes every shown parameter cell of every list row to its model,
  // creating parameters that are missing; 1.
  int SaveListParams();
  // The outputs of the button "输出" over the first `rowCount` list rows.
  int ExportToExcel(int rowCount);
  int ExportToText(int rowCount);
  int ExportToDrawing(int rowCount);

 protected:
  bool eventFilter(QObject* watched, QEvent* event) override;

 private:
  void SetUpList();
  void SetUpControls();
  void TakeAnchors();
  void RunLoad(const FilterData* filterData);

  void OnLevel(int level);
  void OnSortChanged(int selection);
  void OnFilterChanged(int index);
  void OnFilterSet();
  void OnChooseDir();
  void OnExport();
  void OnSaveParams();
  void OnRowClick(const QPoint& viewportPos);
  void OnRightClick(const QPoint& viewportPos);
  void OnInListFilter();
  void OnReplaceComponent();
  void ForSelectedRowsFromLast(void (CDlgBomShow::*action)(const BomMdl&));
  void OpenModel(const BomMdl& row);
  void OpenSameNameDrawing(const BomMdl& row);
  void SetChecks(bool selectedOnly, bool checked);
  const BomMdl* RowOfListRow(int listRow) const;
  void FillFilterBox();
  BomOutputTarget OutputTarget() const;
  BomCheckedRows CheckedRows(int rowCount) const;

  std::vector<ColInfo> cols_;
  std::vector<ColInfo> sortCols_;
  std::vector<BomMdl> rows_;
  std::vector<BomMdl> firstLevelRows_;
  std::vector<BomMdl> allLevelRows_;
  std::vector<BomMdl> summaryRows_;
  BomFilter curFilter_;
  int rightRow_ = -1;
  CCfgOption option_;
  CTkModel model_;
  CTkParam param_;
  CTkFile file_;
  CTkLog log_;
  TkBOM bom_;

  QButtonGroup* levels_ = nullptr;
  QComboBox* filterBox_ = nullptr;
  QComboBox* sortBox_ = nullptr;
  QCheckBox* excelCheck_ = nullptr;
  QCheckBox* textCheck_ = nullptr;
  QCheckBox* drawingCheck_ = nullptr;
  CListCtrlEx* list_ = nullptr;
  QLineEdit* outDir_ = nullptr;
  QLineEdit* fileName_ = nullptr;
  QPushButton* saveParams_ = nullptr;
  CDialogLayout* layout_ = nullptr;
};
