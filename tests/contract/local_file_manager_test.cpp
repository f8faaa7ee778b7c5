#include "adapters/system/local_file_manager.h"

#include <QDir>
#include <QFile>
#include <QTemporaryDir>

#include <gtest/gtest.h>

#include <pwd.h>
#include <unistd.h>

namespace kelvo {
namespace {

class LocalFileManagerTest : public ::testing::Test {
protected:
    void TearDown() override { qputenv("HOME", fHome); }

    const QByteArray fHome = qgetenv("HOME");
    LocalFileManager fManager;
    QTemporaryDir fFolder;
};

TEST_F(LocalFileManagerTest, FileExists_FilesFoldersAndWhatLinksLeadTo) {
    const QString file = fFolder.filePath(QStringLiteral("a file é"));
    const QString link = fFolder.filePath(QStringLiteral("link"));
    EXPECT_FALSE(fManager.fileExistsAtPath(file));
    ASSERT_TRUE(QFile::link(file, link));
    EXPECT_FALSE(fManager.fileExistsAtPath(link)) << "leads nowhere yet";
    QFile created(file);
    ASSERT_TRUE(created.open(QFile::WriteOnly));
    EXPECT_TRUE(fManager.fileExistsAtPath(file));
    EXPECT_TRUE(fManager.fileExistsAtPath(link));
    EXPECT_TRUE(fManager.fileExistsAtPath(fFolder.path()));
    EXPECT_FALSE(fManager.fileExistsAtPath(file + QStringLiteral("/below")));
}

TEST_F(LocalFileManagerTest, FileExists_OddPathsAreNoFiles) {
    EXPECT_FALSE(fManager.fileExistsAtPath(QString()));
    EXPECT_FALSE(fManager.fileExistsAtPath(fFolder.path() + QChar(u'\0') + QStringLiteral("x")));
    EXPECT_FALSE(fManager.fileExistsAtPath(QString(10'000, u'x')));
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

} // namespace
} // namespace kelvo
