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
        workLooked = [this] {
            ++looks;
            service.looked();
        };
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

    /// How often the work is looked at in ten seconds that nothing happens in.
    int looksInTenSeconds() {
        looks = 0;
        for (int i = 0; i < 10; ++i) {
            seconds += 1;
            mainQueue.advance(1);
        }
        return looks;
    }
    qsizetype told(Guests::Id guest) const {
        return static_cast<qsizetype>(guests.guests.at(guest).heard.size());
    }

    int looks = 0; ///< at the work, so far
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

TEST_F(GuestServiceTest, WhereSomethingIsMissing_APassHasToWait) {
    load();
    defaults.setKnown(false);
    EXPECT_EQ(tell(CopyVerb::Start),
              u"done: Syncing is on; a pass begins once what is missing is there.");
    EXPECT_EQ(status().value(u"state"), QStringLiteral("missing"));
    EXPECT_EQ(tell(CopyVerb::SyncNow), u"refused: A pass begins once what is missing is there.");
    EXPECT_EQ(tell(CopyVerb::Stop), u"done: Syncing is off.");
    EXPECT_EQ(status().value(u"state"), QStringLiteral("off"));
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

TEST_F(GuestServiceTest, SyncNowWithoutAPlan_IsRefused) {
    load();
    plainPassIsSet();
    defaults.setObject(prefEnableScanning, true);
    EXPECT_EQ(tell(CopyVerb::SyncNow), u"refused: No pass is planned at this moment.");
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

TEST_F(GuestServiceTest, CancelTwice_IsSaid) {
    load();
    plainPassIsSet();
    files.folders = {QStringLiteral("/from"), QStringLiteral("/to")};
    defaults.setObject(prefRsyncCommandString1, QStringLiteral("pull %@1 %@2"));
    (void)tell(CopyVerb::Start);
    QStringList said;
    shell.answerTo(QStringLiteral("pull "), [&](const QString&) {
        said = {tell(CopyVerb::Cancel), tell(CopyVerb::Cancel),
                status().value(u"state").toString()};
        return QString();
    });
    bgQueue.runAll();
    EXPECT_EQ(said, (QStringList{QStringLiteral("done: The pass is being cancelled."),
                                 QStringLiteral("done: The pass is being cancelled already."),
                                 QStringLiteral("cancelling")}));
}

TEST_F(GuestServiceTest, NoRequest_IsRefusedInWords) {
    load();
    const char* const cNoObject = "A request is one JSON object on a line.";
    const char* const cOtherProtocol = "This copy speaks protocol 1; a request has the member "
                                       "\"protocol\" with that number.";
    for (const auto& [line, words] :
         {std::pair("", "A request has at most 65536 bytes."), std::pair("{", cNoObject),
          std::pair("[]", cNoObject), std::pair("{\xff\xfe", cNoObject),
          std::pair("{}", cOtherProtocol),
          std::pair("{\"protocol\":2,\"request\":\"stop\"}", cOtherProtocol),
          std::pair("{\"protocol\":\"1\",\"request\":\"stop\"}", cOtherProtocol),
          std::pair("{\"protocol\":1}", "There is no request \"\"."),
          std::pair("{\"protocol\":1,\"request\":\"Stop\"}", "There is no request \"Stop\"."),
          std::pair("{\"protocol\":1,\"request\":[\"stop\"]}", "There is no request \"\"."),
          std::pair("{\"protocol\":1,\"request\":\"\\u001b[2J\"}",
                    "There is no request \"\\x1b[2J\"."),
          std::pair("{\"protocol\":1,\"request\":\"0123456789012345678901234567890123456789more\"}",
                    "There is no request \"0123456789012345678901234567890123456789\".")}) {
        const Guests::Id guest = guests.come(line);
        EXPECT_EQ(guests.answer(guest).value(u"event"), QStringLiteral("refused")) << line;
        EXPECT_EQ(guests.answer(guest).value(u"text"), QString::fromLatin1(words)) << line;
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
    const QString moment = now.toString(Qt::ISODateWithMs);
    service.alertShown({QStringLiteral("T"), QStringLiteral("x")});
    EXPECT_EQ(guests.answer(guest), (QJsonObject{{QStringLiteral("protocol"), 1},
                                                 {QStringLiteral("event"), QStringLiteral("alert")},
                                                 {QStringLiteral("title"), QStringLiteral("T")},
                                                 {QStringLiteral("text"), QStringLiteral("x")},
                                                 {QStringLiteral("time"), moment}}));
    service.messageShown(getAttributedString(QStringLiteral("y"), StatusColor::Red, true));
    EXPECT_EQ(guests.answer(guest),
              (QJsonObject{{QStringLiteral("protocol"), 1},
                           {QStringLiteral("event"), QStringLiteral("message")},
                           {QStringLiteral("color"), QStringLiteral("red")},
                           {QStringLiteral("text"), QStringLiteral("y")},
                           {QStringLiteral("time"), moment}}));
    EXPECT_EQ(guests.answer(follow()).value(u"time"), moment) << "the first answer too";
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
    for (int i = 0; i < 10; ++i) {
        seconds += 10;
        service.looked();
    }
    EXPECT_EQ(told(guest), 1) << "the status at the beginning";
    button.performClick();
    service.looked();
    EXPECT_EQ(told(guest), 2);
    service.looked();
    EXPECT_EQ(told(guest), 2);
}

TEST_F(GuestServiceTest, FollowerWhoComesLater_KeepsNothingFromTheFirst) {
    load();
    const Guests::Id first = follow();
    defaults.setObject(prefEnableScanning, false);
    button.performClick();
    const Guests::Id second = follow();
    EXPECT_EQ(told(first), 1) << "nobody has looked yet";
    service.looked();
    EXPECT_EQ(told(first), 2);
    EXPECT_EQ(lastStatus(first).value(u"state"), lastStatus(second).value(u"state"));
}

TEST_F(GuestServiceTest, TimeUntilTheNextPass_IsToldOnceAsItRuns) {
    load();
    plainPassIsSet();
    defaults.setObject(prefDelayBetweenScans, 300.0);
    (void)tell(CopyVerb::Start);
    bgQueue.runAll();
    mainQueue.advance(5);
    ASSERT_EQ(status().value(u"state"), QStringLiteral("resting"));
    const Guests::Id guest = follow();
    ASSERT_FALSE(guests.answer(guest).value(u"nextPass").isNull());
    seconds += 7;
    service.looked();
    EXPECT_EQ(told(guest), 1);
    EXPECT_NE(status().value(u"nextPass"), guests.answer(guest).value(u"nextPass"))
        << "it is told by the status";
}

TEST_F(GuestServiceTest, Progress_IsToldOnceASecondAtMost) {
    load();
    for (const QStringView key : {prefRemoteUsername, prefRemoteBonjourName, prefRemotePath})
        defaults.setObject(key, QStringLiteral("x"));
    defaults.setObject(prefSampleRemoteFullPath, QStringLiteral("x@x:Movies"));
    defaults.setObject(prefPath2, QStringLiteral("/to"));
    defaults.setObject(prefRsyncCommandString1, QStringLiteral("pull %@1 %@2"));
    seconds = 0; // so that sums of it are exact
    const Guests::Id guest = follow();
    (void)tell(CopyVerb::Start);
    const auto toldAt = [&](double moment) {
        seconds = moment;
        const qsizetype before = told(guest);
        service.looked();
        const QJsonObject last = guests.answer(guest);
        return told(guest) == before
                   ? QString()
                   : QString(last.value(u"event").toString() + u' ' +
                             last.value(u"pass").toObject().value(u"step").toString());
    };
    shell.answerTo(QStringLiteral("rsync"), [&](const QString&) {
        EXPECT_EQ(toldAt(1.7), QString());
        EXPECT_EQ(toldAt(1.9), u"progress movies");
        return QString();
    });
    shell.answerTo(QStringLiteral("whoami"), [&](const QString&) {
        EXPECT_EQ(toldAt(0), u"status asking-the-mac") << "it has begun";
        EXPECT_EQ(toldAt(5), QString()) << "it is as far as it was";
        return QStringLiteral("x");
    });
    shell.answerTo(QStringLiteral("pull "), [&](const QString&) {
        EXPECT_EQ(toldAt(0.8), QString()) << "something has been told just now";
        EXPECT_EQ(toldAt(0.9), u"progress pull");
        return QString();
    });
    bgQueue.runAll();
    EXPECT_GE(eventsOf(guest).count(QStringLiteral("progress")), 2);
}

TEST_F(GuestServiceTest, Work_IsLookedAtOftenOnlyWhileSomebodyFollows) {
    (*view.attention) = {};
    load();
    plainPassIsSet();
    if (*view.attention)
        (*view.attention)(Attention::Unseen);
    (void)tell(CopyVerb::Start);
    (void)looksInTenSeconds();
    EXPECT_LE(looksInTenSeconds(), 3);
    const Guests::Id first = follow();
    const Guests::Id second = follow();
    EXPECT_GE(looksInTenSeconds(), 9);
    guests.leave(first);
    EXPECT_GE(looksInTenSeconds(), 9) << "one is left";
    guests.leave(second);
    (void)looksInTenSeconds();
    EXPECT_LE(looksInTenSeconds(), 3);

    const Guests::Id slow = follow();
    const Guests::Id quick = follow();
    guests.guests.at(slow).reads = false;
    service.alertShown({QStringLiteral("T"), {}});
    EXPECT_GE(looksInTenSeconds(), 9);
    guests.guests.at(quick).reads = false;
    service.alertShown({QStringLiteral("T"), {}});
    (void)looksInTenSeconds();
    EXPECT_LE(looksInTenSeconds(), 3);
}

TEST_F(GuestServiceTest, TooManyFollowers_AreRefusedUntilOneLeaves) {
    load();
    std::vector<Guests::Id> followers;
    for (std::size_t i = 0; i < GuestService::cMostFollowers; ++i)
        followers.push_back(follow());
    const Guests::Id more = follow();
    EXPECT_EQ(guests.answer(more).value(u"event"), QStringLiteral("refused"));
    EXPECT_EQ(guests.answer(more).value(u"text"),
              QStringLiteral("8 programs follow this copy already."));
    EXPECT_TRUE(guests.guests.at(more).dismissed);
    EXPECT_EQ(tell(CopyVerb::Stop), u"done: Syncing is off already.") << "others are answered";
    guests.leave(followers.front());
    EXPECT_FALSE(guests.guests.at(follow()).dismissed);
}

TEST_F(GuestServiceTest, GuestsWhoReadNothing_TakeNobodysPlace) {
    load();
    guests.newcomersRead = false;
    for (std::size_t i = 0; i < GuestService::cMostFollowers; ++i)
        (void)follow();
    guests.newcomersRead = true;
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
    EXPECT_EQ(guests.answer(slow).value(u"text"),
              QStringLiteral("This program reads too slowly to follow."));
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
