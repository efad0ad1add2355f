// Writing a file whole or not at all. Every file the plug-in changes in place
// (settings, text outputs, workbooks, saved models) goes through here, so
// that a full disk, a crash or a refused replace never leaves a file half
// written or an old one lost.
#pragma once

#include <filesystem>
#include <string>
#include <string_view>
#include <system_error>

namespace platform {

// Writes `bytes` to a new file beside `file`, puts it on disk, then renames it
// over `file`, which is created if it does not exist. On any failure the new
// file is removed and `file` stays as it was. An existing target keeps its
// permissions; one that is read-only, or that may not be written, is refused
// as the plug-in's home system refuses it. A symbolic link is written
// through. Empty on success, else why it failed.
std::error_code WriteFileAtomically(const std::filesystem::path& file, std::string_view bytes);
// The same for a path as the plug-in writes paths (see ResolvePath).
std::error_code WriteFileAtomically(const std::wstring& path, std::string_view bytes);

}  // namespace platform
