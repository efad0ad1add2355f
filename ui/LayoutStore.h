// The layout store of a resizable dialog: each registered control keeps its
// margins to the right and bottom edge, or half of the dialog's growth, by
// its anchor code.
#pragma once

#include <vector>

#include "LayoutWindow.h"

// Anchor codes: what follows the dialog's right edge R and bottom edge B.
enum LayoutAnchor {
  kAnchorStretchBoth = 0,          // width and height
  kAnchorBottom = 1,               // moves with B
  kAnchorRight = 2,                // moves with R
  kAnchorRightBottom = 3,          // moves with both
  kAnchorStretchWidth = 4,         // width
  kAnchorStretchHeight = 5,        // height
  kAnchorBottomStretchWidth = 11,  // moves with B, width stretches
  kAnchorRightStretchHeight = 21,  // moves with R, height stretches
  // Two controls side by side, each taking half of the width's growth.
  kAnchorLeftHalfStretchHeight = 101,
  kAnchorRightHalfStretchHeight = 102,
  kAnchorLeftHalf = 103,
  kAnchorRightHalf = 104,
  kAnchorRightHalfMove = 105,
};

// One anchored control as measured at registration.
struct OffSetValue {
  int rightMargin = 0;   // client's right edge less the control's
  int bottomMargin = 0;  // client's bottom edge less the control's
  int width = 0;
  int height = 0;
  int left = 0;
  int top = 0;
  int controlId = 0;
  int anchor = 0;
};

class CLayoutStore {
 public:
  // Keeps both and measures the client area; a negative dialog id leaves the
  // first size unset. `window` is not owned.
  void Init(int dialogId, LayoutWindow* window);
  // Measures the control and registers it; ignored before Init and for a
  // control the dialog does not have.
  void Add(int anchor, int controlId);
  void Enable(int flag);
  // Moves and sizes every registered control for the present client size;
  // nothing unless initialised with a dialog id and enabled. Called after the
  // dialog's own size handling.
  void Apply();

  const std::vector<OffSetValue>& Values() const { return values_; }

 private:
  std::vector<OffSetValue> values_;
  int dialogId_ = -1;
  LayoutWindow* window_ = nullptr;
  int firstWidth_ = -1;
  int firstHeight_ = -1;
  int enabled_ = 0;
};
