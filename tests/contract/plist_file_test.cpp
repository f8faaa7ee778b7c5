// PlistFile where the disk fails in the middle.
#include "adapters/settings/plist_file.h"
#include "contract/settings_folder.h"
#include "support/sanitized.h"

#include <QFileInfo>
#include <QProcess>

#include <gtest/gtest.h>

#include <unistd.h>

#include <cerrno>
#include <cstring>

namespace kelvo {
namespace {

using namespace std::chrono_literals;

class PlistFileTest : public ::testing::Test {
protected:
    PlistFileTest() { fFolder.write(fOld); }

    void SetUp() override {
        if (cSanitized)
            GTEST_SKIP() << "the sanitizer's library must be the first one that is loaded";
    }

    /// What another program says that does `work` to the file while `call` fails on `path`.
    QString saidOf(const QString& work, const char* call, const QString& path, int error = 0) {
        QProcess worker;
        QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
        environment.insert(QStringLiteral("LD_PRELOAD"), QStringLiteral(KELVO_FAILING_FILE));
        environment.insert(QStringLiteral("FAILING_CALL"), QString::fromLatin1(call));
        environment.insert(QStringLiteral("FAILING_FILE"), path);
        environment.insert(QStringLiteral("FAILING_ERRNO"), QString::number(error));
        worker.setProcessEnvironment(environment);
        worker.start(QStringLiteral(KELVO_SETTINGS_WRITER), {work, fFolder.path()});
        EXPECT_TRUE(worker.waitForFinished(30'000));
        return QString::fromUtf8(worker.readAllStandardOutput()).trimmed();
    }
    QString ofNewFiles() const { return fFolder.path() + QStringLiteral(".new-*"); }
    static QString textOf(int error) { return QString::fromLocal8Bit(::strerror(error)); }

    const QByteArray fOld = "old";
    const QByteArray fNew = QByteArray(5000, 'n');
    SettingsFolder fFolder;
};

TEST_F(PlistFileTest, NewFileThatFailsOnItsWay_LeavesTheOldOneAndNothingElse) {
    for (const char* call : {"write", "fsync", "close"}) {
        for (const int error : {EIO, ENOSPC}) {
            EXPECT_EQ(saidOf(QStringLiteral("replace"), call, ofNewFiles(), error), textOf(error))
                << call;
            EXPECT_EQ(fFolder.bytes(), fOld) << call;
            EXPECT_EQ(fFolder.otherFiles(), QStringList()) << call;
        }
    }
}

TEST_F(PlistFileTest, DamagedFileThatCannotBeMovedAside_IsNotWrittenOver) {
    const QByteArray damaged = "neither a list nor anything else";
    fFolder.write(damaged);
    QProcess writer;
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    environment.insert(QStringLiteral("LD_PRELOAD"), QStringLiteral(KELVO_FAILING_FILE));
    environment.insert(QStringLiteral("FAILING_CALL"), QStringLiteral("renameat2"));
    environment.insert(QStringLiteral("FAILING_FILE"), fFolder.path());
    environment.insert(QStringLiteral("FAILING_ERRNO"), QString::number(EPERM));
    writer.setProcessEnvironment(environment);
    writer.start(
        QStringLiteral(KELVO_SETTINGS_WRITER),
        {QStringLiteral("keys"), fFolder.path(), QStringLiteral("key"), QStringLiteral("1")});
    ASSERT_TRUE(writer.waitForFinished(30'000));
    EXPECT_EQ(fFolder.bytes(), damaged);
    EXPECT_EQ(fFolder.otherFiles(), QStringList());
    EXPECT_TRUE(writer.readAllStandardError().contains(
        QByteArray("it cannot be moved aside: " + textOf(EPERM).toLocal8Bit() + ". ")));
}

TEST_F(PlistFileTest, WriteThatIsBrokenOffBySignals_GoesOn) {
    EXPECT_EQ(saidOf(QStringLiteral("replace"), "short-write", ofNewFiles()), u"done");
    EXPECT_EQ(fFolder.bytes(), fNew);
}

TEST_F(PlistFileTest, FolderThatCannotBeSynced_IsAFailureUnlessItNeverCan) {
    EXPECT_EQ(saidOf(QStringLiteral("replace"), "fsync", fFolder.folder(), EIO), textOf(EIO));
    EXPECT_EQ(saidOf(QStringLiteral("replace"), "fsync", fFolder.folder(), EINVAL), u"done");
    EXPECT_EQ(fFolder.bytes(), fNew);
}

TEST_F(PlistFileTest, FileSystemWithoutExclusiveRename_MovesAsideAllTheSame) {
    const QString aside = QStringLiteral("preferences.plist.corrupt-20260301T040506Z");
    for (const int error : {EINVAL, ENOSYS}) {
        EXPECT_EQ(saidOf(QStringLiteral("aside"), "renameat2", fFolder.path(), error), u"done");
        EXPECT_FALSE(QFile::exists(fFolder.path()));
        fFolder.write("second");
    }
    EXPECT_EQ(fFolder.otherFiles(), (QStringList{aside, QString(aside + u"-2")}));
    QFile first(fFolder.folder() + u'/' + aside);
    ASSERT_TRUE(first.open(QFile::ReadOnly));
    EXPECT_EQ(first.readAll(), fOld) << "nothing is overwritten";
    EXPECT_EQ(saidOf(QStringLiteral("aside"), "renameat2", fFolder.path(), EIO), textOf(EIO));
    EXPECT_EQ(fFolder.bytes(), "second");
}

TEST_F(PlistFileTest, LockFileReplacedAtTheLastMoment_IsTakenAnew) {
    const QString lock = fFolder.path() + QStringLiteral(".lock");
    EXPECT_EQ(saidOf(QStringLiteral("lock"), "late-flock", lock), u"done");
    EXPECT_TRUE(QFile::exists(lock));
}

TEST_F(PlistFileTest, Aside_TakesTheFirstFreeNameOfAThousand) {
    const QDateTime now(QDate(2026, 3, 1), QTime(4, 5, 6), Qt::UTC);
    const QString aside = fFolder.path() + QStringLiteral(".corrupt-20260301T040506Z");
    PlistFile file(fFolder.path());
    ASSERT_EQ(::chmod(QFile::encodeName(fFolder.path()), 0644), 0);
    EXPECT_EQ(file.moveAside(now).first, aside);
    EXPECT_EQ(SettingsFolder::modeOf(aside), 0600U);
    for (int number = 2; number <= 999; ++number)
        ASSERT_TRUE(QFile(aside + u'-' + QString::number(number)).open(QFile::WriteOnly));
    fFolder.write("second");
    EXPECT_EQ(file.moveAside(now).first, QString(aside + u"-1000"));
    fFolder.write("third");
    EXPECT_EQ(file.moveAside(now), std::pair(QString(), textOf(EEXIST)));
    EXPECT_EQ(fFolder.bytes(), "third");
}

TEST_F(PlistFileTest, NewFileThatCannotTakeItsPlace_IsRemoved) {
    ASSERT_TRUE(QFile::remove(fFolder.path()));
    ASSERT_TRUE(QDir().mkdir(fFolder.path()));
    EXPECT_EQ(PlistFile(fFolder.path()).replace(fNew), textOf(EISDIR));
    EXPECT_EQ(fFolder.otherFiles(), QStringList());
}

TEST_F(PlistFileTest, LinkInPlaceOfTheLockFile_IsNotFollowed) {
    const QString lock = fFolder.path() + QStringLiteral(".lock");
    const QString target = fFolder.folder() + QStringLiteral("/theirs");
    ASSERT_EQ(::symlink(QFile::encodeName(target), QFile::encodeName(lock)), 0);
    const auto [held, failure] = PlistFile(fFolder.path()).lock(1s);
    EXPECT_FALSE(held);
    EXPECT_EQ(failure, textOf(ELOOP));
    EXPECT_FALSE(QFile::exists(target));
}

} // namespace
} // namespace kelvo
