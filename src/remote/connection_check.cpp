#include "remote/connection_check.h"

#include "ports/command_runner.h"
#include "ports/console.h"
#include "ports/dispatch_queue.h"
#include "ports/file_manager.h"
#include "ports/user_defaults.h"
#include "settings/preference_keys.h"
#include "settings/remote_account.h"
#include "support/key_file.h"
#include "support/shell_words.h"
#include "support/text.h"

#include <memory>
#include <utility>

namespace kelvo {
namespace {

constexpr QStringView cTypeName = u"ViewController";
/// Seconds; the time-out that the command names itself comes first.
constexpr double cPatience = 5 + cCommandGrace;
const QString cGoodResponse = QStringLiteral("%@sshgoodresponsestring");
const QString cHost = QStringLiteral("%@2");

QString withoutBlanksBehind(QString text) {
    while (text.endsWith(u' '))
        text.chop(1);
    return text;
}

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
    const QString hostAlone = withoutBlanksBehind(*host);
    const QString blanks = host->sliced(hostAlone.size());
    QString command = text;
    command.replace(cGoodResponse, QString(u'"' + cGoodAnswer + u'"'));
    command.replace(cHost, cHost + blanks);
    return withFillings(
        command, {{QStringLiteral("%@4"), trimmedText(expandingTilde(cPrivateKeyFile, home))},
                  {QStringLiteral("%@3"), trimmedSetting(prefRemotePath)},
                  {QStringLiteral("%@1"), trimmedSetting(prefRemoteUsername)},
                  {cHost, hostAlone}});
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

void ConnectionCheck::ibTestShellCommand() {
    fParts.console.log(insideLine(cTypeName, u"ibTestShellCommand(_:)"));
    ibTestShellCommand222();
}

void ConnectionCheck::ibTestShellCommand222() {
    fParts.console.log(insideLine(cTypeName, u"ibTestShellCommand222(_:)"));
    if (const QString fault = faultOfAccount(); !fault.isEmpty()) {
        if (fParts.refused)
            fParts.refused(target(), fault);
        showFault(fault);
        return;
    }
    fParts.showBusy(true);
    const auto command =
        filledIn(QStringLiteral("ssh -i %@4 -o BatchMode=yes -o ConnectTimeout=5 %@1@%@2 echo "
                                "%@sshgoodresponsestring 2>&1"));
    fParts.console.print(u"cmd to send out is:\n" + command);
    const auto result = std::make_shared<CommandResult>();
    background(
        fParts.bgQueue, fParts.mainQueue, 0.0,
        [&shell = fParts.shell, command, result] {
            *result = shell.run({.text = command, .seconds = cPatience, .bounds = cShortAnswer});
        },
        [this, result, target = target()] { finish(target, *result); });
}

void ConnectionCheck::finish(const QString& target, const CommandResult& result) {
    const QString& output = result.output;
    fParts.console.print(u"got back:\n" + trimmedText(output));
    fParts.console.print(QStringLiteral("----  END  -----"));
    // The shell has taken the quotes away by now, so the line comes only when the output has them.
    if (output.contains(filledIn(cGoodResponse), Qt::CaseInsensitive))
        fParts.console.print(QStringLiteral("ssh remote is alive... connection good"));

    if (fParts.answered)
        fParts.answered(target, result);
    const QString fault = connectionFault(output);
    if (fault.isEmpty())
        show(QStringLiteral("SUCCESS..."), QStringLiteral("remote seem to be alive?..."));
    else
        showFault(fault);
    fParts.showBusy(false);
}

void ConnectionCheck::showFault(const QString& fault) {
    fParts.console.print(fault);
    show(QStringLiteral("Oh OH..."), fault);
}

void ConnectionCheck::show(const QString& title, const QString& text) {
    fParts.showAlert(title, text, [&console = fParts.console](ModalResponse response) {
        console.print(u"response = " + QString::number(response));
    });
}

/// Without a host the command is run as it stands, and ssh says what it thinks of that.
QString ConnectionCheck::faultOfAccount() const {
    const auto host = fParts.defaults.stringForKey(prefRemoteBonjourName);
    if (!host)
        return {};
    const QString user =
        trimmedText(fParts.defaults.stringForKey(prefRemoteUsername).value_or(QString()));
    return accountFault({.user = user, .host = *host},
                        expandingTilde(cPrivateKeyFile, fParts.files.homeDirectory()));
}

QString ConnectionCheck::target() const {
    const auto account = remoteAccount(fParts.defaults);
    return account ? account->destination() : QString();
}

/// Our own texts have no quotes in which something could not be filled in.
QString ConnectionCheck::filledIn(const QString& text) const {
    return fillInSshParams(text, fParts.defaults, fParts.files.homeDirectory(), fParts.console)
        .value_or(text);
}

} // namespace kelvo
