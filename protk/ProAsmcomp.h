// Assembly components and component paths.
#pragma once

#include "ProObjects.h"

PRO_BEGIN_C_DECLS

extern ProError ProAsmcompMdlGet(ProAsmcomp* p_feat_handle, ProMdl* p_mdl_handle);
extern ProError ProAsmcomppathInit(ProSolid p_solid_handle, ProIdTable memb_id_tab, int table_size,
                                   ProAsmcomppath* p_handle);
extern ProError ProAsmcomppathMdlGet(ProAsmcomppath* p_path, ProMdl* p_model);
// PRO_B_TRUE: from the member's coordinates to the top assembly's; PRO_B_FALSE
// the other way.
extern ProError ProAsmcomppathTrfGet(ProAsmcomppath* p_path, ProBoolean bottom_up, ProMatrix transformation);
extern ProError ProPntTrfEval(ProVector in_point, ProMatrix trf, ProVector out_point);

PRO_END_C_DECLS
