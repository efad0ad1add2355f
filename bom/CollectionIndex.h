// What one collection asks of the host about the models and occurrences it
// meets, each asked once: the host's answers do not change while a
// collection runs, and the rows' searches compare them again and again.
#pragma once

#include <map>
#include <string>
#include <unordered_map>
#include <utility>

#include "TkBOM.h"

class CollectionIndex {
 public:
  struct ModelInfo {
    int typeStatus = 0;  // of the type query
    int type = 0;
    std::wstring upperName;
    int key = 0;      // equal for models of the same type and upper-cased name
    int nameKey = 0;  // equal for models of the same upper-cased name
  };

  explicit CollectionIndex(const TkBOM& bom) : bom_(bom) {}

  const ModelInfo& Model(ProMdl mdl);
  // IsCmpCounted's answer.
  bool Counts(const TkModelAsmCmp& cmp);

 private:
  struct FeatureHash {
    size_t operator()(const std::pair<ProMdl, int>& feature) const;
  };

  const TkBOM& bom_;
  std::unordered_map<ProMdl, ModelInfo> models_;
  std::map<std::pair<int, std::wstring>, int> keys_;
  std::map<std::wstring, int> nameKeys_;
  std::unordered_map<std::pair<ProMdl, int>, bool, FeatureHash> suppressed_;
  std::unordered_map<ProMdl, bool> excludedSubtypes_;
};

// A row of one occurrence, and an occurrence more for a row.
BomMdl NewRow(const TkModelAsmCmp& cmp, int level);
void AddOccurrence(BomMdl& row, const TkModelAsmCmp& cmp);
