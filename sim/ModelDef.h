// The contents of one model file, as plain data: what the control API's
// AddModel puts into session without a file.
#pragma once

#include "ProDwgtable.h"
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
  std::vector<std::wstring> relations{};  // of the component feature, one line each
};

// A material a part holds; its density is in the part's units, unknown for
// a material named in a file without one.
struct MaterialDef {
  std::wstring name;
  std::optional<double> density{};
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

// A drawing's sheet: its format and the placement of its coordinates in the
// drawing's.
struct SheetDef {
  std::wstring size = L"A3";
  Transform transform = kIdentity;
};

// Lengths of tables are in the units of their sheet.
struct ColumnDef {
  double width = 0;
  ProHorzJust justification = PROHORZJUST_LEFT;
};

struct NoteTextDef {
  std::wstring text;
  double height = 3.5;
  double widthFactor = 0.8;

  bool operator==(const NoteTextDef&) const = default;
};

using NoteLineDef = std::vector<NoteTextDef>;

// A cell that holds a note; cells without one are not listed.
struct CellDef {
  int row = 1;  // rows and columns count from 1
  int column = 1;
  int noteId = 0;
  std::vector<NoteLineDef> lines;
};

// A table grows downward from its origin, its top-left corner on the sheet.
// Its id and the ids of its cells' notes are model-item ids of the drawing.
struct TableDef {
  int id = 0;
  int sheet = 1;
  std::array<double, 3> origin{};
  double charHeight = 3.5;
  double charWidth = 2.8;
  std::vector<ColumnDef> columns;
  std::vector<double> rows;  // heights, top row first
  std::vector<CellDef> cells;
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
  std::vector<std::wstring> relations;   // one line each
  std::vector<MaterialDef> materials;    // parts
  std::wstring material;                 // parts: the current one of `materials`; empty: none
  std::optional<double> density;         // parts
  std::optional<MassPropertiesDef> massProperties;
  std::vector<SurfaceDef> surfaces;
  std::vector<SheetDef> sheets;  // drawings; none: one sheet "A3" placed as the drawing
  int currentSheet = 1;          // sheets count from 1
  std::vector<TableDef> tables;

  int SheetCount() const { return sheets.empty() ? 1 : static_cast<int>(sheets.size()); }
};

}  // namespace sim
