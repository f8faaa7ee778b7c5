#include "remote/remote_host_validation.h"

#include "ports/console.h"
#include "ports/file_manager.h"
#include "ports/user_defaults.h"
#include "settings/remote_account.h"
#include "support/key_file.h"
#include "support/shell_words.h"
#include "support/text.h"

#include <algorithm>
#include <utility>

namespace kelvo {

JudgedAnswer judgedAnswer(const QString& answer, const QString& username, bool keyFileExists) {
    const QString lowered = answer.toLower();
    if (lowered == username.toLower())
        return {HostVerdict::Valid, {}};

    const auto begins = [&lowered](QStringView text) {
        return lowered.startsWith(text.toString().toLower());
    };
    if (!keyFileExists) {
        if (begins(u"Warning: Identity file"))
            return {HostVerdict::CheckSshKeys, QStringLiteral("missing clients ssh key2...")};
        return {HostVerdict::fromText(answer), {}};
    }
    if (begins(u"ssh: could not resolve hostname"))
        return {HostVerdict::CheckRemoteHost, QStringLiteral("remote host not on network")};
    if (begins(u"permission denied"))
        return {HostVerdict::CheckUsername, QStringLiteral("check username...")};
    if (begins(u"Warning: Identity file"))
        return {HostVerdict::CheckSshKeys, QStringLiteral("missing clients ssh key1...")};
    return {HostVerdict::UnknownError, QStringLiteral("Please check some other issue??????")};
}

/// Each place of the text is one where any word can be put.
QString whoamiCommand(qint64 timeout, const QString& keyPath, const QString& target) {
    const QString command = u"/usr/bin/ssh 2>&1  -o ConnectTimeout=" + QString::number(timeout) +
                            u"  -i %@1 \"%@2\" whoami";
    return withFillings(command,
                        {{QStringLiteral("%@1"), keyPath}, {QStringLiteral("%@2"), target}})
        .value();
}

RemoteHostValidation::RemoteHostValidation(RemoteHostValidationParts parts)
    : fParts(std::move(parts)) {}

HostVerdict RemoteHostValidation::validateRemoteHostWithWhoami(qint64 timeout) const {
    return validateRemoteHostWithWhoami(
        timeout, [this](const Command& command) { return fParts.commands.run(command); });
}

HostVerdict RemoteHostValidation::validateRemoteHostWithWhoami(qint64 timeout,
                                                               const RunCommand& run) const {
    const Asked asked = ask(timeout, run);
    if (fParts.answered && !asked.givenUp)
        fParts.answered(asked.target, asked.verdict, asked.result);
    return asked.verdict;
}

RemoteHostValidation::Asked RemoteHostValidation::ask(qint64 timeout, const RunCommand& run) const {
    Console& console = fParts.console;
    constexpr QStringView operation = u"validateRemoteHostWithWhoami(_:)";
    console.log(insideLine(u"ViewController", operation,
                           QString(u".......timeout = " + QString::number(timeout))));
    const auto account = remoteAccount(fParts.defaults);
    if (!account)
        return {};
    const QString target = account->destination();

    const QString keyPath = expandingTilde(cPrivateKeyFile, fParts.files.homeDirectory());
    if (const QString fault = accountFault(*account, keyPath); !fault.isEmpty()) {
        console.log(insideLine(u"ViewController", operation, QString(u".......REFUSED: " + fault)));
        return {.target = target, .verdict = {}, .result = {}};
    }
    const QString command = whoamiCommand(timeout, keyPath, target);
    console.print(u"cmd to check valid user and remote host = \n" + command);
    const double patience = std::max(static_cast<double>(timeout) + fParts.grace, 0.0);
    const CommandResult result =
        run({.text = command, .seconds = patience, .bounds = cShortAnswer});
    const QString answer = trimmedText(result.output);

    const QString rule(65, u'=');
    console.print(rule);
    console.print(u"\n\nusername and remote host status =\n" + answer);
    console.print(rule);

    const JudgedAnswer judged =
        judgedAnswer(answer, account->user, fParts.files.fileExistsAtPath(keyPath));
    if (!judged.remark.isEmpty())
        console.print(judged.remark);
    return {.target = target,
            .verdict = judged.verdict,
            .result = result,
            .givenUp = !result.exitStatus};
}

} // namespace kelvo
