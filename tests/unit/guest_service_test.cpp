#include "app/commands/guest_service.h"
#include "fakes/fake_guests.h"
#include "fakes/view_controller_world.h"

#include <QJsonArray>

#include <gtest/gtest.h>

namespace kelvo {
namespace {

/// The real controller in a pretend world, told and asked by pretend guests.
class GuestServiceTest : public ::testing::Test, public ViewControllerWorld {
protected:
    GuestServiceTest() {
        workLooked = [this] { service.looked(); };
        messageShown = [this](const AttributedString& message) { service.messageShown(message); };
        alertShown = [this](const Alert& alert) { service.alertShown(alert); };
    }

    QString tell(CopyVerb verb) {
        const Guests::Id guest = guests.come(requestLine(verb).chopped(1));
        EXPECT_TRUE(guests.guests.at(guest).dismissed);
        const QJsonObject answer = guests.answer(guest);
        EXPECT_EQ(answer.value(u"protocol"), 1);
        return answer.value(u"event").toString() + u": " + answer.value(u"text").toString();
    }
    Guests::Id follow() { return guests.come(requestLine(CopyVerb::Follow).chopped(1)); }
    QJsonObject status() {
        return guests.answer(guests.come(requestLine(CopyVerb::Status).chopped(1)));
    }
    /// The kinds of what a guest has heard so far.
    QStringList eventsOf(Guests::Id guest) const {
        QStringList events;
        for (const QByteArray& line : guests.guests.at(guest).heard) {
            EXPECT_TRUE(line.endsWith('\n') && line.count('\n') == 1);
            events.append(QJsonDocument::fromJson(line).object().value(u"event").toString());
        }
        return events;
    }
    QJsonObject lastStatus(Guests::Id guest) const {
        QJsonObject last;
        for (const QByteArray& line : guests.guests.at(guest).heard) {
            const QJsonObject object = QJsonDocument::fromJson(line).object();
            if (object.value(u"event") == QStringLiteral("status"))
                last = object;
        }
        return last;
    }
    void plainPassIsSet() {
        defaults.setObject(prefRsyncWithSSH, false);
        defaults.setObject(prefPath1, QStringLiteral("/from"));
        defaults.setObject(prefPath2, QStringLiteral("/to"));
    }

    FakeGuests guests;
    GuestService service{{.guests = guests,
                          .controller = controller,
                          .copy = {.version = QStringLiteral("1.2.3"),
                                   .process = 4711,
                                   .since = QDateTime(QDate(2026, 3, 1), QTime(9, 0), Qt::UTC),
                                   .window = true},
                          .clock = {[this] { return now; }, [this] { return seconds; }}}};
};

TEST_F(GuestServiceTest, Status_TellsTheStateAndTheCopy) {
    load();
    const QJsonObject answer = status();
    EXPECT_EQ(answer.value(u"event"), QStringLiteral("status"));
    EXPECT_EQ(answer.value(u"state"), QStringLiteral("off"));
    EXPECT_EQ(answer.value(u"version"), QStringLiteral("1.2.3"));
    EXPECT_EQ(answer.value(u"process"), 4711);
    EXPECT_EQ(answer.value(u"window"), true);
    EXPECT_EQ(answer.value(u"since"), QStringLiteral("2026-03-01T09:00:00.000Z"));
    EXPECT_EQ(answer.value(u"health"), QStringLiteral("unknown"));
    EXPECT_TRUE(answer.value(u"pass").isNull());
    EXPECT_TRUE(answer.value(u"lastPass").isNull());
}

TEST_F(GuestServiceTest, Trouble_IsToldWithItsCauseAndNextStep) {
    load();
    PassRecord pass;
    pass.began = now;
    pass.cause = PassCause::HostAway;
    pass.lastLine = QStringLiteral("ssh: \x1b[31mtimed out");
    passStore.append(pass);
    mainQueue.advance(2);
    const QJsonObject answer = status();
    EXPECT_EQ(answer.value(u"health"), QStringLiteral("trouble"));
    EXPECT_EQ(answer.value(u"passesInTrouble"), 1);
    const QJsonObject trouble = answer.value(u"troubles").toArray().first().toObject();
    EXPECT_EQ(trouble.value(u"cause"), QStringLiteral("host-away"));
    EXPECT_EQ(trouble.value(u"message"), QStringLiteral("The Mac is away or asleep."));
    EXPECT_FALSE(trouble.value(u"nextStep").toString().isEmpty());
    EXPECT_EQ(answer.value(u"lastPass").toObject().value(u"lastLine").toString(), pass.lastLine)
        << "whole, for programs";
    EXPECT_TRUE(answer.value(u"lastSuccess").isNull());
}

TEST_F(GuestServiceTest, StartAndStop_ClickTheButtonOnlyWhereItIsNeeded) {
    load();
    plainPassIsSet();
    EXPECT_EQ(tell(CopyVerb::Stop), u"done: Syncing is off already.");
    EXPECT_EQ(button.clicks, 0);
    EXPECT_EQ(tell(CopyVerb::Start), u"done: Syncing is on.");
    EXPECT_EQ(button.clicks, 1);
    EXPECT_TRUE(defaults.boolForKey(prefEnableScanning));
    EXPECT_EQ(tell(CopyVerb::Start), u"done: Syncing is on already.");
    EXPECT_EQ(button.clicks, 1);
    EXPECT_EQ(status().value(u"state"), QStringLiteral("running"));
    EXPECT_EQ(tell(CopyVerb::Stop), u"done: Syncing is off; the pass that runs is the last one.");
    EXPECT_FALSE(defaults.boolForKey(prefEnableScanning));
    EXPECT_EQ(status().value(u"state"), QStringLiteral("finishing"));
}

TEST_F(GuestServiceTest, StartBeforeTheStartAtLaunch_IsNotTurnedOverByIt) {
    plainPassIsSet();
    defaults.setObject(prefAutoStartScanOnLaunch, true);
    controller.viewDidLoad();
    mainQueue.advance(0.5);
    EXPECT_EQ(tell(CopyVerb::Start), u"done: Syncing is on.");
    mainQueue.advance(2);
    EXPECT_TRUE(defaults.boolForKey(prefEnableScanning));
    EXPECT_EQ(button.clicks, 1);
}

TEST_F(GuestServiceTest, StartAndStopBeforeTheStartAtLaunch_StaySo) {
    plainPassIsSet();
    defaults.setObject(prefAutoStartScanOnLaunch, true);
    controller.viewDidLoad();
    mainQueue.advance(0.2);
    EXPECT_EQ(tell(CopyVerb::Start), u"done: Syncing is on.");
    mainQueue.advance(0.3);
    EXPECT_TRUE(tell(CopyVerb::Stop).startsWith(u"done: "));
    mainQueue.advance(2);
    EXPECT_FALSE(defaults.boolForKey(prefEnableScanning));
}

TEST_F(GuestServiceTest, SyncNow_BeginsThePlannedPass) {
    load();
    plainPassIsSet();
    defaults.setObject(prefDelayBetweenScans, 300.0);
    EXPECT_EQ(tell(CopyVerb::SyncNow), u"refused: Syncing is off; switch it on with --start.");
    (void)tell(CopyVerb::Start);
    EXPECT_EQ(tell(CopyVerb::SyncNow), u"done: A pass runs already.");
    bgQueue.runAll();
    mainQueue.advance(5);
    bgQueue.runAll();
    ASSERT_EQ(passes.size(), 1U);
    EXPECT_EQ(status().value(u"state"), QStringLiteral("resting"));
    EXPECT_FALSE(status().value(u"nextPass").isNull());
    EXPECT_EQ(tell(CopyVerb::SyncNow), u"done: A pass begins now.");
    bgQueue.runAll();
    EXPECT_EQ(passes.size(), 2U);
}

TEST_F(GuestServiceTest, Cancel_EndsThePassThatRuns) {
    load();
    plainPassIsSet();
    EXPECT_EQ(tell(CopyVerb::Cancel), u"done: No pass runs.");
    (void)tell(CopyVerb::Start);
    EXPECT_EQ(tell(CopyVerb::Cancel), u"done: The pass is being cancelled.");
    bgQueue.runAll();
    ASSERT_EQ(passes.size(), 1U);
    EXPECT_EQ(passes[0].cause, PassCause::Cancelled);
}

TEST_F(GuestServiceTest, NoRequest_IsRefusedInWords) {
    load();
    for (const char* line :
         {"", "{", "[]", "{}", "{\"protocol\":2,\"request\":\"stop\"}",
          "{\"protocol\":\"1\",\"request\":\"stop\"}", "{\"protocol\":1}",
          "{\"protocol\":1,\"request\":\"Stop\"}", "{\"protocol\":1,\"request\":[\"stop\"]}",
          "{\"protocol\":1,\"request\":\"\\u001b[2J\"}", "{\xff\xfe"}) {
        const Guests::Id guest = guests.come(line);
        EXPECT_EQ(guests.answer(guest).value(u"event"), QStringLiteral("refused")) << line;
        EXPECT_FALSE(guests.answer(guest).value(u"text").toString().contains(u'\x1b'));
        EXPECT_TRUE(guests.guests.at(guest).dismissed);
    }
    EXPECT_EQ(button.clicks, 0);
}

TEST_F(GuestServiceTest, Follower_HearsStateMessagesAndAlerts) {
    load();
    for (const QStringView key : {prefRemoteUsername, prefRemoteBonjourName, prefRemotePath})
        defaults.setObject(key, QStringLiteral("x"));
    defaults.setObject(prefPath2, QStringLiteral("/to"));
    const Guests::Id guest = follow();
    EXPECT_FALSE(guests.guests.at(guest).dismissed);
    EXPECT_EQ(eventsOf(guest), QStringList{QStringLiteral("status")});
    (void)tell(CopyVerb::Start);
    seconds += 2;
    mainQueue.advance(2);
    EXPECT_EQ(lastStatus(guest).value(u"state"), QStringLiteral("running"));
    EXPECT_TRUE(eventsOf(guest).contains(QStringLiteral("message"))) << "the status line";
    service.alertShown({QStringLiteral("T"), QStringLiteral("x")});
    EXPECT_EQ(guests.answer(guest).value(u"event"), QStringLiteral("alert"));
    EXPECT_EQ(guests.answer(guest).value(u"title"), QStringLiteral("T"));
    EXPECT_FALSE(guests.answer(guest).value(u"time").toString().isEmpty());
}

TEST_F(GuestServiceTest, Follower_HearsOfAPassThatHasEndedAsTheOneBefore) {
    load();
    plainPassIsSet();
    const Guests::Id guest = follow();
    (void)tell(CopyVerb::Start);
    for (int passes = 1; passes <= 2; ++passes) {
        now = now.addSecs(60);
        seconds += 60;
        bgQueue.runAll();
        mainQueue.advance(5);
        EXPECT_EQ(lastStatus(guest).value(u"lastPass").toObject().value(u"began").toString(),
                  this->passes.back().began.toString(Qt::ISODateWithMs));
        (void)tell(CopyVerb::SyncNow);
    }
}

TEST_F(GuestServiceTest, AlertOfTheProgram_ReachesFollowers) {
    load();
    defaults.setObject(prefEnableScanning, false);
    const Guests::Id guest = follow();
    controller.ibTestShellCommand(nullptr);
    seconds += 5;
    mainQueue.advance(5);
    bgQueue.runAll();
    mainQueue.advance(5);
    ASSERT_FALSE(presenter.alerts.empty());
    EXPECT_TRUE(eventsOf(guest).contains(QStringLiteral("alert")));
}

TEST_F(GuestServiceTest, NothingNew_IsNotTold) {
    load();
    const Guests::Id guest = follow();
    service.looked();
    service.looked();
    const auto told = guests.guests.at(guest).heard.size();
    for (int i = 0; i < 10; ++i) {
        seconds += 10;
        service.looked();
    }
    EXPECT_EQ(guests.guests.at(guest).heard.size(), told);
}

TEST_F(GuestServiceTest, TooManyFollowers_AreRefusedUntilOneLeaves) {
    load();
    std::vector<Guests::Id> followers;
    for (std::size_t i = 0; i < GuestService::cMostFollowers; ++i)
        followers.push_back(follow());
    const Guests::Id more = follow();
    EXPECT_EQ(guests.answer(more).value(u"event"), QStringLiteral("refused"));
    EXPECT_TRUE(guests.guests.at(more).dismissed);
    EXPECT_EQ(tell(CopyVerb::Stop), u"done: Syncing is off already.") << "others are answered";
    guests.leave(followers.front());
    EXPECT_FALSE(guests.guests.at(follow()).dismissed);
}

TEST_F(GuestServiceTest, SlowFollower_IsToldAndForgotten) {
    load();
    const Guests::Id slow = follow();
    const Guests::Id quick = follow();
    guests.guests.at(slow).reads = false;
    service.alertShown({QStringLiteral("T"), {}});
    service.alertShown({QStringLiteral("U"), {}});
    EXPECT_EQ(guests.answer(slow).value(u"event"), QStringLiteral("dropped"));
    EXPECT_EQ(eventsOf(slow).size(), 2) << "the status and the farewell";
    EXPECT_EQ(guests.answer(quick).value(u"title"), QStringLiteral("U"));
}

TEST_F(GuestServiceTest, LongTexts_FitIntoALine) {
    load();
    const Guests::Id guest = follow();
    service.alertShown({QString(100'000, u'T'), QString(100'000, u'\x1b')});
    const QByteArray line = guests.guests.at(guest).heard.back();
    EXPECT_LE(line.size(), Guests::cLongestLine);
    EXPECT_EQ(guests.answer(guest).value(u"event"), QStringLiteral("alert"));
}

} // namespace
} // namespace kelvo
