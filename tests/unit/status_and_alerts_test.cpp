#include "fakes/fake_front.h"
#include "fakes/memory_defaults.h"
#include "fakes/recording_console.h"
#include "fakes/virtual_queues.h"
#include "settings/preference_keys.h"
#include "ui/alerts.h"
#include "ui/status_line.h"
#include "ui/terminal_notice.h"

#include <gtest/gtest.h>

#include <csignal>

namespace kelvo {
namespace {

class StatusLineTest : public ::testing::Test {
protected:
    MemoryDefaults defaults;
    VirtualMainQueue mainQueue;
    std::shared_ptr<FakeStatusField> field = std::make_shared<FakeStatusField>();
    StatusLine line{defaults, mainQueue, field};
};

TEST_F(StatusLineTest, Message_IsShownATenthOfASecondLater) {
    line.updateStatusMessage(QStringLiteral("hello"), StatusColor::Red, true);
    mainQueue.advance(0.099);
    EXPECT_TRUE(field->shown.empty());
    mainQueue.advance(0.001);
    EXPECT_EQ(field->shown, (std::vector{AttributedString{QStringLiteral("hello"), StatusColor::Red,
                                                          TextAlignment::Centered}}));
}

TEST_F(StatusLineTest, NotCentred_HasOnlyTheColour) {
    line.updateStatusMessage(QStringLiteral("x"), StatusColor::Red, false);
    mainQueue.advance(0.1);
    EXPECT_EQ(field->shown.back(),
              (AttributedString{QStringLiteral("x"), StatusColor::Red, TextAlignment::Natural}));
    EXPECT_EQ(getAttributedString(QStringLiteral("x"), StatusColor::Black, false),
              (AttributedString{QStringLiteral("x"), StatusColor::Black, TextAlignment::Natural}));
    EXPECT_EQ(getAttributedString(QStringLiteral("x"), StatusColor::Red, true),
              (AttributedString{QStringLiteral("x"), StatusColor::Red, TextAlignment::Centered}));
}

TEST_F(StatusLineTest, EveryUpdate_WipesTheSavedText) {
    for (const auto& mesg : {std::optional(QStringLiteral("hello")), std::optional<QString>()}) {
        defaults.setObject(prefStatusTextfieldString, QStringLiteral("saved"));
        line.updateStatusMessage(mesg, StatusColor::Black, true);
        mainQueue.advance(0.1);
        EXPECT_FALSE(defaults.object(prefStatusTextfieldString).isValid());
    }
    EXPECT_EQ(field->shown.back(), AttributedString());
}

TEST_F(StatusLineTest, NoMessage_IsAPlainClear) {
    line.updateStatusMessage(QString(), StatusColor::Red, true);
    mainQueue.advance(0.1);
    EXPECT_EQ(field->clears, 0) << "an empty text has its colour";
    EXPECT_EQ(field->shown.back(),
              (AttributedString{QString(), StatusColor::Red, TextAlignment::Centered}));
    line.updateStatusMessage(std::nullopt, StatusColor::Red, true);
    mainQueue.advance(0.1);
    EXPECT_EQ(field->clears, 1);
}

TEST_F(StatusLineTest, TwoMessages_AreShownInOrder) {
    line.updateStatusMessage(QStringLiteral("first"), StatusColor::Black, true);
    line.updateStatusMessage(QStringLiteral("second"), StatusColor::Black, true);
    mainQueue.advance(0.1);
    ASSERT_EQ(field->shown.size(), 2U);
    EXPECT_EQ(field->shown[1].string, u"second");
}

TEST_F(StatusLineTest, FieldGone_DropsTheMessageAndKeepsTheSavedText) {
    defaults.setObject(prefStatusTextfieldString, QStringLiteral("saved"));
    line.updateStatusMessage(QStringLiteral("hello"), StatusColor::Black, true);
    field.reset();
    mainQueue.advance(0.1);
    EXPECT_EQ(defaults.stringForKey(prefStatusTextfieldString), QStringLiteral("saved"));
}

class AlertsTest : public ::testing::Test {
protected:
    AlertCompletion record() {
        return [this](ModalResponse response) { responses.push_back(response); };
    }

    VirtualMainQueue mainQueue;
    RecordingConsole console;
    FakeAlertPresenter presenter;
    Alerts alerts{mainQueue, console, presenter};
    std::vector<ModalResponse> responses;
};

TEST_F(AlertsTest, General_IsACriticalSheetATenthOfASecondLater) {
    alerts.showAlertWithClosure(QStringLiteral("Title"), QStringLiteral("Text"), std::nullopt,
                                record());
    EXPECT_EQ(console.printed(),
              QStringList{QStringLiteral("Inside Kelvo_Mirror.ViewController->"
                                         "showAlertWithClosure(message:text:buttons:completion:)"
                                         ".......")});
    mainQueue.advance(0.099);
    EXPECT_TRUE(presenter.alerts.empty());
    mainQueue.advance(0.001);
    EXPECT_EQ(
        presenter.alerts,
        (std::vector{Alert{
            QStringLiteral("Title"), QStringLiteral("Text"), AlertStyle::Critical, {}, false}}));
    presenter.answer(1, 1000);
    EXPECT_EQ(responses, std::vector<ModalResponse>{1000});
}

TEST_F(AlertsTest, CommandThatNeedsATerminal_IsShownToBeCopied) {
    QStringList copied;
    TerminalNotice notice(alerts, [&copied](const QString& command) { copied.append(command); });
    notice.show(QStringLiteral("ssh ann@mac"));
    mainQueue.advance(0.1);
    EXPECT_EQ(presenter.alerts,
              (std::vector{Alert{QStringLiteral("No Terminal Found"),
                                 QStringLiteral("Please run this command in a terminal and answer "
                                                "what it asks:\n\nssh ann@mac"),
                                 AlertStyle::Critical,
                                 {QStringLiteral("Copy Command"), QStringLiteral("Close")},
                                 false}}));
    presenter.answer(1, 1001);
    EXPECT_EQ(copied, QStringList());
    notice.show(QStringLiteral("ssh ann@mac"));
    mainQueue.advance(0.1);
    presenter.answer(2, 1000);
    EXPECT_EQ(copied, QStringList{QStringLiteral("ssh ann@mac")});
}

TEST_F(AlertsTest, General_TakesOnlyTitledButtons) {
    using Buttons = QList<ButtonDescription>;
    const QString title = QStringLiteral("title");
    const auto buttonsOf = [this](const std::optional<Buttons>& buttons) {
        alerts.showAlertWithClosure(QStringLiteral("T"), std::nullopt, buttons, record());
        mainQueue.advance(0.1);
        return presenter.alerts.back().buttons;
    };
    EXPECT_EQ(buttonsOf(Buttons{{{title, QStringLiteral("A")}}, {{title, QStringLiteral("B")}}}),
              (QStringList{QStringLiteral("A"), QStringLiteral("B")}));
    EXPECT_EQ(buttonsOf(Buttons{{{QStringLiteral("label"), QStringLiteral("X")}}}), QStringList());
    EXPECT_EQ(buttonsOf(Buttons{}), QStringList());
    EXPECT_EQ(buttonsOf(std::nullopt), QStringList());
    EXPECT_EQ(presenter.alerts.back().informativeText, u"");
}

TEST_F(AlertsTest, Choices_AreTrueOnlyForTheFirstButton) {
    for (const auto& [answer, expected] :
         {std::pair(1000, true), std::pair(1001, false), std::pair(cModalResponseStop, false)}) {
        presenter.modalAnswer = answer;
        EXPECT_EQ(alerts.showChoices(QStringLiteral("M"), QStringLiteral("T")), expected);
    }
    EXPECT_EQ(presenter.alerts.back(),
              (Alert{QStringLiteral("M"),
                     QStringLiteral("T"),
                     AlertStyle::Informational,
                     {QStringLiteral("Open in Finder"), QStringLiteral("Show Enclosing")},
                     false}));
    EXPECT_EQ(console.printed().last(),
              u"Inside Kelvo_Mirror.ViewController->showChoices(message:text:).......");
}

TEST_F(AlertsTest, ProblemBuilt_IsNotShown) {
    EXPECT_EQ(alerts.showProblemWithBonjourNew(QStringLiteral("M"), QStringLiteral("T")),
              (Alert{QStringLiteral("M"),
                     QStringLiteral("T"),
                     AlertStyle::Critical,
                     {QStringLiteral("Retry Again..."), QStringLiteral("Stop")},
                     true}));
    EXPECT_TRUE(presenter.alerts.empty());
    EXPECT_EQ(console.printed(),
              QStringList{QStringLiteral("Inside Kelvo_Mirror.ViewController->"
                                         "showProblemWithBonjourNew(message:text:).......")});
}

TEST_F(AlertsTest, ProblemUnanswered_ClosesAfterSixSecondsAndAnswersRetry) {
    alerts.showProblemWithBonjourClosure(QStringLiteral("M"), QStringLiteral("T"), record());
    mainQueue.advance(0.1);
    EXPECT_EQ(presenter.open.size(), 1U);
    EXPECT_EQ(console.printed(),
              (QStringList{QStringLiteral("Inside Kelvo_Mirror.ViewController->"
                                          "showProblemWithBonjourClosure(message:text:completion:)"
                                          "......."),
                           QStringLiteral("Inside Kelvo_Mirror.ViewController->"
                                          "showProblemWithBonjourNew(message:text:).......")}));
    mainQueue.advance(5.999);
    EXPECT_EQ(presenter.open.size(), 1U);
    mainQueue.advance(0.001);
    EXPECT_TRUE(presenter.open.empty());
    EXPECT_EQ(responses, std::vector<ModalResponse>{cModalResponseStop});
    mainQueue.advance(0.099);
    EXPECT_EQ(responses.size(), 1U);
    mainQueue.advance(0.001);
    EXPECT_EQ(responses, (std::vector<ModalResponse>{cModalResponseStop, 1000}));
    EXPECT_TRUE(mainQueue.idle());
}

TEST_F(AlertsTest, ProblemAnswered_StillAnswersRetryLater) {
    alerts.showProblemWithBonjourClosure(QStringLiteral("M"), QStringLiteral("T"), record());
    mainQueue.advance(0.1);
    presenter.answer(1, 1001);
    mainQueue.advance(6.1);
    EXPECT_EQ(responses, (std::vector<ModalResponse>{1001, 1000}));
}

TEST_F(AlertsTest, ProblemWhoseWindowWent_IsNotEndedButStillAnswers) {
    alerts.showProblemWithBonjourClosure(QStringLiteral("M"), QStringLiteral("T"), record());
    mainQueue.advance(0.1);
    presenter.window = false;
    mainQueue.advance(6.1);
    EXPECT_EQ(presenter.open.size(), 1U);
    EXPECT_EQ(responses, std::vector<ModalResponse>{1000});
}

using AlertsDeathTest = AlertsTest;

TEST_F(AlertsDeathTest, SheetWithoutAWindow_StopsTheProgram) {
    presenter.window = false;
    alerts.showAlertWithClosure(QStringLiteral("M"), std::nullopt, std::nullopt, record());
    EXPECT_EXIT(mainQueue.advance(0.1), ::testing::KilledBySignal(SIGILL),
                "^An alert has no main window to be shown on\\.\n");
}

TEST_F(AlertsDeathTest, ProblemWithoutAWindow_StopsTheProgram) {
    presenter.window = false;
    alerts.showProblemWithBonjourClosure(QStringLiteral("M"), QStringLiteral("T"), record());
    EXPECT_EXIT(mainQueue.advance(0.1), ::testing::KilledBySignal(SIGILL),
                "^An alert has no main window to be shown on\\.\n");
}

} // namespace
} // namespace kelvo
