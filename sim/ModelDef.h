// The contents of one model file, as plain data: what the control API's
// AddModel puts into session without a file.
#pragma once

#include "ProObjects.h"
#include "ProParamval.h"

#include <array>
#include <optional>
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

// One parameter of the model. Its value sits in the member of its type:
// `number` for double, `text` for string, `integer` for integer and boolean.
struct ParameterDef {
  std::wstring name;
  ProParamvalueType type = PRO_PARAM_STRING;
  double number = 0;
  int integer = 0;
  std::wstring text;
  std::wstring unit;         // empty: unitless
  std::wstring description;  // empty: none
  bool designated = false;
};

// Mass properties about the model's own coordinate system; without `mass`
// the host takes density times volume.
struct MassPropertiesDef {
  double volume = 0;
  std::optional<double> mass;
  std::array<double, 3> cog{};
  std::array<double, 6> inertia{};  // ixx, iyy, izz, ixy, ixz, iyz
};

// A surface's own bounding box.
struct SurfaceDef {
  std::array<double, 3> min{};
  std::array<double, 3> max{};
};

struct ModelDef {
  ProMdlType type = PRO_MDL_PART;
  std::wstring name;  // empty: the file stem in upper case
  int subtype = PROMDLSTYPE_NONE;
  std::wstring commonName;
  std::vector<ComponentDef> components;  // assemblies
  std::vector<FeatureDef> features;      // features that are not components
  std::vector<std::wstring> solids;      // drawings: file names of the models shown
  std::vector<ParameterDef> parameters;  // in the host's visit order
  std::optional<double> density;         // parts
  std::optional<MassPropertiesDef> massProperties;
  std::vector<SurfaceDef> surfaces;
};

}  // namespace sim
