#include "adapters/passes/whole_pull_file.h"
#include "adapters/system/local_file_manager.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QTemporaryDir>

#include <gtest/gtest.h>

#include <sys/stat.h>

namespace kelvo {
namespace {

const QString cPull = QStringLiteral("rsync \"mediauser@Mäc.local:Movies/\" \"/Incoming\"");

class WholePullFileTest : public ::testing::Test {
protected:
    /// What the next run of the program reads.
    QString next() { return WholePullFile(fPath, fFiles).last(); }

    void put(const QByteArray& content) const {
        QDir().mkpath(QFileInfo(fPath).path());
        QFile file(fPath);
        ASSERT_TRUE(file.open(QFile::WriteOnly));
        file.write(content);
    }

    QTemporaryDir fFolder;
    const QString fPath = fFolder.filePath(QStringLiteral("state/kelvo-mirror/whole-pull"));
    LocalFileManager fFiles{Profile()};
};

TEST_F(WholePullFileTest, Pull_IsKnownToTheNextRunUntilItIsForgotten) {
    EXPECT_EQ(next(), QString());
    WholePullFile file(fPath, fFiles);
    file.keep(cPull);
    EXPECT_EQ(file.last(), cPull);
    EXPECT_EQ(next(), cPull);
    EXPECT_EQ(QFileInfo(fPath).permissions() & (QFile::ReadGroup | QFile::ReadOther),
              QFile::Permissions())
        << "it names folders and accounts";
    file.keep({});
    EXPECT_EQ(file.last(), QString());
    EXPECT_EQ(next(), QString());
    EXPECT_FALSE(QFileInfo::exists(fPath));
}

TEST_F(WholePullFileTest, ForgettingWhatWasNeverRead_TakesTheFileAway) {
    put(cPull.toUtf8());
    WholePullFile(fPath, fFiles).keep({});
    EXPECT_EQ(next(), QString());
}

TEST_F(WholePullFileTest, KnownPull_IsNotWrittenAgain) {
    WholePullFile file(fPath, fFiles);
    file.keep(cPull);
    ASSERT_TRUE(QFile::remove(fPath));
    file.keep(cPull);
    EXPECT_FALSE(QFileInfo::exists(fPath));
}

TEST_F(WholePullFileTest, WhatIsNoOrdinaryFile_IsNeverWaitedFor) {
    QDir().mkpath(QFileInfo(fPath).path());
    ASSERT_EQ(::mkfifo(QFile::encodeName(fPath).constData(), 0600), 0);
    WholePullFile file(fPath, fFiles);
    EXPECT_EQ(file.last(), QString());
    file.keep(cPull);
    EXPECT_EQ(next(), cPull) << "it is replaced";
}

TEST_F(WholePullFileTest, Link_IsNotFollowed) {
    QDir().mkpath(QFileInfo(fPath).path());
    QFile other(fFolder.filePath(QStringLiteral("other")));
    ASSERT_TRUE(other.open(QFile::WriteOnly));
    other.write("a pull");
    other.close();
    ASSERT_TRUE(other.link(fPath));
    EXPECT_EQ(next(), QString());
}

TEST_F(WholePullFileTest, EndlessFile_IsNotReadToItsEnd) {
    put(QByteArray(3 * 1024 * 1024, 'a'));
    EXPECT_LE(next().size(), 1024 * 1024);
}

TEST_F(WholePullFileTest, FolderThatCannotBeMade_CostsNothingButTime) {
    QFile inTheWay(fFolder.filePath(QStringLiteral("state")));
    ASSERT_TRUE(inTheWay.open(QFile::WriteOnly));
    WholePullFile file(fPath, fFiles);
    file.keep(cPull);
    EXPECT_EQ(file.last(), cPull) << "this run knows";
    EXPECT_EQ(next(), QString());
}

} // namespace
} // namespace kelvo
