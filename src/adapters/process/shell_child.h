// ShellChild: a shell that was started for one command line, and our ends of its streams.
#pragma once

#include "adapters/system/unique_fd.h"

#include <QByteArray>
#include <QByteArrayView>

#include <sys/types.h>

#include <array>
#include <map>
#include <string>
#include <vector>

namespace kelvo {

struct ShellChild {
    /// The shell's process id, which is its session's and process group's id too. Not reaped yet.
    pid_t pid = -1;
    /// Readable once the shell has ended; empty where the system cannot give one.
    UniqueFd ended;
    /// Our ends of its standard output and its error output; reading does not block.
    UniqueFd output;
    UniqueFd errors;
    std::array<ino_t, 2> pipes{}; ///< the inodes of the two
};

/// The environment for a command: our own as it is now, without the programs that could ask the
/// user for a password on the screen; ssh is told never to look for one. The variables of the
/// display stay; a connection that our own parent keeps does not. The mark of our commands is
/// added.
std::vector<std::string> environmentWithoutPrompts();

/// `environment` with `variables`, in the place of those of the same names.
std::vector<std::string> environmentWith(const std::map<QByteArray, QByteArray>& variables,
                                         std::vector<std::string> environment);

/// Starts `/bin/sh -c command` in a session of its own, with the default action for every signal,
/// none blocked, `input` as its standard input and no other descriptor of ours. Returns 0, or the
/// errno value that tells why there is no child. Any thread.
int startShell(const std::string& command, const std::vector<std::string>& environment,
               QByteArrayView input, ShellChild& child);

} // namespace kelvo
