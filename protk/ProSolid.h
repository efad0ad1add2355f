// Solids: feature and surface visits, outline and mass properties.
#pragma once

#include "ProObjects.h"
#include "ProSurface.h"

PRO_BEGIN_C_DECLS

typedef ProError (*ProFeatureVisitAction)(ProFeature* p_feature, ProError status, ProAppData app_data);
typedef ProError (*ProFeatureFilterAction)(ProFeature* p_feature, ProAppData app_data);

// Visit first, then filter: the reverse of the parameter visit.
extern ProError ProSolidFeatVisit(ProSolid p_handle, ProFeatureVisitAction visit_action,
                                  ProFeatureFilterAction filter_action, ProAppData app_data);

#define PRO_REGEN_NO_FLAGS 0
#define PRO_REGEN_CAN_FIX 1
#define PRO_REGEN_SKIP_DISALLOW_SYS_RECOVER 2
#define PRO_REGEN_UPDATE_INSTS 4
#define PRO_REGEN_RGN_BCK_USING_DISK 8
#define PRO_REGEN_FORCE_REGEN 16
#define PRO_REGEN_UPDATE_ASSEMBLY_ONLY 32
#define PRO_REGEN_RESUME_EXCL_COMPS 64
#define PRO_REGEN_NO_RESOLVE_MODE 128
#define PRO_REGEN_RESOLVE_MODE 256
#define PRO_REGEN_ALLOW_CONFIRM 512
#define PRO_REGEN_UNDO_IF_FAIL 1024

// `flags` is a combination of the PRO_REGEN_ bits.
extern ProError ProSolidRegenerate(ProSolid p_handle, int flags);

typedef ProError (*ProSurfaceVisitAction)(ProSurface p_surface, ProError status, ProAppData app_data);
typedef ProError (*ProSurfaceFilterAction)(ProSurface p_surface, ProAppData app_data);

extern ProError ProSolidSurfaceVisit(ProSolid p_handle, ProSurfaceVisitAction visit_action,
                                     ProSurfaceFilterAction filter_action, ProAppData app_data);

typedef enum pro_solid_outl_excl_types {
  PRO_OUTL_EXC_NOT_USED = 1,
  PRO_OUTL_EXC_DATUM_PLANE = 2,
  PRO_OUTL_EXC_DATUM_POINT = 3,
  PRO_OUTL_EXC_DATUM_CSYS = 4,
  PRO_OUTL_EXC_DATUM_AXES = 5,
  PRO_OUTL_EXC_FACETS = 6,
  PRO_OUTL_EXC_ALL_CRVS = 7
} ProSolidOutlExclTypes;

// The box around the solid's geometry under `matrix`: minimum corner first.
extern ProError ProSolidOutlineCompute(ProSolid p_solid, ProMatrix matrix, ProSolidOutlExclTypes excludes[],
                                       int num_excludes, Pro3dPnt r_outline_points[2]);

typedef struct pro_mass_property {
  double volume;
  double surface_area;
  double density;
  double mass;
  double center_of_gravity[3];
  double coor_sys_inertia[3][3];
  double coor_sys_inertia_tensor[3][3];
  double cg_inertia_tensor[3][3];
  double principal_moments[3];
  double principal_axes[3][3];
} ProMassProperty;

// `csys_name` null: the default coordinate system.
extern ProError ProSolidMassPropertyGet(ProSolid solid, ProName csys_name, ProMassProperty* mass_prop);

PRO_END_C_DECLS
