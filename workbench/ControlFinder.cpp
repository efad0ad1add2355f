#include "ControlFinder.h"

#include <QAbstractButton>
#include <QAbstractSpinBox>
#include <QApplication>
#include <QCheckBox>
#include <QComboBox>
#include <QGroupBox>
#include <QLabel>
#include <QLineEdit>
#include <QListView>
#include <QPlainTextEdit>
#include <QPointer>
#include <QProgressBar>
#include <QRadioButton>
#include <QTableView>
#include <QTextEdit>
#include <QTreeView>

#include <algorithm>
#include <map>
#include <optional>

namespace {

const std::map<std::wstring, ControlKind>& KindsByName() {
  static const std::map<std::wstring, ControlKind> kinds{
      {L"edit", ControlKind::Edit},   {L"combo", ControlKind::Combo},  {L"text", ControlKind::Text},
      {L"list", ControlKind::List},   {L"tree", ControlKind::Tree},    {L"check", ControlKind::Check},
      {L"radio", ControlKind::Radio}, {L"button", ControlKind::Button}};
  return kinds;
}

// Parts of a control that are not controls of the dialog: the line of an
// editable drop-down, the field and drop-down a list opens over a cell.
bool IsPartOfAnother(const QWidget* widget) {
  for (const QWidget* parent = widget->parentWidget(); parent && !parent->isWindow();
       parent = parent->parentWidget()) {
    if (qobject_cast<const QComboBox*>(parent) || qobject_cast<const QAbstractSpinBox*>(parent) ||
        qobject_cast<const QAbstractItemView*>(parent))
      return true;
  }
  return false;
}

std::optional<ControlKind> KindOf(const QWidget* widget) {
  if (IsPartOfAnother(widget)) return std::nullopt;
  if (qobject_cast<const QCheckBox*>(widget)) return ControlKind::Check;
  if (qobject_cast<const QRadioButton*>(widget)) return ControlKind::Radio;
  if (qobject_cast<const QAbstractButton*>(widget)) return ControlKind::Button;
  if (qobject_cast<const QComboBox*>(widget)) return ControlKind::Combo;
  if (qobject_cast<const QLineEdit*>(widget)) return ControlKind::Edit;
  if (qobject_cast<const QTextEdit*>(widget) || qobject_cast<const QPlainTextEdit*>(widget))
    return ControlKind::Text;
  if (qobject_cast<const QTreeView*>(widget)) return ControlKind::Tree;
  if (qobject_cast<const QTableView*>(widget) || qobject_cast<const QListView*>(widget))
    return ControlKind::List;
  return std::nullopt;
}

std::wstring StripAccelerator(const std::wstring& text) {
  std::wstring stripped;
  for (size_t i = 0; i < text.size(); ++i) {
    if (text[i] == L'&' && i + 1 < text.size()) ++i;
    stripped += text[i];
  }
  return stripped;
}

std::wstring WithoutTrailingColon(std::wstring text) {
  while (!text.empty() && (text.back() == L':' || text.back() == L'：' || text.back() == L' '))
    text.pop_back();
  return text;
}

std::wstring CaptionOf(const QWidget* widget) {
  if (auto* button = qobject_cast<const QAbstractButton*>(widget)) return button->text().toStdWString();
  if (auto* group = qobject_cast<const QGroupBox*>(widget)) return group->title().toStdWString();
  if (auto* label = qobject_cast<const QLabel*>(widget)) return label->text().toStdWString();
  return {};
}

const char kShownOrder[] = "shownOrder";

// Stamps every window that shows with a rising number.
class ShownOrder : public QObject {
 protected:
  bool eventFilter(QObject* watched, QEvent* event) override {
    auto* widget = qobject_cast<QWidget*>(watched);
    if (event->type() == QEvent::Show && widget && widget->isWindow())
      widget->setProperty(kShownOrder, ++count_);
    return false;
  }

 private:
  qlonglong count_ = 0;
};

QPoint PlaceIn(const QWidget* widget, const QWidget* window) { return widget->mapTo(window, QPoint(0, 0)); }

// Top to bottom, then left to right.
void SortInReadingOrder(std::vector<QWidget*>& widgets, const QWidget* window) {
  std::ranges::stable_sort(widgets, [window](const QWidget* a, const QWidget* b) {
    QPoint pa = PlaceIn(a, window);
    QPoint pb = PlaceIn(b, window);
    return pa.y() != pb.y() ? pa.y() < pb.y() : pa.x() < pb.x();
  });
}

bool IsOneOf(const QWidget* widget, const std::vector<ControlKind>& kinds) {
  std::optional<ControlKind> kind = KindOf(widget);
  return kind && std::ranges::find(kinds, *kind) != kinds.end();
}

std::vector<QWidget*> VisibleControls(const QWidget* within, const std::vector<ControlKind>& kinds) {
  std::vector<QWidget*> controls;
  for (QWidget* widget : within->findChildren<QWidget*>()) {
    if (widget->isVisible() && widget->window() == within->window() && IsOneOf(widget, kinds))
      controls.push_back(widget);
  }
  SortInReadingOrder(controls, within->window());
  return controls;
}

std::wstring Describe(const QWidget* widget) {
  std::wstring text = KindName(*KindOf(widget));
  if (!widget->objectName().isEmpty()) text += L" " + widget->objectName().toStdWString();
  if (std::wstring caption = CaptionOf(widget); !caption.empty()) text += L" \"" + caption + L"\"";
  return text;
}

FoundControl OneOf(const std::vector<QWidget*>& matches, const std::wstring& name) {
  if (matches.size() == 1) return {matches[0], {}};
  std::wstring error = L"the name " + name + L" is ambiguous:";
  for (const QWidget* widget : matches) error += L" [" + Describe(widget) + L"]";
  return {nullptr, error};
}

// The group boxes of the window whose title is `caption`.
std::vector<QWidget*> FramesOf(const QWidget* window, const std::wstring& caption) {
  std::vector<QWidget*> frames;
  for (QGroupBox* group : window->findChildren<QGroupBox*>()) {
    if (group->isVisible() && SameCaption(group->title().toStdWString(), caption)) frames.push_back(group);
  }
  return frames;
}

// KIND@FRAME#N and KIND@#N.
std::optional<FoundControl> FindByPosition(QWidget* window, const std::wstring& name) {
  size_t at = name.find(L'@');
  if (at == std::wstring::npos) return std::nullopt;
  auto kind = KindsByName().find(name.substr(0, at));
  if (kind == KindsByName().end()) return std::nullopt;
  std::wstring rest = name.substr(at + 1);
  int number = 1;
  if (size_t hash = rest.rfind(L'#'); hash != std::wstring::npos) {
    std::wstring digits = rest.substr(hash + 1);
    if (digits.empty() || digits.size() > 4 || digits.find_first_not_of(L"0123456789") != std::wstring::npos)
      return FoundControl{nullptr, L"the number after # in " + name + L" is not a number from 1"};
    number = std::stoi(digits);
    rest.resize(hash);
  }
  const QWidget* within = window;
  if (!rest.empty()) {
    std::vector<QWidget*> frames = FramesOf(window, rest);
    if (frames.empty()) return FoundControl{nullptr, L"no frame " + rest};
    FoundControl frame = OneOf(frames, rest);
    if (!frame.widget) return frame;
    within = frame.widget;
  }
  std::vector<QWidget*> controls = VisibleControls(within, {kind->second});
  if (number < 1 || number > static_cast<int>(controls.size())) {
    return FoundControl{nullptr, L"no control " + name + L": there " +
                                     (controls.size() == 1 ? L"is " : L"are ") +
                                     std::to_wstring(controls.size())};
  }
  return FoundControl{controls[number - 1], {}};
}

// The control a label names: its buddy, else the nearest control to its
// right on its line.
QWidget* ControlOfLabel(const QLabel* label, const std::vector<QWidget*>& controls) {
  if (label->buddy() && std::ranges::find(controls, label->buddy()) != controls.end()) return label->buddy();
  const QWidget* window = label->window();
  QRect labelRect(PlaceIn(label, window), label->size());
  QWidget* nearest = nullptr;
  int nearestDistance = 0;
  for (QWidget* control : controls) {
    QRect rect(PlaceIn(control, window), control->size());
    bool sameLine = rect.top() <= labelRect.center().y() && labelRect.center().y() <= rect.bottom();
    int distance = rect.left() - labelRect.right();
    if (!sameLine || distance < 0) continue;
    if (!nearest || distance < nearestDistance) {
      nearest = control;
      nearestDistance = distance;
    }
  }
  return nearest;
}

}  // namespace

const wchar_t* KindName(ControlKind kind) {
  for (const auto& [name, value] : KindsByName()) {
    if (value == kind) return name.c_str();
  }
  return L"";
}

bool SameCaption(const std::wstring& caption, const std::wstring& name) {
  if (caption == name) return true;
  std::wstring stripped = StripAccelerator(caption);
  if (stripped == name || WithoutTrailingColon(stripped) == WithoutTrailingColon(name)) return true;
  // "打开模型(&O)" without its accelerator in brackets.
  size_t open = caption.rfind(L"(&");
  return open != std::wstring::npos && caption.ends_with(L")") && caption.substr(0, open) == name;
}

FoundControl FindControl(QWidget* window, const std::wstring& name, const std::vector<ControlKind>& kinds) {
  if (std::optional<FoundControl> byPosition = FindByPosition(window, name)) {
    if (byPosition->widget && !IsOneOf(byPosition->widget, kinds))
      return {nullptr, name + L" is a control of another kind"};
    return *byPosition;
  }
  std::vector<QWidget*> controls = VisibleControls(window, kinds);

  std::vector<QWidget*> matches;
  for (QWidget* control : controls) {
    if (control->objectName().toStdWString() == name) matches.push_back(control);
  }
  if (!matches.empty()) return OneOf(matches, name);

  for (QWidget* control : controls) {
    if (std::wstring caption = CaptionOf(control); !caption.empty() && SameCaption(caption, name))
      matches.push_back(control);
  }
  if (!matches.empty()) return OneOf(matches, name);

  // A frame names a list or tree it holds, and the one control it holds.
  for (QWidget* frame : FramesOf(window, name)) {
    std::vector<QWidget*> held = VisibleControls(frame, kinds);
    for (QWidget* control : held) {
      std::optional<ControlKind> kind = KindOf(control);
      if (held.size() == 1 || kind == ControlKind::List || kind == ControlKind::Tree)
        matches.push_back(control);
    }
  }
  if (!matches.empty()) return OneOf(matches, name);

  for (QLabel* label : window->findChildren<QLabel*>()) {
    if (!label->isVisible() || !SameCaption(label->text().toStdWString(), name)) continue;
    if (QWidget* control = ControlOfLabel(label, controls)) matches.push_back(control);
  }
  if (!matches.empty()) return OneOf(matches, name);

  for (ControlKind kind : {ControlKind::List, ControlKind::Tree}) {
    if (name != KindName(kind) || std::ranges::find(kinds, kind) == kinds.end()) continue;
    std::vector<QWidget*> all = VisibleControls(window, {kind});
    if (all.size() == 1) return {all[0], {}};
    if (all.size() > 1) return OneOf(all, name);
  }
  std::wstring kindNames;
  for (ControlKind kind : kinds) kindNames += (kindNames.empty() ? L"" : L"/") + std::wstring(KindName(kind));
  return {nullptr, L"no control " + name + L" (" + kindNames + L") in the window \"" +
                       window->windowTitle().toStdWString() + L"\""};
}

std::vector<QWidget*> PluginWindows(const QWidget* exclude) {
  std::vector<QWidget*> windows;
  for (QWidget* widget : QApplication::topLevelWidgets()) {
    if (widget != exclude && widget->isVisible() && widget->isWindow() && widget->windowType() != Qt::Popup &&
        widget->windowType() != Qt::ToolTip)
      windows.push_back(widget);
  }
  QWidget* modal = QApplication::activeModalWidget();
  std::ranges::stable_sort(windows, [modal](const QWidget* a, const QWidget* b) {
    if (a == modal || b == modal) return a == modal;
    return a->property(kShownOrder).toLongLong() > b->property(kShownOrder).toLongLong();
  });
  return windows;
}

bool ShowsProgressOnly(const QWidget* window) {
  return window && window->findChild<QProgressBar*>() && !window->findChild<QAbstractButton*>();
}

void TrackShownWindows() {
  // Goes with the application, so that a later application gets its own.
  static QPointer<ShownOrder> order;
  if (order) return;
  order = new ShownOrder;
  order->setParent(QCoreApplication::instance());
  QCoreApplication::instance()->installEventFilter(order);
}
