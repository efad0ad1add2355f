// One row of a drawing table being prepared; entry 0 of an array of them is
// the header.
#pragma once

#include <array>
#include <string>

constexpr int kDrwTblMaxCells = 99;

struct DrwTblCells {
  std::array<std::wstring, kDrwTblMaxCells> cells;  // left to right
  int count = 0;                                    // valid entries
};
