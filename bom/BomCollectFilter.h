// The row filter every collection receives.
#pragma once

#include <string>
#include <vector>

struct BomCollectFilter {
  std::wstring key;                  // parameter to test; empty: the model's name
  std::vector<std::wstring> values;  // texts a value must begin with to match
  int keepMatches = 0;               // 0: matching rows go; otherwise only they stay
};
