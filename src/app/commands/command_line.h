// The program's command line.
#pragma once

#include "app/commands/copy_request.h"
#include "app/commands/passes.h"
#include "app/commands/profile_transfer.h"
#include "app/commands/profiles.h"
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
    Profiles,
    Export,
    Import,
    PrintVersion,
    PrintHelp,
    Refuse,
};

struct CommandLine {
    LaunchKind kind = LaunchKind::Window;
    bool autorelaunched = false; ///< started again by the sentinel, not by a person
    QString message;             ///< what to print for PrintVersion, PrintHelp and Refuse
    bool json = false;           ///< for Once and Profiles
    bool noSentinel = false;     ///< for Headless: whoever starts the program restarts it
    CopyRequest copy{};          ///< for Ask
    PassesRequest passes{};      ///< for Passes
    SettingsRequest settings{};  ///< for Settings
    SetupRequest setup{};        ///< for Setup
    WindowOptions window{};      ///< for Window
    Profile profile{};           ///< whose settings, record and so on are meant
    TransferRequest transfer{};  ///< for Export and Import
};

/// Reads `arguments`, the program's name first.
CommandLine parseCommandLine(const QStringList& arguments);

/// Whether what `line` asks for makes no sense with a profile that does not exist yet: it reads,
/// takes away, or speaks with a copy that runs.
bool needsProfile(const CommandLine& line);

} // namespace kelvo
