// The collections and the multi-level sort transcribed step by step as the
// bill of materials' rules state them: every occurrence searches the rows
// from the first on, and the sort inserts one row at a time. Quadratic, and
// kept only as the oracle the engine is compared with.
#pragma once

#include <string>
#include <vector>

#include "TkBOM.h"

class LiteralBom {
 public:
  int GetFirstLevelBomMdls(const BomCollectFilter& filter, std::vector<BomMdl>& rows) const;
  int GetAllLeveBomMdls(const BomCollectFilter& filter, std::vector<BomMdl>& rows, int sameAsmCmps) const;
  int GetBomMdls(const BomCollectFilter& filter, std::vector<BomMdl>& rows) const;
  int SortLevelBomMdls(const std::vector<BomMdl>& rows, const std::wstring& sortParam,
                       std::vector<BomMdl>& sorted) const;

 private:
  bool SameModel(ProMdl a, ProMdl b) const;
  std::wstring UpperName(ProMdl mdl) const;
  ProMdl ModelAt(ProAsmcomppath path) const;
  BomMdl TopRow(ProMdl top, int level) const;
  // The single-level (`firstLevel`) or summary list.
  int Collect(const std::wstring& function, const BomCollectFilter& filter, std::vector<BomMdl>& rows,
              bool firstLevel) const;
  void Filter(const BomCollectFilter& filter, std::vector<BomMdl>& rows) const;
  void SortByParam(const std::vector<BomMdl>& rows, const std::wstring& sortParam,
                   std::vector<BomMdl>& sorted, bool ascending) const;

  TkBOM bom_;
  CTkModel model_;
  CTkParam param_;
};
