#include "adapters/passes/pass_database.h"

#include "adapters/system/private_places.h"
#include "adapters/system/unique_fd.h"
#include "support/system_error_text.h"

#include <QFile>
#include <QFileInfo>
#include <QSqlError>
#include <QSqlQuery>

#include <fcntl.h>

#include <atomic>
#include <cerrno>

namespace kelvo {
namespace {

constexpr int cMostAsides = 1000;
/// How long another program may keep the file locked, in milliseconds.
const QString cOptions = QStringLiteral("QSQLITE_BUSY_TIMEOUT=2000");

/// SQLite's own numbers for a file that cannot be repaired by waiting.
enum SqliteCode { Corrupt = 11, NotADatabase = 26 };

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
    if (!fDatabase.isValid())
        return;
    fDatabase.close();
    fDatabase = QSqlDatabase();
    QSqlDatabase::removeDatabase(fConnection);
}

PassDatabase::Outcome PassDatabase::outcomeOf(const QSqlQuery& query) const {
    const QSqlError error = query.lastError();
    if (!error.isValid())
        return {};
    // The upper bits tell more about the same trouble.
    const int code = error.nativeErrorCode().toInt() & 0xff;
    const QString text = error.databaseText().isEmpty() ? error.driverText() : error.databaseText();
    return {code == Corrupt || code == NotADatabase ? Outcome::Broken : Outcome::Failed, text};
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
    if (!outcome)
        (void)run(QStringLiteral("ROLLBACK"));
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
    if (!outcome)
        close();
    return outcome;
}

PassDatabase::Outcome PassDatabase::prepareFile() const {
    const QString folder = QFileInfo(fPath).path();
    if (makePrivateFolders(QFile::encodeName(folder).toStdString()) != 0)
        return failed(QStringLiteral("its folder cannot be made"));
    const QByteArray path = QFile::encodeName(fPath);
    // An existing file is not opened: closing it here would end SQLite's locks on it.
    if (QFileInfo::exists(fPath)) {
        closeToOthers(path.toStdString());
        return {};
    }
    const UniqueFd file(::open(path.constData(), O_WRONLY | O_CREAT | O_CLOEXEC, 0600));
    if (!file)
        return failed(systemErrorText(errno));
    return {};
}

PassDatabase::Outcome PassDatabase::readLayout() {
    QSqlQuery layout(fDatabase);
    layout.exec(QStringLiteral("PRAGMA user_version"));
    if (Outcome outcome = outcomeOf(layout); !outcome)
        return outcome;
    fLayout = layout.next() ? layout.value(0).toInt() : 0;
    return fLayout > cPassLayout ? failed(QStringLiteral("a newer Kelvo Mirror has written it"))
                                 : Outcome();
}

PassDatabase::Outcome PassDatabase::prepareTables() {
    // With a log beside the file a record costs no wait for the disk. A file system that cannot
    // have it keeps SQLite's usual way.
    if (Outcome outcome = run(QStringLiteral("PRAGMA journal_mode = WAL"));
        outcome.kind == Outcome::Broken)
        return outcome;
    for (const QString& setting : {QStringLiteral("PRAGMA synchronous = NORMAL"),
                                   QStringLiteral("PRAGMA cache_size = -256")}) {
        if (Outcome outcome = run(setting); !outcome)
            return outcome;
    }
    return fLayout == cPassLayout ? Outcome() : inTransaction([this] { return takeOver(); });
}

PassDatabase::Outcome PassDatabase::takeOver() {
    // Another program may have done it meanwhile.
    if (Outcome outcome = readLayout(); !outcome || fLayout == cPassLayout)
        return outcome;
    for (const QString& statement : layoutStatements(fLayout)) {
        if (Outcome outcome = run(statement); !outcome)
            return outcome;
    }
    fLayout = cPassLayout;
    return {};
}

PassDatabase::Outcome PassDatabase::insert(PassRecord& record) {
    if (Outcome outcome = open(); !outcome)
        return outcome;
    Outcome outcome = inTransaction([&] { return insertRows(record); });
    if (!outcome)
        record.id = 0;
    return outcome;
}

PassDatabase::Outcome PassDatabase::insertRows(PassRecord& record) {
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

std::optional<QString> PassDatabase::moveAside(const QDateTime& now) {
    close();
    const QString wanted = fPath + QStringLiteral(".corrupt-") +
                           now.toUTC().toString(QStringLiteral("yyyyMMdd'T'HHmmss'Z'"));
    for (int attempt = 1; attempt <= cMostAsides; ++attempt) {
        const QString aside =
            attempt == 1 ? wanted : QString(wanted + u'-' + QString::number(attempt));
        if (QFileInfo::exists(aside))
            continue;
        if (!QFile::rename(fPath, aside))
            return std::nullopt;
        // What belongs to the broken file must not be laid over the next one.
        QFile::rename(fPath + QStringLiteral("-wal"), aside + QStringLiteral("-wal"));
        QFile::remove(fPath + QStringLiteral("-shm"));
        return aside;
    }
    return std::nullopt;
}

} // namespace kelvo
