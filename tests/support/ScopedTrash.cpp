#include "ScopedTrash.h"

#include <algorithm>
#include <cstdlib>
#include <fstream>

namespace fs = std::filesystem;

namespace {

std::string Unescape(const std::string& text) {
  std::string out;
  for (size_t i = 0; i < text.size(); ++i) {
    if (text[i] == '%' && i + 2 < text.size()) {
      out += static_cast<char>(std::stoi(text.substr(i + 1, 2), nullptr, 16));
      i += 2;
    } else {
      out += text[i];
    }
  }
  return out;
}

}  // namespace

ScopedTrash::ScopedTrash(const TestDir& dir) : trash_(dir.path() / "xdg" / "Trash") {
  if (const char* value = std::getenv("XDG_DATA_HOME")) previous_ = value;
  setenv("XDG_DATA_HOME", (dir.path() / "xdg").c_str(), 1);
}

ScopedTrash::~ScopedTrash() {
  if (previous_) {
    setenv("XDG_DATA_HOME", previous_->c_str(), 1);
  } else {
    unsetenv("XDG_DATA_HOME");
  }
}

std::vector<std::string> ScopedTrash::Names() const {
  std::vector<std::string> names;
  std::error_code ec;
  for (fs::directory_iterator it(Files(), ec), end; !ec && it != end; it.increment(ec)) {
    names.push_back(it->path().filename().string());
  }
  std::sort(names.begin(), names.end());
  return names;
}

std::optional<fs::path> ScopedTrash::OriginalPath(const std::string& name) const {
  std::ifstream in(Info() / (name + ".trashinfo"));
  std::string line;
  while (std::getline(in, line)) {
    if (line.starts_with("Path=")) return fs::path(Unescape(line.substr(5)));
  }
  return std::nullopt;
}

bool ScopedTrash::Restore(const std::string& name) const {
  std::optional<fs::path> original = OriginalPath(name);
  std::error_code ec;
  if (!original || fs::exists(*original, ec)) return false;
  fs::rename(Files() / name, *original, ec);
  if (ec) return false;
  fs::remove(Info() / (name + ".trashinfo"), ec);
  return true;
}
