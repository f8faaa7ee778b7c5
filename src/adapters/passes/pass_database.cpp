#include "adapters/passes/pass_database.h"

#include <QSqlError>
#include <QSqlQuery>

#include <atomic>

namespace kelvo {
namespace {

/// How many passes of this run are written once more where the file is lost.
constexpr std::size_t cMostOwn = 100;
/// How long another program may keep the file locked, in milliseconds.
const QString cOptions = QStringLiteral("QSQLITE_BUSY_TIMEOUT=2000");

/// SQLite's own numbers for a file that cannot be repaired by waiting. An error is what a statement
/// gives that does not fit the tables; so is, when something is stored, a constraint.
enum SqliteCode { Error = 1, Corrupt = 11, Constraint = 19, NotADatabase = 26 };

bool isBroken(int code) {
    return code == Error || code == Corrupt || code == Constraint || code == NotADatabase;
}

QString nextConnection() {
    static std::atomic<int> made = 0;
    return QStringLiteral("passes-%1").arg(++made);
}

PassDatabase::Outcome failed(const QString& reason) {
    return {PassDatabase::Outcome::Failed, reason};
}

} // namespace

PassDatabase::PassDatabase(const QString& path, PassLimits limits, Access access)
    : fPath(path), fLimits(limits), fAccess(access), fConnection(nextConnection()) {}

PassDatabase::~PassDatabase() {
    close();
}

void PassDatabase::close() {
    fQueries = {};
    fSizeSeen = false;
    fFree = 0;
    fDatabase = QSqlDatabase();
    QSqlDatabase::removeDatabase(fConnection);
    fWritten.clear();
}

PassDatabase::Outcome PassDatabase::outcomeOf(const QSqlQuery& query) const {
    const QSqlError error = query.lastError();
    if (!error.isValid())
        return {};
    // The upper bits tell more about the same trouble.
    const int code = error.nativeErrorCode().toInt() & 0xff;
    const QString text = error.databaseText().isEmpty() ? error.driverText() : error.databaseText();
    return {isBroken(code) ? Outcome::Broken : Outcome::Failed, text};
}

PassDatabase::Outcome PassDatabase::run(const QString& statement) {
    QSqlQuery query(fDatabase);
    query.exec(statement);
    return outcomeOf(query);
}

PassDatabase::Outcome PassDatabase::prepare(PassStatement statement) {
    auto& query = fQueries[static_cast<std::size_t>(statement)];
    if (query)
        return {};
    query.emplace(fDatabase);
    query->setForwardOnly(true);
    query->prepare(sqlOf(statement));
    Outcome outcome = outcomeOf(*query);
    if (!outcome)
        query.reset();
    return outcome;
}

PassDatabase::Outcome PassDatabase::run(PassStatement statement, const QVariantList& values,
                                        const RowReader& take) {
    if (Outcome outcome = prepare(statement); !outcome)
        return outcome;
    QSqlQuery& query = *fQueries[static_cast<std::size_t>(statement)];
    for (qsizetype i = 0; i < values.size(); ++i)
        query.bindValue(static_cast<int>(i), values[i]);
    if (query.exec() && !query.isSelect())
        fInserted = query.lastInsertId().toLongLong();
    while (query.isActive() && query.next())
        take(query);
    Outcome outcome = outcomeOf(query);
    // One that stood on a row would keep the file from being written.
    query.finish();
    return outcome;
}

PassDatabase::Outcome PassDatabase::inTransaction(const std::function<Outcome()>& work) {
    if (Outcome outcome = run(PassStatement::Begin, {}); !outcome)
        return outcome;
    Outcome outcome = work();
    if (outcome)
        outcome = run(PassStatement::Commit, {});
    if (!outcome && !run(QStringLiteral("ROLLBACK")))
        close();
    return outcome;
}

PassDatabase::Outcome PassDatabase::open() {
    if (fDatabase.isOpen())
        return {};
    const bool writes = fAccess == Access::ReadAndWrite;
    if (Outcome outcome = writes ? prepareFile() : Outcome(); !outcome)
        return outcome;
    fDatabase = QSqlDatabase::addDatabase(QStringLiteral("QSQLITE"), fConnection);
    fDatabase.setDatabaseName(fPath);
    fDatabase.setConnectOptions(writes ? cOptions : QString(cOptions + u";QSQLITE_OPEN_READONLY"));
    Outcome outcome;
    if (!fDatabase.isValid())
        outcome = failed(QStringLiteral("Qt's SQLite driver is not installed"));
    else if (!fDatabase.open())
        outcome = failed(fDatabase.lastError().databaseText());
    else if (outcome = readLayout(); outcome && writes)
        outcome = prepareTables();
    if (!outcome) {
        close();
        return outcome;
    }
    fPlace = placeOf(fileName());
    fLog = placeOf(fileName("-wal"));
    return outcome;
}

PassDatabase::Outcome PassDatabase::insert(PassRecord& record) {
    if (Outcome outcome = open(); !outcome)
        return outcome;
    const qint64 before = record.id;
    Outcome outcome = inTransaction([&] { return insertRows(record); });
    if (!outcome) {
        record.id = before;
        return outcome;
    }
    fWritten.push_back(record.id);
    if (fWritten.size() > cMostOwn)
        fWritten.pop_front();
    giveBackRoom();
    return outcome;
}

PassDatabase::Outcome PassDatabase::insertRows(PassRecord& record) {
    if (record.id != 0) {
        std::optional<qint64> there;
        Outcome outcome =
            run(PassStatement::SamePass, {record.began.toMSecsSinceEpoch(), record.seconds},
                [&](const QSqlQuery& row) { there = row.value(0).toLongLong(); });
        if (!outcome || there) {
            record.id = there.value_or(record.id);
            return outcome;
        }
    }
    if (Outcome outcome = run(PassStatement::InsertPass, valuesOf(record)); !outcome)
        return outcome;
    record.id = fInserted;
    int number = 0;
    for (const CommandRecord& each : record.commands) {
        if (Outcome outcome =
                run(PassStatement::InsertCommand, valuesOf(record.id, number++, each));
            !outcome)
            return outcome;
    }
    if (Outcome outcome = insertArrivals(record); !outcome)
        return outcome;
    if (Outcome outcome = noteStanding(record); !outcome)
        return outcome;
    // Numbers have no gaps.
    const qint64 old = record.id - fLimits.passes;
    if (Outcome outcome = run(PassStatement::DropCommands, {old}); !outcome)
        return outcome;
    if (Outcome outcome = run(PassStatement::DropPasses, {old}); !outcome)
        return outcome;
    return dropBeyondBytes(record.id);
}

PassDatabase::Outcome PassDatabase::insertArrivals(const PassRecord& record) {
    if (record.arrivals.empty())
        return {};
    for (const Arrival& arrival : record.arrivals) {
        if (Outcome outcome = run(PassStatement::InsertArrival, valuesOf(record.id, arrival));
            !outcome)
            return outcome;
    }
    return run(PassStatement::DropArrivals, {fInserted - fLimits.arrivals});
}

PassDatabase::Outcome PassDatabase::noteStanding(const PassRecord& record) {
    const auto becomes = [&](StandingRow row) {
        return run(PassStatement::SetStanding, {static_cast<int>(row), record.id});
    };
    Outcome outcome = run(PassStatement::AddToDay, {record.id, record.id});
    if (!outcome || saysNothing(record.cause))
        return outcome;
    if (outcome = becomes(StandingRow::LastPass); !outcome)
        return outcome;
    if (isTrouble(record.cause))
        return run(PassStatement::AddTrouble, {record.began.toMSecsSinceEpoch()});
    if (outcome = becomes(StandingRow::LastSuccess); !outcome)
        return outcome;
    return run(PassStatement::EndTrouble, {});
}

} // namespace kelvo
