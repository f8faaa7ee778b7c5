// The record of passes heals: files that are not ours, files taken away or replaced while open.
#include "contract/sqlite_pass_fixture.h"

#include <QFileInfo>

#include <sys/stat.h>
#include <unistd.h>

#include <cerrno>
#include <cstdio>
#include <cstring>

namespace kelvo {
namespace {

class PassRecordHealingTest : public SqlitePassStoreTest {
protected:
    /// A store that has written passes 1 and 2, for certain.
    std::unique_ptr<SqlitePassStore> openWithTwo() {
        auto store = openStore();
        store->append(numbered(1));
        store->append(numbered(2));
        EXPECT_EQ(joined(*store), QStringLiteral("2 1"));
        return store;
    }
    QString joined(SqlitePassStore& store) { return lines(store).join(u' '); }
    QString beside(const char* name) const { return folder.filePath(QString::fromLatin1(name)); }
    QByteArray name() const { return QFile::encodeName(path); }

    /// Passes in the file at `place`, as another program sees it.
    QString found(QString place) {
        const QString ours = std::exchange(path, std::move(place));
        const QString there = joined(*openStore());
        path = ours;
        return there;
    }

    /// The one that was set aside; empty when there is none.
    QString asideFile() const { return folder.filePath(setAside().value(0)); }

    void expectSetAside(const QString& reason) {
        EXPECT_EQ(setAside().size(), 1) << reason.toStdString();
        EXPECT_EQ(logged(reason), 1) << console.logged().join(u'\n').toStdString();
        EXPECT_EQ(logged(QString(u"The record of passes was damaged (" + reason +
                                 u") and is kept as " + asideFile() + u"; a new one is begun.")),
                  1);
    }
};

class PassRecordOfOthersTest : public PassRecordHealingTest,
                               public ::testing::WithParamInterface<const char*> {};

TEST_P(PassRecordOfOthersTest, File_IsSetAsideAndNothingIsWrittenIntoIt) {
    asOther(QString::fromLatin1(GetParam()).split(u';'));
    const QByteArray before = bytes();
    const auto store = openStore();
    EXPECT_EQ(joined(*store), QString());
    store->append(numbered(1));
    EXPECT_EQ(joined(*store), QStringLiteral("1"));
    expectSetAside(QStringLiteral("another program has written it"));
    EXPECT_EQ(standing(*store).aside, asideFile());
    QFile kept(asideFile());
    ASSERT_TRUE(kept.open(QFile::ReadOnly));
    EXPECT_EQ(kept.readAll(), before);
}

INSTANTIATE_TEST_SUITE_P(
    Files, PassRecordOfOthersTest,
    ::testing::Values("CREATE TABLE notes (text TEXT);INSERT INTO notes VALUES ('milk')",
                      "CREATE TABLE notes (text TEXT);PRAGMA user_version = 2",
                      "CREATE TABLE notes (text TEXT);PRAGMA user_version = 99",
                      "CREATE TABLE pass (id INTEGER);PRAGMA user_version = -1",
                      "CREATE TABLE pass (id INTEGER);PRAGMA user_version = 2;"
                      "PRAGMA application_id = 252006674"));

class PassRecordWithWrongTablesTest : public PassRecordHealingTest,
                                      public ::testing::WithParamInterface<const char*> {};

TEST_P(PassRecordWithWrongTablesTest, File_IsSetAsideAndNoPassIsLost) {
    openStore()->append(numbered(0));
    asOther({QString::fromLatin1(GetParam())});
    const auto store = openStore();
    for (int i = 1; i <= 3; ++i)
        store->append(numbered(i));
    EXPECT_EQ(joined(*store), QStringLiteral("3 2 1"));
    EXPECT_EQ(setAside().size(), 1);
    EXPECT_EQ(standing(*store).fault, QString());
    EXPECT_EQ(standing(*store).aside, asideFile());
}

INSTANTIATE_TEST_SUITE_P(Tables, PassRecordWithWrongTablesTest,
                         ::testing::Values("DROP TABLE day", "DROP TABLE command",
                                           "ALTER TABLE pass RENAME COLUMN verdict TO answer",
                                           "CREATE UNIQUE INDEX one ON pass (kind)"));

TEST_F(PassRecordHealingTest, TablesChangedWhileOpen_AreNoticed) {
    const auto store = openWithTwo();
    asOther({QStringLiteral("DROP TABLE standing")});
    store->append(numbered(3));
    EXPECT_EQ(joined(*store), QStringLiteral("3 2 1"));
    EXPECT_EQ(setAside().size(), 1);
}

struct RefusedStatement {
    const char* trigger;
    PassCause cause = PassCause::Well;
};

class PassRecordThatRefusesTest : public PassRecordHealingTest,
                                  public ::testing::WithParamInterface<RefusedStatement> {};

TEST_P(PassRecordThatRefusesTest, AnyStatementOfAPass_IsNoticedAndNoPassIsLost) {
    const auto pass = [](int number, PassCause cause) {
        PassRecord record = numbered(number);
        record.cause = cause;
        record.arrivals.push_back({QByteArray::number(number), 1, record.began});
        return record;
    };
    const auto store = openStore({.passes = 2, .arrivals = 2});
    store->append(pass(1, PassCause::Well));
    store->append(pass(2, PassCause::DiskFull));
    EXPECT_EQ(joined(*store), u"2 1");
    asOther({u"CREATE TRIGGER refusal BEFORE " + QString::fromLatin1(GetParam().trigger) +
             u" BEGIN SELECT RAISE(ABORT, 'not here'); END"});
    store->append(pass(3, GetParam().cause));
    EXPECT_EQ(joined(*store), u"3 2");
    EXPECT_EQ(arrivals(*store).size(), 2U);
    EXPECT_EQ(standing(*store).fault, QString());
    expectSetAside(QStringLiteral("not here"));
}

INSTANTIATE_TEST_SUITE_P(
    Statements, PassRecordThatRefusesTest,
    ::testing::Values(RefusedStatement{"INSERT ON pass"}, RefusedStatement{"INSERT ON command"},
                      RefusedStatement{"INSERT ON arrival"}, RefusedStatement{"INSERT ON day"},
                      RefusedStatement{"INSERT ON standing WHEN NEW.which = 0"},
                      RefusedStatement{"INSERT ON standing WHEN NEW.which = 1"},
                      RefusedStatement{"INSERT ON trouble", PassCause::DiskFull},
                      RefusedStatement{"DELETE ON trouble"}, RefusedStatement{"DELETE ON pass"},
                      RefusedStatement{"DELETE ON command"},
                      RefusedStatement{"DELETE ON arrival"}));

TEST_F(PassRecordHealingTest, TablesChangedWhileOpen_AreNoticedByAQuestionToo) {
    const auto store = openWithTwo();
    asOther({QStringLiteral("DROP TABLE standing")});
    const Standing found = standing(*store);
    ASSERT_TRUE(found.last);
    EXPECT_EQ(found.last->lastLine, u"2");
    EXPECT_EQ(joined(*store), u"2 1");
    EXPECT_EQ(QFileInfo(asideFile()).isFile(), true);
}

TEST_F(PassRecordHealingTest, TableThatIsMissing_IsNoticedByAQuestionAfterOthers) {
    openStore()->append(numbered(1));
    asOther({QStringLiteral("DROP TABLE trouble")});
    EXPECT_EQ(joined(*openStore()), QString());
    EXPECT_EQ(setAside().size(), 1);
}

TEST_F(PassRecordHealingTest, FileLostAfterManyPasses_HoldsTheNewestHundredOfThisRun) {
    const auto store = openStore();
    for (int i = 1; i <= 103; ++i)
        store->append(numbered(i));
    EXPECT_EQ(lines(*store).size(), 103);
    ASSERT_TRUE(QFile::remove(path));
    store->append(numbered(104));
    EXPECT_EQ(lines(*store).size(), 101);
    EXPECT_EQ(lines(*store).constLast(), u"4");
}

TEST_F(PassRecordHealingTest, FileLostWithPassesDroppedFromIt_BringsTheOthersBack) {
    const auto store = openStore({.passes = 3});
    for (int i = 1; i <= 5; ++i)
        store->append(numbered(i));
    EXPECT_EQ(joined(*store), u"5 4 3");
    ASSERT_TRUE(QFile::remove(path));
    EXPECT_EQ(joined(*store), u"5 4 3");
}

TEST_F(PassRecordHealingTest, FileLostAgain_BringsBackNoPassOfAnotherRun) {
    const QString ours = std::exchange(path, beside("backup"));
    openStore()->append(numbered(7));
    path = ours;
    const auto store = openWithTwo();
    ASSERT_EQ(std::rename(QFile::encodeName(beside("backup")).constData(), name().constData()), 0);
    EXPECT_EQ(joined(*store), u"2 1 7");
    ASSERT_TRUE(QFile::remove(path));
    EXPECT_EQ(joined(*store), u"2 1");
}

TEST_F(PassRecordHealingTest, PassesFoundUnderOtherNumbers_AreKnownByThem) {
    const auto store = openWithTwo();
    asOther({u"VACUUM INTO '" + beside("copy") + u'\''});
    const QString ours = std::exchange(path, beside("copy"));
    asOther({QStringLiteral("UPDATE pass SET id = id + 10"),
             QStringLiteral("UPDATE command SET pass = pass + 10")});
    path = ours;
    ASSERT_EQ(std::rename(QFile::encodeName(beside("copy")).constData(), name().constData()), 0);
    EXPECT_EQ(joined(*store), u"2 1");
    ASSERT_TRUE(QFile::remove(path));
    EXPECT_EQ(joined(*store), u"2 1");
}

TEST_F(PassRecordHealingTest, FileInPlaceOfTheFolder_IsTroubleUntilItIsGone) {
    path = beside("state/passes.sqlite");
    const auto store = openWithTwo();
    ASSERT_TRUE(QDir().rename(beside("state"), beside("old")));
    QFile obstacle(beside("state"));
    ASSERT_TRUE(obstacle.open(QFile::WriteOnly));
    store->append(numbered(3));
    EXPECT_EQ(standing(*store).fault, u"its folder cannot be made");
    ASSERT_TRUE(obstacle.remove());
    store->append(numbered(4));
    EXPECT_EQ(joined(*store), u"4 3 2 1");
}

TEST_F(PassRecordHealingTest, LinkThatCannotLeadAnywhere_IsSetAside) {
    QFile file(beside("file"));
    ASSERT_TRUE(file.open(QFile::WriteOnly));
    for (const QString& target : {QString(path), QString(beside("file") + u"/passes")}) {
        ASSERT_EQ(::symlink(QFile::encodeName(target).constData(), name().constData()), 0);
        openStore()->append(numbered(1));
        EXPECT_EQ(found(path), u"1") << target.toStdString();
        ASSERT_TRUE(QFile::remove(path));
    }
    EXPECT_EQ(setAside().size(), 2);
    EXPECT_EQ(logged(QStringLiteral("it is a link that leads nowhere")), 2);
}

TEST_F(PassRecordHealingTest, LinkThatCannotBeFollowedForAnotherReason_Stays) {
    const QByteArray target(300, 'x');
    ASSERT_EQ(::symlink(target.constData(), name().constData()), 0);
    const auto store = openStore();
    store->append(numbered(1));
    EXPECT_EQ(standing(*store).fault, QString::fromLocal8Bit(::strerror(ENAMETOOLONG)));
    EXPECT_TRUE(QFileInfo(path).isSymLink());
    EXPECT_EQ(setAside(), QStringList());
}

TEST_F(PassRecordHealingTest, Aside_TakesTheFirstFreeNameOfAThousand) {
    const QDateTime now(QDate(2026, 3, 1), QTime(4, 5, 6), Qt::UTC);
    const QString aside = path + QStringLiteral(".corrupt-20260301T040506Z");
    const auto put = [](const QString& place, const QByteArray& bytes) {
        QFile file(place);
        ASSERT_TRUE(file.open(QFile::WriteOnly));
        file.write(bytes);
    };
    PassDatabase database(path);
    EXPECT_EQ(database.moveAside(now), std::nullopt) << "nothing is there";
    for (const char* part : {"", "-wal", "-shm"})
        put(path + QString::fromLatin1(part), "broken");
    EXPECT_EQ(database.moveAside(now), aside);
    EXPECT_TRUE(QFile::exists(aside + QStringLiteral("-wal")));
    EXPECT_EQ(QDir(folder.path()).entryList(QDir::Files).size(), 2) << "its shared memory is gone";
    for (int number = 2; number <= 999; ++number)
        put(aside + u'-' + QString::number(number), "taken");
    put(path, "broken too");
    EXPECT_EQ(database.moveAside(now), QString(aside + u"-1000"));
    put(path, "one too many");
    EXPECT_EQ(database.moveAside(now), std::nullopt);
    EXPECT_TRUE(QFile::exists(path));
}

TEST_F(PassRecordHealingTest, ReadFault_IsThatOfAFileThatIsThere) {
    const auto faultAt = [](const QString& place) { return PassDatabase(place).readFault(); };
    QFile file(path);
    ASSERT_TRUE(file.open(QFile::WriteOnly));
    EXPECT_EQ(faultAt(path), QString());
    EXPECT_EQ(faultAt(beside("missing")), QString());
    EXPECT_EQ(faultAt(path + QStringLiteral("/below")), QString());
    EXPECT_EQ(faultAt(folder.path()), QString());
    ASSERT_EQ(::symlink("circle", QFile::encodeName(beside("circle")).constData()), 0);
    EXPECT_EQ(faultAt(beside("circle")), QString());
    ASSERT_EQ(::mkfifo(QFile::encodeName(beside("pipe")).constData(), 0600), 0);
    EXPECT_EQ(faultAt(beside("pipe")), QString());
    const QString longest = folder.filePath(QString(252, u'x')); // its log's name is too long
    QFile other(longest);
    ASSERT_TRUE(other.open(QFile::WriteOnly));
    EXPECT_EQ(faultAt(longest), QString::fromLocal8Bit(::strerror(ENAMETOOLONG)));
}

TEST_F(PassRecordHealingTest, FileRemovedWhileOpen_IsWrittenAnewWithThePassesOfThisRun) {
    const auto store = openWithTwo();
    ASSERT_TRUE(QFile::remove(path));
    store->append(numbered(3));
    EXPECT_EQ(joined(*store), QStringLiteral("3 2 1"));
    EXPECT_EQ(found(path), QStringLiteral("3 2 1")) << "for everybody";
    EXPECT_TRUE(standing(*store).replaced);
    EXPECT_EQ(standing(*store).fault, QString());
    EXPECT_EQ(console.logged(),
              QStringList{
                  QString(u"The record of passes " + path +
                          u" was removed or replaced; the passes of this run are written again.")});
    EXPECT_TRUE(setAside().isEmpty());
    const auto first =
        answered<std::optional<PassRecord>>([&](auto take) { store->read(1, take); });
    ASSERT_TRUE(first);
    EXPECT_EQ(first->lastLine, QStringLiteral("1"));
    EXPECT_EQ(first->commands.size(), 1U) << "whole";
}

TEST_F(PassRecordHealingTest, FolderRemovedWhileOpen_IsMadeAnew) {
    path = beside("state/passes.sqlite");
    const auto store = openWithTwo();
    ASSERT_TRUE(QDir(beside("state")).removeRecursively());
    EXPECT_EQ(joined(*store), QStringLiteral("2 1")) << "a question notices it too";
    EXPECT_EQ(found(path), QStringLiteral("2 1"));
    EXPECT_TRUE(standing(*store).replaced);
}

TEST_F(PassRecordHealingTest, FileMovedAwayWhileOpen_IsWholeWhereItIs) {
    const auto store = openWithTwo();
    ASSERT_TRUE(QFile::rename(path, beside("moved")));
    store->append(numbered(3));
    EXPECT_EQ(joined(*store), QStringLiteral("3 2 1"));
    EXPECT_EQ(found(beside("moved")), QStringLiteral("2 1"));
}

TEST_F(PassRecordHealingTest, FileReplacedByAnotherRecord_IsAddedTo) {
    const QString ours = std::exchange(path, beside("backup"));
    openStore()->append(numbered(7));
    path = ours;
    const auto store = openWithTwo();
    ASSERT_EQ(std::rename(QFile::encodeName(beside("backup")).constData(), name().constData()), 0);
    store->append(numbered(3));
    EXPECT_EQ(joined(*store), QStringLiteral("3 2 1 7"));
    EXPECT_EQ(found(path), QStringLiteral("3 2 1 7"));
    EXPECT_TRUE(setAside().isEmpty()) << "the log of the old file is not laid over the new one";
}

TEST_F(PassRecordHealingTest, FileReplacedWhileAnotherProgramReads_IsAddedToAllTheSame) {
    const QString ours = std::exchange(path, beside("backup"));
    openStore()->append(numbered(7));
    path = ours;
    const auto store = openWithTwo();
    {
        auto reader =
            QSqlDatabase::addDatabase(QStringLiteral("QSQLITE"), QStringLiteral("reader"));
        reader.setDatabaseName(path);
        ASSERT_TRUE(reader.open());
        QSqlQuery query(reader);
        ASSERT_TRUE(query.exec(QStringLiteral("BEGIN")));
        ASSERT_TRUE(query.exec(QStringLiteral("SELECT count(*) FROM pass")) && query.next());
        store->append(numbered(3));
        EXPECT_EQ(joined(*store), QStringLiteral("3 2 1"));
        ASSERT_EQ(std::rename(QFile::encodeName(beside("backup")).constData(), name().constData()),
                  0);
        store->append(numbered(4));
        EXPECT_EQ(joined(*store), QStringLiteral("4 3 2 1 7")) << "its log stays behind";
        EXPECT_EQ(found(path), QStringLiteral("4 3 2 1 7"));
    }
    QSqlDatabase::removeDatabase(QStringLiteral("reader"));
}

TEST_F(PassRecordHealingTest, FileReplacedByItsOwnCopy_HoldsNoPassTwice) {
    const auto store = openWithTwo();
    asOther({u"VACUUM INTO '" + beside("copy") + u'\''});
    ASSERT_EQ(std::rename(QFile::encodeName(beside("copy")).constData(), name().constData()), 0);
    store->append(numbered(3));
    EXPECT_EQ(joined(*store), QStringLiteral("3 2 1"));
    EXPECT_TRUE(standing(*store).replaced);
}

TEST_F(PassRecordHealingTest, FileReplacedByNoDatabase_IsSetAsideAndNoPassIsLost) {
    const auto store = openWithTwo();
    QFile notes(beside("notes"));
    ASSERT_TRUE(notes.open(QFile::WriteOnly));
    notes.write(QByteArray(9000, 'n'));
    notes.close();
    ASSERT_EQ(std::rename(QFile::encodeName(notes.fileName()).constData(), name().constData()), 0);
    store->append(numbered(3));
    EXPECT_EQ(joined(*store), QStringLiteral("3 2 1"));
    expectSetAside(QStringLiteral("file is not a database"));
}

TEST_F(PassRecordHealingTest, LinkToNowhere_IsSetAside) {
    ASSERT_EQ(::symlink(QFile::encodeName(beside("gone/passes")).constData(), name().constData()),
              0);
    const auto store = openStore();
    store->append(numbered(1));
    EXPECT_EQ(joined(*store), QStringLiteral("1"));
    expectSetAside(QStringLiteral("it is a link that leads nowhere"));
    EXPECT_TRUE(QFileInfo(asideFile()).isSymLink());
}

TEST_F(PassRecordHealingTest, LinkToAFileThatIsMissing_IsWrittenThrough) {
    ASSERT_EQ(::symlink(QFile::encodeName(beside("target")).constData(), name().constData()), 0);
    openStore()->append(numbered(1));
    EXPECT_EQ(found(beside("target")), QStringLiteral("1"));
    EXPECT_TRUE(QFileInfo(path).isSymLink());
}

TEST_F(PassRecordHealingTest, PipeOrFolderUnderTheName_IsSetAside) {
    ASSERT_EQ(::mkfifo(name().constData(), 0600), 0);
    openStore()->append(numbered(1));
    EXPECT_EQ(found(path), QStringLiteral("1"));
    ASSERT_TRUE(QFile::remove(path));
    ASSERT_TRUE(QDir().mkpath(path));
    openStore()->append(numbered(2));
    EXPECT_EQ(found(path), QStringLiteral("2"));
    EXPECT_EQ(setAside().size(), 2);
    EXPECT_EQ(logged(QStringLiteral("it is no ordinary file")), 2);
}

TEST_F(PassRecordHealingTest, TroubleThatIsOverAtTheEnd_CostsNoPass) {
    path = beside("occupied/passes.sqlite");
    QFile occupied(beside("occupied"));
    ASSERT_TRUE(occupied.open(QFile::WriteOnly));
    {
        const auto store = openStore();
        store->append(numbered(1));
        ASSERT_TRUE(waitUntil([&] { return logged(QStringLiteral("set aside for now")) == 1; }));
        ASSERT_TRUE(occupied.remove());
    }
    EXPECT_EQ(found(path), QStringLiteral("1"));
    EXPECT_EQ(logged(QStringLiteral("works again")), 1);
}

} // namespace
} // namespace kelvo
