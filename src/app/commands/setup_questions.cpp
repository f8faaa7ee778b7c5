#include "app/commands/setup_questions.h"

#include "app/commands/once.h"
#include "ports/dialogue.h"
#include "ports/file_manager.h"
#include "ports/ssh_configuration.h"
#include "ports/user_defaults.h"
#include "settings/preference_keys.h"
#include "support/plain_line.h"
#include "support/text.h"
#include "ui/pass_words.h"

#include <array>
#include <utility>

namespace kelvo {
SetupQuestions::SetupQuestions(const Parts& parts, SetupRequest request)
    : fParts(parts), fFaults(parts.settings, parts.files), fRequest(std::move(request)) {}

void SetupQuestions::begin(Done done) {
    fDone = std::move(done);
    next();
}

void SetupQuestions::next() {
    static constexpr std::array<Step, 9> cSteps{&SetupQuestions::askForMac,
                                                &SetupQuestions::askForAccount,
                                                &SetupQuestions::askForFolder,
                                                &SetupQuestions::askForDestination,
                                                &SetupQuestions::askToMakeDestination,
                                                &SetupQuestions::askForNewKey,
                                                &SetupQuestions::askToShareConnection,
                                                &SetupQuestions::askToEnable,
                                                &SetupQuestions::askToLinger};
    if (fStep < cSteps.size()) {
        (this->*cSteps[fStep++])();
        return;
    }
    if (fMissing.isEmpty())
        std::exchange(fDone, nullptr)(fAnswers, {});
    else
        fail(cExitBadSetting,
             QStringLiteral("there is no terminal to ask in, and these are missing: %1")
                 .arg(fMissing.join(QStringLiteral(", "))));
}

void SetupQuestions::fail(int exitCode, const QString& why) {
    std::exchange(fDone, nullptr)(
        std::nullopt,
        {exitCode, {}, QStringLiteral("kelvo-mirror: %1. %2\n").arg(why, cNothingChanged)});
}

void SetupQuestions::endOfInput() {
    fail(exitCodeFor(CauseGroup::Interrupted), QStringLiteral("the set-up was ended"));
}

// -- how a question is asked

void SetupQuestions::askFor(const Field& field) {
    if (field.given) {
        const QString value = trimmedText(*field.given);
        if (const QString fault = field.fault(value); !fault.isEmpty())
            fail(cExitBadSetting, QStringLiteral("%1: %2").arg(field.option, fault));
        else
            keep(field, value);
        return;
    }
    auto standing = fParts.settings.stringForKey(field.key);
    if (standing && !field.fault(*standing).isEmpty())
        standing.reset();
    if (fParts.dialogue.canAnswer()) {
        askInTerminal(field, standing);
    } else if (standing) {
        keep(field, *standing);
    } else {
        fMissing.append(field.option.toString());
        next();
    }
}

void SetupQuestions::askInTerminal(const Field& field, const std::optional<QString>& standing) {
    const QString question = standing ? QStringLiteral("%1 [%2]: ").arg(field.question, *standing)
                                      : QStringLiteral("%1: ").arg(field.question);
    fParts.dialogue.ask(question, [this, field, standing](const std::optional<QString>& answer) {
        if (!answer) {
            endOfInput();
            return;
        }
        const QString typed = trimmedText(*answer);
        if (field.takes && field.takes(typed)) {
            next();
            return;
        }
        const QString value = typed.isEmpty() && standing ? *standing : typed;
        if (const QString fault = field.fault(value); !fault.isEmpty()) {
            fParts.dialogue.say(QStringLiteral("That cannot be used: %1.").arg(fault));
            askInTerminal(field, standing);
        } else {
            keep(field, value);
        }
    });
}

void SetupQuestions::keep(const Field& field, const QString& value) {
    fParts.settings.setObject(field.key, value);
    next();
}

void SetupQuestions::askYesOrNo(const QString& question, bool usually,
                                std::function<void(bool)> then) {
    const QStringView choice = usually ? u"[Y/n]" : u"[y/N]";
    fParts.dialogue.ask(
        QStringLiteral("%1 %2 ").arg(question, choice),
        [this, question, usually, then = std::move(then)](const std::optional<QString>& answer) {
            if (!answer) {
                endOfInput();
                return;
            }
            const QString typed = trimmedText(*answer).toLower();
            if (typed.isEmpty())
                then(usually);
            else if (typed == u"y" || typed == u"yes")
                then(true);
            else if (typed == u"n" || typed == u"no")
                then(false);
            else
                askYesOrNo(question, usually, then);
        });
}

// -- the questions

void SetupQuestions::askForMac() {
    if (fRequest.mac || !fParts.dialogue.canAnswer()) {
        askForMacByName();
        return;
    }
    fParts.macs.search([this](bool goesOn) {
        if (goesOn)
            askForMacByName();
        else
            endOfInput();
    });
}

void SetupQuestions::askForMacByName() {
    const bool hasList = fParts.macs.count() > 0;
    askFor({.key = prefRemoteBonjourName,
            .option = u"--mac",
            .question = hasList ? QStringLiteral("Which Mac? Its number, or a host name or address")
                                : QStringLiteral("Host name or address of the Mac"),
            .given = fRequest.mac,
            .fault = [this](const QString& host) { return fFaults.ofMac(host); },
            .takes =
                [this](const QString& typed) {
                    bool isNumber = false;
                    const qsizetype number = typed.toLongLong(&isNumber);
                    if (!isNumber || number < 1 || number > fParts.macs.count())
                        return false;
                    fParts.macs.choose(number);
                    return true;
                }});
}

void SetupQuestions::askForAccount() {
    askFor({.key = prefRemoteUsername,
            .option = u"--account",
            .question = QStringLiteral("Account on the Mac, one that may log in there"),
            .given = fRequest.account,
            .fault = [this](const QString& user) { return fFaults.ofAccount(user); }});
}

void SetupQuestions::askForFolder() {
    askFor({.key = prefRemotePath,
            .option = u"--folder",
            .question = QStringLiteral("Folder with the movies on the Mac"),
            .given = fRequest.folder,
            .fault = [this](const QString& folder) { return fFaults.ofFolder(folder); }});
}

void SetupQuestions::askForDestination() {
    askFor({.key = prefPath2,
            .option = u"--destination",
            .question = QStringLiteral("Folder on this machine that the movies come into"),
            .given = fRequest.destination,
            .fault = [this](const QString& path) { return fFaults.ofDestination(path); }});
}

void SetupQuestions::askToMakeDestination() {
    fAnswers.destination =
        fFaults.wholePath(fParts.settings.stringForKey(prefPath2).value_or(QString()));
    fParts.settings.setObject(prefPath2, fAnswers.destination);
    fAnswers.makeDestination = fRequest.makeDestination;
    if (fAnswers.makeDestination || fAnswers.destination.isEmpty() ||
        fParts.files.fileExistsAtPath(fAnswers.destination)) {
        next();
    } else if (!fParts.dialogue.canAnswer()) {
        fMissing.append(QStringLiteral("--make-destination"));
        next();
    } else {
        askYesOrNo(QStringLiteral("There is no folder %1. Make it?").arg(fAnswers.destination),
                   true, [this](bool agreed) {
                       fAnswers.makeDestination = agreed;
                       if (!agreed && fRequest.destination) {
                           fail(cExitBadSetting, QStringLiteral("--destination: there is no such "
                                                                "folder"));
                           return;
                       }
                       if (!agreed)
                           fStep -= 2; // Another folder, then.
                       next();
                   });
    }
}

/// Half a pair is of no use, and its private half may be somebody's only copy.
void SetupQuestions::askForNewKey() {
    const bool isLone = fParts.files.fileExistsAtPath(fFaults.keyPath()) &&
                        !fParts.files.fileExistsAtPath(QString(fFaults.keyPath() + u".pub"));
    fAnswers.newKey = fRequest.newKey;
    if (!isLone || fRequest.newKey) {
        next();
    } else if (!fParts.dialogue.canAnswer()) {
        fMissing.append(QStringLiteral("--new-key"));
        next();
    } else {
        fParts.dialogue.say(QStringLiteral("Of the key of this program %1 only the private half is "
                                           "there.")
                                .arg(fFaults.keyPath()));
        askYesOrNo(QStringLiteral("Make a new key? That of today is kept beside it, under a name "
                                  "with the date."),
                   false, [this](bool agreed) {
                       if (!agreed) {
                           fail(exitCodeFor(CauseGroup::Login),
                                QStringLiteral("without its public half the key cannot be "
                                               "installed on the Mac"));
                           return;
                       }
                       fAnswers.newKey = true;
                       next();
                   });
    }
}

void SetupQuestions::askToShareConnection() {
    fAnswers.sshLine = fRequest.shareConnection;
    if (fRequest.shareConnection || !fParts.settings.boolForKey(prefKeepConnection) ||
        fParts.ssh.knows() != SshConfiguration::Knows::NotYet || !fParts.dialogue.canAnswer()) {
        next();
        return;
    }
    fParts.dialogue.say(
        QStringLiteral("Passes can share one login to the Mac, and ssh does not know of it yet. "
                       "This line at the top of %1 tells it, and concerns no commands but those of "
                       "passes:\n  %2")
            .arg(oneLine(fParts.ssh.file()), oneLine(fParts.ssh.line())));
    askYesOrNo(QStringLiteral("Add the line?"), true, [this](bool agreed) {
        if (agreed)
            fAnswers.sshLine = true;
        next();
    });
}

void SetupQuestions::askToEnable() {
    fAnswers.enable = fRequest.enable.value_or(false);
    if (fRequest.enable == true && !fParts.service.canBeEnabled) {
        fail(cExitBadSetting,
             QStringLiteral("--enable: systemd's manager of your account does not run here, or "
                            "does not know the unit %1.service")
                 .arg(fParts.unit));
    } else if (fRequest.enable || !fParts.service.canBeEnabled || !fParts.dialogue.canAnswer()) {
        next();
    } else {
        askYesOrNo(QStringLiteral("Keep the folder supplied from now on, as a service of your "
                                  "account (systemd user unit %1)?")
                       .arg(fParts.unit),
                   true, [this](bool agreed) {
                       fAnswers.enable = agreed;
                       next();
                   });
    }
}

void SetupQuestions::askToLinger() {
    fAnswers.linger = fAnswers.enable && fRequest.linger.value_or(false);
    if (!fAnswers.enable || fRequest.linger || fParts.service.lingers ||
        !fParts.dialogue.canAnswer()) {
        next();
        return;
    }
    askYesOrNo(QStringLiteral("Run it from the start of the machine, also while you are not logged "
                              "in (loginctl enable-linger)?"),
               true, [this](bool agreed) {
                   fAnswers.linger = agreed;
                   next();
               });
}

} // namespace kelvo
