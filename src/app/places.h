// Where the program's files lie.
#pragma once

#include <QString>

namespace kelvo {

QString settingsFile();

/// Where the desktop looks for what to start at login.
QString autostartFolder();

/// Beside bin/ in the build tree and installed alike.
QString resourceFolder();

/// Where the running copy has its place: its lock and its socket, beside the log file.
QString copyFolder();

/// The record of passes, in the user's state folder.
QString passesFile();

} // namespace kelvo
