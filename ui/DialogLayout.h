// The layout store bound to a Qt dialog: its controls registered under their
// ids, and Apply run at each resize of the dialog, after Qt's own handling.
#pragma once

#include <QObject>

#include <map>
#include <utility>
#include <vector>

#include "LayoutStore.h"

class QWidget;

class CDialogLayout : public QObject, private LayoutWindow {
 public:
  // A child of `dialog`, watching its resizes.
  explicit CDialogLayout(QWidget* dialog);

  // As CLayoutStore: measures the dialog's present client size, and takes the
  // anchors of the controls added so far from their present places.
  void Init(int dialogId);
  // Registers `control` under `controlId`; it is anchored at Init, or at once
  // when Init has run.
  void Add(int anchor, int controlId, QWidget* control);
  void Enable(int flag);

 protected:
  bool eventFilter(QObject* watched, QEvent* event) override;

 private:
  LayoutRect ClientRect() const override;
  std::optional<LayoutRect> ControlRect(int controlId) const override;
  void MoveControl(int controlId, const LayoutRect& rect) override;

  QWidget* dialog_;                           // not owned: the parent
  std::map<int, QWidget*> controls_;          // not owned: the dialog's children
  std::vector<std::pair<int, int>> waiting_;  // anchor and control id until Init
  bool initialised_ = false;
  CLayoutStore store_;
};
