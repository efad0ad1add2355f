// The geometric operations of CTkModel: outline boxes and mass properties.
#include <cwchar>

#include "ProAsmcomp.h"
#include "ProSolid.h"
#include "TkModel.h"

namespace {

ProError CollectSurface(ProSurface surface, ProError, ProAppData data) {
  static_cast<std::vector<ProSurface>*>(data)->push_back(surface);
  return PRO_TK_NO_ERROR;
}

// The box around the surfaces' own boxes. The first surface sets it; if its
// data cannot be read the box grows from zeros and so holds the origin.
int GetPartBox(ProMdl mdl, std::array<double, 6>& box) {
  box.fill(0.0);
  std::vector<ProSurface> surfaces;
  ProError status = ProSolidSurfaceVisit(static_cast<ProSolid>(mdl), CollectSurface, nullptr, &surfaces);
  if (status != PRO_TK_NO_ERROR) return status;
  for (size_t i = 0; i < surfaces.size(); ++i) {
    ProGeomitemdata* data = nullptr;
    if (ProSurfaceDataGet(surfaces[i], &data) != PRO_TK_NO_ERROR || !data) continue;
    const ProSurfacedata& surface = *data->data.p_surface_data;
    for (int axis = 0; axis < 3; ++axis) {
      if (i == 0) {
        box[axis] = surface.xyz_min[axis];
        box[axis + 3] = surface.xyz_max[axis];
      } else {
        box[axis] = std::min(box[axis], surface.xyz_min[axis]);
        box[axis + 3] = std::max(box[axis + 3], surface.xyz_max[axis]);
      }
    }
    ProGeomitemdataFree(&data);
  }
  return PRO_TK_NO_ERROR;
}

}  // namespace

int CTkModel::GetSolidOutLine(ProMdl mdl, std::array<double, 6>& box) const {
  box = {9999999999.0, 9999999999.0, 9999999999.0, -9999999999.0, -9999999999.0, -9999999999.0};
  int type = 0;
  int status = GetMdlType(mdl, type);
  if (status != PRO_TK_NO_ERROR) return status;
  if (type == kPart) return GetPartBox(mdl, box);

  std::vector<TkModelAsmCmp> cmps;
  GetAllComponent2(mdl, cmps);
  bool seen = false;
  for (TkModelAsmCmp& cmp : cmps) {
    std::array<double, 6> partBox{};
    GetPartBox(cmp.mdl, partBox);
    ProMatrix matrix;
    if (ProAsmcomppathTrfGet(&cmp.path, PRO_B_TRUE, matrix) != PRO_TK_NO_ERROR) continue;
    ProVector low{partBox[0], partBox[1], partBox[2]};
    ProVector high{partBox[3], partBox[4], partBox[5]};
    ProVector movedLow, movedHigh;
    ProPntTrfEval(low, matrix, movedLow);
    ProPntTrfEval(high, matrix, movedHigh);
    // Each corner moves by itself: after a turn the minimum corner may lie
    // above the maximum one, and the box is not mended.
    for (int axis = 0; axis < 3; ++axis) {
      box[axis] = std::min(box[axis], movedLow[axis]);
      box[axis + 3] = std::max(box[axis + 3], movedHigh[axis]);
    }
    seen = true;
  }
  return seen ? PRO_TK_NO_ERROR : PRO_TK_E_NOT_FOUND;
}

int CTkModel::GetMassProperty(ProMdl mdl, double& mass, double& cogX, double& cogY, double& cogZ, double& ixx,
                              double& iyy, double& izz, double& ixy, double& ixz, double& iyz,
                              const std::wstring& csysName) const {
  mass = cogX = cogY = cogZ = ixx = iyy = izz = ixy = ixz = iyz = 0.0;
  ProName csys{};
  std::wcsncpy(csys, csysName.c_str(), PRO_NAME_SIZE - 1);
  ProMassProperty properties{};
  ProError status =
      ProSolidMassPropertyGet(static_cast<ProSolid>(mdl), csysName.empty() ? nullptr : csys, &properties);
  if (status != PRO_TK_NO_ERROR) return status;
  mass = properties.mass;
  cogX = properties.center_of_gravity[0];
  cogY = properties.center_of_gravity[1];
  cogZ = properties.center_of_gravity[2];
  const auto& tensor = properties.coor_sys_inertia_tensor;
  ixx = tensor[0][0] / 1000.0;
  iyy = tensor[1][1] / 1000.0;
  izz = tensor[2][2] / 1000.0;
  ixy = tensor[0][1] / 1000.0;
  ixz = tensor[0][2] / 1000.0;
  iyz = tensor[1][2] / 1000.0;
  return PRO_TK_NO_ERROR;
}
