// Folders and files that only their user may enter, whatever the process's mask says.
#pragma once

#include <string>

namespace kelvo {

struct PrivateFolder {
    std::string path;  ///< without a closing "/"; empty when there is none
    std::string fault; ///< why, in words
};

/// For what lives only for a while: "kelvo-mirror" in $XDG_RUNTIME_DIR when that is a folder that
/// the user owns and nobody else may enter or write, else "kelvo-mirror-<user id>" in $TMPDIR or
/// /tmp; made with mode 0700 when missing and refused when it is anybody else's, open to others, or
/// a link; the same goes for the folder `within` in it, which is meant when it is given. Touches
/// only local folders. Any thread.
PrivateFolder temporaryFolderOfUser(const std::string& within = {});

/// Makes the folder `path` and those above it that are missing, each 0700; what is there already
/// keeps its mode. 0, or the errno of the first failure. Any thread.
int makePrivateFolders(const std::string& path);

/// Takes the ordinary file at `path` away from everybody but its user (0600). What is no ordinary
/// file, or another user's, stays as it is. Opens nothing, so that no lock on it ends. Any thread.
void closeToOthers(const std::string& path);

} // namespace kelvo
