// The two host arrays of paths that one ProFilesList fills, for the model
// access layer's listings.
#pragma once

#include <string>
#include <vector>

#include "ProUtil.h"

// Files and subdirectories of one listing; the arrays are freed with the
// object.
class HostPathLists {
 public:
  HostPathLists();
  ~HostPathLists();
  HostPathLists(const HostPathLists&) = delete;
  HostPathLists& operator=(const HostPathLists&) = delete;

  // ProFilesList of `directory` with `filter` and the listing `option`.
  ProError List(const std::wstring& directory, const std::wstring& filter, int option);

  static std::vector<std::wstring> Texts(ProPath* paths);

  ProPath* files = nullptr;
  ProPath* directories = nullptr;
};
