// Steps of the dialog tests for windows that the code under test opens and
// waits on: a popup menu or a modal dialog.
#pragma once

#include <gtest/gtest.h>

#include <QAbstractItemView>
#include <QAction>
#include <QApplication>
#include <QMenu>
#include <QTest>
#include <QTimer>
#include <functional>

// Runs `step` on the next popup or modal window of type T, once it shows.
template <typename T>
void WhenShown(std::function<void(T*)> step) {
  auto* poll = new QTimer;
  QObject::connect(poll, &QTimer::timeout, [poll, step] {
    QWidget* top = QApplication::activePopupWidget();
    if (!top) top = QApplication::activeModalWidget();
    auto* widget = dynamic_cast<T*>(top);
    if (!widget) return;
    poll->stop();
    poll->deleteLater();
    step(widget);
  });
  poll->start(5);
}

// Right-clicks `at` in the view and chooses the context menu's entry `text`.
inline void ChooseFromMenu(QAbstractItemView* view, QPoint at, const QString& text) {
  WhenShown<QMenu>([text](QMenu* menu) {
    QAction* chosen = nullptr;
    for (QAction* action : menu->actions()) {
      if (action->text() == text) chosen = action;
    }
    menu->close();
    if (chosen) chosen->trigger();
    EXPECT_NE(chosen, nullptr) << "no entry " << text.toStdString();
  });
  QTest::mouseClick(view->viewport(), Qt::RightButton, {}, at);
}
