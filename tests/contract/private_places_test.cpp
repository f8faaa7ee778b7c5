#include "adapters/system/private_places.h"
#include "support/failing_syscall.h"
#include "support/private_mounts.h"

#include <QDir>
#include <QFile>
#include <QTemporaryDir>

#include <gtest/gtest.h>

#include <sys/stat.h>
#include <sys/syscall.h>
#include <unistd.h>

#include <cerrno>
#include <string>

namespace kelvo {
namespace {

class PrivatePlacesTest : public ::testing::Test {
protected:
    ~PrivatePlacesTest() override { ::umask(fMask); }

    std::string at(const std::string& name) const {
        return fFolder.path().toStdString() + '/' + name;
    }
    void put(const char* name, mode_t mode) const {
        QFile file(QString::fromStdString(at(name)));
        ASSERT_TRUE(file.open(QFile::WriteOnly));
        ASSERT_EQ(::chmod(at(name).c_str(), mode), 0);
    }
    unsigned mode(const std::string& name) const {
        struct stat entry {};
        return ::lstat(at(name).c_str(), &entry) == 0 ? entry.st_mode & 07777U : 0U;
    }

    const mode_t fMask = ::umask(0);
    QTemporaryDir fFolder;
};

// -- folders that are made

TEST_F(PrivatePlacesTest, FoldersThatAreMissing_AreMadeForTheUserAlone) {
    ASSERT_EQ(::chmod(at("").c_str(), 0755), 0);
    EXPECT_EQ(makePrivateFolders(at("a//b/c/")), 0);
    for (const char* const made : {"a", "a/b", "a/b/c"})
        EXPECT_EQ(mode(made), 0700U) << made;
    EXPECT_EQ(mode(""), 0755U) << "it was there";
    EXPECT_EQ(makePrivateFolders(at("a/b/c")), 0) << "and again";
}

TEST_F(PrivatePlacesTest, LinkToAFolder_IsOne) {
    ASSERT_EQ(::mkdir(at("real").c_str(), 0755), 0);
    ASSERT_EQ(::symlink(at("real").c_str(), at("link").c_str()), 0);
    EXPECT_EQ(makePrivateFolders(at("link")), 0);
    EXPECT_EQ(makePrivateFolders(at("link/below")), 0);
    EXPECT_EQ(mode("real/below"), 0700U);
}

TEST_F(PrivatePlacesTest, FileOrLinkToNowhereInTheWay_IsTold) {
    put("file", 0600);
    EXPECT_EQ(makePrivateFolders(at("file")), ENOTDIR);
    EXPECT_EQ(makePrivateFolders(at("file/a/b")), ENOTDIR);
    ASSERT_EQ(::symlink("/nowhere", at("link").c_str()), 0);
    EXPECT_EQ(makePrivateFolders(at("link")), EEXIST);
    EXPECT_EQ(makePrivateFolders(at("link/a")), EEXIST);
}

TEST_F(PrivatePlacesTest, PlaceWhereNothingCanBeMade_IsTold) {
    EXPECT_EQ(makePrivateFolders({}), ENOENT);
    EXPECT_EQ(makePrivateFolders("/proc/nowhere/below"), ENOENT);
    EXPECT_EQ(makePrivateFolders(at(std::string(300, 'x'))), ENAMETOOLONG);
}

TEST_F(PrivatePlacesTest, RelativePathInAFolderThatIsGone_IsTold) {
    const QString before = QDir::currentPath();
    ASSERT_EQ(::mkdir(at("gone").c_str(), 0700), 0);
    ASSERT_EQ(::chdir(at("gone").c_str()), 0);
    ASSERT_EQ(::rmdir(at("gone").c_str()), 0);
    EXPECT_EQ(makePrivateFolders("a"), ENOENT);
    EXPECT_EQ(makePrivateFolders("a/b"), ENOENT);
    ASSERT_TRUE(QDir::setCurrent(before));
}

// -- files that are closed to others

TEST_F(PrivatePlacesTest, OpenFile_IsClosedToOthers) {
    for (const mode_t open : {0644, 0640, 0604, 0610, 0777}) {
        put("file", open);
        closeToOthers(at("file"));
        EXPECT_EQ(mode("file"), 0600U) << open;
    }
}

TEST_F(PrivatePlacesTest, WhatIsClosedOrNoOrdinaryFile_StaysAsItIs) {
    put("closed", 0400);
    closeToOthers(at("closed"));
    EXPECT_EQ(mode("closed"), 0400U);
    ASSERT_EQ(::mkdir(at("folder").c_str(), 0755), 0);
    closeToOthers(at("folder"));
    EXPECT_EQ(mode("folder"), 0755U);
    put("target", 0644);
    ASSERT_EQ(::symlink(at("target").c_str(), at("link").c_str()), 0);
    closeToOthers(at("link"));
    EXPECT_EQ(mode("target"), 0644U) << "a link is not followed";
    closeToOthers(at("not there"));
}

// -- the folder for what lives only for a while

class TemporaryPlaceTest : public PrivatePlacesTest {
protected:
    TemporaryPlaceTest() {
        qunsetenv("XDG_RUNTIME_DIR");
        qputenv("TMPDIR", fFolder.path().toLocal8Bit());
    }
    ~TemporaryPlaceTest() override {
        qputenv("TMPDIR", fTmpdir);
        qputenv("XDG_RUNTIME_DIR", fRuntime);
    }
    std::string own() const { return at("kelvo-mirror-" + std::to_string(::getuid())); }

    const QByteArray fTmpdir = qgetenv("TMPDIR");
    const QByteArray fRuntime = qgetenv("XDG_RUNTIME_DIR");
};

TEST_F(TemporaryPlaceTest, ClosingSlashesOfTheVariables_AreLeftOut) {
    qputenv("TMPDIR", QByteArray(fFolder.path().toLocal8Bit() + "//"));
    EXPECT_EQ(temporaryFolderOfUser().path, own());
    ASSERT_EQ(::mkdir(at("session").c_str(), 0700), 0);
    qputenv("XDG_RUNTIME_DIR", QByteArray::fromStdString(at("session") + '/'));
    EXPECT_EQ(temporaryFolderOfUser().path, at("session/kelvo-mirror"));
}

TEST_F(TemporaryPlaceTest, SessionFolderThatIsNoPrivateFolder_IsPassedOver) {
    ASSERT_EQ(::mkdir(at("session").c_str(), 0700), 0);
    ASSERT_EQ(::symlink("session", at("link").c_str()), 0);
    put("file", 0600);
    for (const char* const name : {"link", "file", "not there"}) {
        qputenv("XDG_RUNTIME_DIR", QByteArray::fromStdString(at(name)));
        EXPECT_EQ(temporaryFolderOfUser().path, own()) << name;
    }
    qputenv("XDG_RUNTIME_DIR", QByteArray::fromStdString(at("session")));
    for (const mode_t open : {0701, 0702, 0704, 0710, 0720, 0740}) {
        ASSERT_EQ(::chmod(at("session").c_str(), open), 0);
        EXPECT_EQ(temporaryFolderOfUser().path, own()) << open;
    }
    EXPECT_EQ(mode("session/kelvo-mirror"), 0U);
    qputenv("XDG_RUNTIME_DIR", "session");
    EXPECT_EQ(temporaryFolderOfUser().path, own()) << "a path from the root folder only";
}

TEST_F(TemporaryPlaceTest, WithoutAnyVariable_ItIsMadeInTmp) {
    qunsetenv("TMPDIR");
    const std::string name = "kelvo-mirror-" + std::to_string(::getuid());
    ASSERT_EQ(::mkdir(at("tmp").c_str(), 0700), 0);
    withPrivateMounts([this] { return mountOver(at("tmp"), "/tmp"); },
                      [&] { EXPECT_EQ(temporaryFolderOfUser().path, "/tmp/" + name); });
}

#ifdef SYS_access
TEST_F(TemporaryPlaceTest, FolderThatCannotBeWrittenOrLookedAt_IsSaid) {
    ASSERT_EQ(::mkdir(at("session").c_str(), 0700), 0);
    qputenv("XDG_RUNTIME_DIR", QByteArray::fromStdString(at("session")));
    if (!withFailingSyscall(SYS_access, EROFS, [this] {
            const PrivateFolder unwritable = temporaryFolderOfUser();
            EXPECT_EQ(unwritable.path, "");
            EXPECT_EQ(unwritable.fault, own() + " cannot be written");
        }))
        GTEST_SKIP() << "this system lets no call fail";
    EXPECT_TRUE(withFailingSyscall(SYS_newfstatat, EIO, [this] {
        const PrivateFolder unseen = temporaryFolderOfUser();
        EXPECT_EQ(unseen.path, "");
        EXPECT_EQ(unseen.fault, own() + ": Input/output error");
    }));
    EXPECT_EQ(mode("session/kelvo-mirror"), 0U);
}
#endif

TEST_F(TemporaryPlaceTest, FolderThatCannotBeMade_IsSaidWithItsPath) {
    qputenv("TMPDIR", "/nowhere");
    const PrivateFolder missing = temporaryFolderOfUser();
    EXPECT_EQ(missing.path, "");
    EXPECT_EQ(missing.fault, "/nowhere/kelvo-mirror-" + std::to_string(::getuid()) +
                                 ": No such file or directory");
}

} // namespace
} // namespace kelvo
