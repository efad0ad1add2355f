// The host's directory and file choosers, answered by the control API's
// script (PushAnswer): a queued path is the user's choice, a queued cancel is
// the user cancelling, and with nothing queued the answer provider's user
// chooses, or cancels when there is none.
#include "ProUtil.h"

#include "AnswerProvider.h"
#include "Text.h"
#include "ToolkitCall.h"

namespace {

ProError Answer(sim::ToolkitCall& call, const std::string& callName, const wchar_t* label,
                const wchar_t* defaultPath, wchar_t* selected) {
  if (!selected) return PRO_TK_BAD_INPUTS;
  std::optional<std::wstring> answer =
      sim::UserAnswer(call, callName, label ? label : L"", defaultPath ? defaultPath : L"");
  if (!answer) return PRO_TK_USER_ABORT;
  return sim::CopyText(selected, PRO_PATH_SIZE, *answer) ? PRO_TK_NO_ERROR : PRO_TK_LINE_TOO_LONG;
}

}  // namespace

extern "C" ProError ProDirectoryChoose(ProName dialog_label, ProPath*, ProName*, ProPath default_path,
                                       ProPath r_selected_path) {
  sim::ToolkitCall call("ProDirectoryChoose", {dialog_label, default_path});
  if (call.Failed()) return call.Status();
  return Answer(call, "ProDirectoryChoose", dialog_label, default_path, r_selected_path);
}

extern "C" ProError ProFileMdlfiletypeOpen(ProName dialog_label, ProMdlfileType*, ProPath*, ProName*,
                                           ProPath default_path, ProMdlFileName pre_sel_file_name,
                                           ProPath r_selected_file) {
  sim::ToolkitCall call("ProFileMdlfiletypeOpen", {dialog_label, default_path, pre_sel_file_name});
  if (call.Failed()) return call.Status();
  return Answer(call, "ProFileMdlfiletypeOpen", dialog_label, default_path, r_selected_file);
}
