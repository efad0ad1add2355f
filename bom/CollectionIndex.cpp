#include "CollectionIndex.h"

#include <functional>

#include "TkText.h"

const CollectionIndex::ModelInfo& CollectionIndex::Model(ProMdl mdl) {
  auto known = models_.find(mdl);
  if (known != models_.end()) return known->second;
  ModelInfo info;
  info.upperName = tktext::Upper(bom_.model_.GetMdlName(mdl));
  info.typeStatus = bom_.model_.GetMdlType(mdl, info.type);
  info.key = keys_.try_emplace({info.type, info.upperName}, static_cast<int>(keys_.size())).first->second;
  info.nameKey = nameKeys_.try_emplace(info.upperName, static_cast<int>(nameKeys_.size())).first->second;
  return models_.emplace(mdl, std::move(info)).first->second;
}

bool CollectionIndex::Counts(const TkModelAsmCmp& cmp) {
  auto feature = suppressed_.find({cmp.feature.owner, cmp.feature.id});
  if (feature == suppressed_.end())
    feature =
        suppressed_.emplace(std::pair{cmp.feature.owner, cmp.feature.id}, bom_.IsSuppressed(cmp.feature))
            .first;
  if (feature->second) return false;
  auto subtype = excludedSubtypes_.find(cmp.mdl);
  if (subtype == excludedSubtypes_.end())
    subtype = excludedSubtypes_.emplace(cmp.mdl, bom_.IsExcludedSubtype(cmp.mdl)).first;
  return !subtype->second;
}

size_t CollectionIndex::FeatureHash::operator()(const std::pair<ProMdl, int>& feature) const {
  return std::hash<const void*>()(feature.first) * 31 + std::hash<int>()(feature.second);
}

BomMdl NewRow(const TkModelAsmCmp& cmp, int level) {
  BomMdl row;
  row.mdl = cmp.mdl;
  row.quantity = 1;
  row.level = level;
  row.cmps.push_back(cmp);
  return row;
}

void AddOccurrence(BomMdl& row, const TkModelAsmCmp& cmp) {
  ++row.quantity;
  row.cmps.push_back(cmp);
}
