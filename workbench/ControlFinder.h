// Finds a control of a plug-in window by the name a script gives it: its
// object name, its caption, the caption of the frame that holds it (a list,
// a tree, or the frame's only control of the kind), the label shown in front of it, the word `list` or `tree`
// where the window has one, or `KIND@FRAME#N`, the N-th control of a kind in reading order inside a frame
// (`KIND@#N` over the whole window).
#pragma once

#include <string>
#include <vector>

class QWidget;

enum class ControlKind { Edit, Combo, Text, List, Tree, Check, Radio, Button };

struct FoundControl {
  QWidget* widget = nullptr;
  std::wstring error;  // why nothing was found, when `widget` is null
};

// The first of `kinds` that a control is, its name in scripts.
const wchar_t* KindName(ControlKind kind);

// Looks among the visible controls of `window` for one of `kinds`. An
// ambiguous name fails and names the candidates.
FoundControl FindControl(QWidget* window, const std::wstring& name, const std::vector<ControlKind>& kinds);

// The visible top-level windows, the top-most first: a modal dialog, else
// the window shown last since TrackShownWindows. `exclude` (the host's own
// window) is never one of them.
std::vector<QWidget*> PluginWindows(const QWidget* exclude = nullptr);

// A window that only shows progress: it is at work and closes by itself.
bool ShowsProgressOnly(const QWidget* window);

// From now on the application notes the order in which windows show.
void TrackShownWindows();

// Texts compare without the accelerator mark: "打开模型(&O)" is also
// "打开模型(O)" and "打开模型".
bool SameCaption(const std::wstring& caption, const std::wstring& name);
