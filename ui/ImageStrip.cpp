#include "ImageStrip.h"

#include <QPainter>
#include <QPixmap>

namespace {

constexpr int kSize = 16;

// A block seen from the front and above: the part.
void DrawBlock(QPainter& painter, const QRect& front, const QColor& face) {
  QPolygon top;
  top << front.topLeft() << front.topLeft() + QPoint(3, -3) << front.topRight() + QPoint(3, -3)
      << front.topRight();
  QPolygon side;
  side << front.topRight() << front.topRight() + QPoint(3, -3) << front.bottomRight() + QPoint(3, -3)
       << front.bottomRight();
  painter.setPen(QColor(40, 40, 40));
  painter.setBrush(face.lighter(140));
  painter.drawPolygon(top);
  painter.setBrush(face.darker(130));
  painter.drawPolygon(side);
  painter.setBrush(face);
  painter.drawRect(front);
}

// A sheet with a turned corner; `lines` draws what is on it.
template <typename Lines>
void DrawSheet(QPainter& painter, Lines lines) {
  QPolygon sheet;
  sheet << QPoint(2, 1) << QPoint(10, 1) << QPoint(13, 4) << QPoint(13, 14) << QPoint(2, 14);
  painter.setPen(QColor(60, 60, 60));
  painter.setBrush(Qt::white);
  painter.drawPolygon(sheet);
  painter.drawLine(10, 1, 10, 4);
  painter.drawLine(10, 4, 13, 4);
  lines();
}

QPixmap Draw(int index) {
  QPixmap pixmap(kSize, kSize);
  pixmap.fill(Qt::transparent);
  QPainter painter(&pixmap);
  switch (index) {
    case 2:
      DrawSheet(painter, [&] {
        painter.setPen(QColor(90, 90, 200));
        for (int y = 6; y <= 12; y += 2) painter.drawLine(4, y, 11, y);
      });
      break;
    case 14:
      DrawBlock(painter, QRect(2, 5, 9, 9), QColor(70, 130, 210));
      break;
    case 15:
      DrawBlock(painter, QRect(1, 8, 7, 6), QColor(230, 150, 40));
      DrawBlock(painter, QRect(6, 4, 6, 5), QColor(90, 170, 90));
      break;
    case 16:
      DrawSheet(painter, [&] {
        painter.setPen(QColor(200, 40, 40));
        painter.drawRect(4, 6, 5, 4);
        painter.drawLine(4, 12, 11, 12);
      });
      break;
    default:
      return {};
  }
  return pixmap;
}

}  // namespace

QIcon ListImage(int index) {
  QPixmap pixmap = Draw(index);
  return pixmap.isNull() ? QIcon() : QIcon(pixmap);
}
