#include "adapters/system/local_file_manager.h"
#include "support/failing_syscall.h"

#include <QDateTime>
#include <QDir>
#include <QFile>
#include <QTemporaryDir>

#include <gtest/gtest.h>

#include <pwd.h>
#include <signal.h>
#include <sys/stat.h>
#include <sys/syscall.h>
#include <sys/wait.h>
#include <unistd.h>

#include <array>
#include <cerrno>

namespace kelvo {
namespace {

unsigned modeOf(const QString& path) {
    struct stat entry {};
    return ::lstat(path.toLocal8Bit().constData(), &entry) == 0 ? entry.st_mode & 07777U : 0U;
}

QByteArray contentOf(const QString& path) {
    QFile file(path);
    return file.open(QFile::ReadOnly) ? file.readAll() : QByteArray("(not there)");
}

void put(const QString& path, const QByteArray& content) {
    QFile file(path);
    ASSERT_TRUE(file.open(QFile::WriteOnly));
    file.write(content);
}

class LocalFileManagerTest : public ::testing::Test {
protected:
    void TearDown() override { qputenv("HOME", fHome); }

    QString at(const char* name) const { return fFolder.filePath(QString::fromUtf8(name)); }
    std::optional<FoundFile> fileBeneath(const QByteArray& folder, const QByteArray& name) const {
        const auto found = fManager.filesBeneath(folder, {name});
        return found.empty() ? std::nullopt : std::optional(found.front());
    }

    const QByteArray fHome = qgetenv("HOME");
    LocalFileManager fManager;
    QTemporaryDir fFolder;
};

TEST_F(LocalFileManagerTest, FileExists_LongPathIsNoFile) {
    EXPECT_FALSE(fManager.fileExistsAtPath(QString(10'000, u'x')));
}

TEST_F(LocalFileManagerTest, ClaimOfAProgramThatDies_IsFree) {
    std::array<int, 2> held{};
    ASSERT_EQ(::pipe(held.data()), 0);
    const QString folder = fFolder.path();
    const pid_t other = ::fork();
    if (other == 0) {
        const auto claim = fManager.claimFolder(folder);
        (void)!::write(held[1], claim ? "1" : "0", 1);
        ::pause();
        ::_exit(0);
    }
    char has = '0';
    ASSERT_EQ(::read(held[0], &has, 1), 1);
    EXPECT_EQ(has, '1');
    EXPECT_FALSE(fManager.claimFolder(folder));
    ::kill(other, SIGKILL);
    ASSERT_EQ(::waitpid(other, nullptr, 0), other);
    EXPECT_TRUE(fManager.claimFolder(folder));
    for (const int end : held)
        ::close(end);
}

TEST_F(LocalFileManagerTest, Home_IsTheVariableWithoutClosingSlashes) {
    qputenv("HOME", "/Users/localuser//");
    EXPECT_EQ(fManager.homeDirectory(), QStringLiteral("/Users/localuser"));
}

TEST_F(LocalFileManagerTest, Home_WithoutTheVariableIsTheAccounts) {
    const passwd* account = ::getpwuid(::getuid());
    if (!account)
        GTEST_SKIP() << "this user has no entry in the account database";
    QString expected = QString::fromLocal8Bit(account->pw_dir);
    while (expected.endsWith(u'/'))
        expected.chop(1);
    qunsetenv("HOME");
    EXPECT_EQ(fManager.homeDirectory(), expected);
    qputenv("HOME", "");
    EXPECT_EQ(fManager.homeDirectory(), expected);
}

TEST_F(LocalFileManagerTest, WriteThatFails_LeavesTheOldFileAndNothingBeside) {
    ASSERT_TRUE(QDir().mkdir(at("script")));
    put(at("script/inside"), "x");
    const FileFault fault = fManager.writeAtomically(at("script"), "new\n");
    ASSERT_TRUE(fault.has_value());
    EXPECT_TRUE(fault->startsWith(at("script"))) << fault->toStdString();
    EXPECT_EQ(contentOf(at("script/inside")), "x");
    EXPECT_EQ(QDir(fFolder.path()).entryList(QDir::AllEntries | QDir::NoDotAndDotDot),
              QStringList{QStringLiteral("script")});
    EXPECT_EQ(fManager.writeAtomically(at("no folder/script"), "x"),
              QString(at("no folder/script") + u": No such file or directory"));
}

// -- a second name, and what comes in its place

TEST_F(LocalFileManagerTest, DiskWithoutSecondNames_GetsACopy) {
    const QByteArray content = QByteArray(3, 'a') + QByteArray(150'000, 'b') + "c";
    put(at("key"), content);
    ASSERT_EQ(fManager.changeMode(at("key"), 0641), 0);
    for (const int error : {EPERM, EOPNOTSUPP, ENOSYS, EMLINK}) {
        if (!withFailingSyscall(SYS_linkat, error, [&] {
                EXPECT_EQ(fManager.keepUnder(at("key"), at("kept")), std::nullopt) << error;
            }))
            GTEST_SKIP() << "this system lets no call fail";
        EXPECT_TRUE(contentOf(at("kept")) == content) << error;
        EXPECT_EQ(modeOf(at("kept")), 0641U) << error;
        ASSERT_EQ(fManager.removeItem(at("kept")), std::nullopt);
        EXPECT_TRUE(contentOf(at("key")) == content);
    }
}

TEST_F(LocalFileManagerTest, WhatCannotBeCopied_IsTheSystemsReasonAndLeavesNothing) {
    put(at("key"), "secret");
    put(at("taken"), "older");
    ASSERT_TRUE(QDir().mkdir(at("folder")));
    ASSERT_TRUE(QFile::link(at("key"), at("link")));
    ASSERT_EQ(::mkfifo(at("pipe").toLocal8Bit().constData(), 0600), 0);
    const auto reason = [&](const char* from, const char* to) {
        return fManager.keepUnder(at(from), at(to)).value_or(QString());
    };
    if (!withFailingSyscall(SYS_linkat, EPERM, [&] {
            EXPECT_EQ(reason("folder", "x"), at("folder") + u": Is a directory");
            EXPECT_EQ(reason("pipe", "x"), at("pipe") + u": Invalid argument");
            EXPECT_EQ(reason("link", "x"), at("link") + u": Too many levels of symbolic links");
            EXPECT_EQ(reason("not there", "x"), at("not there") + u": No such file or directory");
            EXPECT_EQ(reason("key", "taken"), at("taken") + u": File exists");
            EXPECT_EQ(reason("key", "none/x"), at("key") + u": No such file or directory");
            ASSERT_TRUE(failSyscall(SYS_fchmod, EPERM));
            EXPECT_EQ(reason("key", "x"), at("key") + u": Operation not permitted");
        }))
        GTEST_SKIP() << "this system lets no call fail";
    for (const long call : {SYS_read, SYS_write, SYS_fsync}) {
        EXPECT_TRUE(withFailingSyscall(SYS_linkat, EPERM, [&] {
            ASSERT_TRUE(failSyscall(call, EIO));
            EXPECT_EQ(reason("key", "x"), at("key") + u": Input/output error") << call;
        }));
    }
    EXPECT_TRUE(withFailingSyscall(SYS_linkat, EACCES, [&] {
        EXPECT_EQ(reason("key", "x"), at("key") + u": Permission denied");
    }));
    EXPECT_EQ(contentOf(at("taken")), "older");
    EXPECT_FALSE(fManager.fileExistsAtPath(at("x")));
}

TEST_F(LocalFileManagerTest, DiskThatFails_LeavesTheOldFileAndNothingBeside) {
    put(at("script"), "old");
    for (const long call : {SYS_write, SYS_fsync}) {
        if (!withFailingSyscall(call, EIO, [&] {
                EXPECT_EQ(fManager.writeAtomically(at("script"), "new"),
                          at("script") + u": Input/output error");
            }))
            GTEST_SKIP() << "this system lets no call fail";
    }
    EXPECT_EQ(contentOf(at("script")), "old");
    EXPECT_EQ(QDir(fFolder.path()).entryList(QDir::Files | QDir::Hidden),
              QStringList{QStringLiteral("script")});
}

TEST_F(LocalFileManagerTest, FolderThatKnowsNoLocks_IsClaimedAllTheSame) {
    if (!withFailingSyscall(SYS_flock, ENOLCK,
                            [&] { EXPECT_TRUE(fManager.claimFolder(fFolder.path())); }))
        GTEST_SKIP() << "this system lets no call fail";
}

// -- looking for files

TEST_F(LocalFileManagerTest, FilesBeneath_TakeTheWayAsItIsMeantAndFollowNoLink) {
    ASSERT_TRUE(QDir().mkpath(at("to/deep")));
    put(at("to/deep/film"), "12345");
    ASSERT_TRUE(QFile::link(at("to/deep"), at("to/link")));
    ASSERT_TRUE(QFile::link(at("to/deep/film"), at("to/linked film")));
    ASSERT_TRUE(QFile::link(at("to"), at("way")));
    const QByteArray folder = at("to").toLocal8Bit();
    for (const char* const name : {"deep/film", "./deep/film", "deep//./film"}) {
        const auto file = fileBeneath(folder, name);
        ASSERT_TRUE(file) << name;
        EXPECT_EQ(file->path, folder + "/deep/film");
    }
    for (const QByteArray name : {"link/film", "linked film", "deep/film/..", "missing/film", "."})
        EXPECT_FALSE(fileBeneath(folder, name)) << name.constData();
    const QByteArray way = "deep/film";
    EXPECT_EQ(fManager.filesBeneath(folder, {way, "link/film", way, "missing/film", way}).size(),
              3U);
    EXPECT_FALSE(fileBeneath(folder, QByteArray("deep/film\0x", 11)));
    EXPECT_FALSE(fileBeneath(folder + QByteArray("\0x", 2), "deep/film"));
    EXPECT_TRUE(fileBeneath(at("way").toLocal8Bit(), "deep/film"))
        << "the folder itself may be a link";
    const auto fromTheRoot = fileBeneath("/", folder.mid(1) + "/deep/film");
    ASSERT_TRUE(fromTheRoot);
    EXPECT_EQ(fromTheRoot->path, folder + "/deep/film");
}

TEST_F(LocalFileManagerTest, FilesChangedSince_CountFromTheMillisecondOn) {
    const auto nothing = [](QByteArrayView) { return false; };
    put(at("film"), "12345");
    ASSERT_TRUE(QFile::link(at("film"), at("link")));
    const QByteArray folder = fFolder.path().toLocal8Bit();
    struct stat entry {};
    ASSERT_EQ(::lstat(at("film").toLocal8Bit().constData(), &entry), 0);
    const auto changed = QDateTime::fromMSecsSinceEpoch(qint64{entry.st_ctim.tv_sec} * 1000 +
                                                        entry.st_ctim.tv_nsec / 1'000'000);
    const auto found = fManager.filesChangedSince(folder, changed, nothing);
    ASSERT_EQ(found.size(), 1U) << "a link is no file";
    EXPECT_EQ(found[0].path, folder + "/film");
    EXPECT_EQ(found[0].changed, changed);
    EXPECT_TRUE(fManager.filesChangedSince(folder, changed.addMSecs(1), nothing).empty());
    EXPECT_TRUE(
        fManager.filesChangedSince(folder + QByteArray("\0x", 2), changed, nothing).empty());
}

TEST_F(LocalFileManagerTest, FilesChangedSince_LeaveOutTheOlderNeighbour) {
    const auto changeOf = [this](const char* name) {
        return fileBeneath(fFolder.path().toLocal8Bit(), name)->changed;
    };
    put(at("old"), "x");
    // The clock of the disk goes on by steps, and a folder may be one behind what comes into it.
    do {
        QFile::remove(at("new"));
        put(at("half"), "x");
        QFile::rename(at("half"), at("new"));
    } while (changeOf("new") <= changeOf("old").addMSecs(20));
    const auto found =
        fManager.filesChangedSince(fFolder.path().toLocal8Bit(), changeOf("old").addMSecs(1),
                                   [](QByteArrayView) { return false; });
    ASSERT_EQ(found.size(), 1U);
    EXPECT_TRUE(found[0].path.endsWith("/new"));
}

TEST_F(LocalFileManagerTest, FilesChangedSince_AreFoundBeneathWhatHasNotChanged) {
    const QString way = at("no files") + u"/only this/deep";
    ASSERT_TRUE(QDir().mkpath(way));
    put(at("no files") + u"/only this/old", "x");
    const QByteArray top = fFolder.path().toLocal8Bit();
    const auto before = fileBeneath(top, "no files/only this/old")->changed.addMSecs(1);
    std::optional<FoundFile> film;
    do { // The clock of the disk goes on by steps, and a folder may be one behind.
        QFile::remove(way + u"/film");
        put(way + u"/film", "x");
        film = fileBeneath(top, "no files/only this/deep/film");
    } while (film->changed < before.addMSecs(20));
    const auto found =
        fManager.filesChangedSince(top, before, [](QByteArrayView) { return false; });
    ASSERT_EQ(found.size(), 1U);
    EXPECT_EQ(found[0].path, film->path);
}

TEST_F(LocalFileManagerTest, FilesChangedSince_AreLookedForAHundredFoldersDeep) {
    QString path = fFolder.path();
    for (int depth = 1; depth <= 101; ++depth) {
        path += u"/d";
        ASSERT_TRUE(QDir().mkdir(path));
        if (depth >= 100)
            put(path + u"/film", "x");
    }
    const auto found =
        fManager.filesChangedSince(fFolder.path().toLocal8Bit(), QDateTime::fromMSecsSinceEpoch(0),
                                   [](QByteArrayView) { return false; });
    ASSERT_EQ(found.size(), 1U);
    EXPECT_EQ(found[0].path.count('/'), path.count(u'/')) << "the one of the hundredth";
}

// -- the folder of the scripts

class TemporaryFolderTest : public LocalFileManagerTest {
protected:
    TemporaryFolderTest() {
        qputenv("TMPDIR", fFolder.path().toLocal8Bit());
        qunsetenv("XDG_RUNTIME_DIR");
    }
    ~TemporaryFolderTest() override {
        qputenv("TMPDIR", fTmpdir);
        qputenv("XDG_RUNTIME_DIR", fRuntime);
    }
    QString own() const { return at("kelvo-mirror-") + QString::number(::getuid()); }

    const QByteArray fTmpdir = qgetenv("TMPDIR");
    const QByteArray fRuntime = qgetenv("XDG_RUNTIME_DIR");
};

TEST_F(TemporaryFolderTest, Folder_IsMadeForTheUserAlone) {
    EXPECT_EQ(fManager.temporaryFolder().path, own());
    EXPECT_EQ(modeOf(own()), 0700U);
    EXPECT_EQ(fManager.temporaryFolder().path, own()) << "the same at the next time";
    ASSERT_TRUE(QDir(own()).removeRecursively());
    EXPECT_EQ(fManager.temporaryFolder().path, own()) << "and again when it was cleaned away";
}

TEST_F(TemporaryFolderTest, FolderOfTheSession_IsPreferred) {
    ASSERT_TRUE(QDir().mkdir(at("session")));
    ASSERT_EQ(::chmod(at("session").toLocal8Bit().constData(), 0700), 0);
    qputenv("XDG_RUNTIME_DIR", at("session").toLocal8Bit());
    EXPECT_EQ(fManager.temporaryFolder().path, at("session/kelvo-mirror"));
    EXPECT_EQ(modeOf(at("session/kelvo-mirror")), 0700U);
    ASSERT_EQ(::chmod(at("session").toLocal8Bit().constData(), 0755), 0);
    EXPECT_EQ(fManager.temporaryFolder().path, own()) << "open to others";
}

TEST_F(TemporaryFolderTest, EachProfile_HasItsOwn) {
    LocalFileManager east({.name = QStringLiteral("East")});
    EXPECT_EQ(east.temporaryFolder().path, QString(own() + u"/profile-East"));
    EXPECT_EQ(modeOf(QString(own() + u"/profile-East")), 0700U);
    EXPECT_EQ(fManager.temporaryFolder().path, own());
    ASSERT_EQ(::chmod(own().toLocal8Bit().constData(), 0777), 0);
    EXPECT_EQ(east.temporaryFolder().fault, QString(own() + u" is open to others"));
}

TEST_F(TemporaryFolderTest, WhatSomebodyElsePrepared_IsRefused) {
    ASSERT_TRUE(QDir().mkdir(at("elsewhere")));
    ASSERT_TRUE(QFile::link(at("elsewhere"), own()));
    FolderOrFault found = fManager.temporaryFolder();
    EXPECT_EQ(found.path, QString());
    EXPECT_EQ(found.fault, QString(own() + u" is not a folder"));

    QFile::remove(own());
    ASSERT_TRUE(QDir().mkdir(own()));
    ASSERT_EQ(::chmod(own().toLocal8Bit().constData(), 0777), 0);
    found = fManager.temporaryFolder();
    EXPECT_EQ(found.path, QString());
    EXPECT_EQ(found.fault, QString(own() + u" is open to others"));

    if (::getuid() != 0)
        GTEST_SKIP() << "only root can give a folder away";
    ASSERT_EQ(::chmod(own().toLocal8Bit().constData(), 0700), 0);
    ASSERT_EQ(::chown(own().toLocal8Bit().constData(), 12345, 12345), 0);
    EXPECT_EQ(fManager.temporaryFolder().fault, QString(own() + u" belongs to somebody else"));
}

} // namespace
} // namespace kelvo
