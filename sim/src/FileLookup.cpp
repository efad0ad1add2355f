#include "FileLookup.h"

#include "CodePage.h"
#include "Files.h"
#include "Text.h"

#include <algorithm>
#include <fstream>
#include <iterator>

namespace sim {
namespace {

std::optional<int> VersionNumber(std::wstring_view text) {
  if (text.empty() || text.size() > 9 ||
      !std::all_of(text.begin(), text.end(), [](wchar_t c) { return c >= L'0' && c <= L'9'; }))
    return std::nullopt;
  return std::stoi(std::wstring(text));
}

template <typename Visit>
void ForEachFile(const std::filesystem::path& dir, Visit visit) {
  for (const platform::DirEntry& entry : platform::EnumerateDirectory(WideText(dir) + L"/*")) {
    if (!entry.isDirectory) visit(entry.name);
  }
}

std::filesystem::path Child(const std::filesystem::path& dir, const std::wstring& name) {
  return dir / platform::ToNarrow(name);
}

// Names that SameNoCase takes as equal have the same key.
std::wstring IndexKey(const ModelFileName& name) { return LowerCase(name.stem) + L"." + name.extension; }

}  // namespace

ModelFileName ParseModelFileName(std::wstring_view fileName) {
  ModelFileName parsed;
  size_t lastDot = fileName.rfind(L'.');
  if (lastDot != std::wstring_view::npos && fileName.find(L'.') != lastDot) {
    parsed.version = VersionNumber(fileName.substr(lastDot + 1));
    if (parsed.version) fileName = fileName.substr(0, lastDot);
  }
  size_t dot = fileName.rfind(L'.');
  parsed.stem = fileName.substr(0, dot);
  if (dot != std::wstring_view::npos) parsed.extension = LowerCase(fileName.substr(dot + 1));
  return parsed;
}

ProMdlType TypeOfExtension(std::wstring_view extension) {
  std::wstring lower = LowerCase(extension);
  if (lower == L"prt") return PRO_MDL_PART;
  if (lower == L"asm") return PRO_MDL_ASSEMBLY;
  if (lower == L"drw") return PRO_MDL_DRAWING;
  return PRO_MDL_UNUSED;
}

std::wstring ExtensionOfType(ProMdlType type) {
  switch (type) {
    case PRO_MDL_PART:
      return L"prt";
    case PRO_MDL_ASSEMBLY:
      return L"asm";
    case PRO_MDL_DRAWING:
      return L"drw";
    default:
      return L"";
  }
}

std::optional<std::string> ReadBytes(const std::filesystem::path& path) {
  std::ifstream in(path, std::ios::binary);
  if (!in) return std::nullopt;
  std::string bytes{std::istreambuf_iterator<char>(in), std::istreambuf_iterator<char>()};
  if (in.bad()) return std::nullopt;
  return bytes;
}

std::optional<std::filesystem::path> FindFileNoCase(const std::filesystem::path& dir,
                                                    std::wstring_view name) {
  std::optional<std::filesystem::path> found;
  ForEachFile(dir, [&](const std::wstring& entry) {
    if (!found && SameNoCase(entry, name)) found = Child(dir, entry);
  });
  return found;
}

std::optional<ModelFile> FindModelFile(const std::filesystem::path& dir, const ModelFileName& name) {
  return ModelFileIndex().Find(dir, name);
}

std::optional<ModelFile> ModelFileIndex::Find(const std::filesystem::path& dir, const ModelFileName& name) {
  auto [known, added] = dirs_.try_emplace(dir);
  if (added) {
    Directory& files = known->second;
    ForEachFile(dir, [&files](const std::wstring& fileName) {
      ModelFileName parsed = ParseModelFileName(fileName);
      files[IndexKey(parsed)].push_back({fileName, parsed.version.value_or(0)});
    });
  }
  auto entries = known->second.find(IndexKey(name));
  if (entries == known->second.end()) return std::nullopt;
  std::optional<ModelFile> best;
  for (const Entry& entry : entries->second) {
    if (name.version && entry.version != *name.version) continue;
    if (!best || entry.version > best->version) best = ModelFile{Child(dir, entry.fileName), entry.version};
  }
  return best;
}

}  // namespace sim
