// Surfaces of solids. A surface's handle is the address of its entry in the
// model's definition, which never changes once the model is in session.
#include "ProSolid.h"
#include "ProSurface.h"
#include "ToolkitCall.h"

#include <functional>
#include <set>
#include <vector>

namespace {

ProSurface HandleOf(const sim::SurfaceDef& surface) {
  return reinterpret_cast<ProSurface>(const_cast<sim::SurfaceDef*>(&surface));
}

const sim::SurfaceDef* LiveSurface(const sim::HostState& state, ProSurface handle) {
  auto* surface = reinterpret_cast<const sim::SurfaceDef*>(handle);
  for (const sim::Model* model : state.models) {
    const auto& surfaces = model->def.surfaces;
    if (!surfaces.empty() && !std::less<const void*>()(surface, surfaces.data()) &&
        std::less<const void*>()(surface, surfaces.data() + surfaces.size()))
      return surface;
  }
  return nullptr;
}

// Data handed out, so that a double free is refused.
std::set<const ProGeomitemdata*>& LiveData() {
  static std::set<const ProGeomitemdata*> data;
  return data;
}

}  // namespace

// A solid without surfaces is visited without error: there is nothing to do.
extern "C" ProError ProSolidSurfaceVisit(ProSolid p_handle, ProSurfaceVisitAction visit_action,
                                         ProSurfaceFilterAction filter_action, ProAppData app_data) {
  sim::ToolkitCall call("ProSolidSurfaceVisit", {sim::ModelRef{p_handle}});
  if (call.Failed()) return call.Status();
  const sim::Model* solid = call.state().LiveSolid(p_handle);
  if (!solid || !visit_action) return PRO_TK_BAD_INPUTS;
  std::vector<ProSurface> surfaces;
  for (const sim::SurfaceDef& surface : solid->def.surfaces) surfaces.push_back(HandleOf(surface));
  call.Unlock();

  for (ProSurface surface : surfaces) {
    ProError filterStatus = filter_action ? filter_action(surface, app_data) : PRO_TK_NO_ERROR;
    if (filterStatus == PRO_TK_CONTINUE) continue;
    if (ProError status = visit_action(surface, filterStatus, app_data)) return status;
  }
  return PRO_TK_NO_ERROR;
}

extern "C" ProError ProSurfaceDataGet(ProSurface p_surface, ProGeomitemdata** p_data_ptr) {
  sim::ToolkitCall call("ProSurfaceDataGet");
  if (call.Failed()) return call.Status();
  const sim::SurfaceDef* surface = LiveSurface(call.state(), p_surface);
  if (!surface || !p_data_ptr) return PRO_TK_BAD_INPUTS;
  auto* data = new ProGeomitemdata{};
  data->obj_type = PRO_SURFACE;
  data->data.p_surface_data = new ProSurfacedata{};
  for (int i = 0; i < 3; ++i) {
    data->data.p_surface_data->xyz_min[i] = surface->min[i];
    data->data.p_surface_data->xyz_max[i] = surface->max[i];
  }
  LiveData().insert(data);
  *p_data_ptr = data;
  return PRO_TK_NO_ERROR;
}

extern "C" ProError ProGeomitemdataFree(ProGeomitemdata** p_data_ptr) {
  sim::ToolkitCall call("ProGeomitemdataFree");
  if (call.Failed()) return call.Status();
  if (!p_data_ptr || LiveData().erase(*p_data_ptr) == 0) return PRO_TK_BAD_INPUTS;
  delete (*p_data_ptr)->data.p_surface_data;
  delete *p_data_ptr;
  *p_data_ptr = nullptr;
  return PRO_TK_NO_ERROR;
}
