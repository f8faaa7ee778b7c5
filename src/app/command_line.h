// The program's command line.
#pragma once

#include <QString>
#include <QStringList>

namespace kelvo {

enum class LaunchKind { Window, Headless, PrintVersion, PrintHelp, Refuse };

struct CommandLine {
    LaunchKind kind = LaunchKind::Window;
    bool autorelaunched = false; ///< started again by the sentinel, not by a person
    QString message;             ///< what to print for PrintVersion, PrintHelp and Refuse
};

/// Reads `arguments`, the program's name first.
CommandLine parseCommandLine(const QStringList& arguments);

} // namespace kelvo
