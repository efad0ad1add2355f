#include "WindowRules.h"

#include <QEvent>
#include <QGuiApplication>
#include <QScreen>
#include <QWidget>

namespace {

class TopRightOnShow : public QObject {
 public:
  using QObject::QObject;

 protected:
  bool eventFilter(QObject* watched, QEvent* event) override {
    if (event->type() == QEvent::Show) {
      auto* window = static_cast<QWidget*>(watched);
      QScreen* screen = QGuiApplication::primaryScreen();
      if (screen) window->move(TopRightCorner(screen->geometry(), window->frameGeometry().width()));
    }
    return false;
  }
};

}  // namespace

void MakeTopMost(QWidget* window) { window->setWindowFlag(Qt::WindowStaysOnTopHint, true); }

QPoint TopRightCorner(const QRect& screen, int frameWidth) {
  return {screen.left() + screen.width() - frameWidth, screen.top()};
}

void KeepAtTopRightOnShow(QWidget* window) { window->installEventFilter(new TopRightOnShow(window)); }
