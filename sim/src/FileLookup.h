// Finding files as the host does: names compared without regard to case,
// model files by version.
#pragma once

#include "ProObjects.h"

#include <filesystem>
#include <map>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace sim {

// "bolt_m8.prt.3" is stem "bolt_m8", extension "prt", version 3; a name
// without the numeric suffix has no version.
struct ModelFileName {
  std::wstring stem;
  std::wstring extension;  // lower case
  std::optional<int> version;
};

ModelFileName ParseModelFileName(std::wstring_view fileName);
// PRO_MDL_UNUSED for an extension that names no model type.
ProMdlType TypeOfExtension(std::wstring_view extension);
std::wstring ExtensionOfType(ProMdlType type);

// The whole file; nullopt when it cannot be read.
std::optional<std::string> ReadBytes(const std::filesystem::path& path);

std::optional<std::filesystem::path> FindFileNoCase(const std::filesystem::path& dir, std::wstring_view name);

struct ModelFile {
  std::filesystem::path path;
  int version = 0;  // 0 for a file without suffix
};

// The file of `stem.extension` in dir: the given version, or else the
// highest one there.
std::optional<ModelFile> FindModelFile(const std::filesystem::path& dir, const ModelFileName& name);

// FindModelFile over directories each read once, when first asked: valid
// while nobody writes into them, as during one load.
class ModelFileIndex {
 public:
  std::optional<ModelFile> Find(const std::filesystem::path& dir, const ModelFileName& name);

 private:
  struct Entry {
    std::wstring fileName;
    int version = 0;
  };
  // By stem and extension in lower case; the entries in directory order.
  using Directory = std::map<std::wstring, std::vector<Entry>>;
  std::map<std::filesystem::path, Directory> dirs_;
};

}  // namespace sim
