// What the layout store needs of a dialog: its client area and its
// controls, in client coordinates. The windowing layer implements it.
#pragma once

#include <optional>

struct LayoutRect {
  int left = 0;
  int top = 0;
  int width = 0;
  int height = 0;

  int Right() const { return left + width; }
  int Bottom() const { return top + height; }
  bool operator==(const LayoutRect&) const = default;
};

class LayoutWindow {
 public:
  virtual ~LayoutWindow() = default;
  virtual LayoutRect ClientRect() const = 0;
  // nullopt for an id the dialog has no control of.
  virtual std::optional<LayoutRect> ControlRect(int controlId) const = 0;
  virtual void MoveControl(int controlId, const LayoutRect& rect) = 0;
};
