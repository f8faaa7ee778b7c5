// PassJournal: puts together the record of each pass while it runs.
#pragma once

#include "ports/pass_listener.h"
#include "support/pass_record.h"

#include <functional>
#include <map>
#include <mutex>
#include <optional>
#include <thread>

namespace kelvo {

struct CommandResult;

struct PassClock {
    std::function<QDateTime()> now;
    std::function<double()> seconds; ///< since any fixed moment; never goes back
};

/// Commands belong to the pass that runs on their thread; those of other threads are nobody's and
/// are not kept. Any thread. The clock's functions and `done` are called on the pass's thread.
class PassJournal final : public PassListener {
public:
    /// `done` gets each record, complete but for its number, when its pass has ended.
    PassJournal(PassClock clock, std::function<void(const PassRecord&)> done);

    void passBegan(PassKind kind) override;
    void hostJudged(const QString& verdict) override;
    void passEnded() override;

    /// A command has ended on this thread after `seconds`.
    void commandEnded(const QString& command, const CommandResult& result, double seconds);

    /// The clock for measuring a command.
    double seconds() const { return fClock.seconds(); }

private:
    struct Open {
        PassRecord record;
        double began;
    };
    Open* open();

    const PassClock fClock;
    const std::function<void(const PassRecord&)> fDone;
    std::mutex fMutex;
    std::map<std::thread::id, Open> fOpen;
};

} // namespace kelvo
