// Outline and mass properties of solids. The geometry of a part is the boxes
// of its surfaces; an assembly's is that of its active components, each
// under its placement. Datum features have no extent in the simulated host:
// each kind lies at the origin of its model and counts unless excluded.
#include "Placement.h"
#include "ProSolid.h"
#include "ToolkitCall.h"

#include <algorithm>
#include <limits>
#include <set>

namespace {

struct Outline {
  sim::Point min{std::numeric_limits<double>::max(), std::numeric_limits<double>::max(),
                 std::numeric_limits<double>::max()};
  sim::Point max{std::numeric_limits<double>::lowest(), std::numeric_limits<double>::lowest(),
                 std::numeric_limits<double>::lowest()};
  bool empty = true;

  void Add(const sim::Point& point) {
    for (int i = 0; i < 3; ++i) {
      min[i] = std::min(min[i], point[i]);
      max[i] = std::max(max[i], point[i]);
    }
    empty = false;
  }
};

ProSolidOutlExclTypes DatumKind(const std::wstring& featureType) {
  if (featureType == L"DATUM_PLANE") return PRO_OUTL_EXC_DATUM_PLANE;
  if (featureType == L"DATUM_POINT") return PRO_OUTL_EXC_DATUM_POINT;
  if (featureType == L"CSYS") return PRO_OUTL_EXC_DATUM_CSYS;
  if (featureType == L"DATUM_AXIS") return PRO_OUTL_EXC_DATUM_AXES;
  return PRO_OUTL_EXC_NOT_USED;
}

void AddSolid(const sim::HostState& state, const sim::Model& model, const sim::Transform& placement,
              const std::set<int>& excluded, int depth, Outline& outline) {
  for (const sim::SurfaceDef& surface : model.def.surfaces) {
    for (int corner = 0; corner < 8; ++corner) {
      sim::Point point{corner & 1 ? surface.max[0] : surface.min[0],
                       corner & 2 ? surface.max[1] : surface.min[1],
                       corner & 4 ? surface.max[2] : surface.min[2]};
      outline.Add(sim::Apply(placement, point));
    }
  }
  for (const sim::FeatureDef& feature : model.def.features) {
    ProSolidOutlExclTypes kind = DatumKind(feature.type);
    if (kind != PRO_OUTL_EXC_NOT_USED && !excluded.count(kind)) outline.Add(sim::Apply(placement, {0, 0, 0}));
  }
  // A model that holds itself would never end; the host's paths end at 25.
  if (depth >= PRO_MAX_ASSEM_LEVEL) return;
  for (size_t i = 0; i < model.def.components.size(); ++i) {
    const sim::ComponentDef& component = model.def.components[i];
    const sim::Model* child = state.LiveModel(model.componentModels[i]);
    if (component.suppressed || !child) continue;
    AddSolid(state, *child, sim::Then(component.transform, placement), excluded, depth + 1, outline);
  }
}

void CopyMatrix(const std::array<double, 6>& inertia, double to[3][3]) {
  const auto& [ixx, iyy, izz, ixy, ixz, iyz] = inertia;
  double tensor[3][3] = {{ixx, ixy, ixz}, {ixy, iyy, iyz}, {ixz, iyz, izz}};
  for (int row = 0; row < 3; ++row) {
    for (int column = 0; column < 3; ++column) to[row][column] = tensor[row][column];
  }
}

}  // namespace

extern "C" ProError ProSolidOutlineCompute(ProSolid p_solid, ProMatrix matrix,
                                           ProSolidOutlExclTypes excludes[], int num_excludes,
                                           Pro3dPnt r_outline_points[2]) {
  sim::ToolkitCall call("ProSolidOutlineCompute", {sim::ModelRef{p_solid}, num_excludes});
  if (call.Failed()) return call.Status();
  const sim::Model* solid = call.state().LiveSolid(p_solid);
  if (!solid || !matrix || !r_outline_points || num_excludes < 0 || (num_excludes > 0 && !excludes))
    return PRO_TK_BAD_INPUTS;
  std::set<int> excluded;
  for (int i = 0; i < num_excludes; ++i) {
    if (excludes[i] < PRO_OUTL_EXC_NOT_USED || excludes[i] > PRO_OUTL_EXC_ALL_CRVS) return PRO_TK_BAD_INPUTS;
    excluded.insert(excludes[i]);
  }
  sim::Transform placement{};
  for (int row = 0; row < 4; ++row) {
    for (int column = 0; column < 4; ++column) placement[row][column] = matrix[row][column];
  }
  Outline outline;
  AddSolid(call.state(), *solid, placement, excluded, 0, outline);
  for (int i = 0; i < 3; ++i) {
    r_outline_points[0][i] = outline.empty ? 0.0 : outline.min[i];
    r_outline_points[1][i] = outline.empty ? 0.0 : outline.max[i];
  }
  return PRO_TK_NO_ERROR;
}

// What the model file gives, about the model's default coordinate system;
// the simulated host has no named ones. It computes no mass properties of
// its own, so a solid without them in its file has none to give. The
// inertia about the centre of gravity and the principal axes stay zero.
extern "C" ProError ProSolidMassPropertyGet(ProSolid solid, ProName csys_name, ProMassProperty* mass_prop) {
  sim::ToolkitCall call("ProSolidMassPropertyGet", {sim::ModelRef{solid}, csys_name});
  if (call.Failed()) return call.Status();
  const sim::Model* live = call.state().LiveSolid(solid);
  if (!live || !mass_prop) return PRO_TK_BAD_INPUTS;
  if (csys_name && *csys_name) return PRO_TK_E_NOT_FOUND;
  if (!live->def.massProperties) return PRO_TK_GENERAL_ERROR;
  const sim::MassPropertiesDef& properties = *live->def.massProperties;
  *mass_prop = {};
  mass_prop->volume = properties.volume;
  mass_prop->density = live->def.density.value_or(0.0);
  mass_prop->mass = properties.mass.value_or(mass_prop->density * properties.volume);
  for (int i = 0; i < 3; ++i) mass_prop->center_of_gravity[i] = properties.cog[i];
  CopyMatrix(properties.inertia, mass_prop->coor_sys_inertia);
  CopyMatrix(properties.inertia, mass_prop->coor_sys_inertia_tensor);
  return PRO_TK_NO_ERROR;
}
