// Surfaces of solids and their geometry data.
#pragma once

#include "ProObjects.h"

PRO_BEGIN_C_DECLS

typedef struct geom* ProSurface;
typedef double ProUvParam[2];

// The leading fields of the host's surface data in the host's order; the
// surface's shape and contours follow in the host's struct and are never read
// here. xyz_min and xyz_max are the surface's own (approximate) extents.
typedef struct ptc_surf {
  int type;
  ProUvParam uv_min;
  ProUvParam uv_max;
  ProPoint3d xyz_min;
  ProPoint3d xyz_max;
  int orient;
} ProSurfacedata;

typedef struct ptc_curve ProCurvedata;
typedef struct ptc_csys ProCsysdata;

typedef struct geom_item_data_struct {
  ProType obj_type;
  union {
    ProCurvedata* p_curve_data;
    ProSurfacedata* p_surface_data;
    ProCsysdata* p_csys_data;
  } data;
} ProGeomitemdata;

// The host allocates the data; free it with ProGeomitemdataFree.
extern ProError ProSurfaceDataGet(ProSurface p_surface, ProGeomitemdata** p_data_ptr);
extern ProError ProGeomitemdataFree(ProGeomitemdata** p_data_ptr);

PRO_END_C_DECLS
