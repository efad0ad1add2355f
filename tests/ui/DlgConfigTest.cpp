#include <gtest/gtest.h>

#include "ApplTextPath.h"
#include "DlgConfig.h"
#include "TestDir.h"

namespace {

class DlgConfigTest : public testing::Test {
 protected:
  void SetUp() override {
    protkrt::SetApplTextPath(dir_.Wide());
    dir_.Write("config/MdlExport.cfg",
               "[Export]\nSortCol=1\n[DlgChkBox]\n-1=0\n[DlgRadio]\n-1=0\n[DlgCombo]\n-1=-1\n");
    config_.SetFileName(L"\\config\\MdlExport.cfg");
  }
  void TearDown() override { protkrt::SetApplTextPath(L""); }

  TestDir dir_;
  CDlgConfig config_;
};

}  // namespace

TEST_F(DlgConfigTest, StatesAreStoredUnderTheControlId) {
  config_.SetCheckState(1001, 1);
  config_.SetRadioState(1002, 1);
  config_.SetComboState(1003, 2);
  EXPECT_EQ(config_.GetCheckState(1001), 1);
  EXPECT_EQ(config_.GetRadioState(1002), 1);
  EXPECT_EQ(config_.GetComboState(1003), 2);
  EXPECT_EQ(dir_.Read("config/MdlExport.cfg"),
            "[Export]\nSortCol=1\n[DlgChkBox]\n-1=0\n1001=1\n[DlgRadio]\n-1=0\n1002=1\n[DlgCombo]\n-1=-"
            "1\n1003=2\n");
}

TEST_F(DlgConfigTest, NeverStoredStatesReadAsTheirDefaultsAndOnesThatAreNoNumberAsZero) {
  EXPECT_EQ(config_.GetComboState(1003), -1) << "the caller picks its own first entry";
  EXPECT_EQ(config_.GetRadioState(1002), 0);
  EXPECT_EQ(config_.GetCheckState(1001), 0);
  dir_.Write("config/MdlExport.cfg", "[DlgChkBox]\n1001=on\n[DlgCombo]\n1003=x\n");
  EXPECT_EQ(config_.GetCheckState(1001), 0);
  EXPECT_EQ(config_.GetComboState(1003), 0);
}

TEST_F(DlgConfigTest, WithoutAFileNameNothingIsReadOrWritten) {
  CDlgConfig unnamed;
  unnamed.SetCheckState(1001, 1);
  EXPECT_EQ(unnamed.GetCheckState(1001), 0);
  EXPECT_EQ(unnamed.GetComboState(1003), -1);
  config_.SetCheckState(1001, 1);
  EXPECT_EQ(unnamed.GetCheckState(1001), 0);
}

TEST_F(DlgConfigTest, AMissingSectionIsNeverCreated) {
  dir_.Write("config/MdlExport.cfg", "[Export]\nSortCol=1\n");
  config_.SetRadioState(1002, 1);
  EXPECT_EQ(dir_.Read("config/MdlExport.cfg"), "[Export]\nSortCol=1\n");
}
