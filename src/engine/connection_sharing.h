// ConnectionSharing: lets the commands of passes share one connection to the Mac.
#pragma once

#include "passes/running_pass.h"
#include "ports/kept_connection.h"
#include "support/subscription.h"

#include <QString>

#include <mutex>
#include <optional>
#include <vector>

namespace kelvo {

class Console;
class UserDefaults;

/// What it works with; the references outlive it.
struct ConnectionSharingParts {
    UserDefaults& defaults;
    CommandRunner& commands;
    KeptConnection& connection;
    Console& console;
    QString keyPath; ///< of the program's key
    PassClock clock;
};

/// The login begins beside the check of a pass, so that a first pass takes no longer for it; the
/// pulls, which wait for it no longer than a login of their own would take, and the checks of the
/// next passes go through it. It is kept while syncing is on, for the same Mac, account and key, in
/// the same network, through rests of up to a minute, for an hour at most, and ends with a pass
/// that failed. A check that does not go well over it costs 3 s at most; the connection is closed
/// and the Mac asked once more by a login of its own, and that answer counts. Where logins of both
/// kinds go wrong together the next one waits for a good check.
class ConnectionSharing {
public:
    explicit ConnectionSharing(ConnectionSharingParts parts);
    ConnectionSharing(const ConnectionSharing&) = delete;
    ConnectionSharing& operator=(const ConnectionSharing&) = delete;

    /// Runs a command of a pass as CommandRunner does; the commands of remote passes begin with the
    /// check. The thread of the pass.
    CommandResult run(PassStep step, const Command& command);

    /// A pass has ended. The thread of the pass.
    void ended(const PassRecord& record);

private:
    struct Kept {
        LoginTarget target;
        double opened = 0;  ///< on the clock
        QDateTime openedAt; ///< the same by the calendar: some clocks sleep with the machine
        bool proved = false;
    };

    CommandResult ask(const Command& command);
    CommandResult runOver(const QByteArray& folder, Command command);
    std::optional<LoginTarget> target() const;
    QString reasonToEnd() const;
    void open();
    void end(const QString& reason);
    void settingChanged();

    const ConnectionSharingParts fParts;
    mutable std::mutex fMutex; ///< of all that follows but the subscriptions
    std::optional<Kept> fKept;
    bool fPassRuns = false;
    bool fAfterTheCheck = false; ///< the login waits until the check went well
    double fLogin = 0;           ///< seconds that the last login of a check took
    double fNotBefore = 0;       ///< on the clock; no login is begun earlier
    int fRefusals = 0;           ///< connections in succession that never carried a check
    std::vector<Subscription> fWatched;
};

} // namespace kelvo
