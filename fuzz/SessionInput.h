// How an input of the session loader's fuzzer becomes a session directory:
// its parts, split at NUL bytes, are session.json, top.asm.1, sub.asm.1 and
// a.prt.1. The suite reads the corpus and the findings the same way.
#pragma once

#include <algorithm>
#include <filesystem>
#include <fstream>
#include <string_view>

inline void WriteSessionInput(const std::filesystem::path& dir, std::string_view input) {
  static const char* const kFiles[] = {"session.json", "top.asm.1", "sub.asm.1", "a.prt.1"};
  std::filesystem::remove_all(dir);
  std::filesystem::create_directories(dir);
  for (const char* file : kFiles) {
    size_t end = std::min(input.find('\0'), input.size());
    std::ofstream(dir / file, std::ios::binary) << input.substr(0, end);
    input.remove_prefix(std::min(end + 1, input.size()));
  }
}
