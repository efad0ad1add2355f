#include <gtest/gtest.h>

#include "FileDialog.h"

namespace {

// A headless host that installs no chooser must not leave the plug-in
// waiting for a file: every request is cancelled.
TEST(FileDialog, WithoutHandlerEveryRequestIsCancelled) {
  platform::FileOpenHandler previous = platform::SetFileOpenHandler(nullptr);
  EXPECT_FALSE(platform::ChooseFileToOpen(nullptr, L"Worksheet Files (*.xls)|*.xls||").has_value());
  platform::SetFileOpenHandler(previous);
}

}  // namespace
