#include "discovery/network_path_monitoring.h"
#include "fakes/fake_network.h"
#include "fakes/recording_console.h"
#include "fakes/scripted_browser.h"
#include "fakes/virtual_queues.h"
#include "support/notification_center.h"

#include <gtest/gtest.h>

#include <thread>

namespace kelvo {
namespace {

const QString cName = QStringLiteral("NWPathMonitorNotification");
const QString cKey = QStringLiteral("reachabilitymessage");

QString entry(const char* operation, const QString& detail = QStringLiteral(".......")) {
    return u"Inside ViewController->" + QString::fromLatin1(operation) + detail;
}

class NetworkPathMonitoringTest : public ::testing::Test {
protected:
    NetworkPathMonitoringParts parts() {
        return {center,
                mainQueue,
                console,
                browser,
                [this] {
                    ++made;
                    auto fresh =
                        std::make_unique<FakeNetworkChecker>(center, QStringLiteral("first"));
                    checker = fresh.get();
                    return fresh;
                },
                [this](const QString& text) {
                    status = text;
                    shown.append(text);
                }};
    }

    NotificationCenter center;
    VirtualMainQueue mainQueue;
    RecordingConsole console;
    ScriptedBrowser browser;
    FakeNetworkChecker* checker = nullptr;
    int made = 0;
    QString status; ///< shown last
    QStringList shown;
    NetworkPathMonitoring monitoring{parts()};
};

TEST_F(NetworkPathMonitoringTest, SetUp_ListensBeforeItStartsTheChecker) {
    monitoring.setupNetworkChecker();
    EXPECT_EQ(console.printed().first(), u"great got self.fKelvoSSID...");
    EXPECT_EQ(made, 1);
    mainQueue.advance(0.1);
    EXPECT_EQ(status, u"first");
}

TEST_F(NetworkPathMonitoringTest, Message_PassesThroughEmptyATenthOfASecondLater) {
    monitoring.setupNetworkChecker();
    mainQueue.advance(1);
    shown.clear();
    checker->say(QStringLiteral("second"));
    mainQueue.advance(0.099);
    EXPECT_EQ(status, u"first");
    EXPECT_TRUE(shown.isEmpty());
    mainQueue.advance(0.001);
    EXPECT_EQ(shown, (QStringList{QString(), QStringLiteral("second")}));
    EXPECT_TRUE(mainQueue.idle());
}

TEST_F(NetworkPathMonitoringTest, NotificationOfAnotherThread_IsPrintedThereAndShownOnTheMainOne) {
    monitoring.setupNetworkChecker();
    mainQueue.advance(1);
    shown.clear();
    console.clear();
    std::thread([this] { center.post(cName, {{cKey, QStringLiteral("second")}}); }).join();
    EXPECT_EQ(console.printed().size(), 3);
    EXPECT_TRUE(shown.isEmpty());
    mainQueue.advance(0.1);
    EXPECT_EQ(shown, (QStringList{QString(), QStringLiteral("second")}));
}

TEST_F(NetworkPathMonitoringTest, Notification_IsPrintedWithAllItCarries) {
    monitoring.handleNWPathMonitorNotification(
        {cName, {{cKey, QStringLiteral("up \"x\"")}, {QStringLiteral("other"), 7}}});
    const QString info = QStringLiteral("Optional([AnyHashable(\"other\"): 7, "
                                        "AnyHashable(\"reachabilitymessage\"): \"up \\\"x\\\"\"])");
    const char* operation = "handleNWPathMonitorNotification(_:)";
    EXPECT_EQ(
        console.printed(),
        (QStringList{
            entry(operation,
                  QString(u".......notification = name = NWPathMonitorNotification, object = nil, "
                          u"userInfo = " +
                          info)),
            entry(operation, QString(u".......notification.userInfo = " + info)),
            entry(operation, QStringLiteral(".......notification.userInfo = "
                                            "Optional<Dictionary<AnyHashable, Any>>")),
        }));
}

TEST_F(NetworkPathMonitoringTest, NotificationWithoutAUsableMessage_LeavesNoText) {
    monitoring.setupNetworkChecker();
    for (const QVariantMap& info :
         {QVariantMap{}, QVariantMap{{QStringLiteral("other"), QStringLiteral("x")}},
          QVariantMap{{cKey, 7}}, QVariantMap{{cKey, QByteArray("x")}},
          QVariantMap{{cKey, QVariantList{QStringLiteral("x")}}}}) {
        checker->say(QStringLiteral("before"));
        mainQueue.advance(0.1);
        ASSERT_EQ(status, u"before");
        shown.clear();
        center.post(cName, info);
        mainQueue.advance(0.1);
        EXPECT_EQ(status, QString());
        EXPECT_EQ(shown, QStringList{QString()});
    }
    EXPECT_TRUE(
        console.printed().contains(entry("handleNWPathMonitorNotification(_:)",
                                         QStringLiteral(".......notification.userInfo = nil"))));
}

TEST_F(NetworkPathMonitoringTest, TwoNotificationsWithinTheDelay_EndAsTheSecond) {
    monitoring.setupNetworkChecker();
    mainQueue.advance(1);
    shown.clear();
    checker->say(QStringLiteral("down"));
    mainQueue.advance(0.05);
    checker->say(QStringLiteral("up"));
    mainQueue.advance(0.1);
    EXPECT_EQ(shown,
              (QStringList{QString(), QStringLiteral("down"), QString(), QStringLiteral("up")}));
    EXPECT_EQ(status, u"up");
}

TEST_F(NetworkPathMonitoringTest, NoChecker_MeansNoSubscription) {
    NetworkPathMonitoringParts without = parts();
    without.makeKelvoSSID = [] { return std::unique_ptr<NetworkChecker>(); };
    NetworkPathMonitoring alone(without);
    alone.setupNetworkChecker();
    center.post(cName, {{cKey, QStringLiteral("x")}});
    EXPECT_TRUE(console.printed().isEmpty());
    EXPECT_TRUE(mainQueue.idle());
}

TEST_F(NetworkPathMonitoringTest, Destroyed_HearsNothingMore) {
    {
        NetworkPathMonitoring passing(parts());
        passing.setupNetworkChecker();
        mainQueue.advance(1);
    }
    console.clear();
    center.post(cName, {{cKey, QStringLiteral("x")}});
    EXPECT_TRUE(console.printed().isEmpty());
    EXPECT_TRUE(mainQueue.idle());
}

// -- the browser

TEST_F(NetworkPathMonitoringTest, TestBrowser_LooksForSmbWithPeersIncluded) {
    monitoring.ibTestNWBrowser(nullptr);
    ASSERT_EQ(browser.searches.size(), 1U);
    const EndpointRequest& request = browser.searches[0].request;
    EXPECT_EQ(request.type, u"_smb._tcp");
    EXPECT_EQ(request.domain, u"local.");
    EXPECT_TRUE(request.includePeerToPeer);
    EXPECT_EQ(console.printed(), QStringList{entry("ibTestNWBrowser(_:)")});
}

TEST_F(NetworkPathMonitoringTest, BrowserStates_PrintOnlyReadyAndFailed) {
    monitoring.ibTestNWBrowser(nullptr);
    console.clear();
    using Kind = EndpointSearchState::Kind;
    for (const Kind kind : {Kind::Setup, Kind::Waiting, Kind::Ready, Kind::Failed, Kind::Cancelled})
        browser.searches[0].listener.stateChanged({kind, QStringLiteral("no daemon")});
    EXPECT_EQ(console.printed(),
              (QStringList{QStringLiteral("ready"), QStringLiteral("error: no daemon")}));
}

TEST_F(NetworkPathMonitoringTest, Results_GrowWithEveryChangeOfEverySearch) {
    monitoring.ibTestNWBrowser(nullptr);
    monitoring.ibTestNWBrowser(nullptr);
    console.clear();
    browser.searches[0].listener.endpointsChanged(
        {QStringLiteral("A._smb._tcp.local."), QStringLiteral("B \"b\"")});
    browser.searches[1].listener.endpointsChanged({QStringLiteral("C")});
    const QStringList bars{QStringLiteral("==============================bbb"),
                           QStringLiteral("==============================111"),
                           QStringLiteral("==============================222")};
    EXPECT_EQ(
        console.printed(),
        (QStringList{bars[0], bars[1], QStringLiteral("[\"A._smb._tcp.local.\", \"B \\\"b\\\"\"]"),
                     bars[2], bars[0], bars[1],
                     QStringLiteral("[\"A._smb._tcp.local.\", \"B \\\"b\\\"\", \"C\"]"), bars[2]}));
}

TEST_F(NetworkPathMonitoringTest, EmptyResults_PrintAnEmptyList) {
    monitoring.ibTestNWBrowser(nullptr);
    browser.searches[0].listener.endpointsChanged({});
    EXPECT_EQ(console.printed().at(3), u"[]");
}

} // namespace
} // namespace kelvo
