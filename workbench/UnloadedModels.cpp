#include "UnloadedModels.h"

#include "CodePage.h"
#include "Inspection.h"

std::vector<std::string> UnloadedModelLines() {
  std::vector<std::string> lines;
  for (const sim::UnloadedModel& model : sim::UnloadedModels())
    lines.push_back("could not load " + platform::ToNarrow(model.fileName) + ": " + model.reason);
  return lines;
}

std::string UnloadedCountLine() {
  size_t count = sim::UnloadedModels().size();
  if (count == 0) return {};
  return std::to_string(count) + (count == 1 ? " model" : " models") + " could not be loaded";
}
