#include "fakes/recording_notices.h"
#include "fakes/virtual_queues.h"
#include "ui/widgets/sheet_presenter.h"

#include <QAbstractButton>
#include <QApplication>
#include <QCheckBox>
#include <QMessageBox>
#include <QTest>
#include <QTimer>

#include <gtest/gtest.h>

#include <memory>
#include <vector>

namespace kelvo {
namespace {

const Alert cProblem{QStringLiteral("Unable to <b>reach</b>"),
                     QStringLiteral("Please check\n"),
                     AlertStyle::Critical,
                     {QStringLiteral("Retry Again..."), QStringLiteral("Stop")},
                     true};

class SheetPresenterTest : public ::testing::Test {
protected:
    SheetPresenterTest() { window->show(); }

    /// The sheet on the window; those that are closed are swept away first.
    QMessageBox* box() {
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
        return window->findChild<QMessageBox*>(QStringLiteral("alert"));
    }
    QAbstractButton* button(const QString& title) {
        for (QAbstractButton* candidate : box()->buttons()) {
            if (candidate->text() == title)
                return candidate;
        }
        return nullptr;
    }
    std::function<void(ModalResponse)> record() {
        return [this](ModalResponse response) { responses.push_back(response); };
    }

    std::unique_ptr<QWidget> window = std::make_unique<QWidget>();
    VirtualMainQueue mainQueue;
    RecordingNotices notices;
    int shown = 0;
    std::unique_ptr<SheetPresenter> presenter =
        std::make_unique<SheetPresenter>(SheetPresenter::Parts{
            .mainWindow = *window, .mainQueue = mainQueue, .notices = notices, .showWhy = [this] {
                ++shown;
            }});
    std::vector<ModalResponse> responses;
};

TEST_F(SheetPresenterTest, Sheet_SaysTheAlertAsPlainTextAndHoldsUpOnlyItsWindow) {
    presenter->beginSheet(cProblem, record());
    ASSERT_NE(box(), nullptr);
    EXPECT_EQ(box()->text(), u"Unable to <b>reach</b>");
    EXPECT_EQ(box()->textFormat(), Qt::PlainText);
    EXPECT_TRUE(box()->informativeText().startsWith(u"Please check\n"));
    EXPECT_EQ(box()->windowModality(), Qt::WindowModal);
    EXPECT_EQ(box()->icon(), QMessageBox::Critical);
    EXPECT_TRUE(responses.empty());
}

TEST_F(SheetPresenterTest, Buttons_AnswerByTheirPlace) {
    presenter->beginSheet(cProblem, record());
    button(QStringLiteral("Stop"))->click();
    presenter->beginSheet(cProblem, record());
    button(QStringLiteral("Retry Again..."))->click();
    EXPECT_EQ(responses, (std::vector<ModalResponse>{1001, 1000}));
}

TEST_F(SheetPresenterTest, Keyboard_ReturnIsTheFirstButtonAndEscapeTheLast) {
    presenter->beginSheet(cProblem, record());
    QTest::keyClick(box(), Qt::Key_Return);
    presenter->beginSheet(cProblem, record());
    QTest::keyClick(box(), Qt::Key_Escape);
    EXPECT_EQ(responses, (std::vector<ModalResponse>{1000, 1001}));
}

TEST_F(SheetPresenterTest, DangerousQuestion_IsAnsweredNoByTheKeyboard) {
    const Alert question{.messageText = QStringLiteral("Sure?"),
                         .informativeText = {},
                         .buttons = {QStringLiteral("Do It"), QStringLiteral("Do Not")},
                         .defaultButton = 1};
    for (const Qt::Key key : {Qt::Key_Return, Qt::Key_Enter, Qt::Key_Escape, Qt::Key_Space}) {
        std::optional<ModalResponse> answer;
        (void)presenter->beginSheet(question, [&](ModalResponse response) { answer = response; });
        QWidget* focused = box()->focusWidget();
        QTest::keyClick(focused ? focused : box(), key);
        EXPECT_EQ(answer, cAlertSecondButtonReturn) << key;
    }
}

TEST_F(SheetPresenterTest, NoButtons_LeaveTheDefaultOneWhichIsTheFirst) {
    presenter->beginSheet({QStringLiteral("T"), {}, AlertStyle::Critical, {}, false}, record());
    ASSERT_EQ(box()->buttons().size(), 1);
    box()->buttons().first()->click();
    EXPECT_EQ(responses, std::vector<ModalResponse>{1000});
}

TEST_F(SheetPresenterTest, EndSheet_AnswersStoppedOnceAndOnlyWhileItIsOpen) {
    const SheetId sheet = presenter->beginSheet(cProblem, record());
    presenter->endSheet(sheet);
    presenter->endSheet(sheet);
    presenter->endSheet(99);
    EXPECT_EQ(responses, std::vector<ModalResponse>{cModalResponseStop});

    const SheetId answered = presenter->beginSheet(cProblem, record());
    button(QStringLiteral("Stop"))->click();
    presenter->endSheet(answered);
    EXPECT_EQ(responses, (std::vector<ModalResponse>{cModalResponseStop, 1001}));
}

TEST_F(SheetPresenterTest, PresenterGone_TakesItsSheetsWithoutAnAnswer) {
    presenter->beginSheet(cProblem, record());
    presenter.reset();
    EXPECT_EQ(box(), nullptr);
    EXPECT_TRUE(responses.empty());
}

TEST_F(SheetPresenterTest, AlertThatAnswersItself_SaysTheSecondsThatAreLeft) {
    const SheetId sheet = presenter->beginSheet(cProblem, record());
    for (const int left : {6, 5, 4, 3, 2, 1}) {
        EXPECT_EQ(
            box()->informativeText(),
            QStringLiteral("Please check\n\nWithout an answer, it tries again in %1 s.").arg(left));
        mainQueue.advance(1.0);
    }
    EXPECT_TRUE(responses.empty()) << "its maker ends it";
    presenter->endSheet(sheet);
    EXPECT_TRUE(mainQueue.idle());
    EXPECT_TRUE(notices.shown.empty());
}

TEST_F(SheetPresenterTest, OtherAlert_CountsNothingDown) {
    Alert alert = cProblem;
    alert.answersItself = false;
    presenter->beginSheet(alert, record());
    EXPECT_EQ(box()->informativeText(), u"Please check\n");
    EXPECT_TRUE(mainQueue.idle());
}

TEST_F(SheetPresenterTest, WindowNotActive_IsNotGivenTheKeyboard) {
    QWidget other;
    other.show();
    QApplication::setActiveWindow(&other);
    presenter->beginSheet(cProblem, record());
    EXPECT_TRUE(box()->testAttribute(Qt::WA_ShowWithoutActivating));
    QApplication::setActiveWindow(window.get());
    button(QStringLiteral("Stop"))->click();
    presenter->beginSheet(cProblem, record());
    EXPECT_FALSE(box()->testAttribute(Qt::WA_ShowWithoutActivating));
}

TEST_F(SheetPresenterTest, WindowNotSeen_GetsANoticeAndTheAutomaticAnswer) {
    for (const bool minimised : {true, false}) {
        notices.notices.clear();
        responses.clear();
        if (minimised)
            window->showMinimized();
        else
            window->hide();
        const SheetId sheet = presenter->beginSheet(cProblem, record());
        EXPECT_EQ(box(), nullptr);
        ASSERT_EQ(notices.notices.size(), 1U);
        EXPECT_EQ(notices.notices[0].title, cProblem.messageText);
        EXPECT_EQ(notices.notices[0].text, u"Please check");
        EXPECT_TRUE(notices.notices[0].urgent);
        EXPECT_TRUE(responses.empty());
        presenter->endSheet(sheet);
        presenter->endSheet(sheet);
        EXPECT_EQ(responses, std::vector<ModalResponse>{cModalResponseStop});
    }
    notices.notices[0].show();
    EXPECT_EQ(shown, 1);
}

TEST_F(SheetPresenterTest, PresenterGone_CountsNoFurther) {
    presenter->beginSheet(cProblem, record());
    presenter.reset();
    mainQueue.advance(10.0);
}

TEST_F(SheetPresenterTest, QuestionWithATick_TellsWhetherItWasTicked) {
    for (const bool tick : {true, false}) {
        QTimer::singleShot(0, window.get(), [this, tick] {
            EXPECT_EQ(box()->checkBox()->text(), u"Do not ask again");
            if (tick)
                QTest::keyClick(box()->checkBox(), Qt::Key_Space);
            QTest::keyClick(box(), Qt::Key_Escape);
        });
        const auto [response, ticked] =
            presenter->runModal(cProblem, QStringLiteral("Do not ask again"));
        EXPECT_EQ(response, 1001);
        EXPECT_EQ(ticked, tick);
    }
}

/// As at SIGTERM or the end of the session.
TEST_F(SheetPresenterTest, ProgramToldToEnd_IsNotHeldUpByAQuestion) {
    std::optional<ModalResponse> response;
    QTimer::singleShot(0, window.get(), [&] {
        QTimer::singleShot(0, window.get(), [] { QCoreApplication::quit(); });
        response = presenter->runModal(cProblem, QStringLiteral("Do not ask again")).response;
    });
    bool late = false;
    QTimer::singleShot(5000, window.get(), [&] {
        late = true;
        box()->buttons().first()->click();
        QCoreApplication::exit();
    });
    QCoreApplication::exec();
    EXPECT_FALSE(late);
    EXPECT_NE(response, cAlertFirstButtonReturn);
}

TEST_F(SheetPresenterTest, WindowGone_HasNoWindow) {
    presenter->beginSheet(cProblem, record());
    window.reset();
    EXPECT_FALSE(presenter->hasWindow());
    presenter->endSheet(1);
    presenter.reset();
}

TEST_F(SheetPresenterTest, ModalQuestion_BlocksForItsAnswer) {
    const Alert question{QStringLiteral("Reveal"),
                         QStringLiteral("path"),
                         AlertStyle::Informational,
                         {QStringLiteral("Open in Finder"), QStringLiteral("Show Enclosing")},
                         false};
    const auto answerWith = [&](const QString& title) {
        QTimer::singleShot(0, window.get(), [this, title] {
            EXPECT_EQ(box()->icon(), QMessageBox::Information);
            button(title)->click();
        });
        return presenter->runModal(question);
    };
    EXPECT_EQ(answerWith(QStringLiteral("Open in Finder")), 1000);
    EXPECT_EQ(answerWith(QStringLiteral("Show Enclosing")), 1001);
}

} // namespace
} // namespace kelvo
