#include "ui/widgets/busy_row.h"

#include <QApplication>
#include <QLabel>
#include <QLineEdit>
#include <QProgressBar>
#include <QPushButton>
#include <QTest>
#include <QVBoxLayout>

#include <gtest/gtest.h>

namespace kelvo {
namespace {

class BusyRowTest : public ::testing::Test {
protected:
    BusyRowTest() {
        auto* rows = new QVBoxLayout(&window);
        rows->addWidget(&first);
        rows->addWidget(&second);
        rows->addWidget(&row);
        window.setMinimumWidth(400); // room for all words
        window.show();
        QApplication::setActiveWindow(&window);
    }

    QLabel& words() { return *row.findChild<QLabel*>(QStringLiteral("taskText")); }
    QPushButton& cancel() {
        return *row.findChild<QPushButton*>(QStringLiteral("ibCancelCommand"));
    }

    QWidget window;
    QLineEdit first;
    QLineEdit second;
    BusyRow row;
};

TEST_F(BusyRowTest, Task_IsSaidInWordsOfItsOwn) {
    EXPECT_FALSE(row.isVisible());
    QStringList said;
    for (const RemoteTaskKind kind : {RemoteTaskKind::OpeningFolder, RemoteTaskKind::SettingUpKey,
                                      RemoteTaskKind::MakingKey, RemoteTaskKind::Ending}) {
        row.setTask(kind);
        EXPECT_TRUE(row.isVisible());
        EXPECT_FALSE(words().text().isEmpty());
        EXPECT_EQ(words().accessibleName(), QString()) << "a name would hide the words";
        said.append(words().text());
    }
    EXPECT_EQ(said.removeDuplicates(), 0);
    row.setTask(RemoteTaskKind::None);
    EXPECT_FALSE(row.isVisible());
}

TEST_F(BusyRowTest, WhileNothingRuns_TakesNoRoom) {
    QCoreApplication::processEvents();
    const int idle = window.minimumSizeHint().height();
    row.setTask(RemoteTaskKind::MakingKey);
    QCoreApplication::processEvents();
    EXPECT_GT(window.minimumSizeHint().height(), idle);
    row.setTask(RemoteTaskKind::None);
    QCoreApplication::processEvents();
    EXPECT_EQ(window.minimumSizeHint().height(), idle);
}

TEST_F(BusyRowTest, CancelPressed_GivesTheFocusBackWhereItCameFrom) {
    second.setFocus();
    row.setTask(RemoteTaskKind::OpeningFolder);
    EXPECT_TRUE(second.hasFocus()) << "nothing is taken away";
    cancel().setFocus();
    row.setTask(RemoteTaskKind::Ending);
    EXPECT_TRUE(cancel().hasFocus());
    row.setTask(RemoteTaskKind::None);
    EXPECT_TRUE(second.hasFocus());
    row.setTask(RemoteTaskKind::OpeningFolder);
    first.setFocus();
    row.setTask(RemoteTaskKind::None);
    EXPECT_TRUE(first.hasFocus()) << "who has gone elsewhere stays there";
}

TEST_F(BusyRowTest, Sign_SaysThatTheEndIsOpen) {
    row.setTask(RemoteTaskKind::MakingKey);
    QCoreApplication::processEvents();
    const auto& sign = *row.findChild<QProgressBar*>(QStringLiteral("taskSign"));
    EXPECT_TRUE(sign.isVisible());
    EXPECT_EQ(sign.maximum(), sign.minimum());
    EXPECT_FALSE(sign.isTextVisible());
    EXPECT_LT(sign.height(), words().height());
    EXPECT_LT(sign.width(), row.width() / 2);
    EXPECT_EQ(sign.accessibleName(), u"Working");
    EXPECT_GT(words().width(), sign.width()) << "the words have the room";
    EXPECT_EQ(words().textFormat(), Qt::PlainText);
    EXPECT_TRUE(words().wordWrap());
    EXPECT_EQ(cancel().text(), u"Cance&l");
    EXPECT_FALSE(cancel().accessibleDescription().isEmpty());
    EXPECT_TRUE(cancel().autoDefault()) << "the return key presses it";
    EXPECT_EQ(row.height(), row.sizeHint().height()) << "however high the window is";
}

} // namespace
} // namespace kelvo
