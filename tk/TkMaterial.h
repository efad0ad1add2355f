// The material directory and the materials of parts. No state; tools keep
// an instance as a member.
#pragma once

#include <string>
#include <vector>

#include "ProObjects.h"

class CTkMaterial {
 public:
  // The option "pro_material_dir", at most 80 characters of it (the buffer
  // holds 81 with its end). An empty value answers -4 and an empty text.
  int GetMaterialDir(std::wstring& directory) const;
  // Changes the option for the whole session; the caller restores it.
  int SetMaterialDir(const std::wstring& directory) const;
  // The host's listing (latest versions) of `directory` with `filter`: file
  // names without their directory, and with `bare` only what stands before
  // the first dot, upper-cased; the subdirectories' paths as the host gives
  // them. Both outputs are emptied first. An empty directory answers -2 and
  // leaves them as they were.
  int ListMaterialFiles(const std::wstring& directory, const std::wstring& filter,
                        std::vector<std::wstring>& names, std::vector<std::wstring>& directories,
                        int bare) const;
  // The part's current material; empty when it has none or on failure.
  std::wstring GetMdlMaterialName(ProMdl part) const;
  // Deletes every material of the part, reads the material file `name` from
  // the material directory and makes it current. A failed read answers its
  // status and leaves the part with no material at all.
  int AssignMaterial(ProMdl part, const std::wstring& name) const;
};
