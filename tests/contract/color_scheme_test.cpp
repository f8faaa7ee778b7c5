#include "adapters/display/color_scheme.h"
#include "support/portal_service.h"
#include "support/session_bus.h"
#include "support/startable_service.h"
#include "support/wait_in_loop.h"

#include <gtest/gtest.h>

#include <vector>

namespace kelvo {
namespace {

class ColorSchemeTest : public ::testing::Test {
protected:
    void SetUp() override {
        if (bus.address().isEmpty())
            GTEST_SKIP() << "no bus daemon can be started here";
    }

    PrivateBus bus;
    BusConnection desktop{bus.address(), QStringLiteral("color-desktop")};
    BusConnection own{bus.address(), QStringLiteral("color-own")};
    PortalService portal{desktop.get()};
    std::vector<bool> told;
    const std::function<void(bool)> tell = [this](bool dark) { told.push_back(dark); };
};

TEST_F(ColorSchemeTest, Changes_AreToldAndNothingElseIs) {
    ASSERT_TRUE(portal.appear());
    const ColorScheme scheme(tell, own.get());
    ASSERT_TRUE(waitInLoop([&] { return portal.questions == 1; }));
    for (const uint wish : {1U, 1U, 2U, 0U, 7U, 1U})
        portal.setScheme(wish);
    EXPECT_TRUE(waitInLoop([&] { return told.size() >= 3; }));
    EXPECT_EQ(told, (std::vector<bool>{true, false, true}));
}

TEST_F(ColorSchemeTest, DarkFromTheBeginning_IsTold) {
    portal.setScheme(1);
    ASSERT_TRUE(portal.appear());
    const ColorScheme scheme(tell, own.get());
    EXPECT_TRUE(told.empty()) << "from the event loop";
    EXPECT_TRUE(waitInLoop([&] { return told == std::vector<bool>{true}; }));
    EXPECT_TRUE(waitInLoop([&] { return scheme.findChildren<QObject*>().isEmpty(); }))
        << "nothing is kept of a question that is answered";
}

TEST_F(ColorSchemeTest, LatePortal_IsAsked) {
    const ColorScheme scheme(tell, own.get());
    portal.setScheme(1);
    ASSERT_TRUE(portal.appear());
    EXPECT_TRUE(waitInLoop([&] { return told == std::vector<bool>{true}; }));
}

TEST(ColorSchemeAloneTest, PortalThatIsNotThere_IsNotStarted) {
    const StartableService portal(QStringLiteral("org.freedesktop.portal.Desktop"));
    const StartableService other(QStringLiteral("org.kelvo.Other"));
    const PrivateBus bus;
    if (bus.address().isEmpty())
        GTEST_SKIP() << "no bus daemon can be started here";
    BusConnection own(bus.address(), QStringLiteral("color-starting"));
    const ColorScheme scheme([](bool) {}, own.get());
    other.call(own.get());
    EXPECT_TRUE(waitInLoop([&] { return other.wasStarted(); })) << "this bus starts services";
    EXPECT_FALSE(portal.wasStarted());
}

TEST(ColorSchemeAloneTest, NoBus_TellsNothing) {
    const ColorScheme scheme([](bool) { ADD_FAILURE(); },
                             QDBusConnection(QStringLiteral("not connected to anything")));
}

TEST(ColorSchemeAloneTest, ToolkitWithATheme_TakesTheColoursOverItself) {
    struct Case {
        const char* desktop;
        const char* theme;
        bool expected;
    };
    for (const Case& c :
         {Case{"GNOME", "", false}, Case{"ubuntu:GNOME", "gtk3", true}, Case{"KDE", "", true},
          Case{"X-Mine:KDE", "", true}, Case{"", "", false}}) {
        qputenv("XDG_CURRENT_DESKTOP", c.desktop);
        qputenv("QT_QPA_PLATFORMTHEME", c.theme);
        EXPECT_EQ(ColorScheme::isTakenOverByToolkit(), c.expected) << c.desktop << c.theme;
    }
    qunsetenv("XDG_CURRENT_DESKTOP");
    qunsetenv("QT_QPA_PLATFORMTHEME");
}

} // namespace
} // namespace kelvo
