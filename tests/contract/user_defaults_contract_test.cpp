#include "adapters/settings/plist_defaults.h"
#include "contract/settings_folder.h"
#include "fakes/memory_defaults.h"
#include "fakes/recording_console.h"
#include "fakes/virtual_queues.h"
#include "settings/overlay_defaults.h"
#include "settings/preferences.h"
#include "support/stored_value.h"
#include "support/wait_until.h"

#include <QDateTime>
#include <QUrl>

#include <gtest/gtest.h>

#include <sys/stat.h>

#include <atomic>
#include <limits>
#include <memory>
#include <thread>

namespace kelvo {
namespace {

class MemoryStore {
public:
    UserDefaults& defaults() { return *fDefaults; }
    VirtualMainQueue& main() { return fMain; }
    void changeByAnotherProgram(const QString& key, const QVariant& value) {
        fDefaults->changeByAnotherProgram(fMain, key, value);
    }
    void beUnknown() { fDefaults->setKnown(false); }
    void becomeKnown(const QString& key, const QVariant& value) {
        fDefaults->changeByAnotherProgram(fMain, key, value);
        fMain.async([this] { fDefaults->setKnown(true); });
    }
    void destroy() { fDefaults.reset(); }

private:
    VirtualMainQueue fMain;
    std::unique_ptr<MemoryDefaults> fDefaults = std::make_unique<MemoryDefaults>();
};

class PlistStore {
public:
    UserDefaults& defaults() { return *fDefaults; }
    VirtualMainQueue& main() { return fMain; }
    void changeByAnotherProgram(const QString& key, const QVariant& value) {
        fDefaults->synchronize();
        QVariantMap values = fFolder.values().value_or(QVariantMap());
        applyChanges(values, {{key, storedValue(value)}});
        fFolder.replace(values);
    }
    /// A store on a file that cannot be read.
    void beUnknown() {
        ASSERT_EQ(::mkfifo(QFile::encodeName(fFolder.path()), 0600), 0);
        fDefaults = makeStore();
    }
    void becomeKnown(const QString& key, const QVariant& value) {
        fFolder.replace({{key, value}});
        fDefaults->synchronize();
    }
    void destroy() { fDefaults.reset(); }

private:
    SettingsFolder fFolder;
    VirtualMainQueue fMain;
    RecordingConsole fConsole;
    std::unique_ptr<PlistDefaults> makeStore() {
        return std::make_unique<PlistDefaults>(fFolder.path(), DamagedFile::IsSetAside, isState,
                                               fMain, fConsole);
    }
    std::unique_ptr<PlistDefaults> fDefaults = makeStore();
};

class OverlayStore {
public:
    UserDefaults& defaults() { return *fOverlay; }
    VirtualMainQueue& main() { return fMain; }
    void changeByAnotherProgram(const QString& key, const QVariant& value) {
        fBeneath.changeByAnotherProgram(fMain, key, value);
    }
    void beUnknown() { fBeneath.setKnown(false); }
    void becomeKnown(const QString& key, const QVariant& value) {
        fBeneath.changeByAnotherProgram(fMain, key, value);
        fMain.async([this] { fBeneath.setKnown(true); });
    }
    void destroy() { fOverlay.reset(); }

private:
    VirtualMainQueue fMain;
    MemoryDefaults fBeneath;
    std::unique_ptr<OverlayDefaults> fOverlay = std::make_unique<OverlayDefaults>(fBeneath);
};

const QString cKey = QStringLiteral("prefPath1");
const QString cOther = QStringLiteral("prefPath2");

template <typename Store>
class UserDefaultsContractTest : public ::testing::Test {
protected:
    UserDefaults& defaults() { return fStore.defaults(); }

    /// Notes what an observer of `key` reads at each call.
    Subscription note(const QString& key, std::vector<std::optional<QVariant>>& seen) {
        return defaults().observe(
            key, [&seen](const DefaultsChange& change) { seen.push_back(change.newValue); });
    }

    Store fStore;
};

using Stores = ::testing::Types<MemoryStore, PlistStore, OverlayStore>;
class StoreNames {
public:
    template <typename Store>
    static std::string GetName(int) {
        if (std::is_same_v<Store, MemoryStore>)
            return "Memory";
        return std::is_same_v<Store, PlistStore> ? "Plist" : "Overlay";
    }
};
TYPED_TEST_SUITE(UserDefaultsContractTest, Stores, StoreNames);

TYPED_TEST(UserDefaultsContractTest, Object_UserValueElseDefaultElseInvalid) {
    auto& defaults = this->defaults();
    EXPECT_FALSE(defaults.object(cKey).isValid());
    defaults.registerDefaults({{cKey, "factory"}});
    EXPECT_EQ(defaults.object(cKey), QVariant("factory"));
    defaults.setObject(cKey, "mine");
    EXPECT_EQ(defaults.object(cKey), QVariant("mine"));
}

TYPED_TEST(UserDefaultsContractTest, SetObject_KeepsTheType) {
    const QDateTime date(QDate(2026, 3, 29), QTime(1, 30, 7), Qt::UTC);
    const QVariantList kinds{
        true,
        qlonglong{-5},
        std::numeric_limits<qlonglong>::min(),
        0.1,
        30.0,
        QStringLiteral("a <b> & “c” 😀"),
        QString(),
        QByteArray("\0\xff", 2),
        date,
        QVariantList{true, qlonglong{1}, 1.0, QStringLiteral("1"), QVariantList()},
        QVariantMap{{"inner", QVariantMap{{"date", date}}}, {"flag", false}},
    };
    for (const QVariant& value : kinds) {
        this->defaults().setObject(cKey, value);
        EXPECT_TRUE(sameStoredValue(this->defaults().object(cKey), value))
            << ::testing::PrintToString(value);
    }
}

TYPED_TEST(UserDefaultsContractTest, SetObject_OtherKindsTakeTheirStoredForm) {
    auto& defaults = this->defaults();
    defaults.setObject(cKey, QVariant(int{7}));
    EXPECT_TRUE(sameStoredValue(defaults.object(cKey), qlonglong{7}));
    defaults.setObject(cKey, QStringList{"a", "b"});
    EXPECT_TRUE(sameStoredValue(defaults.object(cKey), QVariantList{"a", "b"}));
    const QDateTime date(QDate(2026, 1, 2), QTime(3, 4, 5, 678), Qt::UTC);
    defaults.setObject(cKey, date);
    EXPECT_TRUE(sameStoredValue(defaults.object(cKey), date.addMSecs(-678)));
}

TYPED_TEST(UserDefaultsContractTest, SetObject_UnfitValueCountsAsRemoved) {
    auto& defaults = this->defaults();
    defaults.registerDefaults({{cKey, "factory"}});
    for (const QVariant& unfit : {QVariant(QUrl(QStringLiteral("smb://host"))), QVariant()}) {
        defaults.setObject(cKey, "mine");
        std::vector<std::optional<QVariant>> seen;
        const auto subscription = this->note(cKey, seen);
        defaults.setObject(cKey, unfit);
        EXPECT_EQ(defaults.object(cKey), QVariant("factory"));
        EXPECT_EQ(seen, (std::vector<std::optional<QVariant>>{QVariant("factory")}));
    }
}

TYPED_TEST(UserDefaultsContractTest, SetObject_TellsOnThisThreadBeforeItReturns) {
    std::vector<std::pair<DefaultsChange, std::thread::id>> seen;
    const auto subscription = this->defaults().observe(cKey, [&seen](const DefaultsChange& change) {
        seen.emplace_back(change, std::this_thread::get_id());
    });
    std::thread::id writer;
    std::size_t toldInTime = 0;
    std::thread([&] {
        writer = std::this_thread::get_id();
        this->defaults().setObject(cKey, "x");
        toldInTime = seen.size();
    }).join();
    EXPECT_EQ(toldInTime, 1U);
    ASSERT_EQ(seen.size(), 1U);
    EXPECT_EQ(seen[0].first.key, cKey);
    EXPECT_EQ(seen[0].first.newValue, QVariant("x"));
    EXPECT_EQ(seen[0].second, writer);
}

TYPED_TEST(UserDefaultsContractTest, SetObject_EqualValueIsToldToo) {
    std::vector<std::optional<QVariant>> seen;
    const auto subscription = this->note(cKey, seen);
    this->defaults().setObject(cKey, true);
    this->defaults().setObject(cKey, true);
    EXPECT_EQ(seen, (std::vector<std::optional<QVariant>>{true, true}));
}

TYPED_TEST(UserDefaultsContractTest, RemoveObject_DefaultShowsThroughAgain) {
    auto& defaults = this->defaults();
    defaults.setObject(cKey, "mine");
    defaults.setObject(cOther, "mine");
    defaults.registerDefaults({{cKey, "factory"}});
    std::vector<std::optional<QVariant>> seen;
    std::vector<std::optional<QVariant>> seenOther;
    const auto subscription = this->note(cKey, seen);
    const auto subscriptionOther = this->note(cOther, seenOther);
    defaults.removeObject(cKey);
    defaults.removeObject(cOther);
    EXPECT_EQ(defaults.object(cKey), QVariant("factory"));
    EXPECT_FALSE(defaults.object(cOther).isValid());
    EXPECT_EQ(seen, (std::vector<std::optional<QVariant>>{QVariant("factory")}));
    EXPECT_EQ(seenOther, (std::vector<std::optional<QVariant>>{std::nullopt}));
}

TYPED_TEST(UserDefaultsContractTest, RegisterDefaults_LaysOverEarlierOnesAndTellsNobody) {
    auto& defaults = this->defaults();
    std::vector<std::optional<QVariant>> seen;
    const auto subscription = this->note(cKey, seen);
    defaults.registerDefaults({{cKey, "first"}, {cOther, "kept"}});
    defaults.registerDefaults({{cKey, "second"}});
    EXPECT_EQ(defaults.object(cKey), QVariant("second"));
    EXPECT_EQ(defaults.object(cOther), QVariant("kept"));
    defaults.setObject(cOther, "mine");
    defaults.registerDefaults({{cOther, "third"}});
    EXPECT_EQ(defaults.object(cOther), QVariant("mine"));
    EXPECT_TRUE(seen.empty());
}

TYPED_TEST(UserDefaultsContractTest, Synchronize_KeepsEveryValue) {
    this->defaults().synchronize();
    this->defaults().setObject(cKey, "x");
    this->defaults().synchronize();
    EXPECT_EQ(this->defaults().object(cKey), QVariant("x"));
}

TYPED_TEST(UserDefaultsContractTest, Observe_OnlyItsKeyAndOnlyFromNowOn) {
    this->defaults().setObject(cKey, "before");
    std::vector<std::optional<QVariant>> seen;
    const auto subscription = this->note(cKey, seen);
    this->defaults().setObject(cOther, "elsewhere");
    EXPECT_TRUE(seen.empty());
    this->defaults().setObject(cKey, "now");
    EXPECT_EQ(seen, (std::vector<std::optional<QVariant>>{QVariant("now")}));
}

TYPED_TEST(UserDefaultsContractTest, Observe_ChangeByAnotherProgramIsToldOnTheMainThread) {
    this->defaults().setObject(cOther, "kept");
    std::vector<std::optional<QVariant>> seen;
    std::thread::id toldOn;
    const auto subscription = this->defaults().observe(cKey, [&](const DefaultsChange& change) {
        seen.push_back(change.newValue);
        toldOn = std::this_thread::get_id();
    });
    std::vector<std::optional<QVariant>> seenOther;
    const auto subscriptionOther = this->note(cOther, seenOther);

    this->fStore.changeByAnotherProgram(cKey, "theirs");
    ASSERT_TRUE(waitUntil([&] { return !this->fStore.main().idle(); }));
    EXPECT_TRUE(seen.empty());
    this->fStore.main().runDue();
    EXPECT_EQ(seen, (std::vector<std::optional<QVariant>>{QVariant("theirs")}));
    EXPECT_EQ(toldOn, std::this_thread::get_id());
    EXPECT_EQ(this->defaults().object(cKey), QVariant("theirs"));

    this->fStore.changeByAnotherProgram(cKey, QVariant());
    ASSERT_TRUE(waitUntil([&] {
        this->fStore.main().runDue();
        return seen.size() == 2;
    }));
    EXPECT_EQ(seen.back(), std::nullopt);
    EXPECT_EQ(this->defaults().object(cOther), QVariant("kept"));
    EXPECT_TRUE(seenOther.empty());
}

TYPED_TEST(UserDefaultsContractTest, Observer_MaySetValuesItsOwnKeyToo) {
    auto& defaults = this->defaults();
    const auto correcting = defaults.observe(cKey, [&](const DefaultsChange& change) {
        if (change.newValue == QVariant("wrong"))
            defaults.setObject(cKey, "right");
        defaults.setObject(cOther, "touched");
    });
    std::vector<std::optional<QVariant>> seen;
    const auto later = this->note(cKey, seen);
    defaults.setObject(cKey, "wrong");
    EXPECT_EQ(defaults.object(cKey), QVariant("right"));
    EXPECT_EQ(defaults.object(cOther), QVariant("touched"));
    EXPECT_EQ(seen, (std::vector<std::optional<QVariant>>{QVariant("right"), QVariant("right")}));
}

TYPED_TEST(UserDefaultsContractTest, SubscriptionThatEnds_LetsGoOfItsHandler) {
    const auto held = std::make_shared<int>();
    auto ending = this->defaults().observe(cKey, [held](const DefaultsChange&) {});
    const auto staying = this->defaults().observe(cKey, [](const DefaultsChange&) {});
    EXPECT_EQ(held.use_count(), 2);
    ending = {};
    EXPECT_EQ(held.use_count(), 1);
}

TYPED_TEST(UserDefaultsContractTest, Observer_MayEndItsOwnSubscriptionAndOthers) {
    auto& defaults = this->defaults();
    int ownCalls = 0;
    int otherCalls = 0;
    Subscription own;
    Subscription other;
    own = defaults.observe(cKey, [&](const DefaultsChange&) {
        ++ownCalls;
        other.reset();
        own.reset();
    });
    other = defaults.observe(cKey, [&](const DefaultsChange&) { ++otherCalls; });
    defaults.setObject(cKey, 1);
    defaults.setObject(cKey, 2);
    EXPECT_EQ(ownCalls, 1);
    EXPECT_EQ(otherCalls, 0);
}

TYPED_TEST(UserDefaultsContractTest, Subscription_EndedBeforeTheMainThreadGetsToIt_IsNotCalled) {
    std::vector<std::optional<QVariant>> seen;
    auto subscription = this->note(cKey, seen);
    this->fStore.changeByAnotherProgram(cKey, "theirs");
    ASSERT_TRUE(waitUntil([&] { return !this->fStore.main().idle(); }));
    subscription.reset();
    this->fStore.main().runDue();
    EXPECT_TRUE(seen.empty());
}

TYPED_TEST(UserDefaultsContractTest, Subscription_EndedWhileAnotherThreadWrites_NoNewCallBegins) {
    std::atomic<int> calls = 0;
    std::atomic<int> rounds = 0;
    std::atomic<bool> stop = false;
    auto subscription = this->defaults().observe(cKey, [&](const DefaultsChange&) { ++calls; });
    std::thread writer([&] {
        while (!stop) {
            this->defaults().setObject(cKey, rounds.load());
            ++rounds;
        }
    });
    const auto furtherRounds = [&](int count) {
        const int from = rounds;
        return waitUntil([&] { return rounds >= from + count; });
    };
    EXPECT_TRUE(furtherRounds(20));
    subscription.reset();
    EXPECT_TRUE(furtherRounds(2)); // a call that had begun is over
    const int callsAtEnd = calls;
    EXPECT_TRUE(furtherRounds(20));
    EXPECT_EQ(calls, callsAtEnd);
    EXPECT_GT(callsAtEnd, 0);
    stop = true;
    writer.join();
}

TYPED_TEST(UserDefaultsContractTest, Subscription_MayOutliveTheStore) {
    std::vector<std::optional<QVariant>> seen;
    auto subscription = this->note(cKey, seen);
    this->fStore.destroy();
    subscription.reset();
    EXPECT_TRUE(seen.empty());
}

TYPED_TEST(UserDefaultsContractTest, AnyThread_WritersAndReadersAtOnce) {
    constexpr int cThreads = 4;
    constexpr int cRounds = 200;
    std::vector<std::thread> writers;
    std::atomic<int> told = 0;
    std::vector<Subscription> subscriptions;
    for (int number = 0; number < cThreads; ++number) {
        const QString key = QStringLiteral("key%1").arg(number);
        subscriptions.push_back(
            this->defaults().observe(key, [&](const DefaultsChange&) { ++told; }));
        writers.emplace_back([this, key] {
            for (int round = 1; round <= cRounds; ++round) {
                this->defaults().setObject(key, round);
                EXPECT_EQ(this->defaults().integerForKey(key), round);
                if (round % 50 == 0)
                    this->defaults().synchronize();
            }
        });
    }
    for (auto& writer : writers)
        writer.join();
    for (int number = 0; number < cThreads; ++number)
        EXPECT_EQ(this->defaults().integerForKey(QStringLiteral("key%1").arg(number)), cRounds);
    EXPECT_EQ(told, cThreads * cRounds);
}

TYPED_TEST(UserDefaultsContractTest, AreKnown_OnceObserversWereTold) {
    EXPECT_TRUE(this->defaults().areKnown());
    this->fStore.beUnknown();
    auto& defaults = this->defaults();
    EXPECT_FALSE(defaults.areKnown());
    int told = 0;
    const Subscription subscription = defaults.observe(cKey, [&](const DefaultsChange& change) {
        ++told;
        EXPECT_EQ(change.newValue, QVariant("stored"));
        EXPECT_FALSE(defaults.areKnown());
    });
    this->fStore.becomeKnown(cKey, "stored");
    EXPECT_FALSE(defaults.areKnown()) << "not before the main thread";
    EXPECT_TRUE(waitUntil([&] {
        this->fStore.main().runDue();
        return defaults.areKnown();
    }));
    EXPECT_EQ(told, 1);
}

TYPED_TEST(UserDefaultsContractTest, TypedGetters_UnfitAndMissingGiveTheNeutralValue) {
    auto& defaults = this->defaults();
    EXPECT_FALSE(defaults.boolForKey(cKey));
    EXPECT_EQ(defaults.integerForKey(cKey), 0);
    EXPECT_EQ(defaults.doubleForKey(cKey), 0.0);
    EXPECT_EQ(defaults.stringForKey(cKey), std::nullopt);
    EXPECT_EQ(defaults.dictionaryForKey(cKey), std::nullopt);
    defaults.setObject(cKey, QVariantMap{{"a", 1}});
    EXPECT_FALSE(defaults.boolForKey(cKey));
    EXPECT_EQ(defaults.integerForKey(cKey), 0);
    EXPECT_EQ(defaults.doubleForKey(cKey), 0.0);
    EXPECT_EQ(defaults.stringForKey(cKey), std::nullopt);
    EXPECT_EQ(defaults.dictionaryForKey(cKey), (QVariantMap{{"a", 1}}));
    defaults.setObject(cKey, "101");
    EXPECT_EQ(defaults.integerForKey(cKey), 101);
    EXPECT_EQ(defaults.dictionaryForKey(cKey), std::nullopt);
}

} // namespace
} // namespace kelvo
