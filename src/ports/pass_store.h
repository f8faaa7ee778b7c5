// PassStore: keeps the records of passes across runs of the program.
#pragma once

#include "support/pass_record.h"
#include "support/subscription.h"

#include <QDate>

#include <functional>
#include <optional>
#include <vector>

namespace kelvo {

/// An arrival as the store keeps it.
struct KeptArrival {
    qint64 id = 0;   ///< grows with each arrival
    qint64 pass = 0; ///< the number of its pass, which may not be kept any more
    Arrival arrival;
};

/// Which arrivals are asked for.
struct ArrivalQuestion {
    QString text = {}; ///< stands in the path, compared as `foldedText`; empty: all
    qint64 before = 0; ///< older than the arrival of this number; 0: from the newest on
    int most = 1000;
};

/// `text` for a search: upper and lower case alike, accents however they are composed.
inline QString foldedText(const QString& text) {
    return text.normalized(QString::NormalizationForm_C).toCaseFolded();
}

/// What came on one day, by this machine's clock at that time.
struct DayOfPasses {
    QDate day;
    qint64 files = 0;
    qint64 bytes = 0;
    bool trouble = false; ///< some pass of the day was in trouble

    bool operator==(const DayOfPasses&) const = default;
};

/// How things stand, whatever number of passes ago it was that something happened.
struct Standing {
    std::optional<PassRecord> last;        ///< the newest pass that says something
    std::optional<PassRecord> lastSuccess; ///< the newest one that went well
    QDateTime troubleSince;     ///< UTC; when the first pass of the present trouble began
    qint64 passesInTrouble = 0; ///< since then
    QString fault;              ///< why the record cannot be written or read now; empty when it can
    QString aside; ///< the damaged record was kept under this name, in this run of the program
    bool replaced = false; ///< the record was removed or replaced by others, in this run

    /// Takes a pass into account that came after all others. Of records only what a list of them
    /// holds is kept: no commands, no arrivals.
    void add(const PassRecord& pass);
};

inline void Standing::add(const PassRecord& pass) {
    if (saysNothing(pass.cause))
        return;
    last = pass;
    last->commands.clear();
    last->arrivals.clear();
    if (!isTrouble(pass.cause)) {
        lastSuccess = last;
        troubleSince = {};
        passesInTrouble = 0;
    } else if (passesInTrouble++ == 0) {
        troubleSince = pass.began;
    }
}

/// Every operation: any thread, returns at once. Answers come on the main queue, in the order of
/// the questions; none comes once the store is gone. A store that cannot read answers with nothing.
class PassStore {
public:
    using Records = std::function<void(std::vector<PassRecord>)>;
    using Record = std::function<void(std::optional<PassRecord>)>;
    using Arrivals = std::function<void(std::vector<KeptArrival>)>;
    using Days = std::function<void(std::vector<DayOfPasses>)>;
    using StandingAnswer = std::function<void(Standing)>;
    using Observer = std::function<void(const PassRecord&, const Standing&)>;

    static constexpr int cMostPasses = 10000;
    static constexpr int cMostArrivals = 50000;

    virtual ~PassStore() = default;

    /// Keeps `record` under a number of the store's own. Only the newest 10,000 are kept. While the
    /// store cannot write, the newest 100 wait in memory and are tried again with the next record.
    virtual void append(const PassRecord& record) = 0;

    /// All records, newest first, without their commands and arrivals.
    virtual void readAll(Records answer) = 0;

    /// Arrivals, newest first. Those of the newest 50,000 are kept, longer than their passes.
    virtual void readArrivals(const ArrivalQuestion& question, Arrivals answer) = 0;

    /// Those of the last `days` days on which there was a pass, oldest first; today is one of them.
    /// Days are kept longer than their passes.
    virtual void readDays(int days, Days answer) = 0;

    /// What could not be written yet counts; a store that cannot read knows nothing else.
    virtual void readStanding(StandingAnswer answer) = 0;

    /// One record with its commands and arrivals; nothing when it is not there any more.
    virtual void read(qint64 id, Record answer) = 0;

    /// Calls `observer` on the main queue with each record that has been appended by this program
    /// from now on, whether it could be written (then it has its number) or not, and what
    /// `readStanding` answers after it. Without commands, with arrivals. A record that is
    /// written while nobody observes is told to nobody, even if somebody begins right then.
    virtual Subscription observe(Observer observer) = 0;
};

} // namespace kelvo
