// The contents of one model file, as plain data: what the control API's
// AddModel puts into session without a file.
#pragma once

#include "ProObjects.h"

#include <array>
#include <string>
#include <vector>

namespace sim {

using Transform = std::array<std::array<double, 4>, 4>;  // translation in the fourth row

constexpr Transform kIdentity{{{1, 0, 0, 0}, {0, 1, 0, 0}, {0, 0, 1, 0}, {0, 0, 0, 1}}};

struct ComponentDef {
  int id = 0;
  std::wstring model;  // file name without version, such as L"bolt_m8.prt"
  Transform transform = kIdentity;
  bool suppressed = false;
};

struct FeatureDef {
  int id = 0;
  std::wstring type;
};

struct ModelDef {
  ProMdlType type = PRO_MDL_PART;
  std::wstring name;  // empty: the file stem in upper case
  int subtype = PROMDLSTYPE_NONE;
  std::wstring commonName;
  std::vector<ComponentDef> components;  // assemblies
  std::vector<FeatureDef> features;      // features that are not components
  std::vector<std::wstring> solids;      // drawings: file names of the models shown
};

}  // namespace sim
