// The record of passes on disk: limits, damage, locks, full disks, two programs.
#include "adapters/system/unique_fd.h"
#include "contract/sqlite_pass_fixture.h"

#include <QFileInfo>

#include <gtest/gtest.h>

#include <fcntl.h>
#include <sched.h>
#include <sys/mount.h>

#include <functional>
#include <memory>
#include <optional>
#include <thread>
#include <vector>

namespace kelvo {
namespace {

TEST_F(SqlitePassStoreTest, Records_AreThereInTheNextRun) {
    openStore()->append(numbered(1));
    EXPECT_EQ(lines(*openStore()), QStringList{QStringLiteral("1")});
    EXPECT_TRUE(console.logged().isEmpty());
}

TEST_F(SqlitePassStoreTest, QuestionBeforeTheFirstRecord_MakesNoFile) {
    const auto store = openStore();
    EXPECT_EQ(lines(*store), QStringList());
    EXPECT_FALSE(QFileInfo::exists(path));
    store->append(numbered(1));
    EXPECT_EQ(lines(*store), QStringList{QStringLiteral("1")});
}

TEST_F(SqlitePassStoreTest, GetReady_BeginsTheLogOfAFileThatIsThere) {
    const QString log = path + QStringLiteral("-wal");
    {
        const auto store = openStore();
        store->getReady();
        EXPECT_TRUE(lines(*store).isEmpty()); // answered after it
        EXPECT_FALSE(QFile::exists(path)) << "none is made";
        store->append(numbered(1));
    }
    EXPECT_FALSE(QFile::exists(log));
    const auto store = openStore();
    store->getReady();
    EXPECT_EQ(lines(*store), QStringList{QStringLiteral("1")});
    EXPECT_GT(QFileInfo(log).size(), 0);
    store->append(numbered(2));
    EXPECT_EQ(lines(*store), QStringList({QStringLiteral("2"), QStringLiteral("1")}));
}

TEST_F(SqlitePassStoreTest, Finish_WritesEverythingOrTellsWhyNot) {
    const auto store = openStore();
    store->append(numbered(1));
    EXPECT_EQ(store->finish(), QString());
    EXPECT_EQ(store->finish(), QString()) << "it is done already";
    EXPECT_EQ(lines(*openStore()), QStringList{QStringLiteral("1")});

    path = folder.filePath(QStringLiteral("a file/passes.sqlite"));
    QFile file(folder.filePath(QStringLiteral("a file")));
    ASSERT_TRUE(file.open(QFile::WriteOnly));
    const auto nowhere = openStore();
    nowhere->append(numbered(2));
    const QString reason = nowhere->finish();
    EXPECT_FALSE(reason.isEmpty());
    EXPECT_TRUE(console.logged().last().endsWith(reason));
}

TEST_F(SqlitePassStoreTest, File_IsPrivate) {
    path = folder.filePath(QStringLiteral("state/passes.sqlite"));
    openStore()->append(numbered(1));
    const auto modeOf = [](const QString& name) {
        struct stat status {};
        EXPECT_EQ(::stat(QFile::encodeName(name).constData(), &status), 0);
        return status.st_mode & 07777U;
    };
    EXPECT_EQ(modeOf(path), 0600U);
    EXPECT_EQ(modeOf(QFileInfo(path).path()), 0700U);
}

TEST_F(SqlitePassStoreTest, EmptyTexts_TakeNoRoomAndComeBackEmpty) {
    PassRecord pass = numbered(1);
    pass.lastLine = QString();
    pass.arrivals.push_back({QByteArray(), 1, pass.began});
    openStore()->append(pass);
    const auto found = arrivals(*openStore());
    ASSERT_EQ(found.size(), 1U);
    EXPECT_EQ(found[0].arrival.path, QByteArray());
    EXPECT_EQ(lines(*openStore()), QStringList{QString()});
    asOther({QStringLiteral("CREATE TABLE sizes (size INTEGER CHECK (size = 0))"),
             QStringLiteral("INSERT INTO sizes SELECT length(head) + length(tail) FROM command")});
}

TEST_F(SqlitePassStoreTest, RecordThatHasANumberAlready_IsANewOne) {
    const auto store = openStore();
    PassRecord pass = numbered(1);
    pass.id = 7;
    store->append(pass);
    store->append(pass);
    EXPECT_EQ(lines(*store).join(u' '), u"1 1");
}

TEST_F(SqlitePassStoreTest, MoreThanAHundredUnwritten_LosesTheOldest) {
    path = folder.filePath(QStringLiteral("occupied/passes.sqlite"));
    QFile occupied(folder.filePath(QStringLiteral("occupied")));
    ASSERT_TRUE(occupied.open(QFile::WriteOnly));
    const auto store = openStore();
    for (int i = 1; i <= 105; ++i)
        store->append(numbered(i));
    EXPECT_TRUE(lines(*store).isEmpty());
    ASSERT_TRUE(occupied.remove());
    store->append(numbered(106));
    EXPECT_EQ(lines(*store).size(), 101);
    EXPECT_EQ(lines(*store).constLast(), u"6");
}

TEST_F(SqlitePassStoreTest, CauseOrRoleOfAnotherAge_IsUnknownOrAPull) {
    openStore()->append(numbered(1));
    for (const int number : {-1, static_cast<int>(cLastPassCause) + 1}) {
        const QString text = QString::number(number);
        asOther({u"UPDATE pass SET cause = " + text, u"UPDATE command SET role = " + text});
        const auto store = openStore();
        const auto record =
            answered<std::optional<PassRecord>>([&](auto take) { store->read(1, take); });
        ASSERT_TRUE(record) << number;
        EXPECT_EQ(record->cause, PassCause::Unknown) << number;
        ASSERT_EQ(record->commands.size(), 1U);
        EXPECT_EQ(record->commands[0].role, CommandRole::Pull) << number;
    }
    for (const int number : {-1, static_cast<int>(TransferSource::Lines) + 1}) {
        asOther({u"UPDATE pass SET source = " + QString::number(number)});
        const auto again = openStore();
        const auto records =
            answered<std::vector<PassRecord>>([&](auto take) { again->readAll(take); });
        ASSERT_EQ(records.size(), 1U);
        EXPECT_EQ(records[0].transfer.source, TransferSource::Unknown) << number;
    }
    const auto last = static_cast<int>(cLastPassCause);
    asOther({u"UPDATE pass SET cause = " + QString::number(last)});
    const auto store = openStore();
    const auto all = answered<std::vector<PassRecord>>([&](auto take) { store->readAll(take); });
    ASSERT_EQ(all.size(), 1U);
    EXPECT_EQ(all[0].cause, cLastPassCause);
}

TEST_F(SqlitePassStoreTest, TooMany_DropsTheOldestWithTheirCommands) {
    {
        const auto store = openStore({.passes = 5});
        for (int i = 1; i <= 8; ++i)
            store->append(numbered(i));
        EXPECT_EQ(lines(*store).join(u' '), QStringLiteral("8 7 6 5 4"));
    }
    asOther(
        {QStringLiteral("CREATE TABLE counted AS SELECT count(*) AS n FROM command"),
         QStringLiteral("INSERT INTO pass SELECT 100, 0, 0, 0, '', 0, n, 0, 0, 0 FROM counted")});
    EXPECT_EQ(lines(*openStore()).constFirst(), QStringLiteral("5"));
}

TEST_F(SqlitePassStoreTest, FileThatIsNoDatabase_IsKeptAsideAndSaid) {
    QFile file(path);
    ASSERT_TRUE(file.open(QFile::WriteOnly));
    file.write("these are my holiday notes, not a database\n");
    file.close();
    const auto store = openStore();
    store->append(numbered(1));
    EXPECT_EQ(lines(*store), QStringList{QStringLiteral("1")});
    ASSERT_EQ(setAside().size(), 1);
    EXPECT_EQ(logged(QStringLiteral("was damaged")), 1);
    QFile kept(folder.filePath(setAside().constFirst()));
    ASSERT_TRUE(kept.open(QFile::ReadOnly));
    EXPECT_TRUE(kept.readAll().startsWith("these are my"));
    EXPECT_EQ(standing(*store).aside, kept.fileName());
    EXPECT_EQ(standing(*store).fault, QString());
}

TEST_F(SqlitePassStoreTest, DamageInTheMiddle_IsKeptAsideToo) {
    {
        const auto store = openStore();
        for (int i = 0; i < 200; ++i)
            store->append(numbered(i));
        EXPECT_EQ(lines(*store).size(), 200);
    }
    QFile file(path);
    ASSERT_TRUE(file.open(QFile::ReadWrite));
    ASSERT_GT(file.size(), 8192);
    file.seek(4096);
    file.write(QByteArray(static_cast<qsizetype>(file.size()) - 4096, '\x5a'));
    file.close();
    const auto store = openStore();
    store->append(numbered(1000));
    EXPECT_EQ(lines(*store), QStringList{QStringLiteral("1000")});
    EXPECT_EQ(setAside().size(), 1);
}

TEST_F(SqlitePassStoreTest, Standing_OutlivesThePasses) {
    {
        const auto store = openStore({.passes = 5});
        PassRecord pass = numbered(1);
        pass.cause = PassCause::Well;
        pass.transfer = {TransferSource::Statistics, 3, 700};
        store->append(pass);
        for (int i = 2; i < 20; ++i) {
            pass.lastLine = QString::number(i);
            pass.cause = i < 10 ? PassCause::DiskFull : PassCause::Interrupted;
            pass.transfer = {};
            store->append(pass);
        }
    }
    const auto store = openStore({.passes = 5});
    EXPECT_EQ(lines(*store).constLast(), QStringLiteral("15"));
    const Standing found = standing(*store);
    ASSERT_TRUE(found.last && found.lastSuccess);
    EXPECT_EQ(found.lastSuccess->lastLine, QStringLiteral("1"));
    EXPECT_EQ(found.last->lastLine, QStringLiteral("9"));
    EXPECT_EQ(found.passesInTrouble, 8);
    ASSERT_EQ(days(*store).size(), 1U);
    EXPECT_EQ(days(*store)[0].bytes, 700);
}

TEST_F(SqlitePassStoreTest, PassWithoutArrivals_LeavesThoseOfOthersAlone) {
    const auto store = openStore({.arrivals = 2});
    PassRecord pass = numbered(1);
    for (const char* path : {"a", "b"})
        pass.arrivals.push_back({path, 1, pass.began});
    store->append(pass);
    // Its rows have higher numbers than any arrival.
    PassRecord next = numbered(2);
    next.commands.resize(20);
    store->append(next);
    EXPECT_EQ(arrivals(*store).size(), 2U);
}

TEST_F(SqlitePassStoreTest, TooManyArrivals_DropsTheOldestAndOutlivesTheirPasses) {
    const auto store = openStore({.passes = 2, .arrivals = 4});
    for (int i = 0; i < 3; ++i) {
        PassRecord pass = numbered(i);
        for (int file = 0; file < 2; ++file)
            pass.arrivals.push_back({QByteArray::number(i * 2 + file), 1, pass.began});
        store->append(pass);
    }
    store->append(numbered(4));
    const auto found = arrivals(*store);
    ASSERT_EQ(found.size(), 4U);
    EXPECT_EQ(found.front().arrival.path, "5");
    EXPECT_EQ(found.back().arrival.path, "2");
    EXPECT_EQ(lines(*store).size(), 2);
}

TEST_F(SqlitePassStoreTest, PlaceThatCannotBeWritten_IsSaidOnceAndMadeGoodLater) {
    path = folder.filePath(QStringLiteral("occupied/passes.sqlite"));
    QFile occupied(folder.filePath(QStringLiteral("occupied")));
    ASSERT_TRUE(occupied.open(QFile::WriteOnly));
    occupied.close();
    const auto store = openStore();
    std::vector<PassRecord> told;
    const auto subscription =
        store->observe([&](const PassRecord& record, const Standing&) { told.push_back(record); });
    for (int i = 1; i <= 3; ++i)
        store->append(numbered(i));
    EXPECT_TRUE(lines(*store).isEmpty());
    EXPECT_EQ(console.logged(), QStringList{QString(u"The record of passes " + path +
                                                    u" is set aside for now: its folder cannot be "
                                                    u"made")});
    ASSERT_EQ(told.size(), 3U) << "people see the pass even when it cannot be kept";
    EXPECT_EQ(told[0].id, 0) << "it has no number yet";
    ASSERT_TRUE(occupied.remove());
    store->append(numbered(4));
    EXPECT_EQ(lines(*store).join(u' '), QStringLiteral("4 3 2 1"));
    EXPECT_EQ(console.logged().size(), 2);
    EXPECT_EQ(console.logged().constLast(), u"The record of passes works again.");
    EXPECT_EQ(told.size(), 4U);
}

TEST_F(SqlitePassStoreTest, LockedFile_CostsTheCallerNothingAndLosesNothing) {
    openStore()->append(numbered(1));
    {
        auto other = QSqlDatabase::addDatabase(QStringLiteral("QSQLITE"), QStringLiteral("locker"));
        other.setDatabaseName(path);
        ASSERT_TRUE(other.open());
        QSqlQuery query(other);
        ASSERT_TRUE(query.exec(QStringLiteral("BEGIN EXCLUSIVE")));
        const auto store = openStore();
        store->append(numbered(2));
        EXPECT_EQ(logged(QStringLiteral("set aside for now")), 0) << "nobody has waited for it";
        EXPECT_TRUE(waitUntil([&] { return logged(QStringLiteral("set aside for now")) == 1; },
                              std::chrono::seconds(10)));
        ASSERT_TRUE(query.exec(QStringLiteral("COMMIT")));
        store->append(numbered(3));
        EXPECT_EQ(lines(*store).join(u' '), QStringLiteral("3 2 1"));
    }
    QSqlDatabase::removeDatabase(QStringLiteral("locker"));
}

TEST_F(SqlitePassStoreTest, TwoPrograms_ShareOneFile) {
    const auto left = openStore();
    const auto right = openStore();
    for (int i = 0; i < 50; ++i) {
        left->append(numbered(i));
        right->append(numbered(i));
    }
    EXPECT_TRUE(waitUntil([&] { return lines(*left).size() == 100; }, std::chrono::seconds(10)));
    EXPECT_EQ(lines(*right).size(), 100);
    EXPECT_TRUE(console.logged().isEmpty()) << console.logged().join(u'\n').toStdString();
}

TEST_F(SqlitePassStoreTest, OpeningOnceMore_LeavesTheLocksOfThisProgramOnTheFile) {
    const auto store = openStore();
    store->append(numbered(1));
    EXPECT_EQ(lines(*store).size(), 1);
    const auto other = openStore();
    EXPECT_EQ(lines(*other).size(), 1);
    const UniqueFd file(::open(QFile::encodeName(path).constData(), O_RDWR | O_CLOEXEC));
    struct flock wanted {};
    wanted.l_type = F_WRLCK;
    wanted.l_whence = SEEK_SET;
    ASSERT_EQ(::fcntl(file.get(), F_OFD_GETLK, &wanted), 0);
    EXPECT_EQ(wanted.l_type, F_RDLCK);
}

TEST_F(SqlitePassStoreTest, FullDisk_KeepsRecordsInMemoryUntilThereIsRoom) {
    bool able = false;
    // Mounts of a thread that has left the others' view are nobody else's.
    std::thread([&] {
        const QByteArray target = QFile::encodeName(folder.path());
        able = ::unshare(CLONE_NEWNS) == 0 &&
               ::mount(nullptr, "/", nullptr, MS_REC | MS_PRIVATE, nullptr) == 0 &&
               ::mount("small", target.constData(), "tmpfs", 0, "size=256k") == 0;
        if (!able)
            return;
        const auto store = openStore();
        store->append(numbered(1));
        EXPECT_EQ(lines(*store).size(), 1);
        QFile filler(folder.filePath(QStringLiteral("filler")));
        ASSERT_TRUE(filler.open(QFile::WriteOnly | QFile::Unbuffered));
        while (filler.write(QByteArray(4096, 'x')) == 4096) {
        }
        PassRecord large = numbered(2);
        QString noise;
        for (quint32 i = 0, seed = 1; i < 30000; ++i, seed = seed * 1664525 + 1013904223)
            noise += QChar(u'!' + static_cast<char16_t>(seed >> 25));
        large.commands.front().text.head = noise;
        store->append(large);
        EXPECT_EQ(lines(*store).size(), 1);
        EXPECT_EQ(logged(QStringLiteral("set aside for now")), 1);
        EXPECT_EQ(logged(QStringLiteral("works again")), 0) << "reading is not writing";
        EXPECT_FALSE(standing(*store).fault.isEmpty());
        ASSERT_TRUE(filler.remove());
        store->append(numbered(3));
        EXPECT_EQ(lines(*store).join(u' '), QStringLiteral("3 2 1"));
        EXPECT_TRUE(setAside().isEmpty()) << "a full disk is no damage";
    }).join();
    if (!able)
        GTEST_SKIP() << "root is needed for a small disk";
}

TEST_F(SqlitePassStoreTest, StoreThatIsGone_LeavesNobodyToHearFromIt) {
    openStore()->append(numbered(1));
    mainQueue.runDue();
    auto store = openStore();
    int heard = 0;
    const auto subscription = store->observe([&](const PassRecord&, const Standing&) { ++heard; });
    store->readAll([&](auto) { ++heard; });
    EXPECT_TRUE(waitUntil([&] { return !mainQueue.idle(); })) << "the answer is on its way";
    store->append(numbered(2));
    store.reset();
    mainQueue.runDue();
    EXPECT_EQ(heard, 0);
    EXPECT_EQ(lines(*openStore()).join(u' '), QStringLiteral("2 1"));
}

TEST_F(SqlitePassStoreTest, DamageFirstMetByAnyQuestion_IsKeptAside) {
    const std::vector<std::function<void(SqlitePassStore&)>> questions{
        [this](auto& store) {
            (void)answered<std::optional<PassRecord>>([&](auto take) { store.read(1, take); });
        },
        [this](auto& store) { EXPECT_EQ(lines(store), QStringList()); },
        [this](auto& store) { EXPECT_TRUE(arrivals(store).empty()); },
        [this](auto& store) { EXPECT_TRUE(days(store).empty()); },
        [this](auto& store) { EXPECT_FALSE(standing(store).last); },
    };
    for (std::size_t i = 0; i < questions.size(); ++i) {
        path = folder.filePath(QStringLiteral("record%1/passes.sqlite").arg(i));
        ASSERT_TRUE(QDir().mkpath(QFileInfo(path).path()));
        QFile file(path);
        ASSERT_TRUE(file.open(QFile::WriteOnly));
        file.write(QByteArray(4096, 'x'));
        file.close();
        const auto store = openStore();
        questions[i](*store);
        EXPECT_EQ(QFileInfo(path).dir().entryList({QStringLiteral("*.corrupt-*")}).size(), 1) << i;
        EXPECT_EQ(logged(QStringLiteral("was damaged")), static_cast<int>(i) + 1);
        store->append(numbered(1));
        EXPECT_EQ(lines(*store), QStringList{QStringLiteral("1")}) << i;
    }
}

TEST_F(SqlitePassStoreTest, QuestionsThatWaitWhenTheStoreEnds_AreNotWorkedOn) {
    constexpr int cQuestions = 2000;
    openStore()->append(numbered(1));
    const auto asker = std::make_shared<int>();
    {
        auto other = QSqlDatabase::addDatabase(QStringLiteral("QSQLITE"), QStringLiteral("locker"));
        other.setDatabaseName(path);
        ASSERT_TRUE(other.open());
        QSqlQuery query(other);
        ASSERT_TRUE(query.exec(QStringLiteral("BEGIN EXCLUSIVE")));
        auto store = openStore();
        store->append(numbered(2)); // waits for the lock
        for (int i = 0; i < cQuestions; ++i)
            store->readAll([asker](auto) {});
        store.reset();
    }
    QSqlDatabase::removeDatabase(QStringLiteral("locker"));
    EXPECT_LT(asker.use_count() - 1, cQuestions) << "each answer on its way knows who asked";
}

} // namespace
} // namespace kelvo
