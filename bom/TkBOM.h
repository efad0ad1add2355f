// The BOM engine: the component tree of the current model (an assembly, or
// the first solid of a drawing) turned into rows of BomMdl, and the derived
// attributes of a row. Each operation logs its host steps to the trail. No
// state beyond the model-layer objects; output arrays are emptied first.
//
// The collections give the rows, order, quantities and outline numbers of a
// linear search of the rows for every occurrence, with indexes instead of
// the searches.
#pragma once

#include <array>
#include <string>
#include <vector>

#include "BomCollectFilter.h"
#include "BomMdl.h"
#include "TkLog.h"
#include "TkModel.h"
#include "TkParam.h"

struct BomFillCache;

using BomCmpIdTable = std::array<int, PRO_MAX_ASSEM_LEVEL>;

class TkBOM {
 public:
  // The current model if an assembly, the first solid of a current drawing;
  // -4 for any other current model. `function` names the calling collection
  // in the log tags.
  int GetBomRootMdl(const std::wstring& function, ProMdl& mdl) const;
  // Suppressed occurrences and models of subtype 5 do not count; a failed
  // query excludes nothing. Always 0.
  int IsCmpCounted(const TkModelAsmCmp& cmp, int& counted) const;
  // 1 when the occurrence's row is to go.
  int IsRowFilteredOut(const BomCollectFilter& filter, const TkModelAsmCmp& cmp) const;

  // The top row, then one row per distinct model among the counted direct
  // components, in order of first appearance.
  int GetFirstLevelBomMdls(const BomCollectFilter& filter, std::vector<BomMdl>& rows) const;
  // The tree in walk order with outline numbers. `sameAsmCmps` 0 merges a
  // model under every parent of the same name at the same depth; otherwise
  // under the very same parent occurrence, and a sub-assembly used more than
  // once shows its contents once.
  int GetAllLeveBomMdls(const BomCollectFilter& filter, std::vector<BomMdl>& rows, int sameAsmCmps) const;
  // One row per distinct model at any depth, counting all its occurrences.
  int GetBomMdls(const BomCollectFilter& filter, std::vector<BomMdl>& rows) const;

  // The outline number a new multi-level row gets among `rows`.
  int NewBomCmpIds(const BomMdl& row, const std::vector<BomMdl>& rows, BomCmpIdTable& ids) const;
  // Multi-level rows rebuilt depth first, under every parent its parts, then
  // its assemblies, each in order of `sortParam`, and renumbered. -4 unless
  // level 0 holds exactly one non-part. `rows` stays as it is.
  int SortLevelBomMdls(const std::vector<BomMdl>& rows, const std::wstring& sortParam,
                       std::vector<BomMdl>& sorted) const;
  // The rows in order of their value of `sortParam`; rows of equal value
  // come in reverse input order.
  int SortBomMdlsByParam(const std::vector<BomMdl>& rows, const std::wstring& sortParam,
                         std::vector<BomMdl>& sorted, int ascending) const;
  // Text comparison of the upper-cased texts: 1, 0 or -1.
  int CompareParamText(const std::wstring& a, const std::wstring& b) const;
  // Renumbers a row against the rows sorted before it. `ids` comes in as the
  // row's outline number; the parent's elements and the row's own ordinal
  // are written into it. -2 for a row without model.
  int RenumberBomCmpIds(const BomMdl& row, const std::vector<BomMdl>& sorted, BomCmpIdTable& ids) const;

  // Selects the first 52 occurrences of the row in the graphics window.
  int HighLightBomMdl(const BomMdl& row) const;
  int ClearHighLight() const;
  // The three sizes of the row's first occurrence, as `prefix` s1 `separator`
  // s2 `separator` s3 `suffix`, ascending when `sortDims` is not 0. The box
  // is taken from `cache` when it holds it, and kept there otherwise.
  int GetPartOutSize(const BomMdl& row, std::wstring& text, int sortDims, int decimals,
                     const std::wstring& separator, const std::wstring& prefix, const std::wstring& suffix,
                     BomFillCache* cache = nullptr) const;
  int GetParentName(const BomMdl& row, std::wstring& text) const;
  int GetParentParam(const BomMdl& row, const std::wstring& paramName, std::wstring& text) const;
  // A part's mass; an assembly's is the sum over all its part occurrences,
  // suppressed ones too. Masses in `cache` are not asked again; the
  // assembly's and its parts' are kept there.
  int GetMdlMass(ProMdl mdl, double& mass, BomFillCache* cache = nullptr) const;
  // Today as "2024.03.07".
  std::wstring GetTodayText() const;

 private:
  friend class CollectionIndex;

  bool IsSuppressed(const ProAsmcomp& feature) const;
  bool IsExcludedSubtype(ProMdl mdl) const;
  BomMdl TopRow(ProMdl top, int level) const;
  // The common start of a collection: the rows emptied, the root found and
  // put first at `topLevel`, and its occurrences walked. Non-zero ends it.
  int StartCollection(const std::wstring& function, int topLevel, std::vector<BomMdl>& rows, ProMdl& top,
                      std::vector<TkModelAsmCmp>& cmps) const;
  // The rows IsRowFilteredOut takes out, tested from the last to the first.
  void RemoveFilteredRows(const BomCollectFilter& filter, std::vector<BomMdl>& rows) const;
  int GetPartMass(ProMdl part, double& mass) const;
  int GetPartMass(ProMdl part, double& mass, BomFillCache* cache) const;
  int ComputeMdlMass(ProMdl mdl, double& mass, BomFillCache* cache) const;
  // The outline box of a model of `type`, an assembly's in the frame of `path`.
  int GetOutlineBox(ProMdl mdl, int type, ProAsmcomppath path, std::array<double, 6>& box) const;
  std::wstring Tag(const std::wstring& function, const std::wstring& step) const;

  CTkModel model_;
  CTkParam param_;
  CTkLog log_;
};
