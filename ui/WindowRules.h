// The window rules of the tool dialogs: top-most at opening, and for the
// modeless list dialogs the top right corner of the primary screen at every
// show, whatever the window's size.
#pragma once

#include <QPoint>
#include <QRect>

class QWidget;

void MakeTopMost(QWidget* window);
// The frame's top left: the screen's right edge less the frame's width, and
// the screen's top.
QPoint TopRightCorner(const QRect& screen, int frameWidth);
// From now on the window moves there each time it shows.
void KeepAtTopRightOnShow(QWidget* window);
