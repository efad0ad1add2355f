#include "DialogLayout.h"

#include <QEvent>
#include <QWidget>

CDialogLayout::CDialogLayout(QWidget* dialog) : QObject(dialog), dialog_(dialog) {
  dialog_->installEventFilter(this);
}

void CDialogLayout::Init(int dialogId) {
  store_.Init(dialogId, this);
  initialised_ = true;
  for (auto [anchor, controlId] : waiting_) store_.Add(anchor, controlId);
  waiting_.clear();
}

void CDialogLayout::Add(int anchor, int controlId, QWidget* control) {
  controls_[controlId] = control;
  if (initialised_) {
    store_.Add(anchor, controlId);
  } else {
    waiting_.emplace_back(anchor, controlId);
  }
}

void CDialogLayout::Enable(int flag) { store_.Enable(flag); }

bool CDialogLayout::eventFilter(QObject* watched, QEvent* event) {
  if (watched == dialog_ && event->type() == QEvent::Resize) store_.Apply();
  return false;
}

LayoutRect CDialogLayout::ClientRect() const {
  QRect rect = dialog_->rect();
  return {rect.left(), rect.top(), rect.width(), rect.height()};
}

std::optional<LayoutRect> CDialogLayout::ControlRect(int controlId) const {
  auto found = controls_.find(controlId);
  if (found == controls_.end()) return std::nullopt;
  QRect rect = found->second->geometry();
  return LayoutRect{rect.left(), rect.top(), rect.width(), rect.height()};
}

void CDialogLayout::MoveControl(int controlId, const LayoutRect& rect) {
  auto found = controls_.find(controlId);
  if (found != controls_.end()) found->second->setGeometry(rect.left, rect.top, rect.width, rect.height);
}
