#include "remote/remote_host_validation.h"

#include "ports/console.h"
#include "ports/file_manager.h"
#include "ports/user_defaults.h"
#include "settings/preference_keys.h"
#include "support/key_file.h"
#include "support/text.h"

#include <algorithm>

namespace kelvo {

HostVerdict hostVerdict(const QString& answer, const QString& username, bool keyFileExists) {
    const QString lowered = answer.toLower();
    if (lowered == username.toLower())
        return {QStringLiteral("valid"), {}};

    const auto begins = [&lowered](QStringView text) {
        return lowered.startsWith(text.toString().toLower());
    };
    if (!keyFileExists) {
        if (begins(u"Warning: Identity file"))
            return {QStringLiteral("checksshkeys"), QStringLiteral("missing clients ssh key2...")};
        return {answer, {}};
    }
    if (begins(u"ssh: could not resolve hostname"))
        return {QStringLiteral("checkremotehost"), QStringLiteral("remote host not on network")};
    if (begins(u"permission denied"))
        return {QStringLiteral("checkusername"), QStringLiteral("check username...")};
    if (begins(u"Warning: Identity file"))
        return {QStringLiteral("checksshkeys"), QStringLiteral("missing clients ssh key1...")};
    return {QStringLiteral("unknownerror"), QStringLiteral("Please check some other issue??????")};
}

QString whoamiCommand(qint64 timeout, const QString& keyPath, const QString& target) {
    QString command = u"/usr/bin/ssh 2>&1  -o ConnectTimeout=" + QString::number(timeout) +
                      u"  -i %@1 \"%@2\" whoami";
    command.replace(QStringLiteral("%@1"), keyPath);
    return command.replace(QStringLiteral("%@2"), target);
}

QString RemoteHostValidation::validateRemoteHostWithWhoami(qint64 timeout) {
    fConsole.log(insideLine(u"ViewController", u"validateRemoteHostWithWhoami(_:)",
                            QString(u".......timeout = " + QString::number(timeout))));
    const auto username = fDefaults.stringForKey(prefRemoteUsername);
    if (!username)
        return {};
    const auto host = fDefaults.stringForKey(prefRemoteBonjourName);
    if (!host)
        return {};

    const QString keyPath = expandingTilde(cPrivateKeyFile, fFiles.homeDirectory());
    const QString command = whoamiCommand(timeout, keyPath, QString(*username + u'@' + *host));
    fConsole.print(u"cmd to check valid user and remote host = \n" + command);
    const double patience = static_cast<double>(timeout) + fGrace;
    const QString answer = trimmedText(fShell.outputWithin(std::max(patience, 0.0), command));

    const QString rule(65, u'=');
    fConsole.print(rule);
    fConsole.print(u"\n\nusername and remote host status =\n" + answer);
    fConsole.print(rule);

    const HostVerdict judged = hostVerdict(answer, *username, fFiles.fileExistsAtPath(keyPath));
    if (!judged.remark.isEmpty())
        fConsole.print(judged.remark);
    return judged.verdict;
}

} // namespace kelvo
