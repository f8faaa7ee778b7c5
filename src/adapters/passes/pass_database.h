// PassDatabase: the SQLite file with the records of passes.
#pragma once

#include "adapters/passes/pass_statements.h"

#include <QSqlDatabase>
#include <QSqlQuery>
#include <QString>

#include <sys/types.h>

#include <array>
#include <deque>
#include <functional>
#include <optional>
#include <utility>
#include <vector>

namespace kelvo {

/// How much is kept: the newest.
struct PassLimits {
    int passes = PassStore::cMostPasses;
    int arrivals = PassStore::cMostArrivals;
    /// What the file may hold. Looked at now and then; beyond it passes go before arrivals.
    qint64 bytes = qint64{32} * 1024 * 1024;
};

/// One thread only, the one that first opens it. Several programs may have the same file open.
class PassDatabase {
public:
    /// How an operation ended.
    struct Outcome {
        enum Kind {
            Done,
            Broken, ///< the file is no database, a damaged one or another program's
            Failed, ///< no room, no permission, kept locked by another program …
        };
        Kind kind = Done;
        QString reason;
        explicit operator bool() const { return kind == Done; }
    };

    enum class Access {
        ReadAndWrite,
        ReadOnly, ///< `readAll` and `readArrivals` of any layout; nothing is made or taken over
    };

    explicit PassDatabase(const QString& path, PassLimits limits = {},
                          Access access = Access::ReadAndWrite);
    ~PassDatabase();
    PassDatabase(const PassDatabase&) = delete;
    PassDatabase& operator=(const PassDatabase&) = delete;

    /// Opens the file, made with mode 0600 when it is missing, its folder with 0700; at once when
    /// it is open already. What an older program has written is taken over in one transaction; a
    /// file that a newer one has written is refused and stays as it is. Nothing is written into a
    /// file that is not the record.
    Outcome open();

    /// Does now what the first record of a run waits for else, where there is a file: it is opened,
    /// the disk takes the begin of its log, statements are prepared. What fails here fails there
    /// again.
    void getReady();

    /// Stores `record` and gives it its number; drops what is too old. A record that has a number
    /// has been written before, and is not written twice.
    Outcome insert(PassRecord& record);

    // Questions, answered as PassStore says. What was found before a failure is in the answer. As
    // long as there is no file they find nothing, and make none.
    Outcome readAll(std::vector<PassRecord>& records);
    Outcome readArrivals(const ArrivalQuestion& question, std::vector<KeptArrival>& arrivals);
    Outcome readDays(int days, std::vector<DayOfPasses>& found);
    /// What the file says; without fault and aside.
    Outcome readStanding(Standing& standing);
    Outcome read(qint64 id, std::optional<PassRecord>& record);

    /// Whether the open file is no longer the one at its path. Costs one look at the folder.
    bool fileIsGone() const;

    /// Closes the file. Returns the newest 100 passes that were written into it since it was
    /// opened, oldest first, as far as they can be read.
    std::vector<PassRecord> leave();

    /// Closes the file. Why it, or its log, cannot be read to the end; empty when both can be, and
    /// when it is missing or no ordinary file. Costs a reading of all of it.
    QString readFault();

    /// Closes a broken file and moves it, or the link to it, to a free name beside its own. Returns
    /// the new name, or nothing when that cannot be done.
    std::optional<QString> moveAside(const QDateTime& now);

private:
    using RowReader = std::function<void(const QSqlQuery&)>;
    using FilePlace = std::optional<std::pair<dev_t, ino_t>>; ///< device and inode

    /// The file's name with `ending`, for the system.
    QByteArray fileName(const char* ending = "") const;
    static FilePlace placeOf(const QByteArray& name);
    bool nothingIsKept() const;
    Outcome outcomeOf(const QSqlQuery& query) const;
    Outcome run(const QString& statement);
    Outcome prepare(PassStatement statement);
    /// Gives `take` each row of the answer.
    Outcome run(
        PassStatement statement, const QVariantList& values,
        const RowReader& take = [](const QSqlQuery&) {});
    Outcome inTransaction(const std::function<Outcome()>& work);
    Outcome prepareFile() const;
    Outcome prepareTables();
    Outcome checkTables();
    Outcome readLayout();
    Outcome takeOver();
    Outcome insertRows(PassRecord& record);
    Outcome insertArrivals(const PassRecord& record);
    Outcome noteStanding(const PassRecord& record);
    Outcome dropBeyondBytes(qint64 newest);
    Outcome dropOldest(PassStatement range, const std::vector<PassStatement>& drops, qint64 least,
                       bool& dropped);
    Outcome readSize(qint64& used);
    void giveBackRoom();
    void close();

    const QString fPath;
    const PassLimits fLimits;
    const Access fAccess;
    const QString fConnection;
    QSqlDatabase fDatabase;
    // Of the open file.
    /// Each is prepared when it is first run.
    std::array<std::optional<QSqlQuery>, static_cast<std::size_t>(PassStatement::Last) + 1>
        fQueries;
    bool fSizeSeen = false;
    qint64 fFree = 0;     ///< bytes of it that hold nothing
    qint64 fInserted = 0; ///< the number of the row that was inserted last
    int fLayout = 0;
    FilePlace fPlace;
    FilePlace fLog;
    std::deque<qint64> fWritten; ///< numbers of the newest passes of ours
};

} // namespace kelvo
