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

PassDatabase::Outcome PassDatabase::prepare(QSqlQuery& query, PassStatement statement) const {
    query.setForwardOnly(true);
    query.prepare(sqlOf(statement));
    return outcomeOf(query);
}

PassDatabase::Outcome PassDatabase::execute(QSqlQuery& query, const QVariantList& values) const {
    for (qsizetype i = 0; i < values.size(); ++i)
        query.bindValue(static_cast<int>(i), values[i]);
    query.exec();
    return outcomeOf(query);
}

PassDatabase::Outcome PassDatabase::run(PassStatement statement, const QVariantList& values,
                                        const RowReader& take) {
    QSqlQuery query(fDatabase);
    if (Outcome outcome = prepare(query, statement); !outcome)
        return outcome;
    if (Outcome outcome = execute(query, values); !outcome)
        return outcome;
    while (query.next())
        take(query);
    return outcomeOf(query);
}

PassDatabase::Outcome PassDatabase::inTransaction(const std::function<Outcome()>& work) {
    if (Outcome outcome = run(QStringLiteral("BEGIN IMMEDIATE")); !outcome)
        return outcome;
    Outcome outcome = work();
    if (outcome)
        outcome = run(QStringLiteral("COMMIT"));
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
    QSqlQuery pass(fDatabase);
    if (Outcome outcome = prepare(pass, PassStatement::InsertPass); !outcome)
        return outcome;
    if (Outcome outcome = execute(pass, valuesOf(record)); !outcome)
        return outcome;
    record.id = pass.lastInsertId().toLongLong();
    QSqlQuery command(fDatabase);
    if (Outcome outcome = prepare(command, PassStatement::InsertCommand); !outcome)
        return outcome;
    int number = 0;
    for (const CommandRecord& each : record.commands) {
        if (Outcome outcome = execute(command, valuesOf(record.id, number++, each)); !outcome)
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
    return run(PassStatement::DropPasses, {old});
}

PassDatabase::Outcome PassDatabase::insertArrivals(const PassRecord& record) {
    if (record.arrivals.empty())
        return {};
    QSqlQuery query(fDatabase);
    if (Outcome outcome = prepare(query, PassStatement::InsertArrival); !outcome)
        return outcome;
    for (const Arrival& arrival : record.arrivals) {
        if (Outcome outcome = execute(query, valuesOf(record.id, arrival)); !outcome)
            return outcome;
    }
    return run(PassStatement::DropArrivals, {query.lastInsertId().toLongLong() - fLimits.arrivals});
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
