// The contract of DesktopNotices on the fake and on a bus with a notification service; then what
// happens where there is no such service.
#include "adapters/desktop/activation_token.h"
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
    void chooseShow() { notices.chooseShow(); }
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

    void chooseShow() {
        Q_EMIT service.ActionInvoked(static_cast<uint>(service.shown.size()),
                                     QStringLiteral("show"));
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

TYPED_TEST(DesktopNoticesContractTest, Show_IsCalledOnceWhenItIsChosen) {
    int shows = 0;
    this->world.notices.showNotice(
        {.title = QStringLiteral("A"), .text = QStringLiteral("b"), .show = [&shows] { ++shows; }});
    ASSERT_TRUE(waitInLoop([&] { return this->world.shown().size() == 1; }));
    // The answer with the number of the notice comes after the service has shown it.
    EXPECT_TRUE(waitInLoop([&] {
        this->world.chooseShow();
        return shows > 0;
    }));
    this->world.chooseShow();
    this->world.notices.showNotice({.title = QStringLiteral("C"), .text = QStringLiteral("d")});
    EXPECT_TRUE(waitInLoop([&] { return this->world.shown().size() == 2; }));
    EXPECT_EQ(shows, 1);
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
    EXPECT_EQ(service.frame, (QVariantList{QStringLiteral("Kelvo Mirror"), 0U,
                                           QStringLiteral("kelvo-mirror"), -1}))
        << "under our name and sign, beside the earlier ones, for as long as the desktop likes";
    EXPECT_EQ(service.hints.value(QStringLiteral("desktop-entry")).toString(),
              u"org.kelvo.KelvoMirror");
    EXPECT_TRUE(service.actions.isEmpty());
    EXPECT_TRUE(otherwise.isEmpty());
}

TEST_F(BusNoticesTest, NoticeOfAProfile_NamesIt) {
    BusConnection desktop(bus.address(), QStringLiteral("notices-profile-desktop"));
    NotificationService service(desktop.get());
    ASSERT_TRUE(service.appear());
    BusConnection own(bus.address(), QStringLiteral("notices-profile-own"));
    BusNotices shown({}, [&own] { return own.get(); }, {.name = QStringLiteral("East")});
    shown.showNotice({.title = QStringLiteral("A"), .text = {}});
    EXPECT_TRUE(waitInLoop([&] { return !service.shown.isEmpty(); }));
    EXPECT_EQ(service.frame.value(0), QStringLiteral("Kelvo Mirror – East"));
}

TEST_F(BusNoticesTest, Choice_IsOfferedWhereThereAreChoicesAndForOurNoticesOnly) {
    BusConnection desktop(bus.address(), QStringLiteral("notices-choosing-desktop"));
    NotificationService service(desktop.get());
    ASSERT_TRUE(service.appear());
    BusConnection own(bus.address(), QStringLiteral("notices-choosing-own"));
    BusNotices shown([this](const Notice& notice) { otherwise << notice.title; },
                     [&own] { return own.get(); });
    int shows = 0;
    const Notice notice{.title = QStringLiteral("A"),
                        .text = QStringLiteral("b"),
                        .urgent = true,
                        .show = [&shows] { ++shows; }};
    shown.showNotice(notice);
    ASSERT_TRUE(waitInLoop([&] { return service.shown.size() == 1; }));
    EXPECT_EQ(service.actions, (QStringList{QStringLiteral("default"), QStringLiteral("Show"),
                                            QStringLiteral("show"), QStringLiteral("Show")}));
    EXPECT_EQ(service.hints.value(QStringLiteral("urgency")).toInt(), 2);
    Q_EMIT service.ActionInvoked(77, QStringLiteral("show"));
    Q_EMIT service.NotificationClosed(1, 2);
    service.can.clear();
    shown.showNotice(notice);
    ASSERT_TRUE(waitInLoop([&] { return service.shown.size() == 2; }));
    EXPECT_TRUE(service.actions.isEmpty());
    Q_EMIT service.ActionInvoked(1, QStringLiteral("show"));
    shown.showNotice({.title = QStringLiteral("C"), .text = QStringLiteral("d")});
    ASSERT_TRUE(waitInLoop([&] { return service.shown.size() == 3; }));
    EXPECT_EQ(service.hints.value(QStringLiteral("urgency")).toInt(), 1);
    EXPECT_EQ(shows, 0) << "the first notice was closed, and no other was chosen";
    EXPECT_TRUE(waitInLoop([&] { return shown.findChildren<QObject*>().isEmpty(); }))
        << "nothing is kept of a question that is answered";
    EXPECT_TRUE(otherwise.isEmpty());
}

TEST_F(BusNoticesTest, TokenBeforeAChoice_IsThereForTheWindow) {
    BusConnection desktop(bus.address(), QStringLiteral("notices-token-desktop"));
    NotificationService service(desktop.get());
    ASSERT_TRUE(service.appear());
    BusConnection own(bus.address(), QStringLiteral("notices-token-own"));
    BusNotices shown([](const Notice&) {}, [&own] { return own.get(); });
    QByteArray token;
    shown.showNotice({.title = QStringLiteral("A"), .text = QStringLiteral("b"), .show = [&token] {
                          token = activationToken();
                      }});
    ASSERT_TRUE(waitInLoop([&] { return service.shown.size() == 1; }));
    Q_EMIT service.ActivationToken(1, QStringLiteral("ours"));
    Q_EMIT service.ActivationToken(2, QStringLiteral("another program's"));
    Q_EMIT service.ActionInvoked(1, QStringLiteral("show"));
    EXPECT_TRUE(waitInLoop([&] { return !token.isEmpty(); }));
    EXPECT_EQ(token, "ours");
    EXPECT_EQ(activationToken(), "") << "nobody comes across it later";
}

TEST_F(BusNoticesTest, NoService_IsShownOtherwise) {
    BusConnection own(bus.address(), QStringLiteral("notices-alone"));
    BusNotices shown(
        [this](const Notice& notice) { otherwise << notice.title + u" | " + notice.text; },
        [&own] { return own.get(); });
    shown.showNotice({.title = QStringLiteral("A"), .text = QStringLiteral("b<"), .show = [] {}});
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
