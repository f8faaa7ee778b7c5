#include "adapters/process/local_notification_center.h"
#include "fakes/recording_notification_center.h"

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

template <typename Center>
class NotificationCenterContract : public testing::Test {
protected:
    NotificationHandler note(const std::string& name) {
        return [this, name](const Notification&) { fHeard += name; };
    }
    const QString fName = QStringLiteral("QuitRelaunchNotification");
    const QString fOther = QStringLiteral("Other");
    std::string fHeard;
    std::optional<Center> fCenter{std::in_place};
};

using Centers = testing::Types<RecordingNotificationCenter, LocalNotificationCenter>;
TYPED_TEST_SUITE(NotificationCenterContract, Centers);

TYPED_TEST(NotificationCenterContract, Post_ReachesObserversOfTheNameInOrderBeforeItReturns) {
    const auto a = this->fCenter->observe(this->fName, this->note("a"));
    const auto x = this->fCenter->observe(this->fOther, this->note("x"));
    const auto b = this->fCenter->observe(this->fName, this->note("b"));
    this->fCenter->post(this->fName);
    EXPECT_EQ(this->fHeard, "ab");
}

TYPED_TEST(NotificationCenterContract, Post_CarriesNameAndInformationOnThePostingThread) {
    Notification heard;
    std::thread::id thread;
    const auto observer = this->fCenter->observe(this->fName, [&](const Notification& told) {
        heard = told;
        thread = std::this_thread::get_id();
    });
    const QVariantMap info{{QStringLiteral("reachabilitymessage"), QStringLiteral("up")}};
    std::thread::id other;
    std::thread poster([&] {
        other = std::this_thread::get_id();
        this->fCenter->post(this->fName, info);
    });
    poster.join();
    EXPECT_EQ(heard.name, this->fName);
    EXPECT_EQ(heard.userInfo, info);
    EXPECT_EQ(thread, other);
}

TYPED_TEST(NotificationCenterContract, PostWithoutObservers_DoesNothing) {
    this->fCenter->post(this->fName);
    const auto late = this->fCenter->observe(this->fName, this->note("a"));
    EXPECT_EQ(this->fHeard, "");
}

TYPED_TEST(NotificationCenterContract, EndedSubscription_HearsNothingMore) {
    auto a = this->fCenter->observe(this->fName, this->note("a"));
    this->fCenter->post(this->fName);
    a.reset();
    this->fCenter->post(this->fName);
    EXPECT_EQ(this->fHeard, "a");
}

TYPED_TEST(NotificationCenterContract, Handler_MayEndItsOwnAndALaterSubscription) {
    Subscription first;
    Subscription second;
    first = this->fCenter->observe(this->fName, [&](const Notification&) {
        this->fHeard += "a";
        first.reset();
        second.reset();
    });
    second = this->fCenter->observe(this->fName, this->note("b"));
    this->fCenter->post(this->fName);
    this->fCenter->post(this->fName);
    EXPECT_EQ(this->fHeard, "a");
}

TYPED_TEST(NotificationCenterContract, Handler_MayPostAndObserve) {
    Subscription late;
    bool observed = false;
    const auto other = this->fCenter->observe(this->fOther, this->note("x"));
    const auto first = this->fCenter->observe(this->fName, [&](const Notification&) {
        this->fHeard += "a";
        this->fCenter->post(this->fOther);
        if (!std::exchange(observed, true))
            late = this->fCenter->observe(this->fName, this->note("n"));
    });
    this->fCenter->post(this->fName);
    EXPECT_EQ(this->fHeard, "ax") << "an observer added meanwhile hears from the next post on";
    this->fCenter->post(this->fName);
    EXPECT_EQ(this->fHeard, "axaxn");
}

TYPED_TEST(NotificationCenterContract, Subscription_MayOutliveTheCenter) {
    auto observer = this->fCenter->observe(this->fName, this->note("a"));
    this->fCenter.reset();
    observer.reset();
    EXPECT_EQ(this->fHeard, "");
}

TYPED_TEST(NotificationCenterContract, ManyThreads_MayPostObserveAndEnd) {
    std::atomic<int> heard = 0;
    std::vector<std::thread> threads;
    for (int i = 0; i < 4; ++i) {
        threads.emplace_back([&, this] {
            for (int round = 0; round < 100; ++round) {
                const auto mine =
                    this->fCenter->observe(this->fName, [&](const Notification&) { ++heard; });
                this->fCenter->post(this->fName);
            }
        });
    }
    for (std::thread& thread : threads)
        thread.join();
    EXPECT_GE(heard, 400);
    const int before = heard;
    this->fCenter->post(this->fName);
    EXPECT_EQ(heard, before);
}

TEST(RecordingNotificationCenterTest, Posts_AreRemembered) {
    RecordingNotificationCenter center;
    center.post(QStringLiteral("a"), {{QStringLiteral("k"), 1}});
    ASSERT_EQ(center.posted().size(), 1u);
    EXPECT_EQ(center.posted().front().name, u"a");
    EXPECT_EQ(center.posted().front().userInfo.value(QStringLiteral("k")), 1);
}

} // namespace
} // namespace kelvo
