// The host's mouse pick in the window. The workbench draws no sheet to click
// on, so the user types the point instead, under the prompt that the host's
// message area shows.
#pragma once

#include <optional>
#include <string>

class QWidget;

// "X,Y" as the simulated host reads a pick; nullopt when the user cancels.
std::optional<std::wstring> AskPickPoint(QWidget* parent, const std::wstring& prompt);
