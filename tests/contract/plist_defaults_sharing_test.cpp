// PlistDefaults beside other programs that write the same file.
#include "contract/plist_defaults_fixture.h"

#include <QProcess>

#include <map>

namespace kelvo {
namespace {

using namespace std::chrono_literals;

class PlistDefaultsSharingTest : public PlistDefaultsFixture {
protected:
    Subscription count(UserDefaults& defaults, const QString& key) {
        return defaults.observe(key, [this, key](const DefaultsChange& change) {
            ++fTold[key];
            fLast[key] = change.newValue.value_or(QVariant());
        });
    }

    std::map<QString, int> fTold;
    std::map<QString, QVariant> fLast;
};

TEST_F(PlistDefaultsSharingTest, ForeignChange_IsToldForEachChangedKeyOnly) {
    fFolder.replace({{"changed", 1LL}, {"same", 1LL}, {"removed", 1LL}, {"type", true}});
    const auto defaults = open();
    defaults->registerDefaults({{"removed", "factory"}});
    std::vector<Subscription> subscriptions;
    for (const char* key : {"changed", "same", "removed", "added", "type"})
        subscriptions.push_back(count(*defaults, QString::fromLatin1(key)));
    fFolder.replace({{"changed", 2LL}, {"same", 1LL}, {"added", "x"}, {"type", 1LL}});
    ASSERT_TRUE(mainUntil([&] { return fTold.size() >= 4; }));
    EXPECT_EQ(fTold,
              (std::map<QString, int>{{"changed", 1}, {"removed", 1}, {"added", 1}, {"type", 1}}));
    EXPECT_EQ(fLast["changed"], QVariant(2));
    EXPECT_EQ(fLast["removed"], QVariant("factory"));
    EXPECT_EQ(fLast["added"], QVariant("x"));
    EXPECT_TRUE(sameStoredValue(fLast["type"], qlonglong{1}));
    EXPECT_TRUE(fConsole.logged().isEmpty());
}

TEST_F(PlistDefaultsSharingTest, OwnWriting_IsNotToldAgain) {
    const auto defaults = open();
    const auto subscription = count(*defaults, "mine");
    const auto foreign = count(*defaults, "theirs");
    defaults->setObject(u"mine", 1);
    defaults->synchronize();
    fFolder.replace({{"mine", 1LL}, {"theirs", 1LL}});
    ASSERT_TRUE(mainUntil([&] { return fTold["theirs"] == 1; }));
    EXPECT_EQ(fTold["mine"], 1);
}

TEST_F(PlistDefaultsSharingTest, ForeignChangeInPlace_IsTakenOver) {
    const auto defaults = open();
    defaults->setObject(u"mine", 1);
    defaults->synchronize();
    fFolder.write(encodePlist({{"mine", 2LL}}));
    EXPECT_TRUE(waitUntil([&] { return defaults->integerForKey(u"mine") == 2; }));
}

TEST_F(PlistDefaultsSharingTest, StateOfTheFile_IsReadAtTheStartOnly) {
    fFolder.replace({{"prefIsScanning", true}, {"mainWindowTab", "Sync"}, {"prefPath1", "/a"}});
    const auto defaults = open();
    EXPECT_TRUE(defaults->boolForKey(prefIsScanning));
    const auto setting = count(*defaults, "prefPath1");
    std::vector<Subscription> state;
    for (const QStringView key : {prefIsScanning, prefMainWindowTab, prefEnableScanning})
        state.push_back(count(*defaults, key.toString()));
    fFolder.replace({{"prefIsScanning", false}, {"prefEnableScanning", 1LL}, {"prefPath1", "/b"}});
    ASSERT_TRUE(mainUntil([&] { return fTold["prefPath1"] == 1; }));
    EXPECT_TRUE(defaults->boolForKey(prefIsScanning));
    EXPECT_EQ(defaults->stringForKey(prefMainWindowTab), QStringLiteral("Sync"));
    EXPECT_FALSE(defaults->object(prefEnableScanning).isValid());
    EXPECT_EQ(fTold, (std::map<QString, int>{{"prefPath1", 1}}));
}

TEST_F(PlistDefaultsSharingTest, StateSetHere_OutlivesASaveOfAnOldFile) {
    fFolder.replace({{"recentLaunchDates", QVariantList{1LL}}});
    const auto defaults = open();
    defaults->setObject(prefIsScanning, true);
    defaults->synchronize();
    const QVariantMap old = fFolder.values().value_or(QVariantMap());
    defaults->setObject(prefIsScanning, false);
    defaults->removeObject(prefRecentLaunchDates);
    defaults->synchronize();
    fFolder.replace(old);
    defaults->setObject(prefPath1, QStringLiteral("/a"));
    defaults->synchronize();
    EXPECT_FALSE(defaults->boolForKey(prefIsScanning));
    EXPECT_FALSE(defaults->object(prefRecentLaunchDates).isValid());
    EXPECT_EQ(fFolder.values(), (QVariantMap{{"prefIsScanning", false}, {"prefPath1", "/a"}}));
}

TEST_F(PlistDefaultsSharingTest, StateOfTheRunningProgram_IsLeftToItByAnother) {
    const auto program = open();
    program->setObject(prefIsScanning, false);
    program->synchronize();
    const auto command = open();
    program->setObject(prefIsScanning, true);
    program->synchronize();
    command->setObject(prefPath1, QStringLiteral("/a"));
    command->synchronize();
    EXPECT_EQ(fFolder.values(), (QVariantMap{{"prefIsScanning", true}, {"prefPath1", "/a"}}));
}

TEST_F(PlistDefaultsSharingTest, UnwrittenChange_HoldsAgainstAForeignOne) {
    fFolder.replace({{"both", 1LL}, {"theirs", 1LL}});
    const auto defaults = open();
    defaults->setObject(u"both", "ours");
    fFolder.replace({{"both", "theirs"}, {"theirs", 2LL}});
    defaults->synchronize();
    EXPECT_EQ(fFolder.values(), (QVariantMap{{"both", "ours"}, {"theirs", qlonglong{2}}}));
    EXPECT_EQ(defaults->stringForKey(u"both"), QStringLiteral("ours"));
    EXPECT_EQ(defaults->integerForKey(u"theirs"), 2);
}

TEST_F(PlistDefaultsSharingTest, Removal_IsLaidOverForeignValuesToo) {
    fFolder.replace({{"a", 1LL}, {"b", 1LL}});
    const auto defaults = open();
    defaults->removeObject(u"a");
    fFolder.replace({{"a", 1LL}, {"b", 2LL}});
    defaults->synchronize();
    EXPECT_EQ(fFolder.values(), (QVariantMap{{"b", qlonglong{2}}}));
}

TEST_F(PlistDefaultsSharingTest, SlowWriterInPlace_IsNotTakenForCorrupt) {
    const QByteArray whole = encodePlist({{"theirs", 1LL}, {"long", QString(5000, u'x')}});
    // A stall of this machine between the halves would make the file corrupt in earnest: then
    // again.
    for (int attempt = 0; attempt < 10; ++attempt) {
        fFolder.replace({{"theirs", 0LL}});
        const auto defaults = open();
        const auto start = std::chrono::steady_clock::now();
        fFolder.write(whole.first(whole.size() / 2));
        defaults->setObject(u"mine", attempt);
        waitUntil([] { return false; }, 250ms);
        fFolder.write(whole);
        if (std::chrono::steady_clock::now() - start > 800ms)
            continue;
        defaults->synchronize();
        EXPECT_EQ(defaults->integerForKey(u"theirs"), 1);
        EXPECT_EQ(fFolder.values().value_or(QVariantMap()).value("theirs"), QVariant(1));
        EXPECT_EQ(fFolder.values().value_or(QVariantMap()).value("mine"), QVariant(attempt));
        EXPECT_TRUE(fFolder.otherFiles().isEmpty());
        EXPECT_TRUE(fConsole.logged().isEmpty());
        return;
    }
    FAIL() << "ten stalls in a row";
}

TEST_F(PlistDefaultsSharingTest, FileBecomesUnreadableWhileWeRun_ValuesAreWrittenAnew) {
    const auto defaults = open();
    defaults->setObject(u"a", 1);
    defaults->synchronize();
    fFolder.write("rubbish");
    EXPECT_TRUE(fileGets("a", qlonglong{1}));
    EXPECT_EQ(fFolder.otherFiles().size(), 1);
    EXPECT_EQ(fConsole.logged().size(), 1);
    EXPECT_EQ(defaults->integerForKey(u"a"), 1);
}

TEST_F(PlistDefaultsSharingTest, FileDeletedWhileWeRun_ComesBackWithTheNextChange) {
    const auto defaults = open();
    const auto subscription = count(*defaults, "a");
    defaults->setObject(u"a", 1);
    defaults->synchronize();
    ASSERT_TRUE(QFile::remove(fFolder.path()));
    defaults->synchronize();
    EXPECT_FALSE(QFile::exists(fFolder.path()));
    EXPECT_EQ(defaults->integerForKey(u"a"), 1);
    defaults->setObject(u"b", 2);
    defaults->synchronize();
    EXPECT_EQ(fFolder.values(), (QVariantMap{{"a", qlonglong{1}}, {"b", qlonglong{2}}}));
    EXPECT_EQ(fTold["a"], 1);
    EXPECT_TRUE(fConsole.logged().isEmpty());
}

TEST_F(PlistDefaultsSharingTest, FolderMovedAway_IsMadeAgainAndWatched) {
    const auto defaults = open();
    defaults->setObject(u"a", 1);
    defaults->synchronize();
    ASSERT_TRUE(QDir().rename(fFolder.folder(), fFolder.folder() + QStringLiteral("-old")));
    defaults->setObject(u"b", 2);
    defaults->synchronize();
    EXPECT_EQ(fFolder.values(), (QVariantMap{{"a", qlonglong{1}}, {"b", qlonglong{2}}}));
    EXPECT_TRUE(waitUntil([&] {
        fFolder.replace({{"a", 5LL}});
        return defaults->integerForKey(u"a") == 5;
    }));
}

TEST_F(PlistDefaultsSharingTest, TwoStores_DifferentKeysAllSurvive) {
    const auto one = open();
    const auto two = open();
    for (int round = 0; round < 50; ++round) {
        one->setObject(QStringLiteral("one%1").arg(round), round);
        two->setObject(QStringLiteral("two%1").arg(round), round);
        if (round % 10 == 3)
            one->synchronize();
        if (round % 10 == 7)
            two->synchronize();
    }
    one->synchronize();
    two->synchronize();
    EXPECT_EQ(fFolder.values().value_or(QVariantMap()).size(), 100);
    EXPECT_TRUE(waitUntil([&] { return one->integerForKey(u"two49") == 49; }));
    EXPECT_TRUE(waitUntil([&] { return two->integerForKey(u"one49") == 49; }));
}

TEST_F(PlistDefaultsSharingTest, TwoStores_SameKeyEndsTheSameInBoth) {
    const auto one = open();
    const auto two = open();
    const auto subscription = count(*two, "shared");
    for (int round = 0; round < 20; ++round) {
        one->setObject(u"shared", round);
        two->setObject(u"shared", round + 1000);
        (round % 2 ? *one : *two).synchronize();
    }
    one->synchronize();
    two->synchronize();
    one->setObject(u"shared", "last");
    one->synchronize();
    EXPECT_TRUE(mainUntil([&] { return fLast["shared"] == QVariant("last"); }));
    EXPECT_EQ(one->stringForKey(u"shared"), QStringLiteral("last"));
    EXPECT_EQ(two->stringForKey(u"shared"), QStringLiteral("last"));
    EXPECT_EQ(fFolder.values(), (QVariantMap{{"shared", "last"}}));
}

TEST_F(PlistDefaultsSharingTest, ThreeProcesses_NothingIsLost) {
    constexpr int cKeys = 60;
    const auto defaults = open();
    std::vector<std::unique_ptr<QProcess>> writers;
    for (const char* prefix : {"x", "y", "z"}) {
        auto& writer = writers.emplace_back(std::make_unique<QProcess>());
        writer->setProcessChannelMode(QProcess::MergedChannels);
        writer->start(
            QStringLiteral(KELVO_SETTINGS_WRITER),
            {"keys", fFolder.path(), QString::fromLatin1(prefix), QString::number(cKeys)});
    }
    for (int number = 0; number < cKeys; ++number)
        defaults->setObject(QStringLiteral("own%1").arg(number), number);
    for (const auto& writer : writers) {
        ASSERT_TRUE(writer->waitForFinished(60'000));
        EXPECT_EQ(writer->exitCode(), 0) << writer->readAll().toStdString();
    }
    defaults->synchronize();
    const QVariantMap values = fFolder.values().value_or(QVariantMap());
    EXPECT_EQ(values.size(), 4 * cKeys);
    for (const char* prefix : {"x", "y", "z", "own"}) {
        for (int number = 0; number < cKeys; ++number) {
            const QString key = QString::fromLatin1(prefix) + QString::number(number);
            EXPECT_EQ(values.value(key), QVariant(number)) << key.toStdString();
        }
    }
    EXPECT_TRUE(waitUntil([&] { return defaults->integerForKey(u"z59") == 59; }));
    EXPECT_TRUE(fFolder.otherFiles().isEmpty());
    EXPECT_TRUE(fConsole.logged().isEmpty());
}

} // namespace
} // namespace kelvo
