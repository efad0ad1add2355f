// A .mtl file is a set of parameter blocks:
//   {
//     Name = PTC_MASS_DENSITY
//     Type = Real
//     Default = 7.850000e-09 tonne/mm^3
//     Access = Full
//   },
// A .mat file has one "KEY = value" a line.
#include "MaterialFile.h"

#include "CodePage.h"

#include <charconv>
#include <vector>

namespace sim {
namespace {

std::string_view Trimmed(std::string_view text) {
  constexpr std::string_view kBlanks = " \t\r\n";
  size_t first = text.find_first_not_of(kBlanks);
  if (first == std::string_view::npos) return {};
  return text.substr(first, text.find_last_not_of(kBlanks) - first + 1);
}

std::vector<std::string_view> Lines(std::string_view text) {
  std::vector<std::string_view> lines;
  while (!text.empty()) {
    size_t end = text.find('\n');
    lines.push_back(Trimmed(text.substr(0, end)));
    text = end == std::string_view::npos ? std::string_view() : text.substr(end + 1);
  }
  return lines;
}

// "KEY = value": the value when the key is `key`.
std::optional<std::string_view> ValueOf(std::string_view line, std::string_view key) {
  size_t equals = line.find('=');
  if (equals == std::string_view::npos || Trimmed(line.substr(0, equals)) != key) return std::nullopt;
  return Trimmed(line.substr(equals + 1));
}

// A number, read the same under every locale, then its unit.
std::optional<MaterialDensity> Density(std::string_view value) {
  MaterialDensity density;
  auto [end, error] = std::from_chars(value.data(), value.data() + value.size(), density.value);
  if (error != std::errc() || density.value <= 0) return std::nullopt;
  density.unit = platform::ToWide(std::string(Trimmed(value.substr(end - value.data()))));
  return density;
}

}  // namespace

std::optional<MaterialDensity> ReadMtlDensity(std::string_view text) {
  bool inDensity = false;
  for (std::string_view line : Lines(text)) {
    if (line.starts_with('{') || line.starts_with('}')) inDensity = false;
    if (std::optional<std::string_view> name = ValueOf(line, "Name")) inDensity = *name == "PTC_MASS_DENSITY";
    std::optional<std::string_view> value = ValueOf(line, "Default");
    if (inDensity && value) return Density(*value);
  }
  return std::nullopt;
}

std::optional<MaterialDensity> ReadMatDensity(std::string_view text) {
  for (std::string_view line : Lines(text)) {
    if (std::optional<std::string_view> value = ValueOf(line, "MASS_DENSITY")) return Density(*value);
  }
  return std::nullopt;
}

}  // namespace sim
