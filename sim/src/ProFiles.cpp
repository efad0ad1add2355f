// Directory listings and model file names.
#include "ProUtil.h"

#include "FileLookup.h"
#include "Files.h"
#include "HostMemory.h"
#include "Text.h"
#include "ToolkitCall.h"

#include <algorithm>
#include <map>
#include <vector>

namespace fs = std::filesystem;

namespace {

std::vector<std::wstring> Patterns(std::wstring_view filter) {
  std::vector<std::wstring> patterns;
  while (!filter.empty()) {
    size_t comma = filter.find(L',');
    std::wstring_view piece = filter.substr(0, comma);
    size_t first = piece.find_first_not_of(L' ');
    if (first != std::wstring_view::npos) {
      patterns.emplace_back(piece.substr(first, piece.find_last_not_of(L' ') - first + 1));
    }
    filter = comma == std::wstring_view::npos ? std::wstring_view() : filter.substr(comma + 1);
  }
  return patterns;
}

// A versioned file matches by its name without the version: "*.prt" finds
// a.prt.3 as the host's file dialog does.
std::wstring NameWithoutVersion(const std::wstring& name) {
  sim::ModelFileName parsed = sim::ParseModelFileName(name);
  if (!parsed.version) return name;
  return name.substr(0, name.rfind(L'.'));
}

bool IsLatestOnly(ProFileListOpt option) { return option % 2 == 1; }

bool AppendPaths(ProPath** array, const std::vector<std::wstring>& paths) {
  void* objects = *array;
  for (const std::wstring& path : paths) {
    ProPath entry{};
    sim::CopyText(entry, PRO_PATH_SIZE, path);
    if (!sim::ArrayInsert(objects, sim::ArraySize(objects), 1, entry)) return false;
  }
  *array = static_cast<ProPath*>(objects);
  return true;
}

}  // namespace

// Names come sorted whatever the option, so that listings are the same on
// every file system.
extern "C" ProError ProFilesList(ProPath directory_path, ProLine filter, ProFileListOpt listing_option,
                                 ProPath** p_file_name_array, ProPath** p_subdir_name_array) {
  sim::ToolkitCall call("ProFilesList", {directory_path, filter, static_cast<int>(listing_option)});
  if (call.Failed()) return call.Status();
  if (!filter || !p_file_name_array || !p_subdir_name_array || !sim::IsLiveArray(*p_file_name_array) ||
      !sim::IsLiveArray(*p_subdir_name_array) || listing_option < PRO_FILE_LIST_ALL ||
      listing_option > PRO_FILE_LIST_LATEST_SORTED_INST)
    return PRO_TK_BAD_INPUTS;
  sim::HostState& state = call.state();
  fs::path dir = directory_path && *directory_path
                     ? sim::NormalDir(state.currentDir / platform::ResolvePath(directory_path))
                     : state.currentDir;
  std::error_code error;
  if (!fs::is_directory(dir, error)) return PRO_TK_INVALID_DIR;

  std::vector<std::wstring> patterns = Patterns(filter);
  std::vector<std::wstring> files;
  std::vector<std::wstring> subdirs;
  std::map<std::wstring, std::pair<int, std::wstring>> latest;  // by lower-case name without version
  std::wstring prefix = sim::WideText(dir) + L"/";
  for (const platform::DirEntry& entry : platform::EnumerateDirectory(prefix + L"*")) {
    if (entry.name == L"." || entry.name == L"..") continue;
    if (entry.isDirectory) {
      subdirs.push_back(prefix + entry.name);
      continue;
    }
    std::wstring base = NameWithoutVersion(entry.name);
    bool matches = std::any_of(patterns.begin(), patterns.end(), [&](const std::wstring& pattern) {
      return platform::WildcardMatch(pattern, base);
    });
    if (!matches) continue;
    if (!IsLatestOnly(listing_option)) {
      files.push_back(prefix + entry.name);
      continue;
    }
    int version = sim::ParseModelFileName(entry.name).version.value_or(0);
    auto& [best, name] = latest[sim::LowerCase(base)];
    if (name.empty() || version > best) {
      best = version;
      name = entry.name;
    }
  }
  for (const auto& [base, kept] : latest) files.push_back(prefix + kept.second);
  std::sort(files.begin(), files.end());
  std::sort(subdirs.begin(), subdirs.end());
  if (!AppendPaths(p_file_name_array, files) || !AppendPaths(p_subdir_name_array, subdirs))
    return PRO_TK_OUT_OF_MEMORY;
  return PRO_TK_NO_ERROR;
}

// A model picked from the session comes as "insession:" and its name, which
// the host parses with "insession:" as the directory.
extern "C" ProError ProFileMdlnameParse(ProPath file_name_w_path, ProPath r_path, ProMdlName r_file_name,
                                        ProMdlExtension r_extension, int* r_version) {
  sim::ToolkitCall call("ProFileMdlnameParse", {file_name_w_path});
  if (call.Failed()) return call.Status();
  if (!file_name_w_path || !*file_name_w_path) return PRO_TK_BAD_INPUTS;
  std::wstring path = file_name_w_path;
  constexpr std::wstring_view kInSession = L"insession:";
  size_t nameStart = sim::SameNoCase(std::wstring_view(path).substr(0, kInSession.size()), kInSession)
                         ? kInSession.size()
                         : path.find_last_of(L"\\/") + 1;
  sim::ModelFileName name = sim::ParseModelFileName(path.substr(nameStart));
  if (r_path) sim::CopyText(r_path, PRO_PATH_SIZE, path.substr(0, nameStart));
  if (r_file_name) sim::CopyText(r_file_name, PRO_MDLNAME_SIZE, name.stem);
  if (r_extension) sim::CopyText(r_extension, PRO_MDLEXTENSION_SIZE, name.extension);
  if (r_version) *r_version = name.version.value_or(0);
  return PRO_TK_NO_ERROR;
}
