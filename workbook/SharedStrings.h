// The shared string table of a BIFF8 workbook (SST with its CONTINUE records)
// and its index EXTSST. Existing entries keep their numbers, their formatting
// runs and phonetic data, so that cells of untouched sheets still point at
// their texts; new texts are appended.
#pragma once

#include <cstdint>
#include <string>
#include <unordered_map>
#include <vector>

#include "BiffRecords.h"

namespace workbook::biff {

class SharedStrings {
 public:
  SharedStrings() = default;
  // `sst` is the SST record, `continues` the CONTINUE records behind it.
  // Throws Error when a string runs past the data.
  static SharedStrings Parse(const Record& sst, const std::vector<Record>& continues);

  size_t size() const { return entries_.size(); }
  // An index past the end (a damaged cell) gives empty text.
  const std::u16string& Text(uint32_t index) const;
  // The index of an unformatted entry with this text, appended when missing.
  uint32_t Add(const std::u16string& text);

  struct Written {
    std::vector<Record> sst;  // SST and its CONTINUE records
    Record extSst;
  };
  // `totalReferences` is the number of LABELSST cells of the workbook;
  // `streamPosition` where the SST record will start, for EXTSST's offsets.
  Written Write(uint32_t totalReferences, size_t streamPosition) const;

 private:
  struct Entry {
    std::u16string text;
    uint16_t runCount = 0;
    Bytes runs;      // 4 bytes per formatting run
    Bytes phonetic;  // ExtRst, kept as it was read
  };

  std::vector<Entry> entries_;
  std::unordered_map<std::u16string, uint32_t> plainIndex_;
};

}  // namespace workbook::biff
