// Raw access to one INI file: a key, the key names of a section, a section's
// lines, the section names. Every call reads the file anew; nothing is cached.
#pragma once

#include <string>
#include <vector>

#include "IniFileIo.h"

class CIniReader {
 public:
  // `io` is not owned and must outlive the reader.
  explicit CIniReader(config::IniFileIo& io = config::DiskIniFileIo());

  void SetIniFile(std::wstring path);

  // 1 when the section has at least one key, else 0 (a header alone, a
  // missing section or a missing file).
  int SectionExists(const std::wstring& section);
  // The key's value, at most 254 characters; "" when it is missing.
  std::wstring GetKeyValue(const std::wstring& key, const std::wstring& section);
  // Writes "key=value"; 1 on success, 0 when the file cannot be written.
  int SetKey(const std::wstring& value, const std::wstring& key, const std::wstring& section);

  // The section names in file order, as far as 2000 characters hold them.
  // The list belongs to the reader and is refilled by the next call.
  const std::vector<std::wstring>& GetSectionNames();
  // The section's lines as "key=value" in file order, as far as 2000
  // characters hold them. The list belongs to the reader and is refilled by
  // the next call.
  const std::vector<std::wstring>& GetSectionData(const std::wstring& section);

  // The raw result of the last profile call.
  int GetLastResult() const { return lastResult; }

 protected:
  config::IniFileIo& Io() const { return *fileIo; }

 private:
  config::IniFileIo* fileIo;
  std::vector<std::wstring> sectionDataList;
  std::vector<std::wstring> sectionNameList;
  int lastResult = 0;
  std::wstring fileName;
};
