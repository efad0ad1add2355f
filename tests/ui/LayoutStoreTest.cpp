#include <gtest/gtest.h>

#include <map>
#include <vector>

#include "LayoutStore.h"

namespace {

// A dialog of plain rectangles.
class FakeDialog : public LayoutWindow {
 public:
  LayoutRect ClientRect() const override { return client; }
  std::optional<LayoutRect> ControlRect(int controlId) const override {
    auto found = controls.find(controlId);
    if (found == controls.end()) return std::nullopt;
    return found->second;
  }
  void MoveControl(int controlId, const LayoutRect& rect) override { controls[controlId] = rect; }

  LayoutRect client{0, 0, 400, 300};
  std::map<int, LayoutRect> controls;
};

class LayoutStoreTest : public testing::Test {
 protected:
  // A control 100 wide and 50 high at (20, 30): 280 from the right edge,
  // 220 from the bottom.
  LayoutRect Resized(int anchor, int width, int height) {
    FakeDialog dialog;
    dialog.controls[7] = {20, 30, 100, 50};
    CLayoutStore store;
    store.Init(1, &dialog);
    store.Add(anchor, 7);
    store.Enable(1);
    dialog.client = {0, 0, width, height};
    store.Apply();
    return dialog.controls[7];
  }
};

}  // namespace

// Edge anchors keep their margins; half anchors share the growth of the width.
TEST_F(LayoutStoreTest, EachAnchorKeepsItsMarginsOrItsShareOfTheGrowth) {
  const std::vector<std::pair<int, LayoutRect>> expected = {
      {kAnchorStretchBoth, {20, 30, 200, 150}},
      {kAnchorBottom, {20, 130, 100, 50}},
      {kAnchorRight, {120, 30, 100, 50}},
      {kAnchorRightBottom, {120, 130, 100, 50}},
      {kAnchorStretchWidth, {20, 30, 200, 50}},
      {kAnchorStretchHeight, {20, 30, 100, 150}},
      {kAnchorBottomStretchWidth, {20, 130, 200, 50}},
      {kAnchorRightStretchHeight, {120, 30, 100, 150}},
      {kAnchorLeftHalfStretchHeight, {20, 30, 150, 150}},
      {kAnchorRightHalfStretchHeight, {70, 30, 150, 150}},
      {kAnchorLeftHalf, {20, 30, 150, 50}},
      {kAnchorRightHalf, {70, 30, 150, 50}},
      {kAnchorRightHalfMove, {70, 30, 100, 50}},
  };
  for (const auto& [anchor, rect] : expected) EXPECT_EQ(Resized(anchor, 500, 400), rect) << anchor;
}

TEST_F(LayoutStoreTest, AnOddGrowthLeavesThePairOnePixelShort) {
  // Left control 100 wide at 10, right one 100 wide at 110; 5 more pixels.
  FakeDialog dialog;
  dialog.client = {0, 0, 220, 100};
  dialog.controls = {{1, {10, 0, 100, 20}}, {2, {110, 0, 100, 20}}};
  CLayoutStore store;
  store.Init(1, &dialog);
  store.Add(kAnchorLeftHalf, 1);
  store.Add(kAnchorRightHalf, 2);
  store.Enable(1);
  dialog.client.width = 225;
  store.Apply();
  EXPECT_EQ(dialog.controls[1], (LayoutRect{10, 0, 102, 20}));
  EXPECT_EQ(dialog.controls[2], (LayoutRect{112, 0, 102, 20}));
  EXPECT_EQ(dialog.client.width - dialog.controls[2].Right(), 11) << "one pixel more than the 10 it had";
}

TEST_F(LayoutStoreTest, ShrinkingBelowTheFirstSizeShrinksTheHalvesByHalf) {
  EXPECT_EQ(Resized(kAnchorRightHalf, 390, 300), (LayoutRect{15, 30, 95, 50}));
  EXPECT_EQ(Resized(kAnchorLeftHalf, 397, 300), (LayoutRect{20, 30, 99, 50})) << "-3 / 2 is -1";
}

TEST_F(LayoutStoreTest, NothingMovesUntilInitialisedWithAnIdAndEnabled) {
  FakeDialog dialog;
  dialog.controls[7] = {20, 30, 100, 50};
  CLayoutStore store;
  store.Add(kAnchorStretchBoth, 7);
  EXPECT_TRUE(store.Values().empty()) << "ignored before Init";
  store.Init(-1, &dialog);
  store.Add(kAnchorStretchBoth, 7);
  store.Add(kAnchorStretchBoth, 99);
  ASSERT_EQ(store.Values().size(), 1u) << "an unknown control is not registered";
  store.Enable(1);
  dialog.client = {0, 0, 500, 400};
  store.Apply();
  EXPECT_EQ(dialog.controls[7], (LayoutRect{20, 30, 100, 50})) << "a negative dialog id";

  CLayoutStore disabled;
  disabled.Init(3, &dialog);
  disabled.Add(kAnchorStretchBoth, 7);
  dialog.client = {0, 0, 600, 500};
  disabled.Apply();
  EXPECT_EQ(dialog.controls[7], (LayoutRect{20, 30, 100, 50}));
}
