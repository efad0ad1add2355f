// The table most dialogs rest on: a report-style list with a check box in
// each row, grid lines, full-row selection and an image per cell, which adds
// in-place editing of chosen columns by a text field or a drop-down box,
// shading of every other row and sorting by a click on a column header. The
// owner says which columns are editable and reads the results from the
// cells; the list does not know what the cells mean.
#pragma once

#include <QTableWidget>

#include <string>
#include <vector>

class QTextEdit;

// A column edited by a drop-down box, with its choices.
struct ComboColumn {
  int col = 0;
  std::vector<std::wstring> items;
};

class CListCtrlEx : public QTableWidget {
  Q_OBJECT

 public:
  // The one mode in which a double click opens the text field.
  static constexpr int kModeEditColumns = 1;

  explicit CListCtrlEx(QWidget* parent = nullptr);
  // An open drop-down goes first: it must not commit into a list that is
  // already being torn down.
  ~CListCtrlEx() override;

  // Mode 0 keeps the fixed columns, mode 1 the edit columns, modes 3 and 4
  // both; any other mode keeps only the mode. Columns are not checked
  // against the list.
  void SetEditMode(int mode, const std::vector<int>& fixedCols, const std::vector<int>& editCols);
  void SetComboColumns(const std::vector<ComboColumn>& columns);
  void EnableSort(int flag);

  // Cells, check marks and rows as the owner reaches them.
  void InsertColumn(int col, const std::wstring& name, int width);
  // Rows have check boxes unless turned off here, before the first row.
  void SetCheckBoxes(bool on) { checkBoxes_ = on; }
  // Inserts a row with its first cell; `image` -1 for none. The row starts
  // unchecked.
  void InsertItem(int row, const std::wstring& text, int image);
  void SetItemText(int row, int col, const std::wstring& text);
  std::wstring GetItemText(int row, int col) const;
  void SetItemImage(int row, int col, int image);
  void SetCheck(int row, bool checked);
  bool GetCheck(int row) const;
  int GetItemCount() const { return rowCount(); }
  void DeleteItem(int row);
  void DeleteAllItems();
  // The rows marked in the list (not the checked ones), ascending.
  std::vector<int> GetSelectedRows() const;
  // The row under a point of the viewport, -1 off the rows.
  int HitTestRow(const QPoint& viewportPos) const;

  int EditRow() const { return editRow_; }
  int EditCol() const { return editCol_; }

  // A drop-down box reports its end here, as the platform's end of a label
  // edit: a non-null text goes into the cell, and the owner is not told.
  void OnLabelEditEnded(int row, int col, const std::wstring* text);

 signals:
  // A text edit ended with its text written to the cell. Posted, so the
  // owner hears of it after the click that ended the edit.
  void CellEditEnded(int row, int col);

 protected:
  void mouseDoubleClickEvent(QMouseEvent* event) override;
  void mousePressEvent(QMouseEvent* event) override;

 private:
  void BeginTextEdit(const QPoint& pos, int col);
  void EndTextEdit();
  void OpenComboBox(int row, int col);
  void SortByColumn(int col);
  QTableWidgetItem* CellItem(int row, int col);

  QTextEdit* editField_ = nullptr;  // made at the first edit, then reused
  bool checkBoxes_ = true;
  int editRow_ = -1;
  int editCol_ = -1;
  std::vector<int> fixedCols_;
  std::vector<int> editCols_;
  int mode_ = 0;
  std::vector<ComboColumn> comboCols_;
  int sortAscending_ = 1;
  int sortCol_ = -1;
  int sortEnabled_ = 0;
  bool passingDoubleClickOn_ = false;
};
