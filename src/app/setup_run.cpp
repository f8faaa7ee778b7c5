// The set-up from a terminal with the real adapters.
#include "adapters/console/headless_desktop.h"
#include "adapters/console/terminal_dialogue.h"
#include "adapters/console/this_terminal.h"
#include "adapters/network/link_watch.h"
#include "adapters/process/user_ssh_configuration.h"
#include "app/bus_parts.h"
#include "app/commands/once.h"
#include "app/commands/setup.h"
#include "app/commands/setup_deeds.h"
#include "app/commands/setup_questions.h"
#include "app/pass_machine.h"
#include "app/places.h"
#include "ports/dnssd_browser.h"
#include "settings/factory_defaults.h"
#include "settings/overlay_defaults.h"
#include "settings/preference_keys.h"
#include "settings/preferences.h"
#include "support/stored_value.h"

#include <QCoreApplication>
#include <QFile>

#include <unistd.h>

#include <array>
#include <csignal>
#include <filesystem>

namespace kelvo {
namespace {

FileFault makeFolders(const QString& path) {
    std::error_code error;
    std::filesystem::create_directories(QFile::encodeName(path).toStdString(), error);
    return error ? FileFault(QString::fromStdString(error.message())) : FileFault();
}

/// The parts of one set-up, each after those it works with.
class SetupRun {
public:
    SetupRun(const Profile& profile, const SetupRequest& request)
        : fRequest(request), fMachine(-1, -1, DamagedFile::IsLeftAlone, profile) {
        registerFactoryDefaults(fMachine.bundle, fMachine.defaults, fMachine.console);
        for (const int signal : {SIGTERM, SIGINT, SIGHUP})
            fSignalled.push_back(
                fMachine.signals.catchSignal(signal, [this, signal] { interrupt(signal); }));
    }

    /// Why nothing can be set up; empty when it can.
    QString unknownSettings() {
        return fMachine.defaults.areKnown() ? QString() : fMachine.defaults.trouble();
    }

    CommandAnswer run() {
        if (::geteuid() == 0)
            fDialogue.say(QStringLiteral(
                "You are root: settings and key will be root's, and so will the movies. Where they "
                "belong to somebody else, that account should set this up."));
        fMachine.mainQueue.async(
            [this] { fService.look([this](const ServiceFacts& facts) { ask(facts); }); });
        QCoreApplication::exec();
        fMachine.end();
        if (!fDeeds.stored()) {
            if (const QString fault = fKey.undo(); !fault.isEmpty())
                fAnswer.errors += QStringLiteral("kelvo-mirror: the key of before could not be put "
                                                 "back (%1). It lies at %2\n")
                                      .arg(fault, fKey.keptPath());
        }
        return fAnswer;
    }

private:
    void ask(const ServiceFacts& facts) {
        fQuestions.emplace(SetupQuestions::Parts{.dialogue = fDialogue,
                                                 .settings = fSettings,
                                                 .files = fMachine.files,
                                                 .macs = fMacs,
                                                 .ssh = fSsh,
                                                 .service = facts,
                                                 .unit = fMachine.profile.unit()},
                           fRequest);
        fQuestions->begin(
            [this](const std::optional<SetupAnswers>& answers, const CommandAnswer& failure) {
                if (answers)
                    fDeeds.begin(*answers, [this](const CommandAnswer& answer) { end(answer); });
                else
                    end(failure);
            });
    }

    /// By Ctrl+C what runs in the terminal has got a signal of its own, and its end goes first.
    void interrupt(int signal) {
        fDialogue.takeBack();
        fDeeds.interrupt();
        if (fTerminal.isBusy())
            fDialogue.say({}); // The line of the question that stands there is ended.
        if (signal == SIGINT && fTerminal.isBusy())
            return;
        const QString stands =
            fDeeds.stored() ? QStringLiteral("The settings are stored.") : cNothingChanged;
        end({exitCodeFor(CauseGroup::Interrupted),
             {},
             QStringLiteral("kelvo-mirror: the set-up was ended. %1\n").arg(stands)});
    }

    void end(const CommandAnswer& answer) {
        fAnswer = answer;
        QCoreApplication::quit();
    }

    /// The account comes last: a running copy that sees it change reads the others anew.
    QString store(bool startByItself) {
        fSettings.setObject(prefRsyncWithSSH, true);
        if (startByItself)
            fSettings.setObject(prefAutoStartScanOnLaunch, true);
        constexpr auto cKeys = std::to_array<QStringView>(
            {prefRemoteBonjourName, prefRemoteDnssdServiceData, prefRemotePath, prefPath2,
             prefRsyncWithSSH, prefAutoStartScanOnLaunch, prefRemoteUsername});
        for (const QStringView key : cKeys) {
            const QVariant value = fSettings.object(key);
            if (!sameStoredValue(fMachine.defaults.object(key), value))
                fMachine.defaults.setObject(key, value);
        }
        fMachine.defaults.synchronize();
        PlistDefaults again(settingsFile(fMachine.profile), DamagedFile::IsLeftAlone, isState,
                            fMachine.mainQueue, fMachine.console);
        registerFactoryDefaults(fMachine.bundle, again, fMachine.console);
        for (const QStringView key : cKeys) {
            if (!again.areKnown() || !sameStoredValue(again.object(key), fSettings.object(key))) {
                const QString why = fMachine.defaults.trouble();
                return why.isEmpty() ? QStringLiteral("they read otherwise afterwards") : why;
            }
        }
        return {};
    }

    const SetupRequest fRequest;
    CommandAnswer fAnswer;
    PassMachine fMachine;
    std::vector<Subscription> fSignalled;
    OverlayDefaults fSettings{fMachine.defaults};
    TerminalDialogue fDialogue{STDIN_FILENO, STDOUT_FILENO};
    ThisTerminal fTerminal;
    HeadlessWorkspace fWorkspace;
    std::unique_ptr<DnssdBrowser> fBrowser =
        lateBusParts().makeBrowser(fMachine.console, fMachine.mainQueue);
    SetupMacs fMacs{{.dialogue = fDialogue,
                     .settings = fSettings,
                     .mainQueue = fMachine.mainQueue,
                     .bgQueue = fMachine.bgQueue,
                     .console = fMachine.console,
                     .browser = *fBrowser,
                     .hasNetwork = hasUsableLink}};
    UserSshConfiguration fSsh{sshFragment(), sshFragmentOfTheMachine()};
    SetupService fService{{.mainQueue = fMachine.mainQueue,
                           .bgQueue = fMachine.bgQueue,
                           .commands = fMachine.commands,
                           .unit = fMachine.profile.unit()}};
    SetupKey fKey{{.settings = fSettings,
                   .files = fMachine.files,
                   .console = fMachine.console,
                   .mainQueue = fMachine.mainQueue,
                   .bgQueue = fMachine.bgQueue,
                   .commands = fMachine.commands,
                   .terminal = fTerminal,
                   .workspace = fWorkspace,
                   .now = [] { return QDateTime::currentDateTimeUtc(); }}};
    SetupDeeds fDeeds{{.profile = fMachine.profile,
                       .dialogue = fDialogue,
                       .settings = fSettings,
                       .key = fKey,
                       .service = fService,
                       .ssh = fSsh,
                       .makeFolder = makeFolders,
                       .store = [this](bool startByItself) { return store(startByItself); }}};
    std::optional<SetupQuestions> fQuestions;
};

} // namespace

CommandAnswer runSetup(const Profile& profile, const SetupRequest& request) {
    SetupRun run(profile, request);
    if (const QString unknown = run.unknownSettings(); !unknown.isEmpty())
        return settingsUnknown(unknown);
    return run.run();
}

} // namespace kelvo
