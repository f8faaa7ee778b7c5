// The contract of DesktopNotices on the fake and on a bus with a notification service; then what
// happens where there is no such service.
#include "adapters/desktop/bus_notices.h"
#include "fakes/recording_notices.h"
#include "support/notification_service.h"
#include "support/session_bus.h"
#include "support/wait_in_loop.h"

#include <gtest/gtest.h>

namespace kelvo {
namespace {

struct FakeWorld {
    RecordingNotices notices;
    QStringList shown() const { return notices.shown; }
};

struct BusWorld {
    BusWorld() { EXPECT_TRUE(service.appear()); }

    QStringList shown() const {
        QStringList decoded;
        for (QString notice : service.shown)
            decoded.append(notice.replace(QStringLiteral("&lt;"), QStringLiteral("<"))
                               .replace(QStringLiteral("&gt;"), QStringLiteral(">")));
        return decoded;
    }

    PrivateBus bus;
    BusConnection desktop{bus.address(), QStringLiteral("notices-contract-desktop")};
    NotificationService service{desktop.get()};
    BusConnection own{bus.address(), QStringLiteral("notices-contract-own")};
    BusNotices notices{{}, [this] { return own.get(); }};
};

template <typename World>
class DesktopNoticesContractTest : public ::testing::Test {
protected:
    World world;
};

using Worlds = ::testing::Types<FakeWorld, BusWorld>;
TYPED_TEST_SUITE(DesktopNoticesContractTest, Worlds);

TYPED_TEST(DesktopNoticesContractTest, TitleAndText_AreShownPlain) {
    this->world.notices.showNotice(
        {.title = QStringLiteral("A & B"), .text = QStringLiteral("<b>5 < 6")});
    this->world.notices.showNotice({.title = QStringLiteral("C"), .text = QStringLiteral("d")});
    const QStringList expected{QStringLiteral("A & B | <b>5 < 6"), QStringLiteral("C | d")};
    EXPECT_TRUE(waitInLoop([&] { return this->world.shown() == expected; }))
        << this->world.shown().join(u'\n').toStdString();
}

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
    BusNotices shown([this](const Notice& notice) { otherwise << notice.title; },
                     [&own] { return own.get(); });
    shown.showNotice({.title = QStringLiteral("A & B"), .text = QStringLiteral("<b>5 < 6")});
    EXPECT_TRUE(waitInLoop([&] { return !service.shown.isEmpty(); }));
    EXPECT_EQ(service.shown, QStringList{QStringLiteral("A & B | &lt;b&gt;5 &lt; 6")});
    EXPECT_TRUE(otherwise.isEmpty());
}

TEST_F(BusNoticesTest, NoService_IsShownOtherwise) {
    BusConnection own(bus.address(), QStringLiteral("notices-alone"));
    BusNotices shown(
        [this](const Notice& notice) { otherwise << notice.title + u" | " + notice.text; },
        [&own] { return own.get(); });
    shown.showNotice({.title = QStringLiteral("A"), .text = QStringLiteral("b<")});
    EXPECT_TRUE(waitInLoop([&] { return !otherwise.isEmpty(); }));
    EXPECT_EQ(otherwise, QStringList{QStringLiteral("A | b<")});
}

TEST_F(BusNoticesTest, NoBus_IsShownOtherwise) {
    BusNotices shown([this](const Notice& notice) { otherwise << notice.title; },
                     [] { return QDBusConnection(QStringLiteral("not connected to anything")); });
    shown.showNotice({.title = QStringLiteral("A"), .text = QStringLiteral("b")});
    EXPECT_TRUE(waitInLoop([&] { return !otherwise.isEmpty(); }));
}

} // namespace
} // namespace kelvo
