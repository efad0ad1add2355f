#include "FileWrite.h"

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <cerrno>
#include <cstdint>
#include <limits>
#include <optional>
#include <random>

#include "Files.h"
#include "InjectedFaults.h"

namespace fs = std::filesystem;

namespace platform {
namespace {

std::error_code SystemError(int number) { return {number, std::generic_category()}; }
std::error_code LastError() { return SystemError(errno); }

class Descriptor {
 public:
  explicit Descriptor(int fd) : fd_(fd) {}
  ~Descriptor() { Close(); }
  Descriptor(const Descriptor&) = delete;
  Descriptor& operator=(const Descriptor&) = delete;

  int get() const { return fd_; }
  bool Close() {
    int fd = fd_;
    fd_ = -1;
    return fd < 0 || ::close(fd) == 0;
  }

 private:
  int fd_;
};

// The new file's name starts with a dot and ends in letters, so that no
// lookup of models (name.prt.N) or of settings takes it for a file of its own
// should a crash leave it behind.
fs::path NameBeside(const fs::path& target) {
  static constexpr char kLetters[] = "abcdefghijklmnopqrstuvwxyzABCDEFGHIJKLMNOPQRSTUVWXYZ";
  thread_local std::mt19937 random{std::random_device{}()};
  std::uniform_int_distribution<std::size_t> pick(0, sizeof kLetters - 2);
  std::string suffix(6, 'a');
  for (char& c : suffix) c = kLetters[pick(random)];
  return target.parent_path() / ("." + target.filename().string() + "." + suffix);
}

// The system the plug-in was written for refuses to replace a file marked
// read-only whoever asks, the administrator included.
bool IsReadOnly(const fs::path& target, const struct stat& status) {
  return (status.st_mode & (S_IWUSR | S_IWGRP | S_IWOTH)) == 0 || ::access(target.c_str(), W_OK) != 0;
}

std::error_code WriteAll(int fd, std::string_view bytes, std::optional<std::uintmax_t> room) {
  std::uintmax_t left = room.value_or(std::numeric_limits<std::uintmax_t>::max());
  while (!bytes.empty()) {
    if (left == 0) return SystemError(ENOSPC);
    std::size_t chunk = static_cast<std::size_t>(std::min<std::uintmax_t>(bytes.size(), left));
    ssize_t written = ::write(fd, bytes.data(), chunk);
    if (written < 0) {
      if (errno == EINTR) continue;
      return LastError();
    }
    bytes.remove_prefix(static_cast<std::size_t>(written));
    left -= static_cast<std::uintmax_t>(written);
  }
  return {};
}

// Fills the new file and puts it on disk; the caller removes it on failure.
// The content is synced before the rename makes it the file, so a crash
// leaves the old content or the new, never a part. The directory is not
// synced: that would only make the new name last sooner, at a second sync's
// cost on every settings write.
std::error_code FillAndSync(Descriptor& file, std::string_view bytes, const std::optional<mode_t>& mode,
                            const WriteFaults& faults) {
  if (mode && ::fchmod(file.get(), *mode) != 0) return LastError();
  if (std::error_code error = WriteAll(file.get(), bytes, faults.bytesBeforeFull)) return error;
  if (::fsync(file.get()) != 0) return LastError();
  if (!file.Close()) return LastError();
  return {};
}

std::error_code Replace(const fs::path& from, const fs::path& to, const WriteFaults& faults) {
  if (faults.heldOpen) return SystemError(EBUSY);
  if (faults.renameRefused) return SystemError(EPERM);
  return ::rename(from.c_str(), to.c_str()) == 0 ? std::error_code() : LastError();
}

}  // namespace

std::error_code WriteFileAtomically(const fs::path& file, std::string_view bytes) {
  std::error_code error;
  struct stat status {};
  fs::path target = file;
  if (::lstat(file.c_str(), &status) == 0 && S_ISLNK(status.st_mode)) {
    target = fs::weakly_canonical(file, error);
    if (error) return error;
  }
  std::optional<mode_t> mode;
  if (::stat(target.c_str(), &status) == 0) {
    if (S_ISDIR(status.st_mode)) return SystemError(EISDIR);
    if (IsReadOnly(target, status)) return SystemError(EACCES);
    mode = status.st_mode & 07777;
  }
  const WriteFaults faults = FaultsOnWriteOf(target);
  if (faults.readOnlyDirectory) return SystemError(EACCES);

  fs::path partial;
  int fd = -1;
  // A name taken by another writer at the same moment is tried again.
  for (int attempt = 0; fd < 0 && attempt < 100; ++attempt) {
    partial = NameBeside(target);
    fd = ::open(partial.c_str(), O_WRONLY | O_CREAT | O_EXCL | O_CLOEXEC, 0666);
    if (fd < 0 && errno != EEXIST) return LastError();
  }
  if (fd < 0) return SystemError(EEXIST);
  Descriptor handle(fd);
  error = FillAndSync(handle, bytes, mode, faults);
  if (!error) error = Replace(partial, target, faults);
  if (error) {
    handle.Close();
    ::unlink(partial.c_str());
  }
  return error;
}

std::error_code WriteFileAtomically(const std::wstring& path, std::string_view bytes) {
  if (path.empty()) return SystemError(ENOENT);
  return WriteFileAtomically(ResolvePath(path), bytes);
}

}  // namespace platform
