// Files and directories as the tools need them: where the plug-in lies, the
// host's work directory and choosers, listings, plain text files, text
// splitting. No state. Output lists belong to the caller and are emptied
// first, except where an operation says it appends.
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
  // The host's directory chooser, starting in `defaultDir` or, when that is
  // empty, in the current directory. `defaultDir` unchanged on a cancel.
  std::wstring ChooseDir(const std::wstring& defaultDir) const;
  // A host configuration option; empty when it is not set.
  std::wstring GetConfigOption(const std::wstring& name) const;

  // The host's model file dialog, `label` as its start and `filter` as its
  // preselection. Empty on a cancel. A model picked from the session answers
  // the file it came from. Without `keepVersion` a path with more than one
  // dot loses everything from its last dot.
  std::wstring ChooseMdlFile(const std::wstring& filter, const std::wstring& label, int keepVersion) const;
  int FileExists(const std::wstring& path) const;
  // Deletes a file or directory silently; with `permanent` 0 it goes to the
  // trash. 1 on success, 0 when nothing could be deleted.
  int DelFile(const std::wstring& path, int permanent) const;
  // The file's lines without their line ends, in any encoding
  // platform::DecodeText takes. 0 for an empty path or a file that cannot be
  // opened, a directory included.
  int ReadLines(const std::wstring& path, std::vector<std::wstring>& lines) const;
  // The file's lines, each followed by "\n".
  int ReadFileText(const std::wstring& path, std::wstring& text) const;
  // Replaces the file's contents with `text`, as the stored texts expect in
  // spite of the name. 1, or the system's error number of the failed open.
  int AppendToFile(const std::wstring& path, const std::wstring& text) const;

  // Names without directory of the files in `directory`, subdirectories left
  // out, in the system's order; 1.
  int ListFiles(const std::wstring& directory, std::vector<std::wstring>& names) const;
  // Names matching "*.E.*" for each extension E in turn: versioned files
  // only, so a.prt.1 but not a.prt; 1.
  int ListFilesByExt(const std::wstring& directory, const std::vector<std::wstring>& extensions,
                     std::vector<std::wstring>& names) const;
  // Appends every directory below `directory`, each before its own
  // subdirectories; 1.
  int ListSubDirsRecursive(const std::wstring& directory, std::vector<std::wstring>& directories) const;
  // Appends the host's full paths of all files below `directory`, a
  // directory's files before those of its subdirectories; `versionFlag` is
  // the host's listing option (1: latest versions only); 0.
  int ListMdlFilesRecursive(const std::wstring& directory, std::vector<std::wstring>& files,
                            int versionFlag) const;
  // Appends the names (latest versions) of the directory's model files of
  // the extensions; 0, also when the listing fails.
  int ListMdlsInDir(const std::wstring& directory, std::vector<std::wstring>& names,
                    const std::vector<std::wstring>& extensions) const;

  // Splits at each `separator`. An empty piece between two separators is kept;
  // a separator at the very end opens no piece; empty text gives none. With
  // `trim` blanks go from both ends of every piece. Empties `pieces` first.
  void SplitText(const std::wstring& text, std::vector<std::wstring>& pieces, wchar_t separator,
                 int trim) const;
};
