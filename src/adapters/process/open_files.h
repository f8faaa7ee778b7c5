// Which file a command is writing.
#pragma once

#include "ports/command_runner.h"

#include <sys/types.h>

#include <optional>
#include <string>

namespace kelvo {

/// The file that a process of the session which `shell` leads has open for writing, as
/// CommandRunner tells it: a regular one, not opened for appending as logs are, and none of the
/// standard streams. Any thread.
std::optional<FileBeingWritten> fileWrittenBy(pid_t shell);

/// What the file at `path` will be called: rsync writes "name" as ".name.a1B2c3", and goes on with
/// the half in a hidden folder. Another path stays as it is.
std::string finalPath(const std::string& path);

} // namespace kelvo
