// The host's directory and file choosers, answered by the control API's
// script (PushAnswer): a queued path is the user's choice, nothing queued or
// a queued cancel is the user cancelling.
#include "ProUtil.h"

#include "Text.h"
#include "ToolkitCall.h"

namespace {

std::optional<std::wstring> TakeScripted(sim::HostState& state, const std::string& callName) {
  auto& queue = state.answers[callName];
  if (queue.empty()) return std::nullopt;
  std::optional<std::wstring> answer = std::move(queue.front());
  queue.pop_front();
  return answer;
}

ProError Answer(sim::ToolkitCall& call, const std::string& callName, wchar_t* selected) {
  if (!selected) return PRO_TK_BAD_INPUTS;
  std::optional<std::wstring> answer = TakeScripted(call.state(), callName);
  if (!answer) return PRO_TK_USER_ABORT;
  return sim::CopyText(selected, PRO_PATH_SIZE, *answer) ? PRO_TK_NO_ERROR : PRO_TK_LINE_TOO_LONG;
}

}  // namespace

extern "C" ProError ProDirectoryChoose(ProName dialog_label, ProPath*, ProName*, ProPath default_path,
                                       ProPath r_selected_path) {
  sim::ToolkitCall call("ProDirectoryChoose", {dialog_label, default_path});
  if (call.Failed()) return call.Status();
  return Answer(call, "ProDirectoryChoose", r_selected_path);
}

extern "C" ProError ProFileMdlfiletypeOpen(ProName dialog_label, ProMdlfileType*, ProPath*, ProName*,
                                           ProPath default_path, ProMdlFileName pre_sel_file_name,
                                           ProPath r_selected_file) {
  sim::ToolkitCall call("ProFileMdlfiletypeOpen", {dialog_label, default_path, pre_sel_file_name});
  if (call.Failed()) return call.Status();
  return Answer(call, "ProFileMdlfiletypeOpen", r_selected_file);
}
