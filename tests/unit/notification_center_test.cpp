#include "support/notification_center.h"

#include <gtest/gtest.h>

#include <atomic>
#include <memory>
#include <optional>
#include <string>
#include <thread>
#include <utility>
#include <vector>

namespace kelvo {
namespace {

class NotificationCenterTest : public testing::Test {
protected:
    NotificationHandler note(const std::string& name) {
        return [this, name](const Notification&) { fHeard += name; };
    }
    const QString fName = QStringLiteral("QuitRelaunchNotification");
    const QString fOther = QStringLiteral("Other");
    std::string fHeard;
    std::optional<NotificationCenter> fCenter{std::in_place};
};

TEST_F(NotificationCenterTest, Post_ReachesObserversOfTheNameInOrderBeforeItReturns) {
    const auto a = fCenter->observe(fName, note("a"));
    const auto x = fCenter->observe(fOther, note("x"));
    const auto b = fCenter->observe(fName, note("b"));
    fCenter->post(fName);
    EXPECT_EQ(fHeard, "ab");
}

TEST_F(NotificationCenterTest, Post_CarriesNameAndInformationOnThePostingThread) {
    Notification heard;
    std::thread::id thread;
    const auto observer = fCenter->observe(fName, [&](const Notification& told) {
        heard = told;
        thread = std::this_thread::get_id();
    });
    const QVariantMap info{{QStringLiteral("reachabilitymessage"), QStringLiteral("up")}};
    std::thread::id other;
    std::thread poster([&] {
        other = std::this_thread::get_id();
        fCenter->post(fName, info);
    });
    poster.join();
    EXPECT_EQ(heard.name, fName);
    EXPECT_EQ(heard.userInfo, info);
    EXPECT_EQ(thread, other);
}

TEST_F(NotificationCenterTest, PostWithoutObservers_DoesNothing) {
    fCenter->post(fName);
    const auto late = fCenter->observe(fName, note("a"));
    EXPECT_EQ(fHeard, "");
}

TEST_F(NotificationCenterTest, EndedSubscription_LetsGoOfItsHandler) {
    const auto held = std::make_shared<int>();
    auto observer = fCenter->observe(fName, [held](const Notification&) {});
    EXPECT_EQ(held.use_count(), 2);
    observer = {};
    EXPECT_EQ(held.use_count(), 1);
}

TEST_F(NotificationCenterTest, EndedSubscription_HearsNothingMore) {
    auto a = fCenter->observe(fName, note("a"));
    fCenter->post(fName);
    a.reset();
    fCenter->post(fName);
    EXPECT_EQ(fHeard, "a");
}

TEST_F(NotificationCenterTest, Handler_MayEndItsOwnAndALaterSubscription) {
    Subscription first;
    Subscription second;
    first = fCenter->observe(fName, [&](const Notification&) {
        fHeard += "a";
        first.reset();
        second.reset();
    });
    second = fCenter->observe(fName, note("b"));
    fCenter->post(fName);
    fCenter->post(fName);
    EXPECT_EQ(fHeard, "a");
}

TEST_F(NotificationCenterTest, Handler_MayPostAndObserve) {
    Subscription late;
    bool observed = false;
    const auto other = fCenter->observe(fOther, note("x"));
    const auto first = fCenter->observe(fName, [&](const Notification&) {
        fHeard += "a";
        fCenter->post(fOther);
        if (!std::exchange(observed, true))
            late = fCenter->observe(fName, note("n"));
    });
    fCenter->post(fName);
    EXPECT_EQ(fHeard, "ax") << "an observer added meanwhile hears from the next post on";
    fCenter->post(fName);
    EXPECT_EQ(fHeard, "axaxn");
}

TEST_F(NotificationCenterTest, Subscription_MayOutliveTheCenter) {
    auto observer = fCenter->observe(fName, note("a"));
    fCenter.reset();
    observer.reset();
    EXPECT_EQ(fHeard, "");
}

TEST_F(NotificationCenterTest, ManyThreads_MayPostObserveAndEnd) {
    std::atomic<int> heard = 0;
    std::vector<std::thread> threads;
    for (int i = 0; i < 4; ++i) {
        threads.emplace_back([&, this] {
            for (int round = 0; round < 100; ++round) {
                const auto mine = fCenter->observe(fName, [&](const Notification&) { ++heard; });
                fCenter->post(fName);
            }
        });
    }
    for (std::thread& thread : threads)
        thread.join();
    EXPECT_GE(heard, 400);
    const int before = heard;
    fCenter->post(fName);
    EXPECT_EQ(heard, before);
}

TEST(NotificationTextTest, Information_IsSpelledByItsKind) {
    EXPECT_EQ(userInfoText({}), u"nil");
    EXPECT_EQ(userInfoText({{QStringLiteral("a \"b\""), QStringLiteral("c\\")},
                            {QStringLiteral("n"), 5},
                            {QStringLiteral("o"), true},
                            {QStringLiteral("p"), QVariant()},
                            {QStringLiteral("q"), QByteArray("x")}}),
              u"Optional([AnyHashable(\"a \\\"b\\\"\"): \"c\\\\\", AnyHashable(\"n\"): 5, "
              u"AnyHashable(\"o\"): 1, AnyHashable(\"p\"): (nothing), "
              u"AnyHashable(\"q\"): (QByteArray)])");
    EXPECT_EQ(notificationText({QStringLiteral("n"), {{QStringLiteral("k"), 1}}}),
              u"name = n, object = nil, userInfo = Optional([AnyHashable(\"k\"): 1])");
}

} // namespace
} // namespace kelvo
