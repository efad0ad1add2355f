#include "ModelFile.h"

#include "FileLookup.h"
#include "ModelDocument.h"

namespace sim {

std::optional<ModelDef> ReadModelFile(const std::filesystem::path& file) {
  std::optional<std::string> text = ReadBytes(file);
  ModelDef def;
  if (!text || ParseModelDocument(*text, def) != PRO_TK_NO_ERROR) return std::nullopt;
  return def;
}

}  // namespace sim
