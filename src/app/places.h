// Where the program's files lie.
#pragma once

#include "support/profile.h"

#include <QString>
#include <QStringList>

namespace kelvo {

QString settingsFile(const Profile& profile);

/// The names of this user's profiles: those that have a folder for their settings. Sorted.
QStringList profileNames();

/// Where the desktop looks for what to start at login.
QString autostartFolder();

/// Beside bin/ in the build tree and installed alike.
QString resourceFolder();

/// What tells ssh of the connection that passes share: the program's own file, and the one by which
/// the machine's configuration does so for all its users.
QString sshFragment();
QString sshFragmentOfTheMachine();

/// Where the running copy has its place: its lock and its socket, beside the log file.
QString copyFolder(const Profile& profile);

/// The record of passes, in the user's state folder.
QString passesFile(const Profile& profile);

/// Beside it: which pull left nothing half.
QString wholePullFile(const Profile& profile);

/// The folder for the log file, the lock and the socket of the one copy, within the user's state
/// folder.
QString logSubdirectory(const Profile& profile);

} // namespace kelvo
