// Controls of the batch tools' dialogs, placed by hand as their resize
// anchors expect, each with the object name tests and scripts find it by.
#pragma once

#include <QButtonGroup>
#include <QRadioButton>
#include <QRect>

template <typename Widget>
Widget* Named(Widget* widget, const char* name, const QRect& rect) {
  widget->setObjectName(name);
  widget->setGeometry(rect);
  return widget;
}

// A radio button of `group`, answering `id`.
inline QRadioButton* Radio(QButtonGroup* group, int id, const char* text, const char* name, QWidget* parent,
                           const QRect& rect) {
  auto* radio = Named(new QRadioButton(text, parent), name, rect);
  group->addButton(radio, id);
  return radio;
}
