#include "fakes/virtual_queues.h"
#include "ui/widgets/elided_label.h"
#include "ui/widgets/profiles_sheet.h"

#include <QLabel>
#include <QLineEdit>
#include <QPointer>
#include <QPushButton>
#include <QTableWidget>
#include <QTest>

#include <gtest/gtest.h>

namespace kelvo {
namespace {

class ProfilesSheetTest : public ::testing::Test {
protected:
    void SetUp() override {
        window.show();
        sheet = new ProfilesSheet({.mainQueue = mainQueue,
                                   .bgQueue = bgQueue,
                                   .own = own,
                                   .list =
                                       [this] {
                                           ++listed;
                                           return states;
                                       },
                                   .open =
                                       [this](const Profile& profile) {
                                           opened.append(profile.name);
                                           return fault;
                                       },
                                   .now = [this] { return now; }},
                                  &window);
        sheet->show();
    }

    void fill() {
        bgQueue.runAll();
        mainQueue.runDue();
    }
    template <typename Widget>
    Widget& child(const char* name) {
        return *sheet->findChild<Widget*>(QString::fromLatin1(name));
    }
    QLineEdit& field() { return child<QLineEdit>("nameField"); }
    QTableWidget& table() { return child<QTableWidget>("profiles"); }
    QPushButton& open() { return child<QPushButton>("openButton"); }
    QString trouble() { return child<QLabel>("trouble").text(); }
    QString row(int at) {
        QStringList cells;
        for (int column = 0; column < table().columnCount(); ++column)
            cells.append(table().item(at, column)->text());
        return cells.join(u'|');
    }

    const QDateTime now{QDate(2026, 11, 22), QTime(12, 0), Qt::UTC};
    const Profile own{QStringLiteral("west")};
    std::vector<ProfileState> states{
        {.profile = {}, .mac = QStringLiteral("Attic.local"), .isRunning = true},
        {.profile = {QStringLiteral("east")},
         .mac = QStringLiteral("a\x1b<b>"),
         .lastSuccess = now.addSecs(-60),
         .trouble = PassCause::HostAway},
        {.profile = own, .isRunning = true},
    };
    VirtualMainQueue mainQueue;
    ManualBackgroundQueue bgQueue;
    QWidget window;
    QPointer<ProfilesSheet> sheet;
    int listed = 0;
    QStringList opened;
    QString fault;
};

TEST_F(ProfilesSheetTest, List_ComesInTheBackgroundAndTellsEachState) {
    EXPECT_EQ(listed, 0) << "the sheet does not wait for the disk";
    EXPECT_EQ(table().rowCount(), 0);
    fill();
    ASSERT_EQ(table().rowCount(), 3);
    EXPECT_EQ(row(0), u"Without a name|Attic.local|Running|None yet");
    EXPECT_TRUE(row(1).startsWith(u"east|a\\x1b<b>|Not running, in trouble|"))
        << qPrintable(row(1));
    EXPECT_FALSE(row(1).endsWith(u"None yet"));
    EXPECT_EQ(table().item(1, 2)->toolTip(),
              plainToolTip(QStringLiteral("The Mac is away or asleep.")));
    EXPECT_EQ(row(2), u"west||This window|None yet");
}

TEST_F(ProfilesSheetTest, NewName_IsOpenedByReturn) {
    fill();
    EXPECT_EQ(sheet->focusWidget(), &field());
    EXPECT_FALSE(open().isEnabled());
    EXPECT_EQ(trouble(), QString()) << "nothing is wrong with a name that nobody has typed yet";
    QTest::keyClicks(&field(), QStringLiteral("Living-Room_2"));
    EXPECT_TRUE(open().isEnabled());
    QTest::keyClick(&field(), Qt::Key_Return);
    EXPECT_EQ(opened, QStringList{QStringLiteral("Living-Room_2")});
    EXPECT_FALSE(sheet && sheet->isVisible());
}

TEST_F(ProfilesSheetTest, NameThatIsNone_SaysWhatOneIs) {
    QTest::keyClicks(&field(), QStringLiteral("my Mac"));
    EXPECT_FALSE(open().isEnabled());
    EXPECT_TRUE(trouble().startsWith(u"A name has 1 to 64 letters")) << qPrintable(trouble());
    QTest::keyClick(&field(), Qt::Key_Return);
    EXPECT_TRUE(opened.isEmpty());
    EXPECT_TRUE(sheet->isVisible());
    field().setText(QStringLiteral("my-Mac"));
    EXPECT_EQ(trouble(), QString());
    EXPECT_TRUE(open().isEnabled());
}

TEST_F(ProfilesSheetTest, RowThatIsChosen_IsTheOneThatIsOpened) {
    fill();
    table().setFocus();
    table().selectRow(1);
    EXPECT_EQ(field().text(), u"east");
    QTest::keyClick(&table(), Qt::Key_Up);
    EXPECT_EQ(field().text(), QString());
    EXPECT_TRUE(open().isEnabled()) << "the program without a name";
    QTest::keyClick(&table(), Qt::Key_Return);
    EXPECT_EQ(opened, QStringList{QString()}) << "once";
}

TEST_F(ProfilesSheetTest, TypedName_GoesBeforeTheRow) {
    fill();
    table().selectRow(0);
    field().setText(QStringLiteral("n"));
    EXPECT_TRUE(table().selectedItems().isEmpty());
    field().clear();
    EXPECT_FALSE(open().isEnabled()) << "nothing is chosen any more";
}

TEST_F(ProfilesSheetTest, WindowThatCannotBeOpened_IsSaidAndTheSheetStays) {
    fault = QStringLiteral("no\nroom");
    field().setText(QStringLiteral("east"));
    open().click();
    EXPECT_EQ(trouble(), u"No window could be opened: no\\x0aroom");
    EXPECT_TRUE(sheet->isVisible());
    field().setText(QStringLiteral("eas"));
    EXPECT_EQ(trouble(), QString());
}

TEST_F(ProfilesSheetTest, SheetThatIsGone_IsNotFilled) {
    QTest::keyClick(sheet, Qt::Key_Escape);
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    EXPECT_TRUE(sheet.isNull());
    fill();
    EXPECT_TRUE(opened.isEmpty());
}

} // namespace
} // namespace kelvo
