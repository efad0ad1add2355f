#include "QtMessageBox.h"

#include <QApplication>
#include <QMessageBox>
#include <QThread>

#include "MessageBox.h"

namespace {

int ShowBox(const platform::MessageBoxRequest& request) {
  bool question = (request.flags & 0xF) == platform::kMbYesNo;
  QMessageBox box(question ? QMessageBox::Question : QMessageBox::Information,
                  QString::fromStdWString(request.caption), QString::fromStdWString(request.text),
                  question ? QMessageBox::Yes | QMessageBox::No : QMessageBox::Ok,
                  QApplication::activeWindow());
  box.setObjectName("PromptBox");
  box.setWindowFlag(Qt::WindowStaysOnTopHint, true);
  int answer = box.exec();
  if (!question) return platform::kIdOk;
  return answer == QMessageBox::Yes ? platform::kIdYes : platform::kIdNo;
}

}  // namespace

void InstallQtMessageBoxHandler() {
  platform::SetMessageBoxHandler([](const platform::MessageBoxRequest& request) {
    if (QThread::currentThread() == qApp->thread()) return ShowBox(request);
    int answer = platform::kIdOk;
    QMetaObject::invokeMethod(
        qApp, [&] { answer = ShowBox(request); }, Qt::BlockingQueuedConnection);
    return answer;
  });
}
