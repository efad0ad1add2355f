#include "DlgLoad.h"

#include <QProgressBar>
#include <QTimer>
#include <QVBoxLayout>

namespace {
constexpr int kTickMs = 100;
constexpr int kStep = 2;
}  // namespace

CDlgLoad::CDlgLoad(CDlgBomShow* owner, const FilterData* filterData) : QDialog(owner), owner_(owner) {
  if (filterData) filterData_ = *filterData;
  setWindowFlag(Qt::WindowTitleHint, false);
  bar_ = new QProgressBar(this);
  bar_->setObjectName("LoadProgress");
  bar_->setRange(0, 100);
  bar_->setValue(0);
  bar_->setTextVisible(false);
  auto* layout = new QVBoxLayout(this);
  layout->addWidget(bar_);
  resize(300, 40);
  timer_ = new QTimer(this);
  timer_->setInterval(kTickMs);
  connect(timer_, &QTimer::timeout, this, &CDlgLoad::OnTick);
}

CDlgLoad::~CDlgLoad() {
  if (worker_.joinable()) worker_.join();
}

int CDlgLoad::exec() {
  // Read on this thread: the worker touches no widget.
  BomListRequest request = owner_->CurrentRequest();
  const FilterData* filterData = filterData_ ? &*filterData_ : nullptr;
  worker_ = std::thread([this, request, filterData] {
    contents_ = owner_->CollectList(request, filterData);
    finished_ = true;
  });
  timer_->start();
  return QDialog::exec();
}

void CDlgLoad::OnTick() {
  if (!finished_) {
    int next = bar_->value() + kStep;
    bar_->setValue(next > bar_->maximum() ? bar_->minimum() : next);
    return;
  }
  timer_->stop();
  worker_.join();
  // A worker that gave up leaves the list as it was.
  if (contents_.valid) owner_->FillList(contents_);
  done(contents_.valid ? 1 : -1);
}
