// PlistDefaults on a settings file that is a link, as people have who keep such files elsewhere.
#include "contract/plist_defaults_fixture.h"

#include <QFileInfo>

#include <unistd.h>

namespace kelvo {
namespace {

class PlistDefaultsLinksTest : public PlistDefaultsFixture {
protected:
    PlistDefaultsLinksTest() { QDir().mkpath(fFolder.folder()); }

    /// Makes the settings file a link to `target`, through another link beside it.
    void link(const QString& target) {
        const QString between = fFolder.folder() + QStringLiteral("/between");
        ASSERT_EQ(::symlink(QFile::encodeName(target), QFile::encodeName(between)), 0);
        ASSERT_EQ(::symlink("between", QFile::encodeName(fFolder.path())), 0);
    }
    void makeTarget(const QVariantMap& values) {
        QDir().mkpath(QFileInfo(fTarget).path());
        QFile file(fTarget);
        ASSERT_TRUE(file.open(QFile::WriteOnly));
        file.write(encodePlist(values));
    }
    QStringList besideTarget() const {
        return QFileInfo(fTarget).dir().entryList(QDir::AllEntries | QDir::Hidden |
                                                  QDir::NoDotAndDotDot);
    }
    bool stillLinked() const { return QFileInfo(fFolder.path()).symLinkTarget() != QString(); }

    QTemporaryDir fElsewhere;
    const QString fTarget = fElsewhere.filePath(QStringLiteral("dotfiles/settings"));
};

TEST_F(PlistDefaultsLinksTest, Link_StaysAndItsTargetIsReplaced) {
    makeTarget({{"theirs", 1LL}});
    link(fTarget);
    const ino_t before = SettingsFolder::inodeOf(fTarget);
    {
        const auto defaults = open();
        EXPECT_EQ(defaults->integerForKey(u"theirs"), 1);
        defaults->setObject(u"mine", 2);
    }
    EXPECT_TRUE(stillLinked());
    EXPECT_EQ(fFolder.values(), (QVariantMap{{"mine", qlonglong{2}}, {"theirs", qlonglong{1}}}));
    EXPECT_NE(SettingsFolder::inodeOf(fTarget), before) << "never written in place";
    EXPECT_EQ(besideTarget(), (QStringList{"settings", "settings.lock"}));
    EXPECT_EQ(fFolder.otherFiles(), QStringList{"between"});
    EXPECT_TRUE(fConsole.logged().isEmpty());
}

TEST_F(PlistDefaultsLinksTest, ChangeOfTheTarget_IsTakenOver) {
    makeTarget({{"theirs", 1LL}});
    link(fTarget);
    const auto defaults = open();
    // The first one could be seen by chance, with what the start has left to see.
    for (int round = 2; round <= 4; ++round) {
        makeTarget({{"theirs", qlonglong{round}}});
        ASSERT_TRUE(waitUntil([&] { return defaults->integerForKey(u"theirs") == round; }));
    }
}

TEST_F(PlistDefaultsLinksTest, LinkMadeWhileWeRun_StaysToo) {
    const auto defaults = open();
    defaults->setObject(u"a", 1);
    defaults->synchronize();
    makeTarget({{"a", 1LL}});
    ASSERT_TRUE(QFile::remove(fFolder.path()));
    link(fTarget);
    defaults->setObject(u"a", 2);
    defaults->synchronize();
    EXPECT_TRUE(stillLinked());
    EXPECT_EQ(fFolder.values(), (QVariantMap{{"a", qlonglong{2}}}));
}

TEST_F(PlistDefaultsLinksTest, DamagedTarget_IsKeptBesideItselfAndTheLinkStays) {
    makeTarget({});
    QFile file(fTarget);
    ASSERT_TRUE(file.open(QFile::WriteOnly));
    file.write("rubbish");
    file.close();
    link(fTarget);
    const auto defaults = open();
    EXPECT_TRUE(defaults->areKnown());
    defaults->setObject(u"a", 1);
    defaults->synchronize();
    EXPECT_TRUE(stillLinked());
    EXPECT_EQ(fFolder.values(), (QVariantMap{{"a", qlonglong{1}}}));
    EXPECT_EQ(besideTarget().filter(QStringLiteral("settings.corrupt-")).size(), 1);
}

TEST_F(PlistDefaultsLinksTest, LinkToAFileNotMadeYet_IsAFirstStart) {
    QDir().mkpath(QFileInfo(fTarget).path());
    link(fTarget);
    const auto defaults = open();
    EXPECT_TRUE(defaults->areKnown());
    defaults->setObject(u"a", 1);
    defaults->synchronize();
    EXPECT_TRUE(stillLinked());
    EXPECT_EQ(fFolder.values(), (QVariantMap{{"a", qlonglong{1}}}));
}

TEST_F(PlistDefaultsLinksTest, LinkToAFolderThatIsAway_WaitsForIt) {
    link(fTarget);
    const auto defaults = open();
    EXPECT_FALSE(defaults->areKnown());
    EXPECT_TRUE(defaults->trouble().endsWith(u": the folder that it is linked to is not there"));
    defaults->setObject(u"mine", 2);
    defaults->synchronize();
    EXPECT_FALSE(QFileInfo::exists(QFileInfo(fTarget).path())) << "not made for it";
    makeTarget({{"theirs", 1LL}});
    defaults->synchronize();
    EXPECT_TRUE(mainUntil([&] { return defaults->areKnown(); }));
    EXPECT_EQ(fFolder.values(), (QVariantMap{{"mine", qlonglong{2}}, {"theirs", qlonglong{1}}}));
    EXPECT_TRUE(stillLinked());
}

TEST_F(PlistDefaultsLinksTest, FolderThatIsALinkToNowhere_WaitsForItsTarget) {
    ASSERT_TRUE(QDir().rmdir(fFolder.folder()));
    const QString away = fElsewhere.filePath(QStringLiteral("away"));
    ASSERT_EQ(::symlink(QFile::encodeName(away), QFile::encodeName(fFolder.folder())), 0);
    const auto defaults = open();
    EXPECT_FALSE(defaults->areKnown());
    ASSERT_EQ(::mkdir(QFile::encodeName(away), 0700), 0);
    defaults->synchronize();
    EXPECT_TRUE(mainUntil([&] { return defaults->areKnown(); }));
}

TEST_F(PlistDefaultsLinksTest, LinkInAFolderThatOthersMayWrite_IsNotObeyed) {
    makeTarget({{"theirs", 1LL}});
    link(fTarget);
    ASSERT_EQ(::chmod(QFile::encodeName(fFolder.folder()), 0777), 0);
    const auto defaults = open();
    EXPECT_FALSE(defaults->areKnown());
    EXPECT_TRUE(defaults->trouble().endsWith(u": of its folder: it can be written by other users"))
        << defaults->trouble().toStdString();
}

TEST_F(PlistDefaultsLinksTest, FortyLinks_AllStay) {
    makeTarget({});
    QString last = fTarget;
    for (int number = 1; number < 40; ++number) {
        const QString next = fElsewhere.filePath(QStringLiteral("link%1").arg(number));
        ASSERT_EQ(::symlink(QFile::encodeName(last), QFile::encodeName(next)), 0);
        last = next;
    }
    ASSERT_EQ(::symlink(QFile::encodeName(last), QFile::encodeName(fFolder.path())), 0);
    {
        const auto defaults = open();
        defaults->setObject(u"a", 1);
    }
    EXPECT_EQ(fFolder.values(), (QVariantMap{{"a", qlonglong{1}}}));
    EXPECT_TRUE(QFileInfo(fElsewhere.filePath(QStringLiteral("link1"))).isSymLink());
    EXPECT_FALSE(QFileInfo(fTarget).isSymLink());
}

TEST_F(PlistDefaultsLinksTest, LinksInACircle_AreNoFirstStart) {
    link(fFolder.path());
    EXPECT_FALSE(open()->areKnown());
}

} // namespace
} // namespace kelvo
