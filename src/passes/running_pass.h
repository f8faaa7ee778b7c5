// RunningPass: one pass from its begin to its record.
#pragma once

#include "passes/pass_cause.h"
#include "passes/rsync_output_reader.h"
#include "passes/written_files.h"
#include "ports/command_runner.h"
#include "support/name_list.h"
#include "support/pass_progress.h"
#include "support/pass_record.h"

#include <functional>
#include <mutex>
#include <optional>
#include <vector>

namespace kelvo {

class RunningPass;

struct PassClock {
    std::function<QDateTime()> now;
    std::function<double()> seconds; ///< since any fixed moment; never goes back
};

/// The pull that left nothing half when it ran last, kept from one run of the program to the next.
/// Both are called on the pass's thread.
struct WholePull {
    std::function<QString()> last; ///< its command; empty when nobody knows
    std::function<void(const QString&)> keep;
};

/// Runs a command of a pass at a step of it.
using RunStep = std::function<CommandResult(PassStep, const Command&)>;

/// What can be seen of a pass while it runs.
struct PassUnderWay {
    PassKind kind = PassKind::Plain;
    QDateTime began; ///< UTC
    QString command; ///< the one that runs at the moment, if one does
    PassProgress progress;
    bool cancelled = false;
};

/// The passes that run now. Any thread; several passes may run at the same time.
class RunningPasses {
public:
    /// `commands` outlives the passes. The clock's functions and `ended` are called on the pass's
    /// thread; `ended` gets each record, complete but for its number, when its pass has ended.
    /// Commands are run by `run`, on the pass's thread too; without it by `commands` alone.
    RunningPasses(CommandRunner& commands, PassClock clock, WholePull wholePull,
                  std::function<void(const PassRecord&)> ended, RunStep run = {});

    /// Oldest first. Only who asks makes somebody look what a command that says nothing is writing,
    /// and never more than five times a second.
    std::vector<PassUnderWay> underWay() const;

    /// Ends the passes that run, at a person's wish: their commands are ended, they run no others,
    /// and their cause is Cancelled. Returns at once.
    void cancel();

private:
    friend RunningPass;

    CommandRunner& fCommands;
    const PassClock fClock;
    const WholePull fWholePull;
    const std::function<void(const PassRecord&)> fEnded;
    const RunStep fRun;
    mutable std::mutex fMutex;
    std::vector<RunningPass*> fPasses;
    QString fWentWell; ///< the last pull that did
};

/// Begins when it is made and ends when it goes. Commands may run on any thread, one at a time.
class RunningPass {
public:
    /// `passes` outlives the pass.
    RunningPass(RunningPasses& passes, PassKind kind);

    /// The pass has run its last command: hands the record over.
    ~RunningPass();
    RunningPass(const RunningPass&) = delete;
    RunningPass& operator=(const RunningPass&) = delete;

    /// Runs `command` as CommandRunner does and writes it down; of a pull's output without the
    /// lines that show progress. A cancelled pass runs nothing and answers as a command does that
    /// was given up.
    ///
    /// A pull with cPartialOption that has gone well the last time does without its folder for half
    /// files, which costs more than all else where nothing has changed. Once it begins a file of
    /// which a half would be worth keeping, it is ended and run again with that folder; only the
    /// second run is written down.
    CommandResult run(PassStep step, const Command& command);

    /// Any thread.
    bool isCancelled() const;

    /// The files that pulls have named so far, at most 50,000 of each: the bytes of their names,
    /// relative to the source. They may not have come whole.
    const NameList& names() const { return fNames; }

    /// What the pass has brought so far; kept in its record.
    void brought(std::vector<Arrival> arrivals);

    /// UTC.
    const QDateTime& began() const { return fRecord.began; }

    /// The pass ends before its pulls: `why` tells which text of the settings cannot stand in one,
    /// or what else keeps them from being run.
    void refused(const QString& why, PassCause cause = PassCause::SettingsRefused) {
        fRefused = {cause, why};
    }

    /// Remote passes only: what the host check came to.
    void judged(const HostVerdict& verdict) { fRecord.verdict = verdict; }

private:
    friend RunningPasses;

    CommandResult runOnce(PassStep step, const Command& command);
    void remember(const QString& wholePull);
    bool endAtLargeFile();
    bool show(PassStep step, const QString& command);
    void commandStarted(CommandId id, const Command& command);
    void received(QByteArrayView bytes, const Command& command);
    Transfer pulled(CommandResult& result, const QString& command);
    PassUnderWay seen();

    RunningPasses& fPasses;
    PassRecord fRecord;
    NameList fNames;
    std::optional<NamedCause> fRefused;
    const double fBegan;
    PassUnderWay fNow;                 ///< guarded by the mutex of all passes
    std::optional<CommandId> fCommand; ///< the one that runs; guarded likewise, as what follows
    std::optional<RsyncOutputReader> fReader; ///< of a pull that runs
    WrittenFiles fWritten;
};

} // namespace kelvo
