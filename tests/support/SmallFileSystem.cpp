#include "SmallFileSystem.h"

#include <sys/mount.h>

#include <cerrno>
#include <cstring>
#include <fstream>

namespace fs = std::filesystem;

SmallFileSystem::SmallFileSystem(const TestDir& dir, int kibibytes) : path_(dir.path() / "small") {
  fs::create_directory(path_);
  const std::string options = "size=" + std::to_string(kibibytes) + "k";
  mounted_ = ::mount("tmpfs", path_.c_str(), "tmpfs", 0, options.c_str()) == 0;
  if (!mounted_) refusal_ = "cannot mount a small tmpfs here: " + std::string(std::strerror(errno));
}

SmallFileSystem::~SmallFileSystem() {
  if (mounted_) ::umount2(path_.c_str(), MNT_DETACH);
}

void SmallFileSystem::Fill(std::uintmax_t bytesLeft) const {
  const fs::path filler = path_ / "filler";
  {
    std::ofstream out(filler, std::ios::binary | std::ios::app);
    const std::string block(1024, 'f');
    while (out.write(block.data(), static_cast<std::streamsize>(block.size())) && out.flush()) {
    }
  }
  std::uintmax_t size = fs::file_size(filler);
  fs::resize_file(filler, size > bytesLeft ? size - bytesLeft : 0);
}
