#include "adapters/passes/pass_statements.h"

#include <QSqlQuery>
#include <QVariant>

namespace kelvo {
namespace {

template <typename Number>
QVariant orNull(const std::optional<Number>& value) {
    return value ? QVariant::fromValue(*value) : QVariant();
}

QByteArray packed(const QString& text) {
    return text.isEmpty() ? QByteArray("") : qCompress(text.toUtf8());
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

void addTransfer(QSqlQuery& query, const Transfer& transfer) {
    query.addBindValue(static_cast<int>(transfer.source));
    query.addBindValue(orNull(transfer.files));
    query.addBindValue(orNull(transfer.bytes));
}

const QString cPassColumns =
    QStringLiteral("id, began, seconds, kind, verdict, cause, last_line, source, files, bytes");
const QString cCommandColumns =
    QStringLiteral("role, command, status, seconds, head, tail, left_out, source, files, bytes");

} // namespace

QStringList passTableStatements(int layout) {
    return {QStringLiteral("BEGIN IMMEDIATE"),
            QStringLiteral("CREATE TABLE IF NOT EXISTS pass ("
                           "id INTEGER PRIMARY KEY AUTOINCREMENT, began INTEGER NOT NULL, "
                           "seconds REAL NOT NULL, kind INTEGER NOT NULL, verdict TEXT NOT NULL, "
                           "cause INTEGER NOT NULL, last_line TEXT NOT NULL, "
                           "source INTEGER NOT NULL, files INTEGER, bytes INTEGER)"),
            QStringLiteral("CREATE TABLE IF NOT EXISTS command ("
                           "pass INTEGER NOT NULL, number INTEGER NOT NULL, "
                           "role INTEGER NOT NULL, command TEXT NOT NULL, status INTEGER, "
                           "seconds REAL NOT NULL, head BLOB NOT NULL, tail BLOB NOT NULL, "
                           "left_out INTEGER NOT NULL, source INTEGER NOT NULL, files INTEGER, "
                           "bytes INTEGER, PRIMARY KEY (pass, number))"),
            QStringLiteral("PRAGMA user_version = %1").arg(layout), QStringLiteral("COMMIT")};
}

QStringList dropStatements(int most) {
    const QString old =
        QStringLiteral("<= (SELECT id FROM pass ORDER BY id DESC LIMIT 1 OFFSET %1)").arg(most);
    return {QString(u"DELETE FROM command WHERE pass " + old),
            QString(u"DELETE FROM pass WHERE id " + old)};
}

QString selectPasses() {
    return u"SELECT " + cPassColumns + u" FROM pass ORDER BY id DESC";
}

QString selectPass(qint64 id) {
    return u"SELECT " + cPassColumns + u" FROM pass WHERE id = " + QString::number(id);
}

QString selectCommands(qint64 id) {
    return u"SELECT " + cCommandColumns + u" FROM command WHERE pass = " + QString::number(id) +
           u" ORDER BY number";
}

void bindPass(QSqlQuery& query, const PassRecord& record) {
    query.prepare(QStringLiteral("INSERT INTO pass (began, seconds, kind, verdict, cause, "
                                 "last_line, source, files, bytes) "
                                 "VALUES (?, ?, ?, ?, ?, ?, ?, ?, ?)"));
    query.addBindValue(record.began.toMSecsSinceEpoch());
    query.addBindValue(record.seconds);
    query.addBindValue(static_cast<int>(record.kind));
    query.addBindValue(text(record.verdict.text()));
    query.addBindValue(static_cast<int>(record.cause));
    query.addBindValue(text(record.lastLine));
    addTransfer(query, record.transfer);
}

void bindCommand(QSqlQuery& query, qint64 pass, int number, const CommandRecord& command) {
    query.prepare(u"INSERT INTO command (" + cCommandColumns +
                  u", pass, number) VALUES (?, ?, ?, ?, ?, ?, ?, ?, ?, ?, ?, ?)");
    query.addBindValue(static_cast<int>(command.role));
    query.addBindValue(text(command.command));
    query.addBindValue(orNull(command.exitStatus));
    query.addBindValue(command.seconds);
    query.addBindValue(packed(command.text.head));
    query.addBindValue(packed(command.text.tail));
    query.addBindValue(command.text.leftOut);
    addTransfer(query, command.transfer);
    query.addBindValue(pass);
    query.addBindValue(number);
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
    command.role = query.value(0).toInt() == static_cast<int>(CommandRole::HostCheck)
                       ? CommandRole::HostCheck
                       : CommandRole::Pull;
    command.command = query.value(1).toString();
    if (!query.value(2).isNull())
        command.exitStatus = query.value(2).toInt();
    command.seconds = query.value(3).toDouble();
    command.text = {unpacked(query.value(4)), unpacked(query.value(5)),
                    query.value(6).toLongLong()};
    command.transfer = transferFrom(query, 7);
    return command;
}

} // namespace kelvo
