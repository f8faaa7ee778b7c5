// Folders and files that only their user may enter, whatever the process's mask says.
#pragma once

#include <cstddef>
#include <string>

namespace kelvo {

struct PrivateFolder {
    std::string path;  ///< without a closing "/"; empty when there is none
    std::string fault; ///< why, in words
};

/// For what lives only for a while: "kelvo-mirror" in $XDG_RUNTIME_DIR when that is a folder that
/// the user owns and nobody else may enter or write, else "kelvo-mirror-<user id>" in $TMPDIR or
/// /tmp; made with mode 0700 when missing and refused when it is anybody else's, open to others, or
/// a link. A folder whose path has more than `longest` bytes is passed over; /tmp is the last that
/// is tried. Touches only local folders. Any thread.
PrivateFolder temporaryFolderOfUser(std::size_t longest = std::string::npos);

/// The folder `name` in that one, made and judged alike. Any thread.
PrivateFolder temporaryFolderWithin(const std::string& name);

/// Makes the folder `path` and those above it that are missing, each 0700; what is there already
/// keeps its mode. 0, or the errno of the first failure. Any thread.
int makePrivateFolders(const std::string& path);

/// Takes the ordinary file at `path` away from everybody but its user (0600). What is no ordinary
/// file, or another user's, stays as it is. Opens nothing, so that no lock on it ends. Any thread.
void closeToOthers(const std::string& path);

} // namespace kelvo
