// The filter schemes of the batch tools in config\ToolFilter.cfg: schemes in
// sections "Sec1", "Sec2", ... numbered without a gap, like those of the
// bill of materials, and in section "CurPrj" each tool key's current scheme
// number, 0 for none. Every call reads or writes the file anew.
#pragma once

#include <optional>
#include <string>
#include <vector>

#include "BomFilter.h"

class CToolFilterStore {
 public:
  CToolFilterStore();

  void GetSchemes(std::vector<BomFilter>& schemes) const;
  // Writes into the scheme's existing section; a lost section stays lost.
  void SetScheme(const BomFilter& scheme) const;
  // 0 when the tool has none or its number names no scheme.
  int GetCurrentNumber(const std::wstring& toolKey) const;
  void SetCurrentNumber(const std::wstring& toolKey, int number) const;
  std::optional<BomFilter> GetCurrent(const std::wstring& toolKey) const;

 private:
  std::wstring path_;
};
