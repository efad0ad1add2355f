// Feature visits of solids.
#pragma once

#include "ProObjects.h"

PRO_BEGIN_C_DECLS

typedef ProError (*ProFeatureVisitAction)(ProFeature* p_feature, ProError status, ProAppData app_data);
typedef ProError (*ProFeatureFilterAction)(ProFeature* p_feature, ProAppData app_data);

// Visit first, then filter: the reverse of the parameter visit.
extern ProError ProSolidFeatVisit(ProSolid p_handle, ProFeatureVisitAction visit_action,
                                  ProFeatureFilterAction filter_action, ProAppData app_data);

PRO_END_C_DECLS
