#include "adapters/process/runtime_folder.h"
#include "adapters/system/local_file_changes.h"

#include <QDir>
#include <QFile>
#include <QTemporaryDir>

#include <gtest/gtest.h>

#include <sys/stat.h>
#include <unistd.h>

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

class LocalFileChangesTest : public ::testing::Test {
protected:
    QString at(const char* name) const { return fFolder.filePath(QString::fromUtf8(name)); }

    LocalFileChanges changes;
    QTemporaryDir fFolder;
};

TEST_F(LocalFileChangesTest, Remove_TakesFilesLinksAndEmptyFolders) {
    put(at("kept"), "x");
    ASSERT_TRUE(QFile::link(at("kept"), at("link")));
    EXPECT_EQ(changes.removeItem(at("link")), std::nullopt);
    EXPECT_EQ(contentOf(at("kept")), "x") << "the link went, not what it leads to";
    EXPECT_EQ(changes.removeItem(at("kept")), std::nullopt);
    EXPECT_FALSE(QFile::exists(at("kept")));
    ASSERT_TRUE(QDir().mkdir(at("empty")));
    EXPECT_EQ(changes.removeItem(at("empty")), std::nullopt);
}

TEST_F(LocalFileChangesTest, Remove_KeepsAFullFolderAndSaysSo) {
    ASSERT_TRUE(QDir().mkdir(at("full")));
    put(at("full/x"), "x");
    EXPECT_EQ(changes.removeItem(at("full")), QString(at("full") + u": Directory not empty"));
    EXPECT_EQ(contentOf(at("full/x")), "x");
    EXPECT_EQ(changes.removeItem(at("nothing")),
              QString(at("nothing") + u": No such file or directory"));
    EXPECT_NE(changes.removeItem(QString()), std::nullopt);
}

TEST_F(LocalFileChangesTest, Write_ReplacesTheFileWholeForTheUserAlone) {
    put(at("script"), "a much longer text than the next one");
    EXPECT_EQ(changes.writeAtomically(at("script"), "new\n"), std::nullopt);
    EXPECT_EQ(contentOf(at("script")), "new\n");
    EXPECT_EQ(modeOf(at("script")), 0600U);
    EXPECT_EQ(QDir(fFolder.path()).entryList(QDir::Files), QStringList{QStringLiteral("script")});
}

TEST_F(LocalFileChangesTest, Write_NeverFollowsAPlantedLink) {
    put(at("precious"), "kept");
    for (const char* target : {"precious", "not there yet"}) {
        QFile::remove(at("script"));
        ASSERT_TRUE(QFile::link(at(target), at("script")));
        EXPECT_EQ(changes.writeAtomically(at("script"), "new\n"), std::nullopt);
        EXPECT_EQ(contentOf(at("script")), "new\n");
        EXPECT_EQ(QFile(at("script")).symLinkTarget(), QString());
    }
    EXPECT_EQ(contentOf(at("precious")), "kept");
    EXPECT_FALSE(QFile::exists(at("not there yet")));
}

TEST_F(LocalFileChangesTest, WriteThatFails_LeavesTheOldFileAndNothingBeside) {
    ASSERT_TRUE(QDir().mkdir(at("script")));
    put(at("script/inside"), "x");
    const FileFault fault = changes.writeAtomically(at("script"), "new\n");
    ASSERT_TRUE(fault.has_value());
    EXPECT_TRUE(fault->startsWith(at("script"))) << fault->toStdString();
    EXPECT_EQ(contentOf(at("script/inside")), "x");
    EXPECT_EQ(QDir(fFolder.path()).entryList(QDir::AllEntries | QDir::NoDotAndDotDot),
              QStringList{QStringLiteral("script")});
    EXPECT_EQ(changes.writeAtomically(at("no folder/script"), "x"),
              QString(at("no folder/script") + u": No such file or directory"));
    EXPECT_NE(changes.writeAtomically(QString(), "x"), std::nullopt);
    EXPECT_NE(changes.writeAtomically(at("a") + QChar(u'\0'), "x"), std::nullopt);
}

TEST_F(LocalFileChangesTest, ChangeMode_HandsTheSystemsResultBack) {
    put(at("script"), "x");
    EXPECT_EQ(changes.changeMode(at("script"), 0755), 0);
    EXPECT_EQ(modeOf(at("script")), 0755U);
    EXPECT_EQ(changes.changeMode(at("nothing"), 0755), -1);
}

// -- the folder of the scripts

class UserTemporaryFolderTest : public LocalFileChangesTest {
protected:
    UserTemporaryFolderTest() {
        qputenv("TMPDIR", fFolder.path().toLocal8Bit());
        qunsetenv("XDG_RUNTIME_DIR");
    }
    ~UserTemporaryFolderTest() override {
        qputenv("TMPDIR", fTmpdir);
        qputenv("XDG_RUNTIME_DIR", fRuntime);
    }
    QString own() const { return at("kelvo-mirror-") + QString::number(::getuid()); }

    const QByteArray fTmpdir = qgetenv("TMPDIR");
    const QByteArray fRuntime = qgetenv("XDG_RUNTIME_DIR");
    UserTemporaryFolder folder;
};

TEST_F(UserTemporaryFolderTest, Folder_IsMadeForTheUserAlone) {
    EXPECT_EQ(folder.temporaryFolder().path, own());
    EXPECT_EQ(modeOf(own()), 0700U);
    EXPECT_EQ(folder.temporaryFolder().path, own()) << "the same at the next time";
    ASSERT_TRUE(QDir(own()).removeRecursively());
    EXPECT_EQ(folder.temporaryFolder().path, own()) << "and again when it was cleaned away";
}

TEST_F(UserTemporaryFolderTest, FolderOfTheSession_IsPreferred) {
    ASSERT_TRUE(QDir().mkdir(at("session")));
    ASSERT_EQ(::chmod(at("session").toLocal8Bit().constData(), 0700), 0);
    qputenv("XDG_RUNTIME_DIR", at("session").toLocal8Bit());
    EXPECT_EQ(folder.temporaryFolder().path, at("session/kelvo-mirror"));
    EXPECT_EQ(modeOf(at("session/kelvo-mirror")), 0700U);
    ASSERT_EQ(::chmod(at("session").toLocal8Bit().constData(), 0755), 0);
    EXPECT_EQ(folder.temporaryFolder().path, own()) << "open to others";
}

TEST_F(UserTemporaryFolderTest, WhatSomebodyElsePrepared_IsRefused) {
    ASSERT_TRUE(QDir().mkdir(at("elsewhere")));
    ASSERT_TRUE(QFile::link(at("elsewhere"), own()));
    FolderOrFault found = folder.temporaryFolder();
    EXPECT_EQ(found.path, QString());
    EXPECT_EQ(found.fault, QString(own() + u" is not a folder"));

    QFile::remove(own());
    ASSERT_TRUE(QDir().mkdir(own()));
    ASSERT_EQ(::chmod(own().toLocal8Bit().constData(), 0777), 0);
    found = folder.temporaryFolder();
    EXPECT_EQ(found.path, QString());
    EXPECT_EQ(found.fault, QString(own() + u" is open to others"));

    if (::getuid() != 0)
        GTEST_SKIP() << "only root can give a folder away";
    ASSERT_EQ(::chmod(own().toLocal8Bit().constData(), 0700), 0);
    ASSERT_EQ(::chown(own().toLocal8Bit().constData(), 12345, 12345), 0);
    EXPECT_EQ(folder.temporaryFolder().fault, QString(own() + u" belongs to somebody else"));
}

} // namespace
} // namespace kelvo
