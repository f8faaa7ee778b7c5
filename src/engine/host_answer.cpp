#include "engine/host_answer.h"

#include "passes/captured_text.h"
#include "passes/pass_cause.h"
#include "remote/connection_check.h"

namespace kelvo {
namespace {

NamedCause causeOfAsking(const CommandResult& result) {
    return causeOf(CommandRecord{.role = CommandRole::HostCheck,
                                 .command = {},
                                 .exitStatus = result.exitStatus,
                                 .text = capturedText(result.output, result.errors),
                                 .transfer = {}});
}

} // namespace

std::optional<HostAnswer> answerOfCheck(const QString& target, const HostVerdict& verdict,
                                        const CommandResult& result) {
    if (!result.exitStatus || verdict == HostVerdict::NotAsked)
        return std::nullopt;
    if (verdict == HostVerdict::Valid)
        return HostAnswer{.target = target, .cause = PassCause::Well};
    const NamedCause named = causeOfAsking(result);
    return HostAnswer{.target = target, .cause = named.cause, .lastLine = named.lastLine};
}

std::optional<HostAnswer> answerOfTest(const QString& target, const CommandResult& result) {
    if (!result.exitStatus)
        return std::nullopt;
    const bool saidSuccess = connectionFault(result.output).isEmpty();
    const NamedCause named = causeOfAsking(result);
    HostAnswer answer{.target = target,
                      .cause = named.cause,
                      .lastLine = named.lastLine,
                      .saidSuccess = saidSuccess};
    // One line and no fault: the word that was asked for, or the word of something in between.
    if (named.cause == PassCause::WrongUser) {
        const bool good = named.lastLine == cGoodAnswer;
        answer.cause = good ? PassCause::Well : PassCause::Unknown;
        if (good)
            answer.lastLine.clear();
    }
    return answer;
}

std::optional<HostVerdict> verdictOnTheKey(const HostAnswer& answer) {
    switch (answer.cause) {
    case PassCause::Well:
        return HostVerdict::Valid;
    case PassCause::HostNotFound:
    case PassCause::HostAway:
        return HostVerdict::CheckRemoteHost;
    case PassCause::KeyMissing:
        return HostVerdict::CheckSshKeys;
    case PassCause::KeyRefused:
    case PassCause::HostKeyUnknown:
    case PassCause::HostKeyChanged:
        return HostVerdict::CheckUsername;
    default:
        return std::nullopt;
    }
}

} // namespace kelvo
