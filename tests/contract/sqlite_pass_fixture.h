// SqlitePassStoreTest: a record of passes in a folder of its own, and another program's hand on it.
#pragma once

#include "adapters/passes/sqlite_pass_store.h"
#include "fakes/recording_console.h"
#include "fakes/virtual_queues.h"
#include "support/wait_until.h"

#include <QDir>
#include <QFile>
#include <QSqlDatabase>
#include <QSqlQuery>
#include <QTemporaryDir>

#include <gtest/gtest.h>

namespace kelvo {

inline PassRecord numbered(int number) {
    PassRecord record;
    record.began = QDateTime::fromMSecsSinceEpoch(number, Qt::UTC);
    record.lastLine = QString::number(number);
    record.commands.push_back({});
    return record;
}

class SqlitePassStoreTest : public ::testing::Test {
protected:
    std::unique_ptr<SqlitePassStore> openStore(PassLimits limits = {}) {
        return std::make_unique<SqlitePassStore>(path, mainQueue, console, limits);
    }

    QStringList lines(SqlitePassStore& store) {
        QStringList lines;
        for (const PassRecord& record :
             answered<std::vector<PassRecord>>([&](auto take) { store.readAll(take); }))
            lines.append(record.lastLine);
        return lines;
    }

    Standing standing(SqlitePassStore& store) {
        return answered<Standing>([&](auto take) { store.readStanding(take); });
    }

    std::vector<DayOfPasses> days(SqlitePassStore& store) {
        return answered<std::vector<DayOfPasses>>(
            [&](auto take) { store.readDays(100'000, take); });
    }

    std::vector<KeptArrival> arrivals(SqlitePassStore& store) {
        return answered<std::vector<KeptArrival>>([&](auto take) { store.readArrivals({}, take); });
    }

    template <typename Answer>
    Answer answered(const std::function<void(std::function<void(Answer)>)>& ask) {
        std::optional<Answer> answer;
        ask([&](Answer found) { answer = std::move(found); });
        EXPECT_TRUE(waitUntil([&] {
            mainQueue.runDue();
            return answer.has_value();
        }));
        return answer.value_or(Answer());
    }

    QByteArray bytes() const {
        QFile file(path);
        return file.open(QFile::ReadOnly) ? file.readAll() : QByteArray("unreadable");
    }

    qsizetype logged(const QString& part) const { return console.logged().filter(part).size(); }

    QStringList setAside() const {
        return QDir(folder.path())
            .entryList({QStringLiteral("passes.sqlite.corrupt-*")},
                       QDir::AllEntries | QDir::System);
    }

    /// Runs `statements` as another program would, on a connection of its own.
    void asOther(const QStringList& statements) const {
        {
            auto other = QSqlDatabase::addDatabase(QStringLiteral("QSQLITE"),
                                                   QStringLiteral("other program"));
            other.setDatabaseName(path);
            ASSERT_TRUE(other.open());
            for (const QString& statement : statements) {
                QSqlQuery query(other);
                ASSERT_TRUE(query.exec(statement)) << statement.toUtf8().constData();
            }
        }
        QSqlDatabase::removeDatabase(QStringLiteral("other program"));
    }

    QTemporaryDir folder;
    QString path = folder.filePath(QStringLiteral("passes.sqlite"));
    VirtualMainQueue mainQueue;
    RecordingConsole console;
};

} // namespace kelvo
