#include "adapters/console/rotating_log_file.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>

#include <gtest/gtest.h>

#include <sys/stat.h>

#include <cstdlib>

namespace kelvo {
namespace {

class RotatingLogFileTest : public testing::Test {
protected:
    ~RotatingLogFileTest() override { QDir(fFolder).removeRecursively(); }

    static unsigned mode(const QString& path) {
        struct stat status {};
        return ::stat(path.toUtf8().constData(), &status) == 0 ? status.st_mode & 07777u : 0u;
    }
    QString read(const QString& name) const {
        QFile file(fFolder + u'/' + name);
        return file.open(QIODevice::ReadOnly) ? QString::fromUtf8(file.readAll()) : QString();
    }

    const QString fFolder = qEnvironmentVariable("TMPDIR") + u"/rotating_log_file";
    const QString fPath = fFolder + u"/x.log";
};

TEST_F(RotatingLogFileTest, DefaultPath_FollowsTheStateFolder) {
    const RotatingLogFile log;
    const QByteArray state = qgetenv("XDG_STATE_HOME");
    const QString subdirectory = QStringLiteral("Kelvo");
    EXPECT_EQ(log.defaultLogFileWithinSubdirectory(subdirectory),
              QString::fromUtf8(state) + u"/Kelvo/kelvo-mirror.log");
    const QString fallback = qEnvironmentVariable("HOME") + u"/.local/state/Kelvo/kelvo-mirror.log";
    qputenv("XDG_STATE_HOME", "not/absolute");
    EXPECT_EQ(log.defaultLogFileWithinSubdirectory(subdirectory), fallback);
    qunsetenv("XDG_STATE_HOME");
    EXPECT_EQ(log.defaultLogFileWithinSubdirectory(subdirectory), fallback);
    qputenv("XDG_STATE_HOME", state);
}

TEST_F(RotatingLogFileTest, FullFile_RotatesAndKeepsThreeInAll) {
    RotatingLogFile log(1000);
    ASSERT_TRUE(log.setLogFile(fPath));
    for (int i = 0; i < 100; ++i)
        log.append(QStringLiteral("line %1 %2").arg(i).arg(QString(60, u'x')));
    EXPECT_EQ(QDir(fFolder).entryList(QDir::Files),
              (QStringList{QStringLiteral("x.1.log"), QStringLiteral("x.2.log"),
                           QStringLiteral("x.log")}));
    for (const QString& name : QDir(fFolder).entryList(QDir::Files))
        EXPECT_LE(QFileInfo(fFolder + u'/' + name).size(), 1000);
    EXPECT_TRUE(read(QStringLiteral("x.log")).contains(u"line 99 "));
}

TEST_F(RotatingLogFileTest, FilesAndNewFolders_AreTheUsersAlone) {
    const mode_t before = ::umask(0);
    RotatingLogFile log(500);
    EXPECT_TRUE(log.setLogFile(fFolder + u"/deep/er/x.log"));
    for (int i = 0; i < 30; ++i)
        log.append(QString(60, u'x'));
    ::umask(before);
    EXPECT_EQ(mode(fFolder), 0700u);
    EXPECT_EQ(mode(fFolder + u"/deep/er"), 0700u);
    for (const char* name : {"x.log", "x.1.log", "x.2.log"})
        EXPECT_EQ(mode(fFolder + u"/deep/er/" + QString::fromLatin1(name)), 0600u) << name;
}

TEST_F(RotatingLogFileTest, FolderThatIsThere_KeepsItsMode) {
    QDir().mkpath(fFolder);
    ASSERT_EQ(::chmod(fFolder.toUtf8().constData(), 0755), 0);
    RotatingLogFile log;
    EXPECT_TRUE(log.setLogFile(fPath));
    EXPECT_EQ(mode(fFolder), 0755u);
}

TEST_F(RotatingLogFileTest, OpenFileOfOthers_BecomesPrivate) {
    QDir().mkpath(fFolder);
    QFile file(fPath);
    ASSERT_TRUE(file.open(QIODevice::WriteOnly));
    ASSERT_EQ(::chmod(fPath.toUtf8().constData(), 0644), 0);
    RotatingLogFile log;
    EXPECT_TRUE(log.setLogFile(fPath));
    EXPECT_EQ(mode(fPath), 0600u);
}

TEST_F(RotatingLogFileTest, FullDisk_DropsLinesQuietlyAndLeavesTheDeviceAlone) {
    const unsigned before = mode(QStringLiteral("/dev/full"));
    RotatingLogFile log;
    ASSERT_TRUE(log.setLogFile(QStringLiteral("/dev/full")));
    for (int i = 0; i < 10; ++i)
        log.append(QString(1000, u'x'));
    EXPECT_EQ(mode(QStringLiteral("/dev/full")), before);
    ASSERT_TRUE(log.setLogFile(fPath));
    log.append(QStringLiteral("after"));
    EXPECT_TRUE(read(QStringLiteral("x.log")).endsWith(u" after\n"));
}

TEST_F(RotatingLogFileTest, RotationThatFails_DropsLinesAndGoesOnLater) {
    RotatingLogFile log(200);
    ASSERT_TRUE(log.setLogFile(fPath));
    // Something stands where the older lines should go, and cannot be moved out of the way.
    ASSERT_TRUE(QDir().mkpath(fFolder + u"/x.1.log/full"));
    for (int i = 0; i < 20; ++i)
        log.append(QString(100, u'x'));
    ASSERT_TRUE(QDir(fFolder + u"/x.1.log").removeRecursively());
    ASSERT_TRUE(log.setLogFile(fPath));
    log.append(QStringLiteral("after"));
    EXPECT_TRUE(read(QStringLiteral("x.log")).endsWith(u" after\n"));
}

TEST_F(RotatingLogFileTest, Line_IsOnTheDiskAtOnce) {
    RotatingLogFile log;
    ASSERT_TRUE(log.setLogFile(fPath));
    log.append(QStringLiteral("now"));
    EXPECT_TRUE(read(QStringLiteral("x.log")).endsWith(u" now\n"));
}

} // namespace
} // namespace kelvo
