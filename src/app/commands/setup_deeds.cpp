#include "app/commands/setup_deeds.h"

#include "app/commands/once.h"
#include "ports/dialogue.h"
#include "ports/ssh_configuration.h"
#include "ports/user_defaults.h"
#include "settings/preference_keys.h"
#include "settings/remote_account.h"
#include "support/plain_line.h"
#include "ui/pass_words.h"
#include "ui/setup_steps.h"

#include <algorithm>
#include <utility>

namespace kelvo {
namespace {

/// As the window words it.
QString verdictOn(const HostAnswer& answer) {
    const SetupSteps steps = setupSteps({.connection = {.answer = answer}});
    return steps[static_cast<std::size_t>(SetupStep::Connection)].summary;
}

/// Whether a key that is installed now could change the Mac's mind.
bool isMendedByAKey(PassCause cause) {
    return cause == PassCause::KeyMissing || cause == PassCause::KeyRefused ||
           cause == PassCause::HostKeyUnknown;
}

} // namespace

void SetupDeeds::begin(const SetupAnswers& answers, Done done) {
    fAnswers = answers;
    fDone = std::move(done);
    fParts.dialogue.say(QStringLiteral("Asking %1 …").arg(accountText()));
    fParts.key.test([this](const auto& answer) { firstAnswer(answer); });
}

void SetupDeeds::firstAnswer(const std::optional<HostAnswer>& answer) {
    if (fInterrupted || !answer)
        giveUp();
    else if (answer->cause == PassCause::Well && !fAnswers.newKey)
        letIn();
    else if (!isMendedByAKey(answer->cause) && answer->cause != PassCause::Well)
        notLetIn(*answer);
    else if (fParts.dialogue.canAnswer())
        install();
    else
        end(exitCodeFor(answer->cause == PassCause::Well ? CauseGroup::Login
                                                         : wordsFor(answer->cause).group),
            QStringLiteral("%1 The key of this program is installed there with the password of the "
                           "account, which is asked in a terminal, and there is none. %2")
                .arg(verdictOn(*answer), cNothingChanged));
}

void SetupDeeds::install() {
    fParts.dialogue.say(
        QStringLiteral("The key of this program is installed on the Mac now. ssh asks for the "
                       "password of %1; it is kept nowhere. When the two machines meet for the "
                       "first time it asks before that whether to go on connecting: answer yes.")
            .arg(accountText()));
    fParts.key.install(fAnswers.newKey, [this](const QString& why) {
        if (fInterrupted)
            giveUp();
        else if (!why.isEmpty())
            end(exitCodeFor(CauseGroup::Login),
                QStringLiteral("the key was not installed: %1. %2").arg(why, cNothingChanged));
        else
            fParts.key.test([this](const auto& answer) { secondAnswer(answer); });
    });
}

void SetupDeeds::secondAnswer(const std::optional<HostAnswer>& answer) {
    if (fInterrupted || !answer)
        giveUp();
    else if (answer->cause == PassCause::Well)
        letIn();
    else
        notLetIn(*answer);
}

void SetupDeeds::notLetIn(const HostAnswer& answer) {
    const int exitCode = exitCodeFor(wordsFor(answer.cause).group);
    const QString verdict = verdictOn(answer);
    if (!fParts.dialogue.canAnswer()) {
        end(exitCode, QStringLiteral("%1 %2").arg(verdict, cNothingChanged));
        return;
    }
    fParts.dialogue.say(verdict);
    fParts.dialogue.ask(
        QStringLiteral("Store the settings all the same? The service is not enabled then. [y/N] "),
        [this, exitCode](const std::optional<QString>& typed) {
            const QString word = typed.value_or(QString()).trimmed().toLower();
            if (!typed) {
                giveUp();
            } else if (word != u"y" && word != u"yes") {
                end(exitCode, cNothingChanged);
            } else if (storeAll(false)) {
                fParts.dialogue.say(QStringLiteral("The settings are stored. Once the Mac can be "
                                                   "reached: %1 --setup")
                                        .arg(fParts.profile.command()));
                tellSsh();
                end(exitCode);
            }
        });
}

void SetupDeeds::letIn() {
    fParts.dialogue.say(verdictOn({.target = {}, .cause = PassCause::Well}));
    if (const QString kept = fParts.key.keptPath(); !kept.isEmpty())
        fParts.dialogue.say(QStringLiteral("The key of before is kept at %1").arg(kept));
    if (!storeAll(fAnswers.enable))
        return;
    fParts.dialogue.say(QStringLiteral("The settings are stored."));
    const bool sshKnows = tellSsh();
    if (!fAnswers.enable) {
        tellNext();
        end(sshKnows ? 0 : 1);
        return;
    }
    fParts.service.enable(fAnswers.linger, [this, sshKnows](bool well, const QString& text) {
        fParts.dialogue.say(text);
        tellNext();
        end(well && sshKnows ? 0 : 1);
    });
}

/// Ends the set-up where it fails.
bool SetupDeeds::storeAll(bool startByItself) {
    if (fAnswers.makeDestination) {
        if (const FileFault fault = fParts.makeFolder(fAnswers.destination)) {
            end(exitCodeFor(CauseGroup::ThisSide),
                QStringLiteral("the folder could not be made: %1. %2")
                    .arg(oneLine(*fault), cNothingChanged));
            return false;
        }
    }
    if (const QString why = fParts.store(startByItself); !why.isEmpty()) {
        end(cExitNotStored, QStringLiteral("the settings could not be stored: %1").arg(why));
        return false;
    }
    fStored = true;
    return true;
}

/// Whether ssh's configuration is as it was agreed.
bool SetupDeeds::tellSsh() {
    using Knows = SshConfiguration::Knows;
    if (!fAnswers.sshLine)
        return true;
    const Knows before = fParts.ssh.knows();
    if (*fAnswers.sshLine && before != Knows::NotYet)
        return true;
    const QString file = oneLine(fParts.ssh.file());
    if (const QString why = fParts.ssh.setLine(*fAnswers.sshLine); !why.isEmpty()) {
        fParts.dialogue.say(QStringLiteral("%1 was not changed: %2").arg(file, oneLine(why)));
        return false;
    }
    if (*fAnswers.sshLine)
        fParts.dialogue.say(
            QStringLiteral("A line in %1 tells ssh of the connection that passes share. What takes "
                           "it away again: %2 --setup --no-share-connection")
                .arg(file, fParts.profile.command()));
    else if (before == Knows::ByTheLine)
        fParts.dialogue.say(QStringLiteral("The line in %1 is taken away.").arg(file));
    return true;
}

void SetupDeeds::tellNext() const {
    const QString command = fParts.profile.command();
    const QString unit = fParts.profile.unit();
    if (fAnswers.enable)
        tellCommands({{QStringLiteral("systemctl --user status %1").arg(unit), u"how it is"},
                      {QStringLiteral("journalctl --user -u %1 -f").arg(unit), u"what it does"},
                      {QStringLiteral("%1 --passes").arg(command), u"what it has done"}});
    else
        tellCommands({{QStringLiteral("%1 --once").arg(command), u"one pass now"},
                      {QStringLiteral("%1 --headless").arg(command),
                       u"pass after pass, once prefAutoStartScanOnLaunch is set to true"}});
}

void SetupDeeds::tellCommands(const std::vector<std::pair<QString, QStringView>>& commands) const {
    qsizetype width = 0;
    for (const auto& [command, purpose] : commands)
        width = std::max(width, command.size());
    QString text = QStringLiteral("What comes next:");
    for (const auto& [command, purpose] : commands)
        text += u"\n  " + command.leftJustified(width) + u"    " + purpose;
    fParts.dialogue.say(text);
}

void SetupDeeds::giveUp() {
    end(exitCodeFor(CauseGroup::Interrupted),
        QStringLiteral("the set-up was ended. %1").arg(cNothingChanged));
}

void SetupDeeds::end(int exitCode, const QString& errors) {
    std::exchange(fDone, nullptr)(
        {exitCode, {}, errors.isEmpty() ? QString() : QString(u"kelvo-mirror: " + errors + u'\n')});
}

QString SetupDeeds::accountText() const {
    const auto account = remoteAccount(fParts.settings);
    return account ? QStringLiteral("%1 on %2").arg(oneLine(account->user), oneLine(account->host))
                   : QString();
}

} // namespace kelvo
