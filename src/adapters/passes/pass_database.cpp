#include "adapters/passes/pass_database.h"

#include "adapters/passes/pass_statements.h"
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

constexpr int cLayout = 1;
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

PassDatabase::PassDatabase(const QString& path, int most)
    : fPath(path), fMost(most), fConnection(nextConnection()) {}

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

PassDatabase::Outcome PassDatabase::open() {
    if (fDatabase.isOpen())
        return {};
    if (Outcome outcome = prepareFile(); !outcome)
        return outcome;
    fDatabase = QSqlDatabase::addDatabase(QStringLiteral("QSQLITE"), fConnection);
    fDatabase.setDatabaseName(fPath);
    fDatabase.setConnectOptions(cOptions);
    Outcome outcome;
    if (!fDatabase.isValid())
        outcome = failed(QStringLiteral("Qt's SQLite driver is not installed"));
    else if (!fDatabase.open())
        outcome = failed(fDatabase.lastError().databaseText());
    else
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
    QSqlQuery layout(fDatabase);
    layout.exec(QStringLiteral("PRAGMA user_version"));
    if (Outcome outcome = outcomeOf(layout); !outcome)
        return outcome;
    const int found = layout.next() ? layout.value(0).toInt() : 0;
    layout.finish();
    if (found > cLayout)
        return failed(QStringLiteral("a newer Kelvo Mirror has written it"));
    if (found == cLayout)
        return {};
    for (const QString& statement : passTableStatements(cLayout)) {
        if (Outcome outcome = run(statement); !outcome) {
            (void)run(QStringLiteral("ROLLBACK"));
            return outcome;
        }
    }
    return {};
}

PassDatabase::Outcome PassDatabase::insert(PassRecord& record) {
    if (Outcome outcome = open(); !outcome)
        return outcome;
    if (Outcome outcome = run(QStringLiteral("BEGIN IMMEDIATE")); !outcome)
        return outcome;
    Outcome outcome = insertRows(record);
    if (outcome)
        outcome = run(QStringLiteral("COMMIT"));
    if (!outcome) {
        record.id = 0;
        (void)run(QStringLiteral("ROLLBACK"));
    }
    return outcome;
}

PassDatabase::Outcome PassDatabase::insertRows(PassRecord& record) {
    QSqlQuery pass(fDatabase);
    bindPass(pass, record);
    pass.exec();
    if (Outcome outcome = outcomeOf(pass); !outcome)
        return outcome;
    record.id = pass.lastInsertId().toLongLong();
    QSqlQuery row(fDatabase);
    for (std::size_t i = 0; i < record.commands.size(); ++i) {
        bindCommand(row, record.id, static_cast<int>(i), record.commands[i]);
        row.exec();
        if (Outcome outcome = outcomeOf(row); !outcome)
            return outcome;
    }
    for (const QString& statement : dropStatements(fMost)) {
        if (Outcome outcome = run(statement); !outcome)
            return outcome;
    }
    return {};
}

PassDatabase::Outcome PassDatabase::readAll(std::vector<PassRecord>& records) {
    if (Outcome outcome = open(); !outcome)
        return outcome;
    QSqlQuery query(fDatabase);
    query.setForwardOnly(true);
    query.exec(selectPasses());
    while (query.next())
        records.push_back(passFrom(query));
    return outcomeOf(query);
}

PassDatabase::Outcome PassDatabase::read(qint64 id, std::optional<PassRecord>& record) {
    if (Outcome outcome = open(); !outcome)
        return outcome;
    QSqlQuery query(fDatabase);
    query.setForwardOnly(true);
    query.exec(selectPass(id));
    if (!query.next())
        return outcomeOf(query);
    PassRecord found = passFrom(query);
    query.exec(selectCommands(id));
    while (query.next())
        found.commands.push_back(commandFrom(query));
    Outcome outcome = outcomeOf(query);
    if (outcome)
        record = std::move(found);
    return outcome;
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
