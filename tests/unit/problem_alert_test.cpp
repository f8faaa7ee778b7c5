#include "fakes/fake_front.h"
#include "fakes/recording_console.h"
#include "fakes/virtual_queues.h"
#include "sync/problem_alert.h"
#include "sync/sync_cycle.h"

#include <QStringList>

#include <gtest/gtest.h>

namespace kelvo {
namespace {

class ProblemAlertTest : public ::testing::Test {
protected:
    ProblemAlertTest() {
        button.current = 1;
        button.action = [this](Control*) { events.append(QStringLiteral("click")); };
    }
    void switchedByAPerson() {
        button.performClick();
        problem.switched();
    }

    std::function<void(ModalResponse)> answer;
    QStringList events;           ///< in the order in which they came
    std::optional<bool> centered; ///< the last text
    VirtualMainQueue mainQueue;
    RecordingConsole console;
    FakeButton button;
    CycleView view{
        .updateStatusMessage =
            [this](std::optional<QString> mesg, StatusColor, bool docenter) {
                events.append(mesg ? QString(u"show " + mesg->first(4)) : QStringLiteral("clear"));
                centered = docenter;
            },
        .showProblemWithBonjourClosure =
            [this](const QString&, const QString&, std::function<void(ModalResponse)> completion) {
                events.append(QStringLiteral("alert"));
                answer = std::move(completion);
            },
        .ibStartButton = &button};
    ProblemAlert problem{
        {.mainQueue = mainQueue, .console = console, .view = view, .answered = [] {}}};
};

TEST_F(ProblemAlertTest, Raised_ClicksThenClearsThenAsks) {
    problem.raise(HostVerdict::fromText(QStringLiteral("unknownerror")));
    mainQueue.advance(0.009);
    EXPECT_EQ(events, QStringList());
    mainQueue.advance(0.001);
    EXPECT_EQ(events, (QStringList{QStringLiteral("click"), QStringLiteral("clear")}))
        << "a click may show a text of its own";
    EXPECT_EQ(centered, true);
    mainQueue.advance(0.089);
    EXPECT_EQ(events.size(), 2);
    mainQueue.advance(0.001);
    EXPECT_EQ(events.mid(2), QStringList{QStringLiteral("alert")});
}

TEST_F(ProblemAlertTest, Stop_SwitchesOffWhatWasSwitchedOnMeanwhile) {
    problem.raise(HostVerdict::fromText(QStringLiteral("unknownerror")));
    mainQueue.advance(0.1);
    ASSERT_EQ(button.state(), 0);
    switchedByAPerson();
    ASSERT_EQ(button.state(), 1);
    events.clear();
    answer(cAlertSecondButtonReturn);
    EXPECT_EQ(button.state(), 0);
    EXPECT_EQ(events, (QStringList{QStringLiteral("click"), QStringLiteral("show oops")}))
        << "what the click shows does not stay";
}

TEST_F(ProblemAlertTest, AnswerToASecondAlert_IsAPersons) {
    const auto raise = [this] {
        problem.raise(HostVerdict::fromText(QStringLiteral("unknownerror")));
        mainQueue.advance(0.1);
    };
    raise();
    answer(cModalResponseStop); // nobody answered the first
    switchedByAPerson();
    raise();
    switchedByAPerson();
    switchedByAPerson();
    ASSERT_EQ(button.state(), 0);
    answer(cAlertFirstButtonReturn);
    mainQueue.advance(0.1);
    EXPECT_EQ(button.state(), 1);
}

TEST_F(ProblemAlertTest, RaisedWithoutAButton_StopsTheProgram) {
    view.ibStartButton = nullptr;
    problem.raise(HostVerdict::fromText(QStringLiteral("unknownerror")));
    EXPECT_DEATH(mainQueue.advance(0.01), "^the start button is not there\n(qemu: [^\n]*\n)?$");
}

} // namespace
} // namespace kelvo
