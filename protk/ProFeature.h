// Feature status.
#pragma once

#include "ProObjects.h"

PRO_BEGIN_C_DECLS

typedef enum pro_feat_status {
  PRO_FEAT_INVALID = -1,
  PRO_FEAT_ACTIVE = 0,
  PRO_FEAT_INACTIVE = 1,
  PRO_FEAT_FAMTAB_SUPPRESSED = 2,
  PRO_FEAT_SIMP_REP_SUPPRESSED = 3,
  PRO_FEAT_PROG_SUPPRESSED = 4,
  PRO_FEAT_SUPPRESSED = 5,
  PRO_FEAT_UNREGENERATED = 6
} ProFeatStatus;

extern ProError ProFeatureStatusGet(ProFeature* p_feat_handle, ProFeatStatus* p_status);

PRO_END_C_DECLS
