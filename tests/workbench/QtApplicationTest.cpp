// The application every Qt job of the workbench starts.
#include <gtest/gtest.h>

#include <QAbstractButton>
#include <QApplication>
#include <QDialogButtonBox>
#include <QFileDialog>
#include <QMessageBox>
#include <QPushButton>

#include <cstdlib>
#include <optional>
#include <string>

#include "QtApplication.h"

namespace {

// The variable unset for the life of the object, then as it was.
class UnsetVariable {
 public:
  explicit UnsetVariable(const char* name) : name_(name) {
    if (const char* value = std::getenv(name)) value_ = value;
    unsetenv(name);
  }
  ~UnsetVariable() {
    if (value_) {
      setenv(name_, value_->c_str(), 1);
    } else {
      unsetenv(name_);
    }
  }

 private:
  const char* name_;
  std::optional<std::string> value_;
};

TEST(QtApplicationTest, WithoutADisplayItRunsOffscreenAndQtsOwnButtonsSpeakChinese) {
  UnsetVariable display("DISPLAY");
  UnsetVariable wayland("WAYLAND_DISPLAY");
  UnsetVariable platform("QT_QPA_PLATFORM");
  int argc = 1;
  char name[] = "bom-workbench";
  char* argv[] = {name, nullptr};
  std::unique_ptr<QApplication> app = StartQtApplication(argc, argv);
  EXPECT_EQ(QApplication::platformName(), "offscreen");
  QMessageBox box(QMessageBox::Question, "提示", "是否打开？", QMessageBox::Yes | QMessageBox::No);
  EXPECT_EQ(box.button(QMessageBox::Yes)->text(), "是(&Y)");
  EXPECT_EQ(box.button(QMessageBox::No)->text(), "否(&N)");
  // The directory chooser as the workbench shows it: Qt's own dialog.
  QFileDialog chooser;
  chooser.setOption(QFileDialog::DontUseNativeDialog);
  chooser.setFileMode(QFileDialog::Directory);
  auto* buttons = chooser.findChild<QDialogButtonBox*>();
  ASSERT_NE(buttons, nullptr);
  EXPECT_EQ(buttons->button(QDialogButtonBox::Cancel)->text(), "取消");
  EXPECT_EQ(buttons->button(QDialogButtonBox::Open)->text(), "选择(&C)");
}

}  // namespace
