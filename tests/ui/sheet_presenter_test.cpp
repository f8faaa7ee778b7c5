#include "ui/widgets/sheet_presenter.h"

#include <QAbstractButton>
#include <QApplication>
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
    std::unique_ptr<SheetPresenter> presenter = std::make_unique<SheetPresenter>(*window);
    std::vector<ModalResponse> responses;
};

TEST_F(SheetPresenterTest, Sheet_SaysTheAlertAsPlainTextAndHoldsUpOnlyItsWindow) {
    presenter->beginSheet(cProblem, record());
    ASSERT_NE(box(), nullptr);
    EXPECT_EQ(box()->text(), u"Unable to <b>reach</b>");
    EXPECT_EQ(box()->textFormat(), Qt::PlainText);
    EXPECT_EQ(box()->informativeText(), u"Please check\n");
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
