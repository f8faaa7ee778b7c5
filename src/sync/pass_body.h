// PassBody: what one pass does, from the settings it reads to the command after arrivals.
#pragma once

#include "ports/command_runner.h"
#include "support/pass_progress.h"
#include "support/pass_record.h"
#include "support/subscription.h"

#include <QString>
#include <QStringView>

#include <functional>
#include <optional>
#include <utility>

namespace kelvo {

class Console;
class FileManager;
class RsyncCommand;
class RunningPass;
class UserDefaults;

inline constexpr QStringView cPlainOperation = u"doSyncOnce()";
inline constexpr QStringView cRemoteOperation = u"doSyncOnceBonjour()";

/// Everything a body works with; all of it outlives the body.
struct PassBodyParts {
    UserDefaults& defaults;
    const FileManager& files;
    Console& console;
    const RsyncCommand& rsyncCommand;
    /// Asks the remote host by `run`, with ssh's connect time-out in seconds. Blocks; any thread.
    std::function<HostVerdict(qint64 timeout, const RunCommand& run)> validateRemoteHost;
    /// Told on the thread of the pass before its first pull.
    std::function<void()> pullsBegin;
};

/// What a pass came to, as far as it decides about the next one.
struct PassEnd {
    std::optional<HostVerdict> failedCheck = {}; ///< the host was asked for and is not valid
    bool lacksSettings = false; ///< settings are missing, or cannot stand in a command
};

class PassBody {
public:
    explicit PassBody(PassBodyParts parts) : fParts(std::move(parts)) {}

    /// Runs the whole of `pass`. Blocks as long as its commands do; any thread.
    PassEnd run(RunningPass& pass, PassKind kind) const;

    /// Whether the settings hold all that a pass needs. Any thread.
    bool hasSettings(PassKind kind) const;

private:
    PassEnd runPlain(RunningPass& pass) const;
    PassEnd runRemote(RunningPass& pass) const;
    bool refuses(RunningPass& pass, QStringView operation, const QString& fault) const;
    QString remoteFault(const QString& keyPath) const;
    HostVerdict validateRemoteHost(RunningPass& pass) const;
    bool sourceIsThere(RunningPass& pass, const QString& source) const;
    std::optional<Subscription> claimDestination(RunningPass& pass, QStringView operation,
                                                 const QString& destination) const;
    bool pull(RunningPass& pass, PassStep step, const QString& command, QStringView heading) const;
    void afterPulls(RunningPass& pass, const QString& destination, bool allSaid) const;
    QString rsyncTemplate() const;
    QString keyFilePath() const;
    void logInside(QStringView operation, QStringView detail) const;
    void printResult(QStringView heading, const QString& output) const;

    const PassBodyParts fParts;
};

} // namespace kelvo
