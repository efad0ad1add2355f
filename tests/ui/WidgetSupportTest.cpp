#include <gtest/gtest.h>

#include <QApplication>
#include <QDialog>
#include <QLabel>
#include <QMessageBox>
#include <QPushButton>
#include <QScreen>
#include <QTest>
#include <QTimer>

#include <thread>

#include "DialogLayout.h"
#include "ImageStrip.h"
#include "MessageBox.h"
#include "QtMessageBox.h"
#include "WindowRules.h"

namespace {

TEST(DialogLayout, ResizeMovesAnchoredControls) {
  QDialog dialog;
  dialog.resize(400, 300);
  auto* list = new QLabel(&dialog);
  list->setGeometry(10, 10, 380, 200);
  auto* button = new QLabel(&dialog);
  button->setGeometry(300, 260, 80, 25);
  CDialogLayout layout(&dialog);
  layout.Init(1);
  layout.Add(kAnchorStretchBoth, 1, list);
  layout.Add(kAnchorBottom, 2, button);
  layout.Enable(1);
  dialog.resize(500, 400);
  QCoreApplication::sendPostedEvents();
  dialog.show();
  EXPECT_EQ(list->geometry(), QRect(10, 10, 480, 300));
  EXPECT_EQ(button->geometry(), QRect(300, 360, 80, 25));
}

TEST(WindowRules, WindowGoesToTopRightCornerAtEveryShow) {
  QDialog dialog;
  MakeTopMost(&dialog);
  KeepAtTopRightOnShow(&dialog);
  dialog.resize(300, 200);
  dialog.show();
  QRect screen = QGuiApplication::primaryScreen()->geometry();
  EXPECT_TRUE(dialog.windowFlags() & Qt::WindowStaysOnTopHint);
  EXPECT_EQ(dialog.frameGeometry().topLeft(), TopRightCorner(screen, dialog.frameGeometry().width()));
  dialog.hide();
  dialog.move(5, 5);
  dialog.resize(200, 100);
  dialog.show();
  EXPECT_EQ(dialog.frameGeometry().right() + 1, screen.right() + 1);
  EXPECT_EQ(dialog.frameGeometry().top(), screen.top());
}

TEST(ImageStrip, DrawsTheImagesTheListsUse) {
  for (int index : {2, 14, 15, 16}) {
    QImage image = ListImage(index).pixmap(16, 16).toImage();
    ASSERT_EQ(image.size(), QSize(16, 16)) << index;
    EXPECT_NE(image.pixelColor(6, 10).alpha(), 0) << index;
  }
  EXPECT_NE(ListImage(14).pixmap(16, 16).toImage(), ListImage(15).pixmap(16, 16).toImage());
  EXPECT_TRUE(ListImage(3).isNull());
}

// Answers the next message box by its button, after checking what it shows.
class QtMessageBoxTest : public testing::Test {
 protected:
  void SetUp() override { InstallQtMessageBoxHandler(); }
  void TearDown() override { platform::SetMessageBoxHandler(nullptr); }

  // Waits for the box, which a worker thread may ask for a little later.
  void AnswerNextBox(QMessageBox::StandardButton button) {
    auto* poll = new QTimer;
    QObject::connect(poll, &QTimer::timeout, [this, poll, button] {
      auto* box = qobject_cast<QMessageBox*>(QApplication::activeModalWidget());
      if (!box) return;
      poll->stop();
      poll->deleteLater();
      shownCaption = box->windowTitle();
      shownText = box->text();
      box->button(button)->click();
    });
    poll->start(5);
  }

  QString shownCaption;
  QString shownText;
};

TEST_F(QtMessageBoxTest, QuestionShowsCaptionAndTextAndGivesTheAnswer) {
  AnswerNextBox(QMessageBox::Yes);
  EXPECT_EQ(platform::MessageBox(nullptr, L"是否打开?", L"提示", platform::kMbYesNo), platform::kIdYes);
  EXPECT_EQ(shownCaption, "提示");
  EXPECT_EQ(shownText, "是否打开?");
  AnswerNextBox(QMessageBox::No);
  EXPECT_EQ(platform::MessageBox(nullptr, L"是否打开?", L"提示", platform::kMbYesNo), platform::kIdNo);
}

TEST_F(QtMessageBoxTest, BoxAskedFromWorkerThreadShowsOnUiThread) {
  AnswerNextBox(QMessageBox::Ok);
  int answer = 0;
  std::thread worker([&] { answer = platform::MessageBox(nullptr, L"完成", L"提示", platform::kMbOk); });
  while (answer == 0) QCoreApplication::processEvents(QEventLoop::AllEvents, 10);
  worker.join();
  EXPECT_EQ(answer, platform::kIdOk);
  EXPECT_EQ(shownText, "完成");
}

}  // namespace
