#include "TkLog.h"

#include <string_view>
#include <utility>

#include "CodePage.h"
#include "MessageBox.h"
#include "ProMessage.h"
#include "ProUtil.h"

namespace {

// The statuses that have a name here: none from -66 to -88, so that newer
// host statuses read as numbers.
constexpr std::pair<int, std::wstring_view> kResultNames[] = {
    {0, L"PRO_TK_NO_ERROR"},
    {-1, L"PRO_TK_GENERAL_ERROR"},
    {-2, L"PRO_TK_BAD_INPUTS"},
    {-3, L"PRO_TK_USER_ABORT"},
    {-4, L"PRO_TK_E_NOT_FOUND"},
    {-5, L"PRO_TK_E_FOUND"},
    {-6, L"PRO_TK_LINE_TOO_LONG"},
    {-7, L"PRO_TK_CONTINUE"},
    {-8, L"PRO_TK_BAD_CONTEXT"},
    {-9, L"PRO_TK_NOT_IMPLEMENTED"},
    {-10, L"PRO_TK_OUT_OF_MEMORY"},
    {-11, L"PRO_TK_COMM_ERROR"},
    {-12, L"PRO_TK_NO_CHANGE"},
    {-13, L"PRO_TK_SUPP_PARENTS"},
    {-14, L"PRO_TK_PICK_ABOVE"},
    {-15, L"PRO_TK_INVALID_DIR"},
    {-16, L"PRO_TK_INVALID_FILE"},
    {-17, L"PRO_TK_CANT_WRITE"},
    {-18, L"PRO_TK_INVALID_TYPE"},
    {-19, L"PRO_TK_INVALID_PTR"},
    {-20, L"PRO_TK_UNAV_SEC"},
    {-21, L"PRO_TK_INVALID_MATRIX"},
    {-22, L"PRO_TK_INVALID_NAME"},
    {-23, L"PRO_TK_NOT_EXIST"},
    {-24, L"PRO_TK_CANT_OPEN"},
    {-25, L"PRO_TK_ABORT"},
    {-26, L"PRO_TK_NOT_VALID"},
    {-27, L"PRO_TK_INVALID_ITEM"},
    {-28, L"PRO_TK_MSG_NOT_FOUND"},
    {-29, L"PRO_TK_MSG_NO_TRANS"},
    {-30, L"PRO_TK_MSG_FMT_ERROR"},
    {-31, L"PRO_TK_MSG_USER_QUIT"},
    {-32, L"PRO_TK_MSG_TOO_LONG"},
    {-33, L"PRO_TK_CANT_ACCESS"},
    {-34, L"PRO_TK_OBSOLETE_FUNC"},
    {-35, L"PRO_TK_NO_COORD_SYSTEM"},
    {-36, L"PRO_TK_E_AMBIGUOUS"},
    {-37, L"PRO_TK_E_DEADLOCK"},
    {-38, L"PRO_TK_E_BUSY"},
    {-39, L"PRO_TK_E_IN_USE"},
    {-40, L"PRO_TK_NO_LICENSE"},
    {-41, L"PRO_TK_BSPL_UNSUITABLE_DEGREE"},
    {-42, L"PRO_TK_BSPL_NON_STD_END_KNOTS"},
    {-43, L"PRO_TK_BSPL_MULTI_INNER_KNOTS"},
    {-44, L"PRO_TK_BAD_SRF_CRV"},
    {-45, L"PRO_TK_EMPTY"},
    {-46, L"PRO_TK_BAD_DIM_ATTACH"},
    {-47, L"PRO_TK_NOT_DISPLAYED"},
    {-48, L"PRO_TK_CANT_MODIFY"},
    {-49, L"PRO_TK_CHECKOUT_CONFLICT"},
    {-50, L"PRO_TK_CRE_VIEW_BAD_SHEET"},
    {-51, L"PRO_TK_CRE_VIEW_BAD_MODEL"},
    {-52, L"PRO_TK_CRE_VIEW_BAD_PARENT"},
    {-53, L"PRO_TK_CRE_VIEW_BAD_TYPE"},
    {-54, L"PRO_TK_CRE_VIEW_BAD_EXPLODE"},
    {-55, L"PRO_TK_UNATTACHED_FEATS"},
    {-56, L"PRO_TK_REGEN_AGAIN"},
    {-57, L"PRO_TK_DWGCREATE_ERRORS"},
    {-58, L"PRO_TK_UNSUPPORTED"},
    {-59, L"PRO_TK_NO_PERMISSION"},
    {-60, L"PRO_TK_AUTHENTICATION_FAILURE"},
    {-61, L"PRO_TK_OUTDATED"},
    {-62, L"PRO_TK_INCOMPLETE"},
    {-63, L"PRO_TK_CHECK_OMITTED"},
    {-64, L"PRO_TK_MAX_LIMIT_REACHED"},
    {-65, L"PRO_TK_OUT_OF_RANGE"},
    {-89, L"PRO_TK_APP_TOO_OLD"},
    {-90, L"PRO_TK_APP_BAD_DATAPATH"},
    {-91, L"PRO_TK_APP_BAD_ENCODING"},
    {-92, L"PRO_TK_APP_NO_LICENSE"},
    {-93, L"PRO_TK_APP_XS_CALLBACKS"},
    {-94, L"PRO_TK_APP_STARTUP_FAIL"},
    {-95, L"PRO_TK_APP_INIT_FAIL"},
    {-96, L"PRO_TK_APP_VERSION_MISMATCH"},
    {-97, L"PRO_TK_APP_COMM_FAILURE"},
    {-98, L"PRO_TK_APP_NEW_VERSION"},
    {-99, L"PRO_TK_APP_UNLOCK"},
};

// The host takes the comment as it is and judges its length itself.
void WriteTrail(std::wstring text) { ProTrailfileCommentWrite(text.data()); }

}  // namespace

std::wstring CTkLog::GetResultName(int status) const {
  for (const auto& [named, name] : kResultNames) {
    if (named == status) return std::wstring(name);
  }
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
