#include <gtest/gtest.h>

#include <map>

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

TEST_F(LayoutStoreTest, EdgeAnchorsKeepTheirMargins) {
  EXPECT_EQ(Resized(kAnchorStretchBoth, 500, 400), (LayoutRect{20, 30, 200, 150}));
  EXPECT_EQ(Resized(kAnchorBottom, 500, 400), (LayoutRect{20, 130, 100, 50}));
  EXPECT_EQ(Resized(kAnchorRight, 500, 400), (LayoutRect{120, 30, 100, 50}));
  EXPECT_EQ(Resized(kAnchorRightBottom, 500, 400), (LayoutRect{120, 130, 100, 50}));
  EXPECT_EQ(Resized(kAnchorStretchWidth, 500, 400), (LayoutRect{20, 30, 200, 50}));
  EXPECT_EQ(Resized(kAnchorStretchHeight, 500, 400), (LayoutRect{20, 30, 100, 150}));
  EXPECT_EQ(Resized(kAnchorBottomStretchWidth, 500, 400), (LayoutRect{20, 130, 200, 50}));
  EXPECT_EQ(Resized(kAnchorRightStretchHeight, 500, 400), (LayoutRect{120, 30, 100, 150}));
}

TEST_F(LayoutStoreTest, HalfAnchorsShareTheGrowthOfTheWidth) {
  EXPECT_EQ(Resized(kAnchorLeftHalfStretchHeight, 500, 400), (LayoutRect{20, 30, 150, 150}));
  EXPECT_EQ(Resized(kAnchorRightHalfStretchHeight, 500, 400), (LayoutRect{70, 30, 150, 150}));
  EXPECT_EQ(Resized(kAnchorLeftHalf, 500, 400), (LayoutRect{20, 30, 150, 50}));
  EXPECT_EQ(Resized(kAnchorRightHalf, 500, 400), (LayoutRect{70, 30, 150, 50}));
  EXPECT_EQ(Resized(kAnchorRightHalfMove, 500, 400), (LayoutRect{70, 30, 100, 50}));
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

TEST_F(LayoutStoreTest, RegistrationMeasuresMarginsAndPlace) {
  FakeDialog dialog;
  dialog.controls[4] = {20, 30, 100, 50};
  CLayoutStore store;
  store.Init(1, &dialog);
  store.Add(kAnchorRightBottom, 4);
  const OffSetValue& value = store.Values().front();
  EXPECT_EQ(value.rightMargin, 280);
  EXPECT_EQ(value.bottomMargin, 220);
  EXPECT_EQ(value.width, 100);
  EXPECT_EQ(value.height, 50);
  EXPECT_EQ(value.left, 20);
  EXPECT_EQ(value.top, 30);
  EXPECT_EQ(value.controlId, 4);
  EXPECT_EQ(value.anchor, kAnchorRightBottom);
}
