#include "adapters/passes/pass_statements.h"

#include <QSqlQuery>
#include <QVariant>

namespace kelvo {
namespace {

template <typename Number>
QVariant orNull(const std::optional<Number>& value) {
    return value ? QVariant::fromValue(*value) : QVariant();
}

/// Below this size the packing costs more time than the room is worth.
constexpr qsizetype cWorthPacking = 1024;

/// What qUncompress reads, with `bytes` as they are: their number, zlib's header, one stored block,
/// and the sum over it.
QByteArray unpackedBlock(const QByteArray& bytes) {
    const auto number = [](quint32 value, int size) {
        QByteArray digits(size, '\0');
        for (int i = size; i-- > 0; value >>= 8U)
            digits[i] = static_cast<char>(value & 0xffU);
        return digits;
    };
    const auto swapped = [&number](quint32 value) {
        return number((value & 0xffU) << 8U | value >> 8U, 2);
    };
    quint32 low = 1;
    quint32 high = 0;
    for (const char byte : bytes) {
        low = (low + static_cast<unsigned char>(byte)) % 65521;
        high = (high + low) % 65521;
    }
    const auto size = static_cast<quint32>(bytes.size());
    return number(size, 4) + QByteArray("\x78\x01\x01", 3) + swapped(size) +
           swapped(~size & 0xffffU) + bytes + number(high << 16U | low, 4);
}

QByteArray packed(const QString& text) {
    if (text.isEmpty())
        return QByteArray("");
    const QByteArray bytes = text.toUtf8();
    return bytes.size() < cWorthPacking ? unpackedBlock(bytes) : qCompress(bytes);
}

QString unpacked(const QVariant& value) {
    const QByteArray bytes = value.toByteArray();
    return bytes.isEmpty() ? QString() : QString::fromUtf8(qUncompress(bytes));
}

/// SQLite keeps no difference between an empty text and none.
QString text(const QString& text) {
    return text.isNull() ? QLatin1String("") : text;
}

std::optional<qint64> number(const QVariant& value) {
    return value.isNull() ? std::nullopt : std::optional(value.toLongLong());
}

Transfer transferFrom(const QSqlQuery& query, int column) {
    const int source = query.value(column).toInt();
    const bool known = source >= 0 && source <= static_cast<int>(TransferSource::Lines);
    return {known ? static_cast<TransferSource>(source) : TransferSource::Unknown,
            number(query.value(column + 1)), number(query.value(column + 2))};
}

void addTransfer(QVariantList& values, const Transfer& transfer) {
    values << static_cast<int>(transfer.source) << orNull(transfer.files) << orNull(transfer.bytes);
}

const QString cPassColumns =
    QStringLiteral("id, began, seconds, kind, verdict, cause, last_line, source, files, bytes");
const QString cCommandColumns =
    QStringLiteral("role, command, status, seconds, head, tail, left_out, source, files, bytes");
const QString cArrivalColumns = QStringLiteral("id, pass, path, size, arrived");
/// A pass's day by the clock here; empty for a time beyond all calendars.
const QString cDay = QStringLiteral("coalesce(date(began / 1000, 'unixepoch', 'localtime'), '')");

QString causesThat(bool (*hold)(PassCause)) {
    QStringList numbers;
    for (int cause = 0; cause <= static_cast<int>(cLastPassCause); ++cause) {
        if (hold(static_cast<PassCause>(cause)))
            numbers << QString::number(cause);
    }
    return u'(' + numbers.join(u',') + u')';
}

/// A cause that has no name yet is trouble.
QString isTroubleInSql() {
    return u"cause NOT IN " + causesThat([](PassCause cause) { return !isTrouble(cause); });
}

/// The tables of the first layout.
QStringList firstTables() {
    return {QStringLiteral("CREATE TABLE pass ("
                           "id INTEGER PRIMARY KEY AUTOINCREMENT, began INTEGER NOT NULL, "
                           "seconds REAL NOT NULL, kind INTEGER NOT NULL, verdict TEXT NOT NULL, "
                           "cause INTEGER NOT NULL, last_line TEXT NOT NULL, "
                           "source INTEGER NOT NULL, files INTEGER, bytes INTEGER)"),
            QStringLiteral("CREATE TABLE command ("
                           "pass INTEGER NOT NULL, number INTEGER NOT NULL, "
                           "role INTEGER NOT NULL, command TEXT NOT NULL, status INTEGER, "
                           "seconds REAL NOT NULL, head BLOB NOT NULL, tail BLOB NOT NULL, "
                           "left_out INTEGER NOT NULL, source INTEGER NOT NULL, files INTEGER, "
                           "bytes INTEGER, PRIMARY KEY (pass, number))")};
}

/// What the second layout adds, filled from the passes that are there: arrivals, days, and how
/// things stand with the rows of two passes, which outlive the passes.
QStringList secondTables() {
    const QString since =
        QStringLiteral("id > (SELECT coalesce(max(id), 0) FROM standing WHERE which = 1)");
    return {
        QStringLiteral("CREATE TABLE arrival (id INTEGER PRIMARY KEY AUTOINCREMENT, "
                       "pass INTEGER NOT NULL, path BLOB NOT NULL, size INTEGER NOT NULL, "
                       "arrived INTEGER NOT NULL, folded TEXT NOT NULL)"),
        QStringLiteral("CREATE INDEX arrivals_of_pass ON arrival (pass)"),
        QStringLiteral("CREATE TABLE day (day TEXT PRIMARY KEY, files INTEGER NOT NULL, "
                       "bytes INTEGER NOT NULL, trouble INTEGER NOT NULL) WITHOUT ROWID"),
        QStringLiteral("CREATE TABLE standing (which INTEGER PRIMARY KEY, id INTEGER NOT NULL, "
                       "began INTEGER NOT NULL, seconds REAL NOT NULL, kind INTEGER NOT NULL, "
                       "verdict TEXT NOT NULL, cause INTEGER NOT NULL, last_line TEXT NOT NULL, "
                       "source INTEGER NOT NULL, files INTEGER, bytes INTEGER)"),
        QStringLiteral("CREATE TABLE trouble (id INTEGER PRIMARY KEY CHECK (id = 1), "
                       "since INTEGER NOT NULL, passes INTEGER NOT NULL)"),
        u"INSERT INTO day SELECT " + cDay +
            u" AS local_day, coalesce(sum(files), 0), coalesce(sum(bytes), 0), max(" +
            isTroubleInSql() + u") FROM pass GROUP BY local_day",
        u"INSERT INTO standing SELECT 0, " + cPassColumns + u" FROM pass WHERE cause NOT IN " +
            causesThat(saysNothing) + u" ORDER BY id DESC LIMIT 1",
        u"INSERT INTO standing SELECT 1, " + cPassColumns +
            u" FROM pass WHERE cause = 0 ORDER BY id DESC LIMIT 1",
        u"INSERT INTO trouble SELECT 1, began, (SELECT count(*) FROM pass WHERE " +
            isTroubleInSql() + u" AND " + since + u") FROM pass WHERE " + isTroubleInSql() +
            u" AND " + since + u" ORDER BY id LIMIT 1",
    };
}

} // namespace

QStringList layoutStatements(int found) {
    return (found == 0 ? firstTables() : QStringList()) + secondTables() +
           QStringList{u"PRAGMA application_id = " + QString::number(cPassApplication),
                       u"PRAGMA user_version = " + QString::number(cPassLayout)};
}

QString sqlOf(PassStatement statement) {
    switch (statement) {
    case PassStatement::InsertPass:
        return QStringLiteral("INSERT INTO pass (began, seconds, kind, verdict, cause, last_line, "
                              "source, files, bytes) VALUES (?, ?, ?, ?, ?, ?, ?, ?, ?)");
    case PassStatement::InsertCommand:
        return u"INSERT INTO command (pass, number, " + cCommandColumns +
               u") VALUES (?, ?, ?, ?, ?, ?, ?, ?, ?, ?, ?, ?)";
    case PassStatement::InsertArrival:
        return QStringLiteral("INSERT INTO arrival (pass, path, size, arrived, folded) "
                              "VALUES (?, ?, ?, ?, ?)");
    case PassStatement::AddToDay:
        // What arrived goes before what the commands said of it: one that was ended says nothing.
        return u"INSERT INTO day SELECT " + cDay +
               u", iif(came.files, came.files, coalesce(pass.files, 0)), "
               u"iif(came.files, came.bytes, coalesce(pass.bytes, 0)), " +
               isTroubleInSql() +
               u" FROM pass, (SELECT count(*) AS files, sum(size) AS bytes FROM arrival "
               u"WHERE pass = ?) AS came WHERE id = ? ON CONFLICT (day) DO UPDATE SET "
               u"files = files + excluded.files, bytes = bytes + excluded.bytes, "
               u"trouble = max(trouble, excluded.trouble)";
    case PassStatement::SetStanding:
        return u"INSERT OR REPLACE INTO standing SELECT ?, " + cPassColumns +
               u" FROM pass WHERE id = ?";
    case PassStatement::AddTrouble:
        return QStringLiteral("INSERT INTO trouble VALUES (1, ?, 1) "
                              "ON CONFLICT (id) DO UPDATE SET passes = passes + 1");
    case PassStatement::EndTrouble:
        return QStringLiteral("DELETE FROM trouble");
    case PassStatement::DropPasses:
        return QStringLiteral("DELETE FROM pass WHERE id <= ?");
    case PassStatement::DropCommands:
        return QStringLiteral("DELETE FROM command WHERE pass <= ?");
    case PassStatement::DropArrivals:
        return QStringLiteral("DELETE FROM arrival WHERE id <= ?");
    case PassStatement::AllPasses:
        return u"SELECT " + cPassColumns + u" FROM pass ORDER BY id DESC";
    case PassStatement::OnePass:
        return u"SELECT " + cPassColumns + u" FROM pass WHERE id = ?";
    case PassStatement::CommandsOfPass:
        return u"SELECT " + cCommandColumns + u" FROM command WHERE pass = ? ORDER BY number";
    case PassStatement::ArrivalsOfPass:
        return u"SELECT " + cArrivalColumns + u" FROM arrival WHERE pass = ? ORDER BY id";
    case PassStatement::Arrivals:
        return u"SELECT " + cArrivalColumns +
               u" FROM arrival WHERE id < ? ORDER BY id DESC LIMIT ?";
    case PassStatement::ArrivalsWithText:
        return u"SELECT " + cArrivalColumns +
               u" FROM arrival WHERE id < ? AND instr(folded, ?) > 0 ORDER BY id DESC LIMIT ?";
    case PassStatement::Days:
        return QStringLiteral("SELECT day, files, bytes, trouble FROM day WHERE day >= ? "
                              "ORDER BY day");
    case PassStatement::ReadStanding:
        return u"SELECT " + cPassColumns + u" FROM standing WHERE which = ?";
    case PassStatement::ReadTrouble:
        return QStringLiteral("SELECT since, passes FROM trouble");
    case PassStatement::Begin:
        return QStringLiteral("BEGIN IMMEDIATE");
    case PassStatement::Commit:
        return QStringLiteral("COMMIT");
    case PassStatement::RangeOfPasses:
        return QStringLiteral("SELECT (SELECT min(id) FROM pass), (SELECT max(id) FROM pass)");
    case PassStatement::RangeOfArrivals:
        return QStringLiteral(
            "SELECT (SELECT min(id) FROM arrival), (SELECT max(id) FROM arrival)");
    case PassStatement::Size:
        return QStringLiteral("SELECT (page_count - freelist_count) * page_size, "
                              "freelist_count * page_size FROM pragma_page_count, "
                              "pragma_freelist_count, pragma_page_size");
    case PassStatement::SamePass:
        return QStringLiteral("SELECT id FROM pass WHERE id > (SELECT max(id) FROM pass) - 1000 "
                              "AND began = ? AND seconds = ?");
    case PassStatement::WhatLiesThere:
        return QStringLiteral("SELECT (SELECT application_id FROM pragma_application_id), "
                              "(SELECT user_version FROM pragma_user_version), count(*), "
                              "coalesce(max(name = 'pass'), 0) FROM sqlite_master "
                              "WHERE type = 'table'");
    }
    return {};
}

QVariantList valuesOf(const PassRecord& record) {
    QVariantList values{record.began.toMSecsSinceEpoch(), record.seconds,
                        static_cast<int>(record.kind),    text(record.verdict.text()),
                        static_cast<int>(record.cause),   text(record.lastLine)};
    addTransfer(values, record.transfer);
    return values;
}

QVariantList valuesOf(qint64 pass, int number, const CommandRecord& command) {
    QVariantList values{pass,
                        number,
                        static_cast<int>(command.role),
                        text(command.command),
                        orNull(command.exitStatus),
                        command.seconds,
                        packed(command.text.head),
                        packed(command.text.tail),
                        command.text.leftOut};
    addTransfer(values, command.transfer);
    return values;
}

QVariantList valuesOf(qint64 pass, const Arrival& arrival) {
    const QByteArray& path = arrival.path;
    return {pass, path.isNull() ? QByteArray("") : path, arrival.size,
            arrival.arrived.toMSecsSinceEpoch(), text(foldedText(QString::fromUtf8(path)))};
}

PassRecord passFrom(const QSqlQuery& query) {
    PassRecord record;
    record.id = query.value(0).toLongLong();
    record.began = QDateTime::fromMSecsSinceEpoch(query.value(1).toLongLong(), Qt::UTC);
    record.seconds = query.value(2).toDouble();
    record.kind = query.value(3).toInt() == static_cast<int>(PassKind::Remote) ? PassKind::Remote
                                                                               : PassKind::Plain;
    record.verdict = HostVerdict::fromText(query.value(4).toString());
    const int cause = query.value(5).toInt();
    const bool known = cause >= 0 && cause <= static_cast<int>(cLastPassCause);
    record.cause = known ? static_cast<PassCause>(cause) : PassCause::Unknown;
    record.lastLine = query.value(6).toString();
    record.transfer = transferFrom(query, 7);
    return record;
}

CommandRecord commandFrom(const QSqlQuery& query) {
    CommandRecord command;
    const int role = query.value(0).toInt();
    const bool known = role >= 0 && role <= static_cast<int>(CommandRole::AfterArrivals);
    command.role = known ? static_cast<CommandRole>(role) : CommandRole::Pull;
    command.command = query.value(1).toString();
    if (!query.value(2).isNull())
        command.exitStatus = query.value(2).toInt();
    command.seconds = query.value(3).toDouble();
    command.text = {unpacked(query.value(4)), unpacked(query.value(5)),
                    query.value(6).toLongLong()};
    command.transfer = transferFrom(query, 7);
    return command;
}

KeptArrival arrivalFrom(const QSqlQuery& query) {
    return {query.value(0).toLongLong(),
            query.value(1).toLongLong(),
            {query.value(2).toByteArray(), query.value(3).toLongLong(),
             QDateTime::fromMSecsSinceEpoch(query.value(4).toLongLong(), Qt::UTC)}};
}

DayOfPasses dayFrom(const QSqlQuery& query) {
    return {QDate::fromString(query.value(0).toString(), Qt::ISODate), query.value(1).toLongLong(),
            query.value(2).toLongLong(), query.value(3).toBool()};
}

} // namespace kelvo
