// Transforms along component paths.
#include "Placement.h"
#include "ProAsmcomp.h"
#include "ToolkitCall.h"

namespace {

void CopyOut(const sim::Transform& from, ProMatrix to) {
  for (int row = 0; row < 4; ++row) {
    for (int column = 0; column < 4; ++column) to[row][column] = from[row][column];
  }
}

}  // namespace

extern "C" ProError ProAsmcomppathTrfGet(ProAsmcomppath* p_path, ProBoolean bottom_up,
                                         ProMatrix transformation) {
  sim::ToolkitCall call("ProAsmcomppathTrfGet", {sim::ModelRef{p_path ? p_path->owner : nullptr},
                                                 p_path ? p_path->table_num : PRO_VALUE_UNUSED, bottom_up});
  if (call.Failed()) return call.Status();
  if (!p_path || !transformation || p_path->table_num < 0 || p_path->table_num > PRO_MAX_ASSEM_LEVEL)
    return PRO_TK_BAD_INPUTS;
  const sim::Model* top = call.state().LiveSolid(p_path->owner);
  if (!top) return PRO_TK_BAD_INPUTS;
  auto placement = sim::PathPlacement(call.state(), top, p_path->comp_id_table, p_path->table_num);
  if (!placement) return PRO_TK_GENERAL_ERROR;
  if (bottom_up) {
    CopyOut(*placement, transformation);
    return PRO_TK_NO_ERROR;
  }
  auto inverse = sim::Inverse(*placement);
  if (!inverse) return PRO_TK_INVALID_MATRIX;
  CopyOut(*inverse, transformation);
  return PRO_TK_NO_ERROR;
}

extern "C" ProError ProPntTrfEval(ProVector in_point, ProMatrix trf, ProVector out_point) {
  sim::ToolkitCall call("ProPntTrfEval");
  if (call.Failed()) return call.Status();
  if (!in_point || !trf || !out_point) return PRO_TK_BAD_INPUTS;
  sim::Transform matrix{};
  for (int row = 0; row < 4; ++row) {
    for (int column = 0; column < 4; ++column) matrix[row][column] = trf[row][column];
  }
  sim::Point out = sim::Apply(matrix, {in_point[0], in_point[1], in_point[2]});
  for (int i = 0; i < 3; ++i) out_point[i] = out[i];
  return PRO_TK_NO_ERROR;
}
