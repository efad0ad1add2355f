#include "UnitSystems.h"

#include "CodePage.h"
#include "ModelFiles.h"

#include <nlohmann/json.hpp>

#include <algorithm>
#include <optional>

namespace sim {
namespace {

using nlohmann::json;

const std::vector<std::wstring> kStandardSystems = {
    L"Centimeter Gram Second (CGS)", L"Foot Pound Second (FPS)",        L"Inch lbm Second (IPS)",
    L"Meter Kilogram Second (MKS)",  L"millimeter Kilogram Sec (mmKs)", L"millimeter Newton Second (mmNs)"};
constexpr wchar_t kStandardPrincipal[] = L"millimeter Newton Second (mmNs)";

enum class Dimension { kLength, kMass };

struct Unit {
  const wchar_t* name;
  Dimension dimension;
  double size;  // in mm or kg
};

constexpr Unit kUnits[] = {{L"mm", Dimension::kLength, 1},     {L"cm", Dimension::kLength, 10},
                           {L"dm", Dimension::kLength, 100},   {L"m", Dimension::kLength, 1000},
                           {L"in", Dimension::kLength, 25.4},  {L"ft", Dimension::kLength, 304.8},
                           {L"g", Dimension::kMass, 0.001},    {L"kg", Dimension::kMass, 1},
                           {L"tonne", Dimension::kMass, 1000}, {L"lbm", Dimension::kMass, 0.45359237}};

// Length and mass units of the standard systems.
struct SystemUnits {
  const wchar_t* system;
  const wchar_t* length;
  const wchar_t* mass;
};

constexpr SystemUnits kSystemUnits[] = {
    {L"Centimeter Gram Second (CGS)", L"cm", L"g"},    {L"Foot Pound Second (FPS)", L"ft", L"lbm"},
    {L"Inch lbm Second (IPS)", L"in", L"lbm"},         {L"Meter Kilogram Second (MKS)", L"m", L"kg"},
    {L"millimeter Kilogram Sec (mmKs)", L"mm", L"kg"}, {L"millimeter Newton Second (mmNs)", L"mm", L"tonne"}};

std::optional<Unit> FindUnit(const std::wstring& name) {
  auto found =
      std::find_if(std::begin(kUnits), std::end(kUnits), [&](const Unit& unit) { return name == unit.name; });
  return found == std::end(kUnits) ? std::nullopt : std::optional(*found);
}

}  // namespace

std::vector<std::wstring> UnitSystems(const Model& model) {
  json listed = json::parse(DocumentKey(model, "unitSystems"), nullptr, false);
  if (!listed.is_array()) return kStandardSystems;
  std::vector<std::wstring> systems;
  for (const json& name : listed) {
    if (name.is_string()) systems.push_back(platform::ToWide(name.get<std::string>()));
  }
  return systems;
}

std::wstring PrincipalUnitSystem(const Model& model) {
  json named = json::parse(DocumentKey(model, "principalUnitSystem"), nullptr, false);
  if (named.is_string()) return platform::ToWide(named.get<std::string>());
  std::vector<std::wstring> systems = UnitSystems(model);
  bool standard = std::find(systems.begin(), systems.end(), kStandardPrincipal) != systems.end();
  return standard || systems.empty() ? kStandardPrincipal : systems.front();
}

namespace {

// How many of the principal system's units of its dimension make one `unit`.
std::optional<double> PrincipalUnitsPer(const Model& model, const std::wstring& unit, Dimension dimension) {
  std::optional<Unit> from = FindUnit(unit);
  std::wstring system = PrincipalUnitSystem(model);
  auto units = std::find_if(std::begin(kSystemUnits), std::end(kSystemUnits),
                            [&](const SystemUnits& entry) { return system == entry.system; });
  if (!from || from->dimension != dimension || units == std::end(kSystemUnits)) return std::nullopt;
  std::optional<Unit> to = FindUnit(dimension == Dimension::kLength ? units->length : units->mass);
  return from->size / to->size;
}

}  // namespace

double InPrincipalUnits(const Model& model, double value, const std::wstring& unit) {
  std::optional<Unit> from = FindUnit(unit);
  if (!from) return value;
  return value * PrincipalUnitsPer(model, unit, from->dimension).value_or(1.0);
}

std::optional<double> DensityInPrincipalUnits(const Model& model, double value, const std::wstring& unit) {
  size_t slash = unit.find(L'/');
  if (slash == std::wstring::npos || !unit.ends_with(L"^3")) return std::nullopt;
  std::optional<double> mass = PrincipalUnitsPer(model, unit.substr(0, slash), Dimension::kMass);
  std::optional<double> length =
      PrincipalUnitsPer(model, unit.substr(slash + 1, unit.size() - slash - 3), Dimension::kLength);
  if (!mass || !length) return std::nullopt;
  return value * *mass / (*length * *length * *length);
}

}  // namespace sim
