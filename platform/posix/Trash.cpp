#include "Trash.h"

#include <fcntl.h>
#include <unistd.h>

#include <cerrno>
#include <cstdio>
#include <cstdlib>
#include <ctime>
#include <filesystem>
#include <optional>
#include <string>

#include "Files.h"

namespace fs = std::filesystem;

namespace platform {
namespace {

// The home trash. $XDG_DATA_HOME counts only when absolute.
std::optional<fs::path> HomeTrash() {
  const char* dataHome = std::getenv("XDG_DATA_HOME");
  if (dataHome && *dataHome == '/') return fs::path(dataHome) / "Trash";
  const char* home = std::getenv("HOME");
  if (!home || !*home) return std::nullopt;
  return fs::path(home) / ".local" / "share" / "Trash";
}

bool EnsurePrivateDirectory(const fs::path& dir) {
  std::error_code ec;
  fs::create_directories(dir, ec);
  if (ec) return false;
  fs::permissions(dir, fs::perms::owner_all, ec);
  return fs::is_directory(dir, ec);
}

// The trash info file keeps the path as a URL path: every byte but the
// unreserved ones and "/" is escaped.
std::string EscapePath(const std::string& path) {
  std::string escaped;
  for (unsigned char c : path) {
    bool plain = (c >= 'A' && c <= 'Z') || (c >= 'a' && c <= 'z') || (c >= '0' && c <= '9') || c == '-' ||
                 c == '_' || c == '.' || c == '~' || c == '/';
    if (plain) {
      escaped += static_cast<char>(c);
    } else {
      char hex[4];
      std::snprintf(hex, sizeof hex, "%%%02X", c);
      escaped += hex;
    }
  }
  return escaped;
}

std::string LocalTimeNow() {
  std::time_t now = std::time(nullptr);
  std::tm local{};
  localtime_r(&now, &local);
  char text[32];
  std::strftime(text, sizeof text, "%Y-%m-%dT%H:%M:%S", &local);
  return text;
}

bool WriteNew(const fs::path& file, const std::string& bytes) {
  int fd = ::open(file.c_str(), O_WRONLY | O_CREAT | O_EXCL, 0600);
  if (fd < 0) return false;
  bool written = ::write(fd, bytes.data(), bytes.size()) == static_cast<ssize_t>(bytes.size());
  ::close(fd);
  if (!written) ::unlink(file.c_str());
  return written;
}

// Claims a name in the trash by creating its info file exclusively, so that
// two deletions of files with one name never take the same place.
std::optional<std::string> ClaimName(const fs::path& infoDir, const std::string& name,
                                     const std::string& info) {
  for (int attempt = 1; attempt < 10000; ++attempt) {
    std::string candidate = attempt == 1 ? name : name + " (" + std::to_string(attempt) + ")";
    if (WriteNew(infoDir / (candidate + ".trashinfo"), info)) return candidate;
    if (errno != EEXIST) return std::nullopt;
  }
  return std::nullopt;
}

// A rename, or across file systems a copy that is removed only once complete.
bool MoveEntry(const fs::path& from, const fs::path& to) {
  std::error_code ec;
  fs::rename(from, to, ec);
  if (!ec) return true;
  if (ec != std::errc::cross_device_link) return false;
  fs::copy(from, to, fs::copy_options::recursive | fs::copy_options::copy_symlinks, ec);
  if (ec) {
    fs::remove_all(to, ec);
    return false;
  }
  fs::remove_all(from, ec);
  return !ec;
}

}  // namespace

bool MoveToTrash(std::wstring_view path) {
  if (path.empty()) return false;
  std::error_code ec;
  fs::path source = fs::absolute(ResolvePath(path), ec).lexically_normal();
  if (ec) return false;
  if (!source.has_filename()) source = source.parent_path();
  if (!fs::exists(fs::symlink_status(source, ec)) || source == source.root_path()) return false;

  std::optional<fs::path> trash = HomeTrash();
  if (!trash || !EnsurePrivateDirectory(*trash / "files") || !EnsurePrivateDirectory(*trash / "info"))
    return false;
  std::string info =
      "[Trash Info]\nPath=" + EscapePath(source.string()) + "\nDeletionDate=" + LocalTimeNow() + "\n";
  std::optional<std::string> name = ClaimName(*trash / "info", source.filename().string(), info);
  if (!name) return false;
  if (MoveEntry(source, *trash / "files" / *name)) return true;
  fs::remove(*trash / "info" / (*name + ".trashinfo"), ec);
  return false;
}

}  // namespace platform
