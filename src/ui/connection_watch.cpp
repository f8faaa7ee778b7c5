#include "ui/connection_watch.h"

#include "ports/pass_store.h"
#include "settings/remote_account.h"
#include "support/shell_words.h"

#include <algorithm>
#include <utility>

namespace kelvo {
namespace {

/// What a pass says of the login, and nothing when its check asked somebody else.
std::optional<HostAnswer> answerOf(const PassRecord& pass, const QString& target) {
    const QString word = u'"' + insideDoubleQuotes(target) + u"\" ";
    const bool askedTarget =
        std::ranges::any_of(pass.commands, [&word](const CommandRecord& command) {
            return command.role == CommandRole::HostCheck && command.command.contains(word);
        });
    if (!askedTarget)
        return std::nullopt;
    if (!endedAtTheCheck(pass))
        return HostAnswer{.target = target, .cause = PassCause::Well};
    return HostAnswer{.target = target, .cause = pass.cause, .lastLine = pass.lastLine};
}

} // namespace

ConnectionWatch::ConnectionWatch(Parts parts)
    : fParts(std::move(parts)), fKeyIsKnown(fParts.keyState.has_value()) {
    fParts.passes.readStanding([this,
                                counts = std::weak_ptr(fRecordCounts)](const Standing& standing) {
        if (counts.expired())
            return;
        if (standing.last)
            readRecord(standing.last->id, [this](const PassRecord& pass) {
                if (const auto answer = answerOf(pass, target()); answer && !fConnection.answer) {
                    fConnection.answer = answer;
                    fConnection.asked = pass.began;
                }
            });
        if (standing.lastSuccess)
            readRecord(standing.lastSuccess->id, [this](const PassRecord& pass) {
                fConnection.letInBefore =
                    fConnection.letInBefore || answerOf(pass, target()).has_value();
            });
    });
}

void ConnectionWatch::answered(const HostAnswer& answer) {
    if (answer.target != target())
        return;
    fConnection.answer = answer;
    fConnection.asked = fParts.now();
    fConnection.letInBefore = fConnection.letInBefore || answer.cause == PassCause::Well;
    show();
}

void ConnectionWatch::setKeyState(KeyState state) {
    if (!std::exchange(fKeyIsKnown, true))
        return;
    if (state != KeyState::NoKey && state != KeyState::NotAsked && state != KeyState::HostUnset)
        return;
    fRecordCounts = std::make_shared<int>();
    fConnection = {};
    show();
}

void ConnectionWatch::readRecord(qint64 pass, std::function<void(const PassRecord&)> use) {
    fParts.passes.read(pass, [this, use = std::move(use), counts = std::weak_ptr(fRecordCounts)](
                                 const std::optional<PassRecord>& record) {
        if (counts.expired() || !record)
            return;
        use(*record);
        show();
    });
}

QString ConnectionWatch::target() const {
    const auto account = remoteAccount(fParts.defaults);
    return account ? account->destination() : QString();
}

} // namespace kelvo
