// Trail file, configuration options, directories, resource path.
#include "ProUtil.h"

#include "CodePage.h"
#include "Files.h"
#include "Text.h"
#include "ToolkitCall.h"
#include "Trail.h"

#include <cwchar>

extern "C" ProError ProTrailfileCommentWrite(ProComment comment) {
  sim::ToolkitCall call("ProTrailfileCommentWrite", {comment});
  if (call.Failed()) return call.Status();
  if (!comment) return PRO_TK_BAD_INPUTS;
  if (std::wcslen(comment) >= PRO_COMMENT_SIZE) return PRO_TK_LINE_TOO_LONG;
  return sim::AppendTrailLine(call.state().trailFile, "!" + platform::ToNarrow(comment))
             ? PRO_TK_NO_ERROR
             : PRO_TK_GENERAL_ERROR;
}

extern "C" ProError ProConfigoptionGet(ProName option, ProPath option_value) {
  sim::ToolkitCall call("ProConfigoptionGet", {option});
  if (call.Failed()) return call.Status();
  if (!option || !*option || !option_value) return PRO_TK_BAD_INPUTS;
  const auto& options = call.state().configOptions;
  auto found = options.find(sim::LowerCase(option));
  if (found == options.end()) return PRO_TK_E_NOT_FOUND;
  if (found->second.size() >= PRO_PATH_SIZE) return PRO_TK_LINE_TOO_LONG;
  sim::CopyText(option_value, PRO_PATH_SIZE, found->second);
  return PRO_TK_NO_ERROR;
}

extern "C" ProError ProConfigoptSet(ProName option, ProPath option_value) {
  sim::ToolkitCall call("ProConfigoptSet", {option, option_value});
  if (call.Failed()) return call.Status();
  if (!option || !*option || !option_value) return PRO_TK_BAD_INPUTS;
  call.state().configOptions[sim::LowerCase(option)] = option_value;
  return PRO_TK_NO_ERROR;
}

// The host's own current directory: the process's stays where it is.
extern "C" ProError ProDirectoryCurrentGet(ProPath path) {
  sim::ToolkitCall call("ProDirectoryCurrentGet");
  if (call.Failed()) return call.Status();
  if (!path) return PRO_TK_BAD_INPUTS;
  std::wstring current = sim::WideText(call.state().currentDir);
  if (!current.ends_with(L'/')) current += L'/';
  return sim::CopyText(path, PRO_PATH_SIZE, current) ? PRO_TK_NO_ERROR : PRO_TK_LINE_TOO_LONG;
}

extern "C" ProError ProDirectoryChange(ProPath path) {
  sim::ToolkitCall call("ProDirectoryChange", {path});
  if (call.Failed()) return call.Status();
  if (!path || !*path) return PRO_TK_BAD_INPUTS;
  sim::HostState& state = call.state();
  std::filesystem::path target = sim::NormalDir(state.currentDir / platform::NativePath(path));
  std::error_code error;
  if (!std::filesystem::is_directory(target, error)) return PRO_TK_CANT_ACCESS;
  state.currentDir = target;
  return PRO_TK_NO_ERROR;
}

extern "C" ProError ProUIResourcepathStore(ProPath resource_path) {
  sim::ToolkitCall call("ProUIResourcepathStore", {resource_path});
  if (call.Failed()) return call.Status();
  if (!resource_path) return PRO_TK_BAD_INPUTS;
  sim::HostState& state = call.state();
  state.resourcePath = *resource_path ? sim::NormalDir(state.currentDir / platform::NativePath(resource_path))
                                      : std::filesystem::path();
  return PRO_TK_NO_ERROR;
}
