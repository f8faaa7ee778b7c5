#include "fakes/fake_desktop.h"
#include "fakes/memory_defaults.h"
#include "fakes/memory_pass_store.h"
#include "fakes/virtual_queues.h"
#include "ui/widgets/activity_tab.h"
#include "ui/widgets/arrival_rows.h"

#include <QAbstractItemModelTester>
#include <QAction>
#include <QApplication>
#include <QClipboard>
#include <QContextMenuEvent>
#include <QFile>
#include <QLabel>
#include <QLineEdit>
#include <QMenu>
#include <QPushButton>
#include <QScrollBar>
#include <QStyle>
#include <QTemporaryDir>
#include <QTest>
#include <QTimer>
#include <QTreeView>

#include <gtest/gtest.h>

#include <cstdio>
#include <memory>

namespace kelvo {
namespace {

class ArrivalsViewTest : public ::testing::Test {
protected:
    ArrivalsViewTest() {
        tab.resize(700, 600);
        tab.setParts({.store = store,
                      .workspace = workspace,
                      .mainQueue = mainQueue,
                      .bgQueue = bgQueue,
                      .defaults = defaults,
                      .destination = [this] { return folder.path(); }});
    }

    template <typename Widget>
    Widget* child(const char* name) {
        return tab.findChild<Widget*>(QString::fromLatin1(name));
    }
    QTreeView& list() { return *child<QTreeView>("arrivals"); }
    QModelIndex row(int day, int number) {
        return list().model()->index(number, 0, list().model()->index(day, 0));
    }
    QString cell(int day, int number, int column) {
        return row(day, number).siblingAtColumn(column).data().toString();
    }
    QString heading(int day) { return list().model()->index(day, 0).data().toString(); }
    int rows(const QModelIndex& parent = {}) { return list().model()->rowCount(parent); }
    int shown() {
        int sum = 0;
        for (int day = 0; day < rows(); ++day)
            sum += rows(list().model()->index(day, 0));
        return sum;
    }

    QByteArray pathOf(const QByteArray& name) const { return folder.path().toUtf8() + '/' + name; }
    void arrive(const QList<QByteArray>& names, int daysAgo = 0) {
        PassRecord record;
        record.began = QDateTime(QDate::currentDate().addDays(-daysAgo), QTime(12, 0)).toUTC();
        record.cause = PassCause::Well;
        for (const QByteArray& name : names)
            record.arrivals.push_back({pathOf(name), 1'200'000'000, record.began});
        store.append(record);
        mainQueue.runDue();
    }
    void make(const QByteArray& name) {
        QFile file(folder.filePath(QString::fromUtf8(name)));
        ASSERT_TRUE(file.open(QFile::WriteOnly));
    }

    void open() {
        tab.show();
        // Ends the test program when rows come or go without being told of.
        new QAbstractItemModelTester(
            list().model(), QAbstractItemModelTester::FailureReportingMode::Fatal, list().model());
        mainQueue.runDue();
        QCoreApplication::processEvents();
    }
    void settle() {
        bgQueue.runAll();
        mainQueue.runDue();
    }

    const QTemporaryDir folder;
    VirtualMainQueue mainQueue;
    ManualBackgroundQueue bgQueue;
    MemoryPassStore store{mainQueue};
    MemoryDefaults defaults;
    FakeWorkspace workspace;
    ActivityTab tab;
};

TEST_F(ArrivalsViewTest, Movies_StandByDayNewestFirst) {
    arrive({"old.mov"}, 5);
    arrive({"b.mov"}, 1);
    arrive({"Features/Long Feature (2019).mkv", "c.mov"});
    open();
    ASSERT_EQ(rows(), 3);
    EXPECT_EQ(heading(0), QStringLiteral("Today"));
    EXPECT_EQ(heading(1), QStringLiteral("Yesterday"));
    EXPECT_EQ(heading(2),
              QLocale().toString(QDate::currentDate().addDays(-5), QLocale::LongFormat));
    EXPECT_TRUE(list().isExpanded(list().model()->index(2, 0)));
    EXPECT_EQ(cell(0, 0, 1), QStringLiteral("c.mov"));
    EXPECT_EQ(cell(0, 1, 1), QStringLiteral("Features/Long Feature (2019).mkv"));
    EXPECT_EQ(cell(0, 1, 0), QStringLiteral("12:00"));
    EXPECT_EQ(cell(0, 1, 2), QStringLiteral("1.2 GB"));
    EXPECT_EQ(list().textElideMode(), Qt::ElideMiddle);
}

TEST_F(ArrivalsViewTest, TimeAndSize_AreShownWhole) {
    arrive({"a.mov"});
    open();
    const int margins = 2 * (list().style()->pixelMetric(QStyle::PM_FocusFrameHMargin) + 1);
    const auto needed = [&](int column) {
        return list().fontMetrics().horizontalAdvance(cell(0, 0, column)) + margins;
    };
    EXPECT_GE(list().columnWidth(ArrivalRows::Time),
              needed(ArrivalRows::Time) + 2 * list().indentation());
    EXPECT_GE(list().columnWidth(ArrivalRows::Size), needed(ArrivalRows::Size));
}

TEST_F(ArrivalsViewTest, Nothing_IsSaid) {
    open();
    EXPECT_FALSE(list().isVisible());
    EXPECT_TRUE(
        child<QLabel>("emptyText")->text().startsWith(QStringLiteral("Nothing has arrived yet.")));
    arrive({"a.mov"});
    EXPECT_TRUE(list().isVisible());
    EXPECT_FALSE(child<QLabel>("emptyText")->isVisible());
    QTest::keyClicks(child<QLineEdit>("searchText"), QStringLiteral("zzz"));
    mainQueue.runDue();
    EXPECT_FALSE(list().isVisible());
    EXPECT_EQ(child<QLabel>("emptyText")->text(),
              QStringLiteral("No movie with this text in its path has arrived."));
}

TEST_F(ArrivalsViewTest, Search_ShowsWhatHoldsTheText) {
    arrive({"Alpha.mov", "Beta.mov", "alphabet.mov"});
    open();
    child<QPushButton>("showPasses")->click();
    QApplication::setActiveWindow(&tab);
    QTest::keyClick(&tab, Qt::Key_F, Qt::ControlModifier);
    EXPECT_TRUE(list().isVisible());
    EXPECT_EQ(QApplication::focusWidget(), child<QLineEdit>("searchText"));
    QTest::keyClicks(QApplication::focusWidget(), QStringLiteral("ALPHA"));
    mainQueue.runDue();
    ASSERT_EQ(shown(), 2);
    EXPECT_EQ(cell(0, 0, 1), QStringLiteral("alphabet.mov"));
    arrive({"Gamma.mov", "Alpha two.mov"});
    EXPECT_EQ(shown(), 3);
    child<QLineEdit>("searchText")->clear();
    mainQueue.runDue();
    EXPECT_EQ(shown(), 5);
}

TEST_F(ArrivalsViewTest, NewMovies_JoinAtTheTopAndMoveNothing) {
    QList<QByteArray> names;
    for (int i = 0; i < 200; ++i)
        names.append(QByteArray::number(i) + ".mov");
    arrive(names, 1);
    open();
    list().setCurrentIndex(row(0, 100));
    list().scrollTo(row(0, 100), QAbstractItemView::PositionAtTop);
    const QPersistentModelIndex top = list().indexAt(QPoint(0, 0));
    arrive({"a.mov", "b.mov"});
    EXPECT_EQ(heading(0), QStringLiteral("Today"));
    EXPECT_EQ(cell(0, 0, 1), QStringLiteral("b.mov"));
    EXPECT_EQ(QModelIndex(top), list().indexAt(QPoint(0, 0)));
    EXPECT_EQ(list().currentIndex(), row(1, 100));
    tab.hide();
    arrive({"c.mov"});
    EXPECT_EQ(shown(), 202) << "hidden, it asks nothing";
    open();
    EXPECT_EQ(cell(0, 0, 1), QStringLiteral("c.mov"));
}

TEST_F(ArrivalsViewTest, ManyMovies_AreReadAsFarAsOneScrolls) {
    for (int pass = 0; pass < 5; ++pass)
        arrive(QList<QByteArray>(500, "m" + QByteArray::number(pass)));
    open();
    EXPECT_EQ(shown(), 1000);
    for (const int wanted : {2000, 2500, 2500}) {
        list().verticalScrollBar()->setValue(list().verticalScrollBar()->maximum());
        mainQueue.runDue();
        QCoreApplication::processEvents();
        EXPECT_EQ(shown(), wanted);
    }
    EXPECT_EQ(cell(0, 2499, 1), QStringLiteral("m0"));
    for (int pass = 5; pass < 8; ++pass)
        arrive(QList<QByteArray>(1500, "m" + QByteArray::number(pass)));
    EXPECT_EQ(shown(), 1000) << "more than an answer holds: from the newest on again";
    EXPECT_EQ(cell(0, 0, 1), QStringLiteral("m7"));
}

// -- opening

TEST_F(ArrivalsViewTest, DoubleClickOrReturn_OpensTheVeryFile) {
    make("50%20 #1 é.mov");
    arrive({"50%20 #1 é.mov"});
    open();
    const QPoint name = list().visualRect(row(0, 0).siblingAtColumn(1)).center();
    QTest::mouseClick(list().viewport(), Qt::LeftButton, {}, name);
    QTest::mouseDClick(list().viewport(), Qt::LeftButton, {}, name);
    settle();
    const QString address = u"openUrl file://" + folder.path() + u"/50%2520%20%231%20%C3%A9.mov";
    EXPECT_EQ(workspace.requests, QStringList{address});
    QApplication::setActiveWindow(&tab);
    list().setFocus();
    QTest::keyClick(&list(), Qt::Key_Return);
    settle();
    EXPECT_EQ(workspace.requests, (QStringList{address, address}));
    list().setCurrentIndex(list().model()->index(0, 0));
    QTest::keyClick(&list(), Qt::Key_Return);
    settle();
    EXPECT_EQ(workspace.requests.size(), 2) << "a day is nothing to open";
}

TEST_F(ArrivalsViewTest, FileThatIsGone_SaysSoInItsRowAndMayComeBack) {
    arrive({"a.mov"});
    open();
    list().setCurrentIndex(row(0, 0));
    child<QAction>("openArrival")->trigger();
    settle();
    EXPECT_TRUE(workspace.requests.isEmpty());
    EXPECT_EQ(cell(0, 0, 1), QStringLiteral("a.mov (not there any more)"));
    EXPECT_EQ(row(0, 0).data(Qt::ForegroundRole).value<QBrush>(),
              QApplication::palette().brush(QPalette::Disabled, QPalette::Text));
    make("a.mov");
    child<QAction>("openArrival")->trigger();
    settle();
    EXPECT_EQ(workspace.requests.size(), 1);
    EXPECT_EQ(cell(0, 0, 1), QStringLiteral("a.mov"));
}

TEST_F(ArrivalsViewTest, NameThatIsNotUtf8_OpensNoOtherFile) {
    const QByteArray name = "b\xff.mov";
    const std::unique_ptr<FILE, int (*)(FILE*)> file(std::fopen(pathOf(name).constData(), "w"),
                                                     &std::fclose);
    ASSERT_TRUE(file);
    arrive({name});
    open();
    EXPECT_EQ(cell(0, 0, 1), QStringLiteral("b\\xff.mov"));
    list().setCurrentIndex(row(0, 0));
    child<QAction>("openArrival")->trigger();
    settle();
    EXPECT_EQ(workspace.requests,
              QStringList{QString(u"openUrl file://" + folder.path() + u"/b%FF.mov")});
    child<QAction>("revealArrival")->trigger();
    settle();
    EXPECT_EQ(workspace.requests.size(), 1);
    EXPECT_EQ(cell(0, 0, 1), QStringLiteral("b\\xff.mov (its name is not UTF-8)"));
    std::remove(pathOf(name).constData());
}

TEST_F(ArrivalsViewTest, MenuKey_OffersOpenRevealAndCopyPath) {
    make("a.mov");
    arrive({"a.mov"});
    open();
    QApplication::setActiveWindow(&tab);
    list().setFocus();
    QStringList entries;
    const auto offer = [&](const QString& chosen) {
        QTimer::singleShot(0, &tab, [&, chosen] {
            auto* menu = qobject_cast<QMenu*>(QApplication::activePopupWidget());
            ASSERT_NE(menu, nullptr);
            entries.clear();
            for (QAction* action : menu->actions()) {
                entries.append(action->text() + (action->isEnabled() ? u"" : u" (off)"));
                if (action->text() == chosen)
                    action->trigger();
            }
            menu->close();
        });
        QContextMenuEvent event(QContextMenuEvent::Keyboard, QPoint(5, 5),
                                list().mapToGlobal(QPoint(5, 5)));
        QApplication::sendEvent(&list(), &event);
    };
    list().setCurrentIndex(list().model()->index(0, 0));
    offer({});
    EXPECT_EQ(entries, (QStringList{QStringLiteral("&Open (off)"), QStringLiteral("&Reveal (off)"),
                                    QStringLiteral("&Copy Path (off)")}));
    list().setCurrentIndex(row(0, 0));
    offer(QStringLiteral("&Reveal"));
    settle();
    EXPECT_EQ(workspace.requests, QStringList{QString(u"reveal " + folder.path() + u"/a.mov")});
    offer(QStringLiteral("&Copy Path"));
    EXPECT_EQ(QApplication::clipboard()->text(), QString(folder.path() + u"/a.mov"));
}

TEST_F(ArrivalsViewTest, HostileName_IsOneHarmlessLine) {
    arrive({"<b>x</b>\n\x1b[31m\xe2\x80\xaevom.mov"});
    open();
    EXPECT_EQ(cell(0, 0, 1), QStringLiteral("<b>x</b>\\x0a\\x1b[31m\\u202evom.mov"));
    EXPECT_TRUE(row(0, 0)
                    .siblingAtColumn(1)
                    .data(Qt::ToolTipRole)
                    .toString()
                    .contains(QStringLiteral("&lt;b&gt;")));
}

} // namespace
} // namespace kelvo
