// The progress dialog under which the list is filled: the collection and
// every host call run on a worker thread while this modal dialog steps its
// bar every 100 ms, wrapping at the end; the table is filled on the UI
// thread from the worker's result. The modal loop is the only exclusion.
#pragma once

#include <QDialog>

#include <atomic>
#include <optional>
#include <thread>

#include "DlgBomShow.h"

class QProgressBar;
class QTimer;

class CDlgLoad : public QDialog {
 public:
  // `owner` and `filterData` are not owned; `filterData` may be null.
  CDlgLoad(CDlgBomShow* owner, const FilterData* filterData);
  ~CDlgLoad() override;

  // Starts the worker and runs the modal loop: 1 when the list was filled,
  // -1 when the worker gave up.
  int exec() override;

 private:
  void OnTick();

  CDlgBomShow* owner_;
  std::optional<FilterData> filterData_;
  QProgressBar* bar_;
  QTimer* timer_;
  std::thread worker_;
  std::atomic<bool> finished_{false};
  BomListContents contents_;
};
