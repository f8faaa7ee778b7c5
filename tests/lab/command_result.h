// CommandResult: what a command said and how it ended.
#pragma once

#include <QByteArray>

namespace kelvo {

struct CommandResult {
    int exitCode = -1; ///< -1: it did not end in time, or not by itself
    QByteArray output; ///< standard output and error, as they came
    double seconds = 0;
};

} // namespace kelvo
