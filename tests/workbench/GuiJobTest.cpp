// The workbench's window, run offscreen: the plug-in's list opened by its
// command beside the host's window and saved as a picture.
#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>

#include "JobRun.h"

namespace {

struct PngSize {
  unsigned width = 0;
  unsigned height = 0;
};

// Width and height from the header chunk; zeros for a file that is no PNG.
PngSize ReadPngSize(const std::filesystem::path& file) {
  std::ifstream in(file, std::ios::binary);
  unsigned char head[24] = {};
  in.read(reinterpret_cast<char*>(head), sizeof head);
  const unsigned char signature[] = {0x89, 'P', 'N', 'G', '\r', '\n', 0x1A, '\n'};
  if (!in || !std::equal(std::begin(signature), std::end(signature), head)) return {};
  auto big = [&](int at) {
    return unsigned(head[at]) << 24 | head[at + 1] << 16 | head[at + 2] << 8 | head[at + 3];
  };
  return {big(16), big(20)};
}

class GuiJobTest : public testing::Test {
 protected:
  // The other jobs run without a display; this one is given the offscreen one.
  // A job that waits for nobody ends long before `timeout` stops it.
  int Workbench(const std::string& arguments) {
    return RunJob(dir_, "gui", arguments, "QT_QPA_PLATFORM=offscreen timeout 120").exitCode;
  }

  TestDir dir_;
};

TEST_F(GuiJobTest, ScreenshotShowsTheListBesideTheWindow) {
  auto shot = dir_.path() / "shot.png";
  ASSERT_EQ(Workbench("--run CmdBOMShowId --screenshot '" + shot.string() + "'"), 0);
  PngSize size = ReadPngSize(shot);
  // The main window is 1000 wide, the list at least its smallest 710.
  EXPECT_GE(size.width, 1710u);
  EXPECT_GE(size.height, 700u);
}

TEST_F(GuiJobTest, ScreenshotIsTakenWhenACommandsDialogWaitsForTheUser) {
  auto shot = dir_.path() / "shot.png";
  ASSERT_EQ(Workbench("--run CmdBOMSetId --screenshot '" + shot.string() + "'"), 0);
  // The settings dialog beside the 1000 wide main window.
  EXPECT_GT(ReadPngSize(shot).width, 1100u);
}

TEST_F(GuiJobTest, UnknownCommandEndsTheJob) {
  EXPECT_EQ(Workbench("--run CmdNoSuchId --screenshot '" + (dir_.path() / "x.png").string() + "'"), 1);
  EXPECT_FALSE(std::filesystem::exists(dir_.path() / "x.png"));
}

}  // namespace
