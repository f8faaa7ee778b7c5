// The tables of the record: other programs' layouts, and how questions are answered.
#include "contract/sqlite_pass_fixture.h"

#include <QFileInfo>
#include <QSet>

namespace kelvo {
namespace {

/// Noon, `ago` days ago, as the record has it.
QString began(int ago) {
    return QString::number(
        QDateTime(QDate::currentDate().addDays(-ago), QTime(12, 0)).toMSecsSinceEpoch());
}

/// A record that knows the first layout only: the statements of that time.
QStringList firstLayout() {
    const QString pass = QStringLiteral("INSERT INTO pass (began, seconds, kind, verdict, cause, "
                                        "last_line, source, files, bytes) VALUES (");
    return {QStringLiteral("PRAGMA journal_mode = WAL"),
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
            QStringLiteral("PRAGMA user_version = 1"),
            pass + began(2) + QStringLiteral(", 9.5, 1, 'valid', 0, 'well', 1, 3, 5000)"),
            pass + began(2) + QStringLiteral(", 1, 1, 'valid', 12, '', 1, NULL, NULL)"),
            pass + began(1) + QStringLiteral(", 1, 1, 'valid', 14, '', 1, 1, 70)"),
            pass + began(0) + QStringLiteral(", 1, 1, 'valid', 21, 'ended', 0, NULL, NULL)"),
            pass + QStringLiteral("9000000000000000000, 1, 0, '', 21, 'astray', 0, NULL, NULL)"),
            QStringLiteral("INSERT INTO command VALUES (1, 0, 1, 'rsync', 0, 0.5, X'', X'', 0, 1, "
                           "3, 5000)")};
}

TEST_F(SqlitePassStoreTest, FileOfANewerProgram_IsLeftAlone) {
    openStore()->append(numbered(1));
    asOther({QStringLiteral("PRAGMA journal_mode = DELETE"),
             QStringLiteral("PRAGMA user_version = 99")});
    const QByteArray before = bytes();
    {
        const auto store = openStore();
        EXPECT_TRUE(standing(*store).fault.endsWith(u"a newer Kelvo Mirror has written it"));
        PassRecord pass = numbered(2);
        pass.cause = PassCause::DiskFull;
        store->append(pass);
        EXPECT_TRUE(lines(*store).isEmpty());
        EXPECT_EQ(standing(*store).passesInTrouble, 1) << "what is not written is known still";
    }
    EXPECT_EQ(logged(QStringLiteral("a newer Kelvo Mirror")), 1);
    EXPECT_EQ(bytes(), before);
    EXPECT_EQ(QDir(folder.path()).entryList(QDir::Files), QStringList{QFileInfo(path).fileName()});
}

TEST_F(SqlitePassStoreTest, RecordOfTheFirstLayout_IsTakenOverWithoutLoss) {
    asOther(firstLayout());
    const auto store = openStore();
    EXPECT_EQ(
        lines(*store),
        (QStringList{
            QStringLiteral("astray"), QStringLiteral("ended"), {}, {}, QStringLiteral("well")}));
    const QDate today = QDate::currentDate();
    EXPECT_EQ(days(*store), (std::vector<DayOfPasses>{{today.addDays(-2), 3, 5000, true},
                                                      {today.addDays(-1), 1, 70, true},
                                                      {today, 0, 0, false}}));
    const Standing found = standing(*store);
    ASSERT_TRUE(found.last && found.lastSuccess);
    EXPECT_EQ(found.last->cause, PassCause::DestinationUnusable);
    EXPECT_EQ(found.lastSuccess->transfer.bytes, 5000);
    EXPECT_EQ(QString::number(found.troubleSince.toMSecsSinceEpoch()), began(2));
    EXPECT_EQ(found.passesInTrouble, 2);
    const auto whole = answered<std::optional<PassRecord>>(
        [&](auto take) { store->read(found.lastSuccess->id, take); });
    ASSERT_TRUE(whole.has_value());
    ASSERT_EQ(whole->commands.size(), 1U);
    EXPECT_EQ(whole->commands[0].transfer.files, 3);
    store->append(numbered(7));
    EXPECT_EQ(lines(*store).size(), 6);
    EXPECT_TRUE(console.logged().isEmpty()) << console.logged().join(u'\n').toStdString();
}

TEST_F(SqlitePassStoreTest, TakeOverThatFails_LeavesTheOldRecordWhole) {
    asOther({QStringLiteral("CREATE TABLE pass (id INTEGER PRIMARY KEY, began INTEGER)"),
             QStringLiteral("INSERT INTO pass VALUES (1, 2)"),
             QStringLiteral("PRAGMA user_version = 1")});
    EXPECT_FALSE(standing(*openStore()).aside.isEmpty());
    ASSERT_EQ(setAside().size(), 1);
    path = folder.filePath(setAside().constFirst());
    asOther({QStringLiteral("CREATE TABLE arrival (nobody INTEGER)"),
             QStringLiteral("UPDATE pass SET began = 3 WHERE id = 1")});
}

TEST_F(SqlitePassStoreTest, ReadingOnly_TakesAnyLayoutAndWritesNothing) {
    const auto read = [this](std::vector<PassRecord>& passes, std::vector<KeptArrival>& arrivals) {
        PassDatabase database(path, {}, PassDatabase::Access::ReadOnly);
        return database.readAll(passes) && database.readArrivals({}, arrivals);
    };
    std::vector<PassRecord> passes;
    std::vector<KeptArrival> found;
    EXPECT_FALSE(read(passes, found));
    EXPECT_FALSE(QFile::exists(path));
    asOther(firstLayout());
    const QByteArray before = bytes();
    EXPECT_TRUE(read(passes, found));
    EXPECT_EQ(passes.size(), 5U);
    EXPECT_TRUE(found.empty());
    EXPECT_EQ(bytes(), before);
    const auto store = openStore();
    PassRecord pass = numbered(5);
    pass.arrivals.push_back({"/in/a.mov", 1, pass.began});
    store->append(pass);
    EXPECT_EQ(lines(*store).size(), 6);
    passes.clear();
    EXPECT_TRUE(read(passes, found)) << "while another program has it open";
    EXPECT_EQ(passes.size(), 6U);
    EXPECT_EQ(found.size(), 1U);
}

PassRecord wordy(int number) {
    PassRecord record = numbered(number);
    QString noise; // packs badly
    for (std::uint32_t sign = 1U + static_cast<std::uint32_t>(number); noise.size() < 60'000;) {
        sign = sign * 1'664'525U + 1'013'904'223U;
        noise.append(QChar(u'!' + sign % 90));
    }
    record.commands[0].text.head = noise;
    record.arrivals.push_back({"/in/" + QByteArray::number(number), 1, record.began});
    return record;
}

TEST_F(SqlitePassStoreTest, TextsOfAnyLength_ComeBackAndArePackedForEarlierVersionsToo) {
    const auto store = openStore();
    QStringList texts;
    for (const qsizetype size : {1, 2, 340, 341, 342, 1023, 1024, 1025, 60'000}) {
        texts.append(QString(size, QChar(u'\x8a9e')));
        PassRecord record = numbered(static_cast<int>(size));
        record.commands[0].text = {texts.back(), QString(size, u'a'), 0};
        store->append(record);
    }
    (void)lines(*store);
    for (qsizetype i = 0; i < texts.size(); ++i) {
        const auto found =
            answered<std::optional<PassRecord>>([&](auto take) { store->read(i + 1, take); });
        ASSERT_TRUE(found && found->commands.size() == 1U);
        EXPECT_EQ(found->commands[0].text.head, texts[i]);
        const QVariantList values = valuesOf(1, 0, found->commands[0]);
        EXPECT_EQ(qUncompress(values[6].toByteArray()), texts[i].toUtf8());
        EXPECT_EQ(qUncompress(values[7].toByteArray()), QByteArray(texts[i].size(), 'a'));
    }
}

TEST_F(SqlitePassStoreTest, RecordBeyondItsBytes_LosesItsOldestPasses) {
    constexpr int cPasses = 300;
    const auto store = openStore({.bytes = qint64{8} * 1024 * 1024});
    for (int number = 1; number <= cPasses; ++number)
        store->append(wordy(number));
    const QStringList left = lines(*store);
    EXPECT_GE(left.size(), 100);
    EXPECT_LT(left.size(), 200);
    EXPECT_EQ(left.front(), QString::number(cPasses));
    EXPECT_EQ(left.back(), QString::number(cPasses + 1 - left.size())) << "without a gap";
    EXPECT_EQ(arrivals(*store).size(), std::size_t{cPasses}) << "they are small";
    EXPECT_EQ(standing(*store).last->lastLine, QString::number(cPasses));
}

TEST_F(SqlitePassStoreTest, LargeRecordOfAnEarlierVersion_GivesItsRoomBack) {
    {
        const auto store = openStore();
        for (int number = 1; number <= 300; ++number)
            store->append(wordy(number));
    }
    const qint64 before = QFileInfo(path).size();
    {
        const auto store = openStore({.bytes = qint64{6} * 1024 * 1024});
        store->append(numbered(301));
        EXPECT_GE(lines(*store).size(), 100);
    }
    EXPECT_GT(before, 12 * 1024 * 1024);
    EXPECT_LT(QFileInfo(path).size(), 7 * 1024 * 1024);
    EXPECT_TRUE(console.logged().isEmpty()) << console.logged().join(u'\n').toStdString();
}

TEST_F(SqlitePassStoreTest, HowThingsStand_IsReadWithoutWriting) {
    const auto read = [this](Standing& standing) {
        return bool(PassDatabase(path, {}, PassDatabase::Access::ReadOnly).readStanding(standing));
    };
    asOther(firstLayout());
    const QByteArray before = bytes();
    Standing old;
    EXPECT_FALSE(read(old)) << "an older layout does not say it";
    EXPECT_EQ(bytes(), before);
    const auto store = openStore();
    PassRecord well = numbered(5);
    well.cause = PassCause::Well;
    store->append(well);
    PassRecord away = numbered(6);
    away.cause = PassCause::HostAway;
    store->append(away);
    EXPECT_EQ(lines(*store).size(), 7);
    Standing standing;
    EXPECT_TRUE(read(standing));
    ASSERT_TRUE(standing.last && standing.lastSuccess);
    EXPECT_EQ(standing.last->cause, PassCause::HostAway);
    EXPECT_EQ(standing.lastSuccess->began, well.began);
}

TEST_F(SqlitePassStoreTest, EveryQuestion_IsAnsweredByAnIndex) {
    openStore()->append(numbered(1));
    // All of it is what is wanted.
    const QSet<int> readWhole{static_cast<int>(PassStatement::AllPasses)};
    {
        auto database =
            QSqlDatabase::addDatabase(QStringLiteral("QSQLITE"), QStringLiteral("plans"));
        database.setDatabaseName(path);
        ASSERT_TRUE(database.open());
        for (int i = 0; i <= static_cast<int>(PassStatement::Last); ++i) {
            const QString sql = sqlOf(static_cast<PassStatement>(i));
            QSqlQuery plan(database);
            ASSERT_TRUE(plan.prepare(u"EXPLAIN QUERY PLAN " + sql)) << qPrintable(sql);
            for (int value = 0; value < sql.count(u'?'); ++value)
                plan.addBindValue(1);
            ASSERT_TRUE(plan.exec()) << qPrintable(sql);
            while (plan.next()) {
                const QString step = plan.value(3).toString();
                EXPECT_FALSE(step.contains(QStringLiteral("TEMP B-TREE"))) << qPrintable(sql);
                for (const QStringView table : {u"pass", u"command", u"arrival", u"day"})
                    EXPECT_FALSE(step.startsWith(u"SCAN " + table) && !readWhole.contains(i))
                        << qPrintable(sql);
            }
        }
    }
    QSqlDatabase::removeDatabase(QStringLiteral("plans"));
}

} // namespace
} // namespace kelvo
