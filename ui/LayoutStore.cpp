#include "LayoutStore.h"

namespace {

// Integer halves: an odd growth leaves the two controls of a pair one pixel
// short of the edge, as the dialogs always have been.
LayoutRect Anchored(const OffSetValue& value, LayoutRect rect, int right, int bottom, int growth) {
  int half = growth / 2;
  auto stretchWidth = [&] { rect.width = right - rect.left - value.rightMargin; };
  auto stretchHeight = [&] { rect.height = bottom - rect.top - value.bottomMargin; };
  auto followRight = [&] { rect.left = right - value.rightMargin - rect.width; };
  auto followBottom = [&] { rect.top = bottom - value.bottomMargin - rect.height; };
  switch (value.anchor) {
    case kAnchorStretchBoth:
      stretchWidth();
      stretchHeight();
      break;
    case kAnchorBottom:
      followBottom();
      break;
    case kAnchorRight:
      followRight();
      break;
    case kAnchorRightBottom:
      followRight();
      followBottom();
      break;
    case kAnchorStretchWidth:
      stretchWidth();
      break;
    case kAnchorStretchHeight:
      stretchHeight();
      break;
    case kAnchorBottomStretchWidth:
      followBottom();
      stretchWidth();
      break;
    case kAnchorRightStretchHeight:
      followRight();
      stretchHeight();
      break;
    case kAnchorLeftHalfStretchHeight:
      rect.width = value.width + half;
      stretchHeight();
      break;
    case kAnchorRightHalfStretchHeight:
      rect.left = value.left + half;
      rect.width = value.width + half;
      stretchHeight();
      break;
    case kAnchorLeftHalf:
      rect.left = value.left;
      rect.width = value.width + half;
      break;
    case kAnchorRightHalf:
      rect.left = value.left + half;
      rect.width = value.width + half;
      break;
    case kAnchorRightHalfMove:
      rect.left = value.left + half;
      break;
    default:
      break;
  }
  return rect;
}

}  // namespace

void CLayoutStore::Init(int dialogId, LayoutWindow* window) {
  dialogId_ = dialogId;
  window_ = window;
  if (dialogId < 0 || !window) return;
  LayoutRect client = window->ClientRect();
  firstWidth_ = client.width;
  firstHeight_ = client.height;
}

void CLayoutStore::Add(int anchor, int controlId) {
  if (!window_) return;
  std::optional<LayoutRect> control = window_->ControlRect(controlId);
  if (!control) return;
  LayoutRect client = window_->ClientRect();
  values_.push_back({client.Right() - control->Right(), client.Bottom() - control->Bottom(), control->width,
                     control->height, control->left, control->top, controlId, anchor});
}

void CLayoutStore::Enable(int flag) { enabled_ = flag; }

void CLayoutStore::Apply() {
  if (dialogId_ < 0 || !enabled_ || !window_) return;
  LayoutRect client = window_->ClientRect();
  int growth = client.width - firstWidth_;
  for (const OffSetValue& value : values_) {
    std::optional<LayoutRect> present = window_->ControlRect(value.controlId);
    if (!present) continue;
    window_->MoveControl(value.controlId, Anchored(value, *present, client.Right(), client.Bottom(), growth));
  }
}
