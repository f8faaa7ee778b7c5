#include "adapters/console/rotating_log_file.h"
#include "adapters/system/unique_fd.h"

#include <QDateTime>
#include <QDir>
#include <QFile>
#include <QFileInfo>

#include <gtest/gtest.h>

#include <fcntl.h>
#include <pwd.h>
#include <signal.h>
#include <sys/resource.h>
#include <sys/stat.h>
#include <unistd.h>

#include <cstdlib>

namespace kelvo {
namespace {

using namespace std::chrono_literals;

/// As long as it lives no file grows beyond `size`, as if the disk were full.
struct LargestFile {
    explicit LargestFile(qint64 size) {
        ::signal(SIGXFSZ, SIG_IGN);
        ::getrlimit(RLIMIT_FSIZE, &before);
        const rlimit small{static_cast<rlim_t>(size), before.rlim_max};
        EXPECT_EQ(::setrlimit(RLIMIT_FSIZE, &small), 0);
    }
    ~LargestFile() { ::setrlimit(RLIMIT_FSIZE, &before); }
    LargestFile(const LargestFile&) = delete;
    LargestFile& operator=(const LargestFile&) = delete;

    rlimit before{};
};

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

    /// The lines of `names`, one file after the other, without their times.
    QStringList texts(const QStringList& names) const {
        QStringList found;
        for (const QString& name : names) {
            QStringList lines = read(name).split(u'\n');
            lines.removeLast();
            for (const QString& line : lines)
                found.append(line.mid(24));
        }
        return found;
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

TEST_F(RotatingLogFileTest, DefaultPathWithoutAHomeFolder_IsTheAccounts) {
    const passwd* const account = ::getpwuid(::getuid());
    if (account == nullptr)
        GTEST_SKIP() << "this user has no entry in the account database";
    const QString expected =
        QString::fromUtf8(account->pw_dir) + u"/.local/state/Kelvo/kelvo-mirror.log";
    const QByteArray state = qgetenv("XDG_STATE_HOME");
    const QByteArray home = qgetenv("HOME");
    qunsetenv("XDG_STATE_HOME");
    qunsetenv("HOME");
    const RotatingLogFile log;
    EXPECT_EQ(log.defaultLogFileWithinSubdirectory(QStringLiteral("Kelvo")), expected);
    qputenv("HOME", "not/absolute");
    EXPECT_EQ(log.defaultLogFileWithinSubdirectory(QStringLiteral("Kelvo")), expected);
    qputenv("HOME", home);
    qputenv("XDG_STATE_HOME", state);
}

TEST_F(RotatingLogFileTest, FileTakenAway_IsMadeAnewWithTheDescriptorOfTheOldOne) {
    RotatingLogFile log;
    ASSERT_TRUE(log.setLogFile(fPath));
    log.append(QStringLiteral("before"));
    ASSERT_TRUE(QFile::rename(fPath, fFolder + u"/moved"));
    rlimit before{};
    ASSERT_EQ(::getrlimit(RLIMIT_NOFILE, &before), 0);
    {
        std::vector<UniqueFd> held;
        do
            held.emplace_back(::fcntl(STDIN_FILENO, F_DUPFD_CLOEXEC, 0));
        while (held.back().get() < 200);
        const rlimit none{200, before.rlim_max};
        ASSERT_EQ(::setrlimit(RLIMIT_NOFILE, &none), 0);
        ASSERT_LT(::open("/dev/null", O_RDONLY | O_CLOEXEC), 0); // NOLINT: there is none to be had
        log.append(QStringLiteral("after"));
        ASSERT_EQ(::setrlimit(RLIMIT_NOFILE, &before), 0);
    }
    EXPECT_EQ(texts({QStringLiteral("moved")}), QStringList{QStringLiteral("before")});
    EXPECT_EQ(texts({QStringLiteral("x.log")}), QStringList{QStringLiteral("after")});
}

TEST_F(RotatingLogFileTest, Lines_BeginWithTheirTime) {
    RotatingLogFile log;
    ASSERT_TRUE(log.setLogFile(fPath));
    // Over the end of a second, and with parts of a second of one digit and of three.
    const qint64 begin = QDateTime::currentMSecsSinceEpoch();
    for (qint64 last = begin; last < begin + 1'100;) {
        const qint64 before = QDateTime::currentMSecsSinceEpoch();
        log.append(QStringLiteral("now"));
        last = QDateTime::currentMSecsSinceEpoch();
        const QString line = read(QStringLiteral("x.log")).section(u'\n', -2, -2);
        ASSERT_EQ(line.mid(23), u" now");
        const qint64 time =
            QDateTime::fromString(line.left(23), QStringLiteral("yyyy-MM-dd HH:mm:ss.zzz"))
                .toMSecsSinceEpoch();
        ASSERT_GE(time, before) << line.toStdString();
        ASSERT_LE(time, last) << line.toStdString();
    }
}

/// A line of a hundred bytes, its time and its end included.
QString hundredBytes(char sign) {
    return QString(75, QChar::fromLatin1(sign));
}

TEST_F(RotatingLogFileTest, File_IsFilledToItsLastByte) {
    RotatingLogFile log(300);
    ASSERT_TRUE(log.setLogFile(fPath));
    for (const char sign : {'a', 'b', 'c', 'd'})
        log.append(hundredBytes(sign));
    EXPECT_EQ(texts({QStringLiteral("x.1.log")}),
              (QStringList{hundredBytes('a'), hundredBytes('b'), hundredBytes('c')}));
    EXPECT_EQ(texts({QStringLiteral("x.log")}), QStringList{hundredBytes('d')});
}

TEST_F(RotatingLogFileTest, LineLongerThanAFile_HasOneOfItsOwn) {
    RotatingLogFile log(50);
    ASSERT_TRUE(log.setLogFile(fPath));
    for (const char sign : {'a', 'b'})
        log.append(hundredBytes(sign));
    EXPECT_EQ(QDir(fFolder).entryList(QDir::Files),
              (QStringList{QStringLiteral("x.1.log"), QStringLiteral("x.log")}));
    EXPECT_EQ(texts({QStringLiteral("x.1.log")}), QStringList{hundredBytes('a')});
    EXPECT_EQ(texts({QStringLiteral("x.log")}), QStringList{hundredBytes('b')});
}

TEST_F(RotatingLogFileTest, NameWithoutAnEnding_GetsItsNumberBehind) {
    RotatingLogFile log(100);
    ASSERT_TRUE(log.setLogFile(fFolder + u"/with.dot/log"));
    for (const char sign : {'a', 'b'})
        log.append(hundredBytes(sign));
    EXPECT_EQ(QDir(fFolder + u"/with.dot").entryList(QDir::Files),
              (QStringList{QStringLiteral("log"), QStringLiteral("log.1")}));
}

TEST_F(RotatingLogFileTest, OtherFile_GetsNothingThatWaitedForTheFirst) {
    RotatingLogFile log(RotatingLogFile::cFileSize, 0ms);
    EXPECT_FALSE(log.setLogFile({}));
    EXPECT_FALSE(log.setLogFile(QStringLiteral("/dev/full")));
    for (int i = 0; i < 3; ++i)
        log.append(QString(RotatingLogFile::cMostWaiting / 2, u'x'));
    EXPECT_TRUE(log.setLogFile(fPath));
    log.append(QStringLiteral("after"));
    EXPECT_EQ(texts({QStringLiteral("x.log")}), QStringList{QStringLiteral("after")});
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

TEST_F(RotatingLogFileTest, FullDisk_LosesNoLineThatCanWait) {
    RotatingLogFile log(RotatingLogFile::cFileSize, 0ms);
    ASSERT_TRUE(log.setLogFile(fPath));
    log.append(QStringLiteral("before"));
    {
        // Room for the first byte of a line.
        const LargestFile full(QFileInfo(fPath).size() + 1);
        for (int i = 0; i < 3; ++i)
            log.append(QStringLiteral("line %1").arg(i));
        EXPECT_EQ(texts({QStringLiteral("x.log")}), QStringList{QStringLiteral("before")});
    }
    log.append(QStringLiteral("after"));
    EXPECT_EQ(texts({QStringLiteral("x.log")}).join(u','), u"before,line 0,line 1,line 2,after");
}

TEST_F(RotatingLogFileTest, FullDisk_CountsWhatIsLost) {
    RotatingLogFile log(RotatingLogFile::cFileSize, 0ms);
    ASSERT_TRUE(log.setLogFile(fPath));
    log.append(QStringLiteral("before"));
    constexpr int cLines = 400;
    {
        const LargestFile full(QFileInfo(fPath).size());
        for (int i = 0; i < cLines; ++i)
            log.append(QString(1000, u'x'));
    }
    log.append(QStringLiteral("after"));
    QStringList found = texts({QStringLiteral("x.log")});
    ASSERT_GT(found.size(), 3);
    EXPECT_EQ(found.takeFirst(), u"before");
    EXPECT_EQ(found.takeLast(), u"after");
    const QString note = found.takeLast();
    EXPECT_EQ(note, QStringLiteral("%1 lines left out: File too large").arg(cLines - found.size()));
    EXPECT_EQ(found.count(QString(1000, u'x')), found.size());
    EXPECT_LE(found.size() * 1000, RotatingLogFile::cMostWaiting);
}

TEST_F(RotatingLogFileTest, FullDisk_KeepsAQuarterOfAMebibyteWaiting) {
    RotatingLogFile log(RotatingLogFile::cFileSize, 0ms);
    ASSERT_TRUE(log.setLogFile(fPath));
    constexpr int cFitting = 256;
    {
        const LargestFile full(0);
        // A kibibyte each, with its time and its end.
        for (int i = 0; i < cFitting + 2; ++i)
            log.append(QString(1024 - 25, u'x'));
    }
    log.append(QStringLiteral("after"));
    const QStringList found = texts({QStringLiteral("x.log")});
    EXPECT_EQ(found.count(QString(1024 - 25, u'x')), cFitting);
    EXPECT_EQ(found.mid(cFitting), (QStringList{QStringLiteral("2 lines left out: File too large"),
                                                QStringLiteral("after")}));
}

TEST_F(RotatingLogFileTest, DiskThatIsFullTillTheEnd_GetsTheLinesThen) {
    {
        RotatingLogFile log(RotatingLogFile::cFileSize, 1h);
        ASSERT_TRUE(log.setLogFile(fPath));
        const LargestFile full(0);
        log.append(QStringLiteral("first"));
        ASSERT_EQ(::setrlimit(RLIMIT_FSIZE, &full.before), 0);
        log.append(QStringLiteral("second"));
        EXPECT_EQ(read(QStringLiteral("x.log")), QString()) << "a new attempt comes later";
    }
    EXPECT_EQ(texts({QStringLiteral("x.log")}).join(u','), u"first,second");
}

TEST_F(RotatingLogFileTest, RotationThatFails_LosesNothing) {
    RotatingLogFile log(1200, 0ms);
    ASSERT_TRUE(log.setLogFile(fPath));
    // Something stands where the oldest lines should go, and cannot be moved out of the way.
    ASSERT_TRUE(QDir().mkpath(fFolder + u"/x.2.log/full"));
    QStringList all;
    for (int i = 0; i < 20; ++i) {
        all.append(QStringLiteral("%1 ").arg(i) + QString(100, u'x'));
        log.append(all.constLast());
    }
    EXPECT_LE(QFileInfo(fPath).size(), 1200);
    EXPECT_LT(texts({QStringLiteral("x.1.log"), QStringLiteral("x.log")}).size(), all.size());
    ASSERT_TRUE(QDir(fFolder + u"/x.2.log").removeRecursively());
    log.append(QStringLiteral("after"));
    EXPECT_EQ(
        texts({QStringLiteral("x.2.log"), QStringLiteral("x.1.log"), QStringLiteral("x.log")}),
        all << QStringLiteral("after"));
}

TEST_F(RotatingLogFileTest, FileTakenAwayOrReplaced_IsBegunAnew) {
    RotatingLogFile log;
    ASSERT_TRUE(log.setLogFile(fPath));
    log.append(QStringLiteral("one"));
    ASSERT_TRUE(QDir(fFolder).removeRecursively());
    log.append(QStringLiteral("two"));
    EXPECT_EQ(texts({QStringLiteral("x.log")}).join(u','), u"two");
    const QString moved = fFolder + u"/moved";
    ASSERT_TRUE(QFile::rename(fPath, moved));
    ASSERT_TRUE(QFile::copy(moved, fPath));
    log.append(QStringLiteral("three"));
    EXPECT_EQ(texts({QStringLiteral("x.log")}).join(u','), u"two,three");
    EXPECT_EQ(texts({QStringLiteral("moved")}).join(u','), u"two");
}

TEST_F(RotatingLogFileTest, PipeOrDevice_IsRefusedWithoutWaiting) {
    const unsigned device = mode(QStringLiteral("/dev/full"));
    RotatingLogFile log;
    EXPECT_FALSE(log.setLogFile(QStringLiteral("/dev/full")));
    EXPECT_EQ(mode(QStringLiteral("/dev/full")), device);
    ASSERT_TRUE(QDir().mkpath(fFolder));
    const QByteArray name = QFile::encodeName(fPath);
    ASSERT_EQ(::mkfifo(name.constData(), 0600), 0);
    EXPECT_FALSE(log.setLogFile(fPath));
    const UniqueFd reader(::open(name.constData(), O_RDONLY | O_NONBLOCK | O_CLOEXEC));
    EXPECT_FALSE(log.setLogFile(fPath));
    log.append(QStringLiteral("nobody's"));
    char byte = 0;
    EXPECT_EQ(::read(reader.get(), &byte, 1), 0);
}

TEST_F(RotatingLogFileTest, File_IsNotPassedOnToCommands) {
    RotatingLogFile log;
    ASSERT_TRUE(log.setLogFile(fPath));
    const QString ours = QFileInfo(fPath).canonicalFilePath();
    int found = 0;
    for (const QFileInfo& each : QDir(QStringLiteral("/proc/self/fd")).entryInfoList()) {
        if (each.symLinkTarget() != ours)
            continue;
        ++found;
        EXPECT_TRUE(::fcntl(each.fileName().toInt(), F_GETFD) & FD_CLOEXEC);
    }
    EXPECT_EQ(found, 1);
}

TEST_F(RotatingLogFileTest, Line_IsOnTheDiskAtOnce) {
    RotatingLogFile log;
    ASSERT_TRUE(log.setLogFile(fPath));
    log.append(QStringLiteral("now"));
    EXPECT_TRUE(read(QStringLiteral("x.log")).endsWith(u" now\n"));
}

} // namespace
} // namespace kelvo
