#include "settings/preference_keys.h"
#include "ui/checklist.h"
#include "ui/key_state_words.h"
#include "ui/pass_words.h"
#include "ui/setup_steps.h"

#include <gtest/gtest.h>

namespace kelvo {
namespace {

using enum PassCause;
using enum StepState;

const QDateTime cNow{QDate(2026, 3, 1), QTime(12, 0), Qt::UTC};

Connection said(PassCause cause, bool letInBefore = false) {
    return {.answer = HostAnswer{.target = QStringLiteral("ann@mac.local"), .cause = cause},
            .asked = cNow,
            .letInBefore = letInBefore};
}

/// All is done.
SetupFacts doneFacts() {
    return {.host = QStringLiteral("mac.local"),
            .user = QStringLiteral("ann"),
            .folder = QStringLiteral("Movies"),
            .source = QStringLiteral("ann@mac.local:Movies"),
            .key = KeyState::Accepted,
            .connection = said(Well, true),
            .now = cNow};
}

/// With an account, and a key that was never asked about.
SetupFacts freshKey(Connection connection = {}) {
    SetupFacts facts = doneFacts();
    facts.key = KeyState::NotAsked;
    facts.connection = std::move(connection);
    return facts;
}

std::vector<StepState> states(const SetupFacts& facts) {
    std::vector<StepState> all;
    for (const SetupLine& line : setupSteps(facts))
        all.push_back(line.state);
    return all;
}

/// 4 when none is.
std::size_t next(const SetupFacts& facts) {
    std::size_t found = cSetupSteps;
    const SetupSteps steps = setupSteps(facts);
    for (std::size_t i = 0; i < steps.size(); ++i) {
        if (steps[i].isNext) {
            EXPECT_EQ(found, cSetupSteps) << "one button alone is the main one";
            found = i;
        }
    }
    return found;
}

QString sentences(PassCause cause) {
    return wordsFor(cause).sentence + u' ' + wordsFor(cause).nextStep;
}

TEST(SetupStepsTest, NothingSet_BeginsWithTheMac) {
    SetupFacts facts;
    facts.folder = QStringLiteral("Movies");
    facts.key = KeyState::NoKey;
    EXPECT_EQ(states(facts), (std::vector{Next, Later, Later, Later}));
    EXPECT_EQ(next(facts), 0U);
    const SetupSteps steps = setupSteps(facts);
    EXPECT_EQ(steps[0].summary, u"No Mac chosen yet.");
    EXPECT_EQ(steps[0].text,
              u"Choose the Mac from the list of those in this network, or type its host name.");
    EXPECT_EQ(steps[1].text,
              u"An account on the Mac that may log in there, and the folder with the movies.");
    EXPECT_EQ(steps[2].text, u"The key is installed on the Mac, so choose that and enter the "
                             u"account first.");
    facts.host = QStringLiteral("mac.local");
    EXPECT_EQ(setupSteps(facts)[2].text, steps[2].text) << "nor without an account";
    EXPECT_EQ(steps[3].text, u"Not tried yet.");
    EXPECT_EQ(steps[3].remark, u"");
}

TEST(SetupStepsTest, EachStepDone_MakesTheFollowingOneNext) {
    SetupFacts facts;
    facts.key = KeyState::NoKey;
    facts.host = QStringLiteral("mac.local");
    EXPECT_EQ(states(facts), (std::vector{Done, Next, Later, Later}));
    facts.user = QStringLiteral("ann");
    EXPECT_EQ(next(facts), 1U) << "without a folder";
    facts.folder = QStringLiteral("Movies");
    EXPECT_EQ(next(facts), 1U) << "passes pull from nowhere yet";
    facts.source = QStringLiteral("ann@mac.local:Movies");
    EXPECT_EQ(states(facts), (std::vector{Done, Done, Next, Later}));
    facts.key = KeyState::NotAsked;
    EXPECT_EQ(next(facts), 2U) << "made, and never accepted";
    facts.key = KeyState::Accepted;
    EXPECT_EQ(states(facts), (std::vector{Done, Done, Done, Done}));
    EXPECT_EQ(next(facts), cSetupSteps);
}

TEST(SetupStepsTest, BlankSettings_AreNotSet) {
    SetupFacts facts = doneFacts();
    facts.host = QStringLiteral(" \n");
    EXPECT_EQ(next(facts), 0U);
    facts = doneFacts();
    facts.user = QStringLiteral(" ");
    facts.source = QStringLiteral(" @mac.local:Movies");
    EXPECT_EQ(next(facts), 1U);
    facts = doneFacts();
    facts.folder = QString();
    facts.source = QStringLiteral("ann@mac.local:");
    EXPECT_EQ(next(facts), 1U);
}

TEST(SetupStepsTest, SourceInUseThatDiffers_AsksForTheAccountAgain) {
    SetupFacts facts = doneFacts();
    facts.source = QStringLiteral("ann@old.local:Movies");
    EXPECT_EQ(states(facts), (std::vector{Done, Next, Done, Done}));
}

TEST(SetupStepsTest, DoneSteps_SayWhatWasChosen) {
    const SetupSteps steps = setupSteps(doneFacts());
    EXPECT_EQ(steps[0].summary, u"mac.local");
    EXPECT_EQ(steps[1].summary, u"ann, folder Movies");
    EXPECT_EQ(steps[2].summary, u"Key accepted by the remote Mac.");
    EXPECT_EQ(steps[3].text, u"The Mac lets this program in.");
    EXPECT_EQ(steps[3].remark,
              QString(u"Asked at " + cNow.toLocalTime().toString(u"HH:mm") + u'.'));
}

TEST(SetupStepsTest, AnswerOfAnotherDay_HasItsDate) {
    SetupFacts facts = doneFacts();
    facts.now = cNow.addDays(2);
    EXPECT_EQ(setupSteps(facts)[3].remark,
              QString(u"Asked at " + QLocale().toString(cNow.toLocalTime(), QLocale::ShortFormat) +
                      u'.'));
}

TEST(SetupStepsTest, Terminal_IsAnnouncedBeforeItOpens) {
    EXPECT_EQ(
        setupSteps(freshKey())[2].text,
        u"A terminal opens and asks for the password of ann on mac.local; it is typed there "
        u"and kept nowhere. When the two machines meet for the first time it asks before that "
        u"whether to go on connecting: answer yes.");
    EXPECT_EQ(passwordTitle(QStringLiteral("ann"), QStringLiteral("mac.local")),
              u"Kelvo Mirror: the password of ann on mac.local");
}

TEST(SetupStepsTest, HostileNames_StayOnOneLineAsTheyAre) {
    SetupFacts facts = doneFacts();
    facts.host = QStringLiteral("<b>mac</b>\n\x1b[2Jx%1%2");
    facts.user = QStringLiteral("%2%1\u202e");
    facts.connection.answer->cause = Unknown;
    facts.connection.answer->lastLine = QStringLiteral("a\nb\x1b");
    const SetupSteps steps = setupSteps(facts);
    EXPECT_EQ(steps[0].summary, u"<b>mac</b>\\x0a\\x1b[2Jx%1%2");
    EXPECT_EQ(steps[1].summary, u"%2%1\\u202e, folder Movies");
    EXPECT_TRUE(steps[2].text.contains(u"of %2%1\\u202e on <b>mac</b>\\x0a\\x1b[2Jx%1%2;"))
        << qPrintable(steps[2].text);
    EXPECT_TRUE(steps[3].text.endsWith(u"The last line was: a\\x0ab\\x1b"));
    EXPECT_EQ(passwordTitle(facts.user, QStringLiteral("a\x07z")),
              u"Kelvo Mirror: the password of %2%1\\u202e on a\\x07z");
}

// -- key and connection say the same

TEST(SetupStepsTest, KeyRefusedFromTheBeginning_IsStillToBeInstalled) {
    for (const PassCause cause : {KeyRefused, HostKeyUnknown, KeyMissing}) {
        const SetupFacts facts = freshKey(said(cause));
        EXPECT_EQ(states(facts), (std::vector{Done, Done, Next, Later}));
        EXPECT_EQ(setupSteps(facts)[2].summary, keyStateWords(KeyState::NotAccepted));
    }
    EXPECT_EQ(setupSteps(freshKey(said(KeyRefused)))[3].text, sentences(KeyRefused));
    EXPECT_EQ(setupSteps(freshKey(said(HostKeyUnknown)))[3].text,
              u"This machine has not met the Mac before. Set up the key: the terminal asks whether "
              u"to trust the Mac.");
}

TEST(SetupStepsTest, KeyThatIsNotTakenAnyMore_IsTroubleInItsStep) {
    for (const PassCause cause : {KeyRefused, HostKeyUnknown, HostKeyChanged}) {
        const SetupFacts facts = freshKey(said(cause, true));
        EXPECT_EQ(states(facts), (std::vector{Done, Done, Trouble, Later}));
        EXPECT_EQ(next(facts), 2U);
        EXPECT_EQ(setupSteps(facts)[2].summary, sentences(cause));
    }
    EXPECT_EQ(states(freshKey(said(HostKeyChanged)))[2], Trouble) << "that is always news";
}

TEST(SetupStepsTest, OtherName_IsMendedInTheAccount) {
    const SetupFacts facts = freshKey(said(WrongUser));
    EXPECT_EQ(states(facts), (std::vector{Done, Trouble, Done, Later}));
    EXPECT_EQ(next(facts), 1U);
    EXPECT_EQ(setupSteps(facts)[1].text, sentences(WrongUser));
    EXPECT_EQ(setupSteps(facts)[3].text, sentences(WrongUser));
}

TEST(SetupStepsTest, MacThatIsAway_IsTroubleOfTheConnectionAlone) {
    for (const PassCause cause : {HostNotFound, HostAway, RemoteLoginOff}) {
        const SetupFacts known = freshKey(said(cause, true));
        EXPECT_EQ(states(known), (std::vector{Done, Done, Done, Trouble}));
        EXPECT_EQ(next(known), 3U);
        EXPECT_EQ(setupSteps(known)[3].text, sentences(cause));
        EXPECT_EQ(setupSteps(known)[2].summary,
                  u"Key made, and accepted by the remote Mac before.");
        const SetupFacts unknown = freshKey(said(cause));
        EXPECT_EQ(states(unknown), (std::vector{Done, Done, Later, Trouble}));
        EXPECT_EQ(next(unknown), 3U) << "no key can be installed on it now";
        EXPECT_EQ(setupSteps(unknown)[2].summary,
                  u"Key made. The remote Mac could not be asked about it.");
        SetupFacts none = unknown;
        none.key = KeyState::NoKey;
        EXPECT_EQ(next(none), 2U);
    }
}

TEST(SetupStepsTest, LoginThatTalks_HasTakenTheKey) {
    const SetupFacts facts = freshKey(said(LoginTalks));
    EXPECT_EQ(states(facts), (std::vector{Done, Done, Done, Trouble}));
    EXPECT_EQ(setupSteps(facts)[2].summary, keyStateWords(KeyState::Accepted));
}

TEST(SetupStepsTest, KeyState_SpeaksAsLongAsNobodyElseDoes) {
    SetupFacts facts = freshKey();
    facts.key = KeyState::Accepted;
    EXPECT_EQ(setupSteps(facts)[3].text, u"The Mac lets this program in.");
    EXPECT_EQ(setupSteps(facts)[3].state, Done);
    facts.key = KeyState::NotAccepted;
    EXPECT_EQ(setupSteps(facts)[3].text, u"The Mac does not let this program in yet.");
    EXPECT_EQ(next(facts), 2U);
    facts.key = KeyState::HostAway;
    EXPECT_EQ(setupSteps(facts)[3].text, sentences(HostNotFound));
    facts = freshKey();
    EXPECT_EQ(setupSteps(facts)[2].summary, keyStateWords(KeyState::NotAsked));
    facts = freshKey({.letInBefore = true});
    EXPECT_EQ(next(facts), 3U) << "the record knows the key";
    EXPECT_EQ(setupSteps(facts)[2].summary, keyStateWords(KeyState::Accepted));
    facts.key = KeyState::NotAccepted;
    EXPECT_EQ(next(facts), 2U);
    EXPECT_EQ(setupSteps(facts)[2].summary, keyStateWords(KeyState::NotAccepted));
}

TEST(SetupStepsTest, LostKey_IsNotDoneWhateverWasSaid) {
    SetupFacts facts = doneFacts();
    facts.key = KeyState::NoKey;
    EXPECT_EQ(next(facts), 2U);
    EXPECT_EQ(setupSteps(facts)[2].summary, keyStateWords(KeyState::NoKey));
}

TEST(SetupStepsTest, Asking_ShowsNoOldVerdictAndFoldsNothingOut) {
    SetupFacts facts = doneFacts();
    facts.asking = true;
    EXPECT_EQ(states(facts), (std::vector{Done, Done, Done, Done}));
    EXPECT_EQ(setupSteps(facts)[2].summary, keyStateWords(KeyState::Asking));
    EXPECT_EQ(setupSteps(facts)[3].text, keyStateWords(KeyState::Asking));
    EXPECT_EQ(setupSteps(facts)[3].summary, setupSteps(facts)[3].text);
    EXPECT_EQ(setupSteps(facts)[3].remark, u"");
    facts.connection = said(HostAway, true);
    EXPECT_EQ(states(facts)[3], Next) << "the trouble may be over";
}

// -- the verdict

TEST(SetupStepsTest, Verdict_NamesWhatEachAnswerMeans) {
    const auto text = [](PassCause cause, const QString& lastLine) {
        Connection connection = said(cause);
        connection.answer->lastLine = lastLine;
        return setupSteps(freshKey(connection))[3].text;
    };
    EXPECT_EQ(text(HostAway, QStringLiteral("x")), sentences(HostAway));
    EXPECT_EQ(
        text(ToolMissingHere, QStringLiteral("x")),
        QString(u"ssh is not installed on this machine. Install it with: " + cInstallCommand));
    EXPECT_EQ(text(SettingsRefused, QStringLiteral("the user name begins with \"-\"")),
              u"The Mac was not asked, because the user name begins with \"-\".");
    EXPECT_EQ(text(Unknown, QStringLiteral(" /bin/sh: Syntax error\n")),
              u"The Mac did not answer as it should. The last line was: /bin/sh: Syntax error");
    EXPECT_EQ(text(Unknown, QString()),
              u"The Mac was not reached, or did not say a word. Test it once more, or log in with "
              u"ssh in a terminal and see what it says.");
}

TEST(SetupStepsTest, SuccessThatWasNone_IsExplained) {
    SetupFacts facts = freshKey(said(HostAway));
    EXPECT_FALSE(setupSteps(facts)[3].remark.contains(u"SUCCESS"));
    facts.connection.answer->saidSuccess = true;
    EXPECT_TRUE(setupSteps(facts)[3].remark.endsWith(
        u"\nThe message \"SUCCESS...\" only means that ssh named neither a missing key file nor an "
        u"unknown host name; this line says what came of it."));
    facts.connection.answer->cause = Well;
    EXPECT_FALSE(setupSteps(facts)[3].remark.contains(u"SUCCESS"));
}

} // namespace
} // namespace kelvo
