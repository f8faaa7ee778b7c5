#include "remote/connection_check.h"

#include "ports/command_runner.h"
#include "ports/console.h"
#include "ports/dispatch_queue.h"
#include "ports/file_manager.h"
#include "ports/user_defaults.h"
#include "remote/share_commands.h"
#include "settings/preference_keys.h"
#include "support/key_file.h"
#include "support/text.h"

#include <memory>
#include <utility>

namespace kelvo {
namespace {

constexpr QStringView cTypeName = u"ViewController";
constexpr double cVolumeListDelay = 0.5;
/// Seconds; the time-out that the command names itself comes first.
constexpr double cPatience = 5 + cCommandGrace;
const QString cGoodResponse = QStringLiteral("%@sshgoodresponsestring");

} // namespace

std::optional<QString> fillInSshParams(const QString& text, const UserDefaults& defaults,
                                       const QString& home, Console& console) {
    constexpr QStringView operation = u"fillInSshParams()";
    console.print(insideLine(u"String", operation));
    const auto host = defaults.stringForKey(prefRemoteBonjourName);
    if (!host) {
        console.print(
            insideLine(u"String", operation, u".......OOPS - dont even have domain fillled in..."));
        return text;
    }
    const auto trimmedSetting = [&defaults](QStringView key) {
        return trimmedText(defaults.stringForKey(key).value_or(QString()));
    };
    QString filled = text;
    filled.replace(cGoodResponse, QStringLiteral("\"remoteisgood\""));
    filled.replace(QStringLiteral("%@4"), trimmedText(expandingTilde(cPrivateKeyFile, home)));
    filled.replace(QStringLiteral("%@3"), trimmedSetting(prefRemotePath));
    filled.replace(QStringLiteral("%@1"), trimmedSetting(prefRemoteUsername));
    filled.replace(QStringLiteral("%@2"), *host);
    return filled;
}

QString connectionFault(const QString& output) {
    if (output.contains(u"Warning: Identity file", Qt::CaseInsensitive))
        return QStringLiteral("ssh identity file is invalid or missing ???...");
    if (output.contains(u"Could not resolve hostname", Qt::CaseInsensitive))
        return QStringLiteral("ssh remote has issues - please check network connection or remote "
                              "username@domain parameters...");
    return {};
}

ConnectionCheck::ConnectionCheck(ConnectionCheckParts parts) : fParts(std::move(parts)) {}

// -- ssh

void ConnectionCheck::ibTestShellCommand() {
    fParts.console.log(insideLine(cTypeName, u"ibTestShellCommand(_:)"));
    ibTestShellCommand222();
}

void ConnectionCheck::ibTestShellCommand222() {
    fParts.console.log(insideLine(cTypeName, u"ibTestShellCommand222(_:)"));
    fParts.showBusy(true);
    const auto command =
        filledIn(QStringLiteral("ssh -i %@4 -o BatchMode=yes -o ConnectTimeout=5 %@1@%@2 echo "
                                "%@sshgoodresponsestring 2>&1"));
    if (!command)
        return;
    fParts.console.print(u"cmd to send out is:\n" + *command);
    const auto result = std::make_shared<std::optional<QString>>();
    background(
        fParts.bgQueue, fParts.mainQueue, 0.0,
        [&shell = fParts.shell, command = *command, result] {
            *result = outputWithin(shell, cPatience, command);
        },
        [this, result] { finish(*result); });
}

void ConnectionCheck::finish(const std::optional<QString>& output) {
    if (!output) {
        fParts.showBusy(false);
        return;
    }
    fParts.console.print(u"got back:\n" + trimmedText(*output));
    fParts.console.print(QStringLiteral("----  END  -----"));
    // The shell has taken the quotes away by now, so the line comes only when the output has them.
    const auto token = filledIn(cGoodResponse);
    if (token && output->contains(*token, Qt::CaseInsensitive))
        fParts.console.print(QStringLiteral("ssh remote is alive... connection good"));

    const QString fault = connectionFault(*output);
    if (!fault.isEmpty())
        fParts.console.print(fault);
    fParts.showAlert(fault.isEmpty() ? QStringLiteral("SUCCESS...") : QStringLiteral("Oh OH..."),
                     fault.isEmpty() ? QStringLiteral("remote seem to be alive?...") : fault,
                     [&console = fParts.console](ModalResponse response) {
                         console.print(u"response = " + QString::number(response));
                     });
    fParts.showBusy(false);
}

std::optional<QString> ConnectionCheck::filledIn(const QString& text) const {
    return fillInSshParams(text, fParts.defaults, fParts.files.homeDirectory(), fParts.console);
}

// -- the share

void ConnectionCheck::ibTestShellCommand111() {
    constexpr QStringView operation = u"ibTestShellCommand111(_:)";
    fParts.console.log(insideLine(cTypeName, operation));
    const auto target = shareTarget(fParts.defaults);
    if (!target)
        return;
    const QString command = fParts.commands.openShare(*target);
    const QString output = outputWithin(fParts.shell, cSharePatience, command);
    fParts.console.log(insideLine(
        cTypeName, operation, QString(u".......response[" + command + u"]= [" + output + u"]")));
    if (!output.isEmpty()) {
        fParts.console.log(insideLine(cTypeName, operation, u".......OH OH????"));
        return;
    }
    fParts.mainQueue.asyncAfter(cVolumeListDelay, [this, operation, target] {
        const QString listing = fParts.commands.listVolumes(*target);
        fParts.console.log(
            insideLine(cTypeName, operation,
                       QString(u".......response[" + listing + u"]= " +
                               outputWithin(fParts.shell, cSharePatience, listing))));
    });
}

} // namespace kelvo
