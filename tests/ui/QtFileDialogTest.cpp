#include <gtest/gtest.h>

#include <QApplication>
#include <QFileDialog>
#include <QTimer>

#include <functional>

#include "FileDialog.h"
#include "QtFileDialog.h"
#include "TestDir.h"

namespace {

class QtFileDialogTest : public testing::Test {
 protected:
  void SetUp() override { InstallQtFileDialogHandler(); }
  void TearDown() override { platform::SetFileOpenHandler(nullptr); }

  // Runs `answer` on the file dialog once it shows, after noting its filters
  // and directory.
  void WhenShown(std::function<void(QFileDialog*)> answer) {
    auto* poll = new QTimer;
    QObject::connect(poll, &QTimer::timeout, [this, poll, answer] {
      auto* dialog = qobject_cast<QFileDialog*>(QApplication::activeModalWidget());
      if (!dialog) return;
      poll->stop();
      poll->deleteLater();
      shownFilters = dialog->nameFilters();
      shownDir = dialog->directory().absolutePath();
      answer(dialog);
    });
    poll->start(5);
  }

  TestDir dir;
  QStringList shownFilters;
  QString shownDir;
};

TEST_F(QtFileDialogTest, ChosenFileIsTheAnswerAndTheFilterTakesQtsForm) {
  dir.Write("mine.xls", "x");
  QString chosen = QString::fromStdString((dir.path() / "mine.xls").string());
  WhenShown([chosen](QFileDialog* dialog) {
    dialog->selectFile(chosen);
    static_cast<QDialog*>(dialog)->accept();
  });
  std::optional<std::wstring> answer = platform::ChooseFileToOpen(
      nullptr, L"Worksheet Files (*.xls)|*.xls;*.xlsx|All Files (*.*)|*.*||", dir.Wide());
  ASSERT_TRUE(answer.has_value());
  EXPECT_EQ(*answer, chosen.toStdWString());
  EXPECT_EQ(shownFilters, (QStringList{"Worksheet Files (*.xls *.xlsx)", "All Files (*.*)"}));
  EXPECT_EQ(shownDir, QString::fromStdString(dir.path().string()));
}

TEST_F(QtFileDialogTest, CancelAnswersNothing) {
  WhenShown([](QFileDialog* dialog) { dialog->reject(); });
  EXPECT_FALSE(platform::ChooseFileToOpen(nullptr, L"Worksheet Files (*.xls)|*.xls||").has_value());
  EXPECT_EQ(shownFilters, QStringList{"Worksheet Files (*.xls)"});
}

}  // namespace
