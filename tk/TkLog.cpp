#include "TkLog.h"

#include <string_view>

#include "CodePage.h"
#include "MessageBox.h"
#include "ProMessage.h"
#include "ProUtil.h"

namespace {

// Indexed by -status; the gaps of the host's enumeration stay empty.
constexpr std::wstring_view kResultNames[] = {
    L"PRO_TK_NO_ERROR",
    L"PRO_TK_GENERAL_ERROR",
    L"PRO_TK_BAD_INPUTS",
    L"PRO_TK_USER_ABORT",
    L"PRO_TK_E_NOT_FOUND",
    L"PRO_TK_E_FOUND",
    L"PRO_TK_LINE_TOO_LONG",
    L"PRO_TK_CONTINUE",
    L"PRO_TK_BAD_CONTEXT",
    L"PRO_TK_NOT_IMPLEMENTED",
    L"PRO_TK_OUT_OF_MEMORY",
    L"PRO_TK_COMM_ERROR",
    L"PRO_TK_NO_CHANGE",
    L"PRO_TK_SUPP_PARENTS",
    L"PRO_TK_PICK_ABOVE",
    L"PRO_TK_INVALID_DIR",
    L"PRO_TK_INVALID_FILE",
    L"PRO_TK_CANT_WRITE",
    L"PRO_TK_INVALID_TYPE",
    L"PRO_TK_INVALID_PTR",
    L"PRO_TK_UNAV_SEC",
    L"PRO_TK_INVALID_MATRIX",
    L"PRO_TK_INVALID_NAME",
    L"PRO_TK_NOT_EXIST",
    L"PRO_TK_CANT_OPEN",
    L"PRO_TK_ABORT",
    L"PRO_TK_NOT_VALID",
    L"PRO_TK_INVALID_ITEM",
    L"PRO_TK_MSG_NOT_FOUND",
    L"PRO_TK_MSG_NO_TRANS",
    L"PRO_TK_MSG_FMT_ERROR",
    L"PRO_TK_MSG_USER_QUIT",
    L"PRO_TK_MSG_TOO_LONG",
    L"PRO_TK_CANT_ACCESS",
    L"PRO_TK_OBSOLETE_FUNC",
    L"PRO_TK_NO_COORD_SYSTEM",
    L"PRO_TK_E_AMBIGUOUS",
    L"PRO_TK_E_DEADLOCK",
    L"PRO_TK_E_BUSY",
    L"PRO_TK_E_IN_USE",
    L"PRO_TK_NO_LICENSE",
    L"PRO_TK_BSPL_UNSUITABLE_DEGREE",
    L"PRO_TK_BSPL_NON_STD_END_KNOTS",
    L"PRO_TK_BSPL_MULTI_INNER_KNOTS",
    L"PRO_TK_BAD_SRF_CRV",
    L"PRO_TK_EMPTY",
    L"PRO_TK_BAD_DIM_ATTACH",
    L"PRO_TK_NOT_DISPLAYED",
    L"PRO_TK_CANT_MODIFY",
    L"PRO_TK_CHECKOUT_CONFLICT",
    L"PRO_TK_CRE_VIEW_BAD_SHEET",
    L"PRO_TK_CRE_VIEW_BAD_MODEL",
    L"PRO_TK_CRE_VIEW_BAD_PARENT",
    L"PRO_TK_CRE_VIEW_BAD_TYPE",
    L"PRO_TK_CRE_VIEW_BAD_EXPLODE",
    L"PRO_TK_UNATTACHED_FEATS",
    L"PRO_TK_REGEN_AGAIN",
    L"PRO_TK_DWGCREATE_ERRORS",
    L"PRO_TK_UNSUPPORTED",
    L"PRO_TK_NO_PERMISSION",
    L"PRO_TK_AUTHENTICATION_FAILURE",
    L"PRO_TK_OUTDATED",
    L"PRO_TK_INCOMPLETE",
    L"PRO_TK_CHECK_OMITTED",
    L"PRO_TK_MAX_LIMIT_REACHED",
    L"PRO_TK_OUT_OF_RANGE",
    L"",  // -66 to -88 have no name in the table
    L"",
    L"",
    L"",
    L"",
    L"",
    L"",
    L"",
    L"",
    L"",
    L"",
    L"",
    L"",
    L"",
    L"",
    L"",
    L"",
    L"",
    L"",
    L"",
    L"",
    L"",
    L"",
    L"PRO_TK_APP_TOO_OLD",
    L"PRO_TK_APP_BAD_DATAPATH",
    L"PRO_TK_APP_BAD_ENCODING",
    L"PRO_TK_APP_NO_LICENSE",
    L"PRO_TK_APP_XS_CALLBACKS",
    L"PRO_TK_APP_STARTUP_FAIL",
    L"PRO_TK_APP_INIT_FAIL",
    L"PRO_TK_APP_VERSION_MISMATCH",
    L"PRO_TK_APP_COMM_FAILURE",
    L"PRO_TK_APP_NEW_VERSION",
    L"PRO_TK_APP_UNLOCK",
};

// The host takes the comment as it is and judges its length itself.
void WriteTrail(std::wstring text) { ProTrailfileCommentWrite(text.data()); }

}  // namespace

std::wstring CTkLog::GetResultName(int status) const {
  if (status <= 0 && -status < static_cast<int>(std::size(kResultNames)) && !kResultNames[-status].empty())
    return std::wstring(kResultNames[-status]);
  return std::to_wstring(status);
}

int CTkLog::LogStatus(const std::wstring& tag, int status) const {
  WriteTrail(tag + L" Status = " + GetResultName(status));
  return status;
}

int CTkLog::ShowUserMsg(const std::wstring& text, int status) const {
  ProMessageClear();
  std::wstring line = status != 0 ? text + L"  " + GetResultName(status) : text;
  std::string narrow = platform::ToNarrow(line);
  std::wstring file = L"usermsg.txt";
  char key[] = "USER %0s";
  ProMessageDisplay(file.data(), key, narrow.c_str());
  WriteTrail(line);
  return status;
}

int CTkLog::ShowFileMsg(const std::wstring& key, const std::wstring& messageFile) const {
  std::string keyLine = platform::ToNarrow(key);
  std::wstring file = messageFile;
  ProMessageDisplay(file.data(), keyLine.data());
  return 0;
}

int CTkLog::ShowPrompt(const std::wstring& text, const std::wstring& caption, unsigned flags, void* parent,
                       int result) const {
  platform::MessageBox(parent, text, caption, flags);
  return result;
}
