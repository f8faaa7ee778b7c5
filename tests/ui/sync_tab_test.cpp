// The Sync tab in its window: what is said of the work, and what a person does there.
#include "fakes/memory_defaults.h"
#include "fakes/memory_pass_store.h"
#include "fakes/virtual_queues.h"
#include "settings/preference_keys.h"
#include "ui/status_line.h"
#include "ui/widgets/application_menu.h"
#include "ui/widgets/checklist_view.h"
#include "ui/widgets/elided_label.h"
#include "ui/widgets/main_window.h"
#include "ui/widgets/recent_arrivals.h"
#include "ui/widgets/status_field_view.h"
#include "ui/widgets/sync_tab.h"

#include <QApplication>
#include <QHeaderView>
#include <QLabel>
#include <QProgressBar>
#include <QPushButton>
#include <QScrollArea>
#include <QScrollBar>
#include <QSignalSpy>
#include <QTest>
#include <QTreeWidget>

#include <gtest/gtest.h>

namespace kelvo {
namespace {

WorkState atWork() {
    return {.phase = WorkPhase::Running,
            .headline = QStringLiteral("Syncing: 48 %, about 4 min"),
            .step = QStringLiteral("First pull"),
            .file = QStringLiteral("Features/<b>Long</b> Feature (2019).mkv"),
            .count = QStringLiteral("file 7 of 15"),
            .amount = QStringLiteral("18.2 of 37.6 GB"),
            .speed = QStringLiteral("92.0 MB/s"),
            .timeLeft = QStringLiteral("about 4 min"),
            .share = 0.489,
            .health = {.sign = HealthSign::Well,
                       .text = QStringLiteral("All is well."),
                       .lastSuccess = QStringLiteral("Last success: 12 minutes ago, 3 files")},
            .mayCancel = true};
}

WorkState inTrouble(Remedy remedy) {
    return {.phase = WorkPhase::Resting,
            .nextPass = QStringLiteral("Next pass in 23 s"),
            .health = {.sign = HealthSign::Trouble,
                       .text = QStringLiteral("The Mac is there but refuses logins. On the Mac, "
                                              "switch on Remote Login."),
                       .remedy = remedy},
            .maySyncNow = true};
}

class SyncTabTest : public ::testing::Test {
protected:
    SyncTabTest() {
        window.syncTab().recentArrivals().setStore(store);
        window.show();
        QApplication::setActiveWindow(&window);
    }

    template <typename Widget>
    Widget& child(const char* name) {
        auto* found = window.findChild<Widget*>(QString::fromLatin1(name));
        if (!found)
            throw std::logic_error(std::string("no ") + name);
        return *found;
    }
    QPushButton& button(const char* name) { return child<QPushButton>(name); }
    QString text(const char* name) { return child<QLabel>(name).text(); }
    QString whole(const char* name) { return child<ElidedLabel>(name).fullText(); }
    bool isSeen(const char* name) { return child<QWidget>(name).isVisible(); }

    /// Turns of the event loop, with what it paints, and of the main queue.
    void turn() {
        for (int i = 0; i < 3; ++i) {
            QCoreApplication::processEvents();
            mainQueue.runDue();
        }
        QCoreApplication::processEvents();
    }

    void record(const std::vector<QByteArray>& names) {
        PassRecord pass;
        pass.cause = PassCause::Well;
        pass.began = QDateTime::currentDateTimeUtc();
        for (const QByteArray& name : names)
            pass.arrivals.push_back({"/in/box/" + name, 1'200'000'000, pass.began});
        store.append(pass);
    }
    QStringList arrivals() {
        QStringList names;
        const auto* list = window.findChild<QTreeWidget*>(QStringLiteral("arrivals"));
        for (int i = 0; list && i < list->topLevelItemCount(); ++i)
            names << list->topLevelItem(i)->text(1);
        return names;
    }

    /// Where everything on the tab stands.
    std::map<QString, QRect> places() {
        QCoreApplication::processEvents();
        std::map<QString, QRect> found;
        for (const char* name : {"ibStartButton", "ibSyncNow", "ibStatusTextField", "progress",
                                 "health", "arrivalsHead", "recentArrivals", "networkStatus"}) {
            const QWidget& widget = child<QWidget>(name);
            found[QString::fromLatin1(name)] = {widget.mapTo(&window, QPoint(0, 0)), widget.size()};
        }
        return found;
    }

    MemoryDefaults defaults;
    VirtualMainQueue mainQueue;
    MemoryPassStore store{mainQueue};
    MainWindow window{defaults, mainQueue};
};

// -- progress

TEST_F(SyncTabTest, PassThatRuns_IsToldInFiguresAndByTheBar) {
    window.showWork(atWork());
    const auto& bar = child<QProgressBar>("progressBar");
    EXPECT_TRUE(bar.isVisible());
    EXPECT_EQ(bar.value() * 1000 / bar.maximum(), 489);
    EXPECT_EQ(text("progressShare"), u"48 %");
    EXPECT_EQ(whole("progressStep"), u"First pull");
    EXPECT_EQ(whole("progressFile"), u"Features/<b>Long</b> Feature (2019).mkv");
    EXPECT_EQ(child<QLabel>("progressFile").textFormat(), Qt::PlainText);
    EXPECT_EQ(text("progressCount"), u"file 7 of 15");
    EXPECT_EQ(text("progressAmount"), u"18.2 of 37.6 GB");
    EXPECT_EQ(text("progressSpeed"), u"92.0 MB/s");
    EXPECT_EQ(text("progressTimeLeft"), u"about 4 min");
    EXPECT_FALSE(isSeen("nextPass"));
}

TEST_F(SyncTabTest, ShareNotKnown_LeavesTheBarOpen) {
    WorkState work = atWork();
    work.share.reset();
    window.showWork(work);
    EXPECT_TRUE(isSeen("progressBar"));
    EXPECT_EQ(child<QProgressBar>("progressBar").maximum(), 0);
    EXPECT_FALSE(isSeen("progressShare"));
    work.share = 1.0;
    window.showWork(work);
    EXPECT_EQ(text("progressShare"), u"100 %");
}

TEST_F(SyncTabTest, Rest_SaysWhenTheNextPassBegins) {
    window.showWork(atWork());
    window.showWork({.phase = WorkPhase::Resting, .nextPass = QStringLiteral("Next pass in 23 s")});
    EXPECT_FALSE(isSeen("progressBar"));
    EXPECT_EQ(text("nextPass"), u"Next pass in 23 s");
    EXPECT_TRUE(isSeen("nextPass"));
    for (const char* figure :
         {"progressShare", "progressAmount", "progressSpeed", "progressTimeLeft", "progressCount"})
        EXPECT_FALSE(isSeen(figure)) << figure;
    EXPECT_EQ(whole("progressFile"), QString());
    EXPECT_EQ(whole("progressStep"), u"The movie that is being copied will stand here.");
}

TEST_F(SyncTabTest, LastPassOfAll_SaysThatItIsBeingFinished) {
    WorkState work = atWork();
    work.phase = WorkPhase::Finishing;
    work.headline = QStringLiteral("Finishing this pass…");
    window.showWork(work);
    EXPECT_EQ(whole("progressStep"), u"Finishing this pass…");
    EXPECT_TRUE(button("ibCancelPass").isVisible());
    EXPECT_TRUE(button("ibCancelPass").isEnabled());
}

TEST_F(SyncTabTest, NothingMoves_WhateverThereIsToSay) {
    const auto before = places();
    window.showWork(atWork());
    EXPECT_EQ(places(), before);
    window.showWork(inTrouble(Remedy::CheckAgain));
    EXPECT_EQ(places(), before);
    record({"a.mkv", "b.mkv"});
    turn();
    EXPECT_EQ(places(), before);
}

TEST_F(SyncTabTest, FiguresThatChange_KeepTheirWidth) {
    WorkState work = atWork();
    work.speed = QStringLiteral("100.0 MB/s");
    window.showWork(work);
    QCoreApplication::processEvents();
    const QRect amount = child<QLabel>("progressAmount").geometry();
    work.speed = QStringLiteral("9.1 MB/s");
    window.showWork(work);
    QCoreApplication::processEvents();
    EXPECT_EQ(child<QLabel>("progressAmount").geometry(), amount);
    EXPECT_TRUE(child<QLabel>("progressSpeed").alignment() & Qt::AlignRight);
}

// -- health

TEST_F(SyncTabTest, Health_IsASignAndWords) {
    EXPECT_EQ(text("healthText"), u"How the last pass went will stand here.");
    const QImage unknown = child<QLabel>("healthSign").pixmap().toImage();
    window.showWork(atWork());
    EXPECT_EQ(text("healthText"), u"All is well.");
    EXPECT_EQ(text("lastSuccess"), u"Last success: 12 minutes ago, 3 files");
    EXPECT_EQ(child<QLabel>("lastSuccess").y(), child<QLabel>("healthText").geometry().bottom() + 1)
        << "they stand together, whatever room there is";
    EXPECT_FALSE(button("healthButton").isVisible());
    const QImage well = child<QLabel>("healthSign").pixmap().toImage();
    window.showWork(inTrouble(Remedy::CheckAgain));
    const QImage trouble = child<QLabel>("healthSign").pixmap().toImage();
    EXPECT_NE(well, unknown);
    // The signs differ without their colours.
    EXPECT_NE(trouble.convertedTo(QImage::Format_Alpha8), well.convertedTo(QImage::Format_Alpha8));
    EXPECT_EQ(child<QLabel>("healthSign").accessibleName(), u"Trouble");
    const QColor ink = child<QLabel>("healthText").palette().color(QPalette::WindowText);
    EXPECT_GT(ink.red(), ink.green() + ink.blue());
}

TEST_F(SyncTabTest, HealthButton_IsNamedAfterItsRemedyAndDoesIt) {
    std::vector<Remedy> chosen;
    window.syncTab().setRemedyChosen([&](Remedy remedy) { chosen.push_back(remedy); });
    const std::vector<std::pair<Remedy, QString>> remedies{
        {Remedy::ShowRemoteTab, QStringLiteral("Show Remote Mac")},
        {Remedy::ChooseMac, QStringLiteral("Choose the Mac")},
        {Remedy::EnterAccount, QStringLiteral("Enter the Account")},
        {Remedy::SetUpKey, QStringLiteral("Set Up the Key")},
        {Remedy::ChooseSource, QStringLiteral("Choose…")},
        {Remedy::ChooseDestination, QStringLiteral("Choose…")},
        {Remedy::CopyInstallCommand, QStringLiteral("Copy the command")},
        {Remedy::CheckAgain, QStringLiteral("Check Again")},
        {Remedy::ShowDetails, QStringLiteral("Details")},
        {Remedy::OpenLog, QStringLiteral("Open the Log")}};
    std::vector<Remedy> all;
    for (const auto& [remedy, title] : remedies) {
        window.showWork(inTrouble(remedy));
        QPushButton& mends = button("healthButton");
        ASSERT_TRUE(mends.isVisible()) << qPrintable(title);
        EXPECT_EQ(mends.text(), title);
        QTest::mouseClick(&mends, Qt::LeftButton);
        all.push_back(remedy);
    }
    EXPECT_EQ(chosen, all);
    window.showWork(inTrouble(Remedy::None));
    EXPECT_FALSE(button("healthButton").isVisible());
}

TEST_F(SyncTabTest, Remarks_AreLinesOfPlainText) {
    EXPECT_FALSE(isSeen("remarks"));
    window.showWork({.remarks = {QStringLiteral("<b>one</b>"), QStringLiteral("two")}});
    EXPECT_TRUE(isSeen("remarks"));
    EXPECT_EQ(text("remarks"), u"<b>one</b>\ntwo");
    EXPECT_EQ(child<QLabel>("remarks").textFormat(), Qt::PlainText);
    window.showWork({});
    EXPECT_FALSE(isSeen("remarks"));
}

// -- what a person does

TEST_F(SyncTabTest, SyncNowAndCancel_CanBePressedWhenTheyDoSomething) {
    int now = 0;
    int cancelled = 0;
    window.setAction(QStringLiteral("ibSyncNow"), [&] { ++now; });
    window.setAction(QStringLiteral("ibCancelPass"), [&] { ++cancelled; });
    EXPECT_FALSE(button("ibCancelPass").isVisible());
    QTest::mouseClick(&button("ibSyncNow"), Qt::LeftButton);
    EXPECT_EQ(now, 0) << "nothing is planned";
    window.showWork(inTrouble(Remedy::None));
    QTest::mouseClick(&button("ibSyncNow"), Qt::LeftButton);
    EXPECT_EQ(now, 1);
    window.showWork(atWork());
    EXPECT_FALSE(button("ibSyncNow").isEnabled());
    QTest::mouseClick(&button("ibCancelPass"), Qt::LeftButton);
    EXPECT_EQ(cancelled, 1);
    WorkState going = atWork();
    going.phase = WorkPhase::Cancelling;
    going.mayCancel = false;
    window.showWork(going);
    EXPECT_TRUE(button("ibCancelPass").isVisible());
    EXPECT_FALSE(button("ibCancelPass").isEnabled());
}

TEST_F(SyncTabTest, ButtonThatTurnsGrey_LendsTheFocusToItsNeighbour) {
    WorkState resting = inTrouble(Remedy::None);
    window.showWork(resting);
    button("ibSyncNow").setFocus();
    window.showWork(atWork());
    EXPECT_TRUE(window.ibStartButton().hasFocus());
    window.showWork(resting);
    EXPECT_TRUE(button("ibSyncNow").hasFocus());
    // The button that goes with the pass does the same.
    window.showWork(atWork());
    button("ibCancelPass").setFocus();
    window.showWork({.phase = WorkPhase::Off});
    EXPECT_TRUE(window.ibStartButton().hasFocus());
    window.showWork(atWork());
    EXPECT_TRUE(button("ibCancelPass").hasFocus());
}

TEST_F(SyncTabTest, PersonWhoMovesOn_KeepsTheFocusWhereItIs) {
    window.showWork(inTrouble(Remedy::None));
    button("ibSyncNow").setFocus();
    window.showWork(atWork());
    button("showAllArrivals").setFocus();
    window.showWork(inTrouble(Remedy::None));
    EXPECT_TRUE(button("showAllArrivals").hasFocus());
}

TEST_F(SyncTabTest, TabKey_GoesInTheOrderOfReading) {
    WorkState work = inTrouble(Remedy::CheckAgain);
    work.mayCancel = true;
    work.phase = WorkPhase::Running;
    window.showWork(work);
    window.syncTab().checklist().setLines({{QStringLiteral("one"), Remedy::ShowRemoteTab},
                                           {QStringLiteral("two"), Remedy::ChooseDestination}});
    window.ibStartButton().setFocus();
    QStringList visited;
    for (int i = 0; i < 8; ++i) {
        const QWidget* focused = QApplication::focusWidget();
        const QString name = focused->objectName();
        visited << (name.isEmpty() ? focused->accessibleName() : name);
        QTest::keyClick(QApplication::focusWidget(), Qt::Key_Tab);
    }
    EXPECT_EQ(visited, (QStringList{"ibStartButton", "ibSyncNow", "ibCancelPass", "statusText",
                                    "healthButton", "Show Remote Mac: one", "Choose…: two",
                                    "showAllArrivals"}));
}

TEST_F(SyncTabTest, KeysOfTheMenu_StartStopAndSyncNow) {
    QStringList done;
    auto* menu = new ApplicationMenu({.startOrStop = [&] { done << QStringLiteral("start"); },
                                      .syncNow = [&] { done << QStringLiteral("now"); }},
                                     {}, &window);
    window.setMenuBar(menu);
    turn();
    QTest::keyClick(&window, Qt::Key_R, Qt::ControlModifier);
    EXPECT_TRUE(done.isEmpty()) << "nothing is planned";
    menu->showWork(inTrouble(Remedy::None));
    QTest::keyClick(&window, Qt::Key_R, Qt::ControlModifier);
    QTest::keyClick(&window, Qt::Key_T, Qt::ControlModifier);
    EXPECT_EQ(done, (QStringList{"now", "start"}));
}

TEST_F(SyncTabTest, KeyHeldOnTheStartButton_PressesItOnce) {
    QPushButton& start = window.ibStartButton();
    for (const Qt::Key key : {Qt::Key_Return, Qt::Key_Enter, Qt::Key_Space}) {
        int clicks = 0;
        const auto counting =
            QObject::connect(&start, &QPushButton::clicked, &start, [&] { ++clicks; });
        start.setFocus();
        QKeyEvent first(QEvent::KeyPress, key, Qt::NoModifier);
        QCoreApplication::sendEvent(&start, &first);
        for (int i = 0; i < 32; ++i) {
            QKeyEvent up(QEvent::KeyRelease, key, Qt::NoModifier, QString(), true);
            QCoreApplication::sendEvent(&start, &up);
            QKeyEvent again(QEvent::KeyPress, key, Qt::NoModifier, QString(), true);
            QCoreApplication::sendEvent(&start, &again);
        }
        QKeyEvent last(QEvent::KeyRelease, key, Qt::NoModifier);
        QCoreApplication::sendEvent(&start, &last);
        EXPECT_EQ(clicks, 1) << key;
        QObject::disconnect(counting);
    }
}

// -- arrivals

TEST_F(SyncTabTest, Arrivals_AreTheNewestFirst) {
    record({"1.mkv", "2.mkv"});
    record({"3.mkv", "4.mkv", "5.mkv", "6.mkv"});
    turn();
    EXPECT_EQ(arrivals(), (QStringList{"6.mkv", "5.mkv", "4.mkv", "3.mkv", "2.mkv"}));
    EXPECT_FALSE(isSeen("noArrivals"));
    record({});
    record({"7.mkv"});
    turn();
    EXPECT_EQ(arrivals(), (QStringList{"7.mkv", "6.mkv", "5.mkv", "4.mkv", "3.mkv"}));
    EXPECT_EQ(child<QTreeWidget>("arrivals").topLevelItem(0)->text(2), u"1.2 GB");
}

TEST_F(SyncTabTest, ArrivalThatIsRead_StaysTheCurrentOneWhenOthersCome) {
    record({"1.mkv", "2.mkv", "3.mkv"});
    turn();
    auto& list = child<QTreeWidget>("arrivals");
    list.setFocus();
    list.setCurrentItem(list.topLevelItem(1));
    record({"4.mkv", "5.mkv"});
    turn();
    EXPECT_EQ(list.currentItem()->text(1), u"2.mkv");
    EXPECT_EQ(list.indexOfTopLevelItem(list.currentItem()), 3);
    EXPECT_TRUE(list.hasFocus());
}

TEST_F(SyncTabTest, NoArrivals_SaysWhatWillStandThere) {
    turn();
    EXPECT_TRUE(isSeen("noArrivals"));
    EXPECT_TRUE(text("noArrivals").startsWith(u"Movies that have arrived will stand here"));
    record({"first.mkv"});
    turn();
    EXPECT_EQ(arrivals(), QStringList{"first.mkv"});
}

TEST_F(SyncTabTest, StoreIsNotAsked_BeforeTheListIsSeen) {
    record({"1.mkv"});
    mainQueue.runDue();
    EXPECT_TRUE(mainQueue.idle());
    EXPECT_TRUE(arrivals().isEmpty());
    for (int i = 0; i < 3; ++i)
        QCoreApplication::processEvents();
    EXPECT_FALSE(mainQueue.idle()) << "asked once painted";
    mainQueue.runDue();
    EXPECT_EQ(arrivals(), QStringList{"1.mkv"});
}

TEST_F(SyncTabTest, NamesFromElsewhere_ShowTheirControlCharacters) {
    record({"<b>x\x1b[31m\n.mkv"});
    turn();
    EXPECT_EQ(arrivals(), QStringList{QStringLiteral("<b>x\\x1b[31m\\x0a.mkv")});
    const QString tip = child<QTreeWidget>("arrivals").topLevelItem(0)->toolTip(1);
    EXPECT_FALSE(tip.contains(u"<b>"));
}

TEST_F(SyncTabTest, DoubleClickOrReturn_OpensTheFile) {
    QSignalSpy open(&window.syncTab().recentArrivals(), &RecentArrivals::openRequested);
    record({"old.mkv", "caf\xc3\xa9.mkv"});
    turn();
    auto& list = child<QTreeWidget>("arrivals");
    const QPoint place = list.visualItemRect(list.topLevelItem(1)).center();
    QTest::mouseClick(list.viewport(), Qt::LeftButton, Qt::NoModifier, place);
    QTest::mouseDClick(list.viewport(), Qt::LeftButton, Qt::NoModifier, place);
    list.setCurrentItem(list.topLevelItem(0));
    QTest::keyClick(&list, Qt::Key_Return);
    ASSERT_EQ(open.size(), 2);
    EXPECT_EQ(open.at(0).at(0).toString(), u"/in/box/old.mkv");
    EXPECT_EQ(open.at(1).at(0).toString(), u"/in/box/café.mkv");
}

TEST_F(SyncTabTest, AllArrivals_ShowsTheActivityTab) {
    QTest::mouseClick(&button("showAllArrivals"), Qt::LeftButton);
    EXPECT_EQ(window.tabs()[static_cast<std::size_t>(window.currentTab())].identifier, u"activity");
    window.showTab(0);
    window.hide();
    window.showActivity();
    EXPECT_TRUE(window.isVisible());
    EXPECT_EQ(window.tabs()[static_cast<std::size_t>(window.currentTab())].identifier, u"activity");
}

// -- looks

TEST_F(SyncTabTest, SmallWindow_ScrollsDownOnlyAndNothingOverlaps) {
    window.showWork(inTrouble(Remedy::ShowRemoteTab));
    window.resize(248, 344);
    QCoreApplication::processEvents();
    const auto& area = *window.syncTab().findChild<QScrollArea*>();
    EXPECT_LE(window.width(), 260);
    EXPECT_EQ(area.horizontalScrollBar()->maximum(), 0);
    EXPECT_GT(area.verticalScrollBar()->maximum(), 0);
    const QList<QWidget*> shown = area.widget()->findChildren<QWidget*>();
    for (const QWidget* one : shown) {
        if (one->isVisible()) {
            EXPECT_LE(one->geometry().right(), one->parentWidget()->width())
                << qPrintable(one->objectName());
        }
        for (const QWidget* other : shown) {
            if (one != other && one->parent() == other->parent() && one->isVisible() &&
                other->isVisible()) {
                EXPECT_FALSE(one->geometry().intersects(other->geometry()))
                    << qPrintable(one->objectName() + u", " + other->objectName());
            }
        }
    }
}

TEST_F(SyncTabTest, StartButton_IsAsHighAsTheOthers) {
    QCoreApplication::processEvents();
    EXPECT_EQ(window.ibStartButton().height(), button("ibSyncNow").height());
}

TEST_F(SyncTabTest, SavedStatusText_StandsUntilTheFirstMessage) {
    defaults.setObject(prefStatusTextfieldString, QStringLiteral("<b>Saved</b>"));
    MainWindow next(defaults, mainQueue);
    const auto* shown = next.findChild<QLabel*>(QStringLiteral("statusText"));
    EXPECT_EQ(shown->text(), u"<b>Saved</b>");
    const auto field = std::make_shared<WidgetStatusField>(next.ibStatusTextField());
    StatusLine line(defaults, mainQueue, field);
    line.updateStatusMessage(QStringLiteral("Resting a bit ..."), StatusColor::Black, true);
    mainQueue.runDue();
    EXPECT_EQ(shown->text(), u"<b>Saved</b>");
    mainQueue.advance(0.2);
    EXPECT_EQ(shown->text(), u"Resting a bit ...") << "the text that is wiped takes none with it";
    const MainWindow last(defaults, mainQueue);
    EXPECT_EQ(last.findChild<QLabel*>(QStringLiteral("statusText"))->text(), u"");
}

TEST_F(SyncTabTest, Arrivals_AreFiveWholeLinesThatNeedNoScrolling) {
    window.resize(760, 700);
    record(
        {"1.mkv", "2.mkv", "3.mkv", "4.mkv",
         "A rather long name of a movie that has no room in one line, not even in a large window "
         "with small letters, and least of all here.mkv"});
    turn();
    auto& list = child<QTreeWidget>("arrivals");
    const QFontMetrics letters(list.font());
    for (int i = 0; i < 5; ++i) {
        const QRect place = list.visualItemRect(list.topLevelItem(i));
        EXPECT_GT(place.height(), letters.lineSpacing()) << i;
        EXPECT_TRUE(list.viewport()->rect().contains(place)) << i;
        for (const int column : {0, 2})
            EXPECT_TRUE(list.topLevelItem(i)->textAlignment(column) & Qt::AlignRight);
    }
    EXPECT_EQ(list.visualItemRect(list.topLevelItem(0)).left(), 0) << "no room for a tree's signs";
    EXPECT_EQ(list.header()->length(), list.viewport()->width()) << "the names have the rest";
    EXPECT_GE(list.columnWidth(0), letters.horizontalAdvance(list.topLevelItem(0)->text(0)));
    EXPECT_GE(list.columnWidth(2), letters.horizontalAdvance(QStringLiteral("1.2 GB")));
    EXPECT_FALSE(list.header()->isVisible());
    EXPECT_FALSE(list.verticalScrollBar()->isVisible());
    EXPECT_FALSE(list.horizontalScrollBar()->isVisible());
    EXPECT_EQ(list.textElideMode(), Qt::ElideMiddle) << "an ending is worth reading";
    EXPECT_TRUE(list.uniformRowHeights());
    EXPECT_TRUE(list.allColumnsShowFocus());
    EXPECT_EQ(list.accessibleName(), u"Movies that arrived last");
    EXPECT_EQ(list.headerItem()->text(1), u"Name");
    list.setFocus();
    QTest::keyClick(&list, Qt::Key_Tab);
    EXPECT_FALSE(list.hasFocus()) << "one stop of the Tab key";
}

TEST_F(SyncTabTest, ArrivalOfAnEarlierDay_IsToldByItsDate) {
    PassRecord pass;
    pass.cause = PassCause::Well;
    pass.began = QDateTime(QDate(2026, 3, 1), QTime(12, 0));
    pass.arrivals = {{.path = "/in/old.mkv", .size = 1, .arrived = pass.began}};
    store.append(pass);
    record({"new.mkv"});
    turn();
    const auto& list = child<QTreeWidget>("arrivals");
    EXPECT_EQ(list.topLevelItem(1)->text(0),
              QLocale().toString(QDate(2026, 3, 1), QLocale::ShortFormat));
    EXPECT_EQ(list.topLevelItem(0)->text(0).count(u':'), 1) << "that of today by its time";
}

TEST_F(SyncTabTest, LargerLetters_GetHigherLines) {
    record({"1.mkv", "2.mkv", "3.mkv", "4.mkv", "5.mkv", "6.mkv"});
    turn();
    auto& recent = window.syncTab().recentArrivals();
    const int before = recent.height();
    QFont large = recent.font();
    large.setPixelSize(30);
    recent.setFont(large);
    turn();
    EXPECT_GT(recent.height(), before);
    auto& list = child<QTreeWidget>("arrivals");
    EXPECT_TRUE(list.viewport()->rect().contains(list.visualItemRect(list.topLevelItem(4))));
    EXPECT_GE(list.visualItemRect(list.topLevelItem(0)).height(),
              QFontMetrics(large).lineSpacing());
}

} // namespace
} // namespace kelvo
