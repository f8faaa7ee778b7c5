// The way into the part without a window, which does what the command line asks for.
#include "app/commands/ask.h"
#include "app/commands/once.h"
#include "app/commands/passes.h"
#include "app/commands/profile_transfer.h"
#include "app/commands/profiles.h"
#include "app/commands/settings_commands.h"
#include "app/commands/setup.h"
#include "app/launch.h"
#include "app/program.h"
#include "starter/part.h"

#include <QCoreApplication>

#include <cstdio>

namespace {

int printAnswer(const kelvo::CommandAnswer& answer) {
    std::fputs(answer.errors.toUtf8().constData(), stderr);
    const QByteArray output = answer.output.toUtf8();
    const bool printed = std::fputs(output.constData(), stdout) >= 0 && std::fflush(stdout) == 0;
    return answer.exitCode == 0 && !printed ? 1 : answer.exitCode;
}

} // namespace

extern "C" [[gnu::visibility("default")]] kelvo::RunPart kelvoMirrorRun;

int kelvoMirrorRun(int argc, char** argv) {
    kelvo::keepMemorySmall();
    const kelvo::CommandLine commandLine = kelvo::readCommandLine(argc, argv);
    if (commandLine.kind == kelvo::LaunchKind::Window)
        return kelvo::cOtherPart;
    if (const auto exitCode = kelvo::refused(commandLine))
        return *exitCode;
    const kelvo::Profile& profile = commandLine.profile;
    switch (commandLine.kind) {
    case kelvo::LaunchKind::PrintHelp:
    case kelvo::LaunchKind::PrintVersion:
        std::fputs(qPrintable(commandLine.message), stdout);
        return 0;
    case kelvo::LaunchKind::Once: {
        const QCoreApplication application(argc, argv);
        return printAnswer(kelvo::runOnce(profile, commandLine.json));
    }
    case kelvo::LaunchKind::Ask: {
        const QCoreApplication application(argc, argv);
        return kelvo::runCopyCommand(profile, commandLine.copy);
    }
    case kelvo::LaunchKind::Passes: {
        const QCoreApplication application(argc, argv);
        return printAnswer(kelvo::runPassesCommand(profile, commandLine.passes));
    }
    case kelvo::LaunchKind::Settings: {
        const QCoreApplication application(argc, argv);
        return printAnswer(kelvo::runSettingsCommand(profile, commandLine.settings));
    }
    case kelvo::LaunchKind::Profiles: {
        const QCoreApplication application(argc, argv);
        return printAnswer(kelvo::runProfilesCommand(commandLine.json));
    }
    case kelvo::LaunchKind::Export: {
        const QCoreApplication application(argc, argv);
        return printAnswer(kelvo::runExportCommand(profile, commandLine.transfer.file));
    }
    case kelvo::LaunchKind::Import: {
        const QCoreApplication application(argc, argv);
        return printAnswer(kelvo::runImportCommand(profile, commandLine.transfer));
    }
    case kelvo::LaunchKind::Setup: {
        const QCoreApplication application(argc, argv);
        return printAnswer(kelvo::runSetup(profile, commandLine.setup));
    }
    case kelvo::LaunchKind::Headless: {
        const QCoreApplication application(argc, argv);
        return kelvo::runProgram(kelvo::headlessFront(), profile,
                                 commandLine.noSentinel ? kelvo::RestartBy::Starter
                                                        : kelvo::RestartBy::Sentinel);
    }
    case kelvo::LaunchKind::Refuse:
    case kelvo::LaunchKind::Window:
        break;
    }
    return kelvo::cOtherPart;
}
