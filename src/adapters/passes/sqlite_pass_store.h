// SqlitePassStore: the records of passes in an SQLite file, on a thread of its own.
#pragma once

#include "adapters/passes/pass_database.h"

#include <condition_variable>
#include <deque>
#include <functional>
#include <map>
#include <memory>
#include <mutex>
#include <thread>

namespace kelvo {

class Console;
class DispatchQueue;

/// The file is opened with the first record, or the first question once there is a file. One that
/// is broken, or another program's, is kept under another name, `<path>.corrupt-<UTC time>`, and
/// begun anew, unless it cannot be read just now; where it is taken away or replaced while it is
/// open, that is noticed with the next record or question. Either way the newest 100 passes of this
/// run are written into the file that is there then. Each kind of trouble is said in the log once,
/// and when it is over; it is over when nothing is left to be written.
class SqlitePassStore final : public PassStore {
public:
    /// `mainQueue` and `console` must outlive the store.
    SqlitePassStore(const QString& path, DispatchQueue& mainQueue, Console& console,
                    PassLimits limits = {});

    /// Writes what has been appended; questions are not answered any more. Takes some seconds at
    /// worst, when another program keeps the file locked.
    ~SqlitePassStore() override;

    /// Does at once what the end of the store does: nothing that comes later is kept or answered.
    /// Why some of what has been appended could not be written; empty when all of it was.
    QString finish();

    /// Has the store do now what the first record waits for else. Returns at once.
    void getReady();

    void append(const PassRecord& record) override;
    void readAll(Records answer) override;
    void readArrivals(const ArrivalQuestion& question, Arrivals answer) override;
    void readDays(int days, Days answer) override;
    void readStanding(StandingAnswer answer) override;
    void read(qint64 id, Record answer) override;
    Subscription observe(Observer observer) override;

private:
    using Job = std::function<void(PassDatabase&)>;
    /// Shared with what waits on the main queue. `tell` on the main thread only.
    struct Observers {
        std::mutex mutex;
        std::map<int, Observer> observers;
        int next = 0;
        bool gone = false;

        bool areThere();
        void tell(const PassRecord& record, const Standing& standing);
    };

    void post(Job job, bool question);
    /// Answers with what `read` found.
    template <typename Result, typename Read>
    void ask(Read read, std::function<void(Result)> answerWith);
    /// What `read` finds; an empty result when it cannot read.
    template <typename Result, typename Read>
    Result found(PassDatabase& database, Read read);
    void work();
    void write(PassDatabase& database, PassRecord record);
    qint64 writeOut(PassDatabase& database);
    void findLostFile(PassDatabase& database);
    bool repaired(PassDatabase& database, PassDatabase::Outcome& outcome, int& repairs);
    void note(const PassDatabase::Outcome& outcome);
    /// Adds what the file does not know.
    void completeStanding(Standing& standing) const;
    void answer(std::function<void()> give);
    void announce(PassRecord record, Standing standing);

    const QString fPath;
    const PassLimits fLimits;
    DispatchQueue& fMainQueue;
    Console& fConsole;
    std::shared_ptr<Observers> fObservers = std::make_shared<Observers>();

    std::mutex fMutex;
    std::condition_variable fPosted;
    std::deque<std::pair<Job, bool>> fJobs; ///< true: a question
    bool fStopping = false;

    // The store's own thread only.
    std::deque<PassRecord> fUnwritten;
    QString fTrouble;
    QString fAside;
    bool fReplaced = false;

    std::thread fThread;
};

} // namespace kelvo
