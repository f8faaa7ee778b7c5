// The program's command line.
#pragma once

#include "app/commands/copy_request.h"
#include "app/commands/passes.h"
#include "app/commands/settings_commands.h"
#include "app/commands/setup_request.h"
#include "app/commands/window_options.h"

#include <QString>
#include <QStringList>

namespace kelvo {

enum class LaunchKind {
    Window,
    Headless,
    Once,
    Ask, ///< the running copy
    Passes,
    Settings,
    Setup,
    PrintVersion,
    PrintHelp,
    Refuse,
};

struct CommandLine {
    LaunchKind kind = LaunchKind::Window;
    bool autorelaunched = false; ///< started again by the sentinel, not by a person
    QString message;             ///< what to print for PrintVersion, PrintHelp and Refuse
    bool json = false;           ///< for Once
    bool noSentinel = false;     ///< for Headless: whoever starts the program restarts it
    CopyRequest copy{};          ///< for Ask
    PassesRequest passes{};      ///< for Passes
    SettingsRequest settings{};  ///< for Settings
    SetupRequest setup{};        ///< for Setup
    WindowOptions window{};      ///< for Window
};

/// Reads `arguments`, the program's name first.
CommandLine parseCommandLine(const QStringList& arguments);

} // namespace kelvo
