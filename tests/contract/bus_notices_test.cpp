#include "adapters/desktop/bus_notices.h"
#include "support/notification_service.h"
#include "support/session_bus.h"
#include "support/wait_in_loop.h"

#include <gtest/gtest.h>

namespace kelvo {
namespace {

class BusNoticesTest : public ::testing::Test {
protected:
    void SetUp() override {
        if (bus.address().isEmpty())
            GTEST_SKIP() << "no bus daemon can be started here";
    }

    PrivateBus bus;
    QStringList otherwise;
};

TEST_F(BusNoticesTest, Service_GetsPlainTitleAndEscapedBody) {
    BusConnection desktop(bus.address(), QStringLiteral("notices-desktop"));
    NotificationService service(desktop.get());
    ASSERT_TRUE(service.appear());
    BusConnection own(bus.address(), QStringLiteral("notices-own"));
    BusNotices shown([this](const QString& title, const QString&) { otherwise << title; },
                     [&own] { return own.get(); });
    shown.showNotice(QStringLiteral("A & B"), QStringLiteral("<b>5 < 6"));
    EXPECT_TRUE(waitInLoop([&] { return !service.shown.isEmpty(); }));
    EXPECT_EQ(service.shown, QStringList{QStringLiteral("A & B | &lt;b&gt;5 &lt; 6")});
    EXPECT_TRUE(otherwise.isEmpty());
}

TEST_F(BusNoticesTest, NoService_IsShownOtherwise) {
    BusConnection own(bus.address(), QStringLiteral("notices-alone"));
    BusNotices shown(
        [this](const QString& title, const QString& text) { otherwise << title + u" | " + text; },
        [&own] { return own.get(); });
    shown.showNotice(QStringLiteral("A"), QStringLiteral("b<"));
    EXPECT_TRUE(waitInLoop([&] { return !otherwise.isEmpty(); }));
    EXPECT_EQ(otherwise, QStringList{QStringLiteral("A | b<")});
}

TEST_F(BusNoticesTest, NoBus_IsShownOtherwise) {
    BusNotices shown([this](const QString& title, const QString&) { otherwise << title; },
                     [] { return QDBusConnection(QStringLiteral("not connected to anything")); });
    shown.showNotice(QStringLiteral("A"), QStringLiteral("b"));
    EXPECT_TRUE(waitInLoop([&] { return !otherwise.isEmpty(); }));
}

} // namespace
} // namespace kelvo
