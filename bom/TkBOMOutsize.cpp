// The outer size of a row's model.
#include <cmath>
#include <cwchar>

#include "BomFillCache.h"
#include "CodePage.h"
#include "ProAsmcomp.h"
#include "ProSolid.h"
#include "TkBOM.h"

int TkBOM::GetPartOutSize(const BomMdl& row, std::wstring& text, int sortDims, int decimals,
                          const std::wstring& separator, const std::wstring& prefix,
                          const std::wstring& suffix, BomFillCache* cache) const {
  const std::wstring function = L"GetPartOutSize";
  text.clear();
  std::wstring name = model_.GetMdlName(row.mdl);
  int type = 0;
  if (int status =
          log_.LogStatus(Tag(function, L"GetMdlType; MdlName: " + name), model_.GetMdlType(row.mdl, type)))
    return status;
  if (row.cmps.empty() || row.cmps[0].path.table_num > PRO_MAX_ASSEM_LEVEL || !row.cmps[0].path.owner)
    return log_.LogStatus(Tag(function, name + L": Cmppath Error!"), PRO_TK_BAD_INPUTS);

  const ProAsmcomppath& path = row.cmps[0].path;
  std::array<double, 6> box{};
  int status = 0;
  if (cache) {
    BomFillCache::BoxKey key{row.mdl, -1, {}};
    if (type != CTkModel::kPart) {
      key = {row.mdl, path.table_num, {path.comp_id_table, path.comp_id_table + path.table_num}};
    }
    status = Remembered(cache->boxes, key, box, [&](std::array<double, 6>& value) {
      return GetOutlineBox(row.mdl, type, path, value);
    });
  } else {
    status = GetOutlineBox(row.mdl, type, path, box);
  }
  if (status != PRO_TK_NO_ERROR) return status;

  double sizes[3] = {std::fabs(box[3] - box[0]), std::fabs(box[4] - box[1]), std::fabs(box[5] - box[2])};
  double shown[3] = {sizes[0], sizes[1], sizes[2]};
  if (sortDims) {
    // Repeated choice of the smallest left; a taken place is marked by a
    // size no part has.
    for (double& next : shown) {
      int smallest = 0;
      for (int i = 1; i < 3; ++i) {
        if (sizes[i] < sizes[smallest]) smallest = i;
      }
      next = sizes[smallest];
      sizes[smallest] = 999999999.0;
    }
  }
  text = prefix + platform::FormatFixed(shown[0], decimals) + separator +
         platform::FormatFixed(shown[1], decimals) + separator + platform::FormatFixed(shown[2], decimals) +
         suffix;
  return 0;
}

int TkBOM::GetOutlineBox(ProMdl mdl, int type, ProAsmcomppath path, std::array<double, 6>& box) const {
  const std::wstring function = L"GetPartOutSize";
  if (type == CTkModel::kPart) {
    return log_.LogStatus(Tag(function, L"GetSolidOutLine"), model_.GetSolidOutLine(mdl, box));
  }
  wchar_t ids[120];
  std::swprintf(ids, 120, L"IDNum = %d; ID: %d, %d, %d, %d, %d", path.table_num, path.comp_id_table[0],
                path.comp_id_table[1], path.comp_id_table[2], path.comp_id_table[3], path.comp_id_table[4]);
  log_.LogStatus(Tag(function, ids), 0);
  ProMatrix matrix;
  if (int status = log_.LogStatus(Tag(function, L"ProAsmcomppathTrfGet"),
                                  ProAsmcomppathTrfGet(&path, PRO_B_FALSE, matrix)))
    return status;
  ProSolidOutlExclTypes excludes[] = {PRO_OUTL_EXC_FACETS, PRO_OUTL_EXC_ALL_CRVS};
  Pro3dPnt outline[2];
  int status =
      log_.LogStatus(Tag(function, L"ProSolidOutlineCompute"),
                     ProSolidOutlineCompute(static_cast<ProSolid>(mdl), matrix, excludes, 2, outline));
  for (int axis = 0; axis < 3; ++axis) {
    box[axis] = outline[0][axis];
    box[axis + 3] = outline[1][axis];
  }
  return status;
}
