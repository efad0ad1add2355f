// The mouse in the host's window, answered like the choosers: a queued
// answer "x,y" or "x,y,z" is the point the user clicks, a queued cancel the
// user aborting the pick; with nothing queued the answer provider's user
// picks.
#include "ProGraphic.h"

#include "AnswerProvider.h"
#include "CodePage.h"
#include "ToolkitCall.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <optional>
#include <string>
#include <vector>

namespace {

// A number between blanks.
std::optional<double> Number(const std::wstring& text) {
  size_t first = text.find_first_not_of(L" \t");
  size_t last = text.find_last_not_of(L" \t");
  if (first == std::wstring::npos) return std::nullopt;
  return platform::ParseNumber(platform::ToNarrow(text.substr(first, last - first + 1)));
}

// Two or three numbers separated by commas; z is 0 when not given.
std::optional<std::array<double, 3>> Point(const std::wstring& text) {
  std::vector<std::wstring> parts;
  size_t start = 0;
  for (size_t comma; (comma = text.find(L',', start)) != std::wstring::npos; start = comma + 1)
    parts.push_back(text.substr(start, comma - start));
  parts.push_back(text.substr(start));
  if (parts.size() < 2 || parts.size() > 3) return std::nullopt;
  std::array<double, 3> point{};
  for (size_t i = 0; i < parts.size(); ++i) {
    std::optional<double> value = Number(parts[i]);
    if (!value) return std::nullopt;
    point[i] = *value;
  }
  return point;
}

}  // namespace

// Any button is answered as the left one.
extern "C" ProError ProMousePickGet(ProMouseButton expected_button, ProMouseButton* button_pressed,
                                    ProPoint3d position) {
  sim::ToolkitCall call("ProMousePickGet", {expected_button});
  if (call.Failed()) return call.Status();
  if (!button_pressed || !position) return PRO_TK_BAD_INPUTS;
  std::optional<std::wstring> answer = sim::UserAnswer(call, "ProMousePickGet", L"", L"");
  std::optional<std::array<double, 3>> point = answer ? Point(*answer) : std::nullopt;
  if (!point) return PRO_TK_GENERAL_ERROR;
  std::copy(point->begin(), point->end(), position);
  *button_pressed = expected_button == PRO_ANY_BUTTON ? PRO_LEFT_BUTTON : expected_button;
  return PRO_TK_NO_ERROR;
}
