// Files and directories as the tools need them: where the plug-in lies, the
// host's work directory, text splitting. No state.
#pragma once

#include <string>
#include <vector>

// The directory the plug-in was registered with (the one holding config\ and
// template\), without a trailing separator; empty when the host gave none.
std::wstring GetAppTextRoot();

class CTkFile {
 public:
  // The text root with a backslash at the end.
  std::wstring GetAppDir() const;
  // The host's current directory; empty on failure.
  std::wstring GetCurDir() const;
  // Changes the host's current directory unless `directory` is empty; hands
  // back `result` whatever the host answered.
  int ChangeCurDir(const std::wstring& directory, int result) const;

  // Splits at each `separator`. An empty piece between two separators is kept;
  // a separator at the very end opens no piece; empty text gives none. With
  // `trim` blanks go from both ends of every piece. Empties `pieces` first.
  void SplitText(const std::wstring& text, std::vector<std::wstring>& pieces, wchar_t separator,
                 int trim) const;
};
