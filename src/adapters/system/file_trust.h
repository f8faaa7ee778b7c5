// Who besides this process's user could have written a file or folder.
#pragma once

#include <QString>

struct stat;

namespace kelvo {

/// Why what `entry` describes may hold what another user wrote: "it belongs to another user", "it
/// can be written by other users". Empty when only this user and root can write it; a group of the
/// user's own, with nobody else in it, is the user. Any thread.
QString foreignWriters(const struct stat& entry);

} // namespace kelvo
