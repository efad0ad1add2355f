#include "Model.h"

#include <algorithm>

namespace sim {

std::vector<int> Model::FeatureIds() const {
  std::vector<int> ids;
  ids.reserve(def.components.size() + def.features.size());
  for (const ComponentDef& component : def.components) ids.push_back(component.id);
  for (const FeatureDef& feature : def.features) ids.push_back(feature.id);
  std::sort(ids.begin(), ids.end());
  return ids;
}

Model* Model::ComponentModel(int featureId) const {
  for (size_t i = 0; i < def.components.size(); ++i) {
    if (def.components[i].id == featureId) return componentModels[i];
  }
  return nullptr;
}

}  // namespace sim
