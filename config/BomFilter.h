// A stored filter scheme of the bill of materials: one section "Sec<n>" of
// BomFilter.cfg.
#pragma once

#include <string>

struct BomFilter {
  std::wstring Section;       // "Sec%d" with the scheme's number
  std::wstring ProjectName;   // shown in the filter box
  std::wstring RefParamName;  // the parameter tested; "模型名称" is the model's name
  std::wstring FilterKey;     // keys separated by ","
  int IsShow = 0;             // 1: matching rows are shown; 0: they are hidden
};
