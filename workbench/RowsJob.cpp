// The collection runs here in the workbench process over the simulated host,
// not inside the loaded plug-in: the job links the same bom and tk libraries
// that the plug-in is built from.
#include "RowsJob.h"

#include "CodePage.h"
#include "TkBOM.h"

namespace {

// The list's level column with "." as "LevelSign".
std::wstring Outline(const BomMdl& row) {
  if (row.level < 0) return L"";
  if (row.level == 0) return L"0";
  std::wstring text;
  for (int i = 0; i < row.level && i < PRO_MAX_ASSEM_LEVEL; ++i)
    text += (i ? L"." : L"") + std::to_wstring(row.BomCmpIds[i]);
  return text;
}

int Collect(const TkBOM& bom, const RowsOptions& options, std::vector<BomMdl>& rows) {
  BomCollectFilter filter{options.filterKey, options.filterValues, options.keepMatches};
  if (options.level == "single") return bom.GetFirstLevelBomMdls(filter, rows);
  if (options.level == "summary") return bom.GetBomMdls(filter, rows);
  int status = bom.GetAllLeveBomMdls(filter, rows, options.sameAsmCmps);
  if (status != 0 || options.sortParam.empty()) return status;
  std::vector<BomMdl> sorted;
  status = bom.SortLevelBomMdls(rows, options.sortParam, sorted);
  rows = std::move(sorted);
  return status;
}

}  // namespace

int PrintRows(const RowsOptions& options, std::ostream& out, std::ostream& err) {
  TkBOM bom;
  CTkModel model;
  std::vector<BomMdl> rows;
  int status = Collect(bom, options, rows);
  for (const BomMdl& row : rows) {
    int type = 0;
    model.GetMdlType(row.mdl, type);
    out << row.level << "\t" << platform::ToNarrow(Outline(row)) << "\t"
        << platform::ToNarrow(model.GetMdlName(row.mdl)) << "\t"
        << (type == CTkModel::kAssembly ? "assembly" : "part") << "\t" << row.quantity << "\n";
  }
  if (status == 0) return 0;
  err << "bom-workbench: the list could not be made: " << platform::ToNarrow(CTkLog().GetResultName(status))
      << "\n";
  return 1;
}
