// The user's trash: what the plug-in deletes in the ordinary way can be
// restored from there by the desktop's file manager.
#pragma once

#include <string_view>

namespace platform {

// Moves a file, or a directory with everything below it, into the trash.
// On POSIX that is the freedesktop home trash, $XDG_DATA_HOME/Trash (by
// default ~/.local/share/Trash), with a .trashinfo record of the original
// path and the time of deletion. False when there is nothing at `path` or
// it could not be moved; nothing is lost then.
bool MoveToTrash(std::wstring_view path);

}  // namespace platform
