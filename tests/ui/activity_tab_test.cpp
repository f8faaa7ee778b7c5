#include "fakes/fake_desktop.h"
#include "fakes/memory_defaults.h"
#include "fakes/memory_pass_store.h"
#include "fakes/virtual_queues.h"
#include "ui/widgets/activity_tab.h"
#include "ui/widgets/passes_view.h"

#include <QAbstractItemModelTester>
#include <QApplication>
#include <QCheckBox>
#include <QClipboard>
#include <QFile>
#include <QLabel>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QScrollBar>
#include <QSignalSpy>
#include <QSplitter>
#include <QTemporaryDir>
#include <QTest>
#include <QTreeView>

#include <gtest/gtest.h>

namespace kelvo {
namespace {

class ActivityTabTest : public ::testing::Test {
protected:
    ActivityTabTest() {
        tab.resize(700, 600);
        tab.setParts(parts());
    }

    ActivityParts parts() {
        return {.store = store,
                .workspace = workspace,
                .mainQueue = mainQueue,
                .bgQueue = bgQueue,
                .defaults = defaults,
                .destination = [] { return QStringLiteral("/in"); }};
    }

    template <typename Widget>
    Widget* child(const char* name) {
        return tab.findChild<Widget*>(QString::fromLatin1(name));
    }
    QTreeView& passes() { return *child<QTreeView>("passes"); }
    QModelIndex row(int number) { return passes().model()->index(number, 0); }
    static QString cell(const QModelIndex& row, int column) {
        return row.siblingAtColumn(column).data().toString();
    }
    QString cell(int number, int column) { return cell(row(number), column); }
    int rows(const QModelIndex& parent = {}) { return passes().model()->rowCount(parent); }
    QString report() { return child<QPlainTextEdit>("passText")->toPlainText(); }

    /// The n-th pass of a test begins n minutes after ten o'clock of the day before.
    void append(PassCause cause, qint64 files = 3, const QString& text = {}) {
        PassRecord record;
        record.began =
            QDateTime(QDate::currentDate().addDays(-1), QTime(10, 0)).addSecs(60 * count++).toUTC();
        record.kind = PassKind::Remote;
        record.verdict = HostVerdict::Valid;
        record.cause = cause;
        record.transfer = {TransferSource::Statistics, files, files * 1000};
        CommandRecord command;
        command.command = QStringLiteral("rsync");
        command.text.head = text;
        record.commands.push_back(command);
        store.append(record);
        mainQueue.runDue();
    }
    void appendEmpty(int number) {
        for (int i = 0; i < number; ++i)
            append(PassCause::Well, 0);
    }

    void openPasses() {
        tab.show();
        child<QPushButton>("showPasses")->click();
        // Ends the test program when rows come or go without being told of.
        new QAbstractItemModelTester(passes().model(),
                                     QAbstractItemModelTester::FailureReportingMode::Fatal,
                                     passes().model());
        mainQueue.runDue();
    }

    int count = 0;
    VirtualMainQueue mainQueue;
    ManualBackgroundQueue bgQueue;
    MemoryPassStore store{mainQueue};
    MemoryDefaults defaults;
    FakeWorkspace workspace;
    ActivityTab tab;
};

TEST_F(ActivityTabTest, Hidden_ItIsEmptyAndAsksNothing) {
    append(PassCause::Well);
    EXPECT_TRUE(tab.findChildren<QWidget*>().isEmpty());
    EXPECT_TRUE(mainQueue.idle());
    openPasses();
    EXPECT_EQ(rows(), 1);
}

TEST_F(ActivityTabTest, ShownBeforeItHasItsParts_ItIsBuiltWithThem) {
    ActivityTab early;
    early.show();
    EXPECT_TRUE(early.findChildren<QWidget*>().isEmpty());
    early.setParts(parts());
    EXPECT_NE(early.findChild<QTreeView*>(QStringLiteral("passes")), nullptr);
}

TEST_F(ActivityTabTest, Passes_StandNewestFirst) {
    append(PassCause::HostAway);
    append(PassCause::Well);
    openPasses();
    ASSERT_EQ(rows(), 2);
    EXPECT_EQ(cell(0, 1), QStringLiteral("All is well."));
    EXPECT_EQ(cell(1, 1), QStringLiteral("The Mac is away or asleep."));
    EXPECT_EQ(cell(0, 2), QStringLiteral("3 files"));
    append(PassCause::DiskFull);
    EXPECT_EQ(cell(0, 1), QStringLiteral("The disk here is full."));
}

TEST_F(ActivityTabTest, WidestFigures_AreShownWhole) {
    append(PassCause::Well, 888'888);
    openPasses();
    passes().setTextElideMode(Qt::ElideNone);
    for (int column = 2; column < 5; ++column)
        EXPECT_GE(passes().columnWidth(column),
                  passes().sizeHintForIndex(row(0).siblingAtColumn(column)).width())
            << column << cell(0, column).toStdString();
}

TEST_F(ActivityTabTest, Health_StandsAboveThePasses) {
    openPasses();
    auto* headline = child<QLabel>("headline");
    EXPECT_FALSE(headline->isVisible());
    WorkState work;
    work.health.text = QStringLiteral("The disk <b>here</b> is full.");
    work.health.lastSuccess = QStringLiteral("Last success: just now, 3 files");
    tab.showWork(work);
    EXPECT_EQ(headline->text(),
              QStringLiteral("The disk <b>here</b> is full.\nLast success: just now, 3 files"));
    EXPECT_EQ(headline->textFormat(), Qt::PlainText);
    EXPECT_TRUE(headline->isVisible());
}

// -- filters and folds

TEST_F(ActivityTabTest, Filters_ShowWhatOneOfThemLetsThrough) {
    openPasses();
    append(PassCause::Well, 3);
    append(PassCause::CutOff, 0);
    append(PassCause::Cancelled, 0);
    appendEmpty(2);
    EXPECT_EQ(rows(), 4);
    child<QCheckBox>("inTrouble")->click();
    ASSERT_EQ(rows(), 1) << "a cancelled pass is no trouble";
    EXPECT_EQ(cell(0, 1), QStringLiteral("The connection gave way in the middle of the transfer."));
    appendEmpty(1);
    EXPECT_EQ(rows(), 1);
    append(PassCause::KeyMissing, 0);
    EXPECT_EQ(rows(), 2);
    child<QCheckBox>("broughtFiles")->click();
    EXPECT_EQ(rows(), 3);
    child<QCheckBox>("inTrouble")->click();
    ASSERT_EQ(rows(), 1);
    EXPECT_EQ(cell(0, 2), QStringLiteral("3 files"));
}

TEST_F(ActivityTabTest, NothingNewInARow_IsOneRowThatCanBeUnfolded) {
    append(PassCause::Well);
    appendEmpty(2);
    append(PassCause::HostAway, 0);
    appendEmpty(1);
    openPasses();
    ASSERT_EQ(rows(), 4);
    EXPECT_EQ(rows(row(0)), 0) << "one pass stands for itself";
    EXPECT_EQ(cell(2, 1), QStringLiteral("2 passes, nothing new, 10:01 to 10:02"));
    ASSERT_EQ(rows(row(2)), 2);
    EXPECT_FALSE(passes().isExpanded(row(2)));
    passes().setCurrentIndex(row(2));
    EXPECT_EQ(report(), cell(2, 1));
    QTest::keyClick(&passes(), Qt::Key_Right);
    EXPECT_TRUE(passes().isExpanded(row(2)));
    QTest::keyClick(&passes(), Qt::Key_Down);
    mainQueue.runDue();
    EXPECT_TRUE(report().contains(QStringLiteral("$ rsync")));
    EXPECT_TRUE(report().contains(QStringLiteral("nothing new")));
}

TEST_F(ActivityTabTest, FoldThatGrows_KeepsWhatIsRead) {
    openPasses();
    append(PassCause::Well, 0, QStringLiteral("the first text"));
    passes().setCurrentIndex(row(0));
    mainQueue.runDue();
    ASSERT_TRUE(report().contains(QStringLiteral("the first text")));
    appendEmpty(1);
    ASSERT_EQ(rows(), 1);
    EXPECT_EQ(rows(row(0)), 2);
    EXPECT_TRUE(report().contains(QStringLiteral("the first text")));
    EXPECT_EQ(passes().currentIndex().parent(), row(0));
    EXPECT_EQ(passes().currentIndex().row(), 1);
    appendEmpty(5);
    EXPECT_EQ(passes().currentIndex().row(), 6);
    EXPECT_TRUE(report().contains(QStringLiteral("the first text")));
}

TEST_F(ActivityTabTest, LowWindow_LeavesTheRoomToThePasses) {
    openPasses();
    const auto* chart = child<QWidget>("days");
    EXPECT_TRUE(chart->isVisible());
    tab.resize(248, 300);
    EXPECT_FALSE(chart->isVisible());
    tab.showArrived();
    EXPECT_TRUE(chart->isVisible());
}

TEST_F(ActivityTabTest, Midnight_EndsAFold) {
    count = 14 * 60 - 2;
    appendEmpty(4);
    openPasses();
    ASSERT_EQ(rows(), 2);
    EXPECT_EQ(rows(row(0)), 2);
    EXPECT_EQ(rows(row(1)), 2);
}

// -- the pass that runs

TEST_F(ActivityTabTest, RunningPass_IsTheFirstRowUntilItEnds) {
    append(PassCause::Well);
    openPasses();
    WorkState work;
    work.phase = WorkPhase::Running;
    work.step = QStringLiteral("First pull");
    work.share = 0.25;
    work.amount = QStringLiteral("1.0 of 4.0 GB");
    work.file = QStringLiteral("a.mov");
    tab.showWork(work);
    ASSERT_EQ(rows(), 2);
    EXPECT_EQ(cell(0, 1), QStringLiteral("First pull, 25 %"));
    passes().setCurrentIndex(row(0));
    EXPECT_TRUE(report().contains(QStringLiteral("a.mov\n1.0 of 4.0 GB")));
    QSignalSpy changes(passes().model(), &QAbstractItemModel::dataChanged);
    work.share = 0.5;
    tab.showWork(work);
    EXPECT_EQ(cell(0, 1), QStringLiteral("First pull, 50 %"));
    ASSERT_EQ(changes.size(), 1);
    EXPECT_EQ(changes[0][1].toModelIndex(), // the last cell
              row(0).siblingAtColumn(passes().model()->columnCount() - 1));
    EXPECT_TRUE(report().contains(QStringLiteral("50 %")));

    append(PassCause::Well, 7, QStringLiteral("what it said"));
    EXPECT_EQ(rows(), 3);
    mainQueue.runDue();
    EXPECT_TRUE(report().contains(QStringLiteral("what it said"))) << "it is read on as a pass";
    work.phase = WorkPhase::Resting;
    tab.showWork(work);
    EXPECT_EQ(rows(), 2);
    EXPECT_EQ(cell(0, 2), QStringLiteral("7 files"));
    EXPECT_TRUE(report().contains(QStringLiteral("what it said")));
}

TEST_F(ActivityTabTest, RunningPassWhileHidden_IsThereWhenShown) {
    WorkState work;
    work.phase = WorkPhase::Running;
    tab.showWork(work);
    openPasses();
    EXPECT_EQ(rows(), 1);
    tab.hide();
    work.phase = WorkPhase::Off;
    tab.showWork(work);
    tab.show();
    EXPECT_EQ(rows(), 0);
}

// -- the selected pass

TEST_F(ActivityTabTest, SelectedPass_IsToldAndCopied) {
    append(PassCause::FilesNotTaken, 3, QStringLiteral("the first <b>text</b>"));
    append(PassCause::Well, 3, QStringLiteral("the second text"));
    openPasses();
    passes().setCurrentIndex(row(1));
    mainQueue.runDue();
    EXPECT_TRUE(report().contains(QStringLiteral("the first <b>text</b>")));
    child<QPushButton>("copyPass")->click();
    EXPECT_EQ(QApplication::clipboard()->text(), report());
    append(PassCause::Well);
    EXPECT_TRUE(report().contains(QStringLiteral("first")))
        << "a new pass does not change what is read";
    child<QCheckBox>("inTrouble")->click();
    EXPECT_EQ(passes().currentIndex().row(), 0);
    EXPECT_TRUE(report().contains(QStringLiteral("first"))) << "nor does a filter";
}

TEST_F(ActivityTabTest, ShowPass_UnfoldsUnfiltersSelectsAndScrolls) {
    appendEmpty(3);
    for (int i = 0; i < 300; ++i)
        append(i % 2 == 0 ? PassCause::Well : PassCause::CutOff);
    tab.showPass(2);
    openPasses();
    QModelIndex current = passes().currentIndex();
    EXPECT_EQ(current.parent().row(), 300);
    EXPECT_EQ(current.row(), 1);
    EXPECT_TRUE(passes().viewport()->rect().contains(passes().visualRect(current).center()));
    child<QCheckBox>("inTrouble")->click();
    tab.showArrived();
    EXPECT_FALSE(passes().isVisible());
    tab.showPass(4);
    EXPECT_TRUE(passes().isVisible());
    EXPECT_EQ(passes().currentIndex().row(), 299);
    EXPECT_EQ(cell(passes().currentIndex(), 1), QStringLiteral("All is well."));
    tab.showPass(4711);
    EXPECT_EQ(passes().currentIndex().row(), 0) << "one that is not there: the newest";
}

TEST_F(ActivityTabTest, NewPass_LeavesSelectionAndPlaceAlone) {
    for (int i = 0; i < 300; ++i)
        append(i % 2 == 0 ? PassCause::Well : PassCause::CutOff);
    openPasses();
    passes().setCurrentIndex(row(150));
    passes().scrollTo(row(150), QAbstractItemView::PositionAtTop);
    const QPersistentModelIndex top = passes().indexAt(QPoint(0, 0));
    ASSERT_EQ(top.row(), 150);
    append(PassCause::HostAway);
    EXPECT_EQ(passes().currentIndex().row(), 151);
    EXPECT_EQ(QModelIndex(top), passes().indexAt(QPoint(0, 0)));
    passes().scrollToTop();
    append(PassCause::Well);
    EXPECT_EQ(passes().indexAt(QPoint(0, 0)).row(), 0) << "who is at the top sees what comes";
}

TEST_F(ActivityTabTest, Export_WritesAllOrSaysWhyNot) {
    append(PassCause::Well);
    append(PassCause::HostAway);
    openPasses();
    child<QCheckBox>("inTrouble")->click();
    auto& view = *tab.findChild<PassesView*>();
    const QTemporaryDir folder;
    view.exportTo(folder.filePath(QStringLiteral("a.csv")));
    QFile file(folder.filePath(QStringLiteral("a.csv")));
    ASSERT_TRUE(file.open(QFile::ReadOnly));
    EXPECT_EQ(file.readAll().count('\n'), 3);
    EXPECT_EQ(child<QLabel>("exportResult")->text(), QStringLiteral("2 passes written."));
    view.exportTo(folder.filePath(QStringLiteral("no/such/folder/a.csv")));
    EXPECT_TRUE(child<QLabel>("exportResult")->text().startsWith(QStringLiteral("Not written: ")));
}

TEST_F(ActivityTabTest, TenThousandPasses_StayInStep) {
    for (int i = 0; i < PassStore::cMostPasses; ++i) {
        PassRecord record;
        record.began = QDateTime::currentDateTimeUtc();
        record.cause = i % 3 == 0 ? PassCause::HostAway : PassCause::Well;
        record.transfer.files = 0;
        store.append(record);
    }
    mainQueue.runDue();
    openPasses();
    ASSERT_EQ(rows(), 6667) << "a pass in trouble, then two folded, and so on";
    ASSERT_EQ(rows(row(6665)), 2);
    append(PassCause::CutOff);
    ASSERT_EQ(rows(), 6667);
    EXPECT_EQ(rows(row(6666)), 2) << "the oldest, in trouble, has gone";
    append(PassCause::CutOff);
    EXPECT_EQ(rows(), 6668);
    EXPECT_EQ(rows(row(6667)), 0) << "half of the oldest fold has gone";
    EXPECT_EQ(cell(6667, 1), QStringLiteral("All is well."));
    passes().setCurrentIndex(row(5));
    append(PassCause::CutOff);
    EXPECT_EQ(passes().currentIndex().row(), 6) << "the selection stays";
    EXPECT_EQ(rows(), 6668);
}

TEST_F(ActivityTabTest, HalvesOfThePasses_AreRemembered) {
    const auto halvesOf = [](ActivityTab& shown) {
        shown.findChild<QPushButton*>(QStringLiteral("showPasses"))->click();
        return shown.findChild<QSplitter*>(QStringLiteral("halves"));
    };
    tab.show();
    QSplitter* halves = halvesOf(tab);
    QSplitterHandle* handle = halves->handle(1);
    QTest::mousePress(handle, Qt::LeftButton, {}, QPoint(2, 2));
    QTest::mouseMove(handle, QPoint(2, -60));
    QTest::mouseRelease(handle, Qt::LeftButton, {}, QPoint(2, -60));
    const QList<int> sizes = halves->sizes();
    ActivityTab next;
    next.resize(tab.size());
    next.setParts(parts());
    next.show();
    EXPECT_EQ(halvesOf(next)->sizes(), sizes);
    defaults.setObject(u"passesHalves", QStringLiteral("-1:x"));
    ActivityTab other;
    other.resize(tab.size());
    other.setParts(parts());
    other.show();
    EXPECT_NE(halvesOf(other)->sizes(), sizes);
}

TEST_F(ActivityTabTest, Chart_LeavesThePassesThatHaveNoMoreThanTheTextsLines) {
    openPasses();
    const auto* chart = child<QWidget>("days");
    const int enough = 25 * tab.fontMetrics().lineSpacing();
    tab.resize(700, enough);
    EXPECT_TRUE(chart->isVisible());
    EXPECT_TRUE(child<QWidget>("total")->isVisible());
    tab.resize(700, enough - 1);
    EXPECT_FALSE(chart->isVisible());
    EXPECT_FALSE(child<QWidget>("total")->isVisible());
}

TEST_F(ActivityTabTest, TotalOfTheDays_FollowsThePasses) {
    openPasses();
    const auto* total = child<QLabel>("total");
    append(PassCause::Well, 3);
    EXPECT_TRUE(total->text().contains(u"3 movies")) << qPrintable(total->text());
    append(PassCause::Well, 4);
    EXPECT_TRUE(total->text().contains(u"7 movies"));
    tab.hide();
    append(PassCause::Well, 2);
    EXPECT_TRUE(total->text().contains(u"7 movies")) << "hidden, it asks nothing";
    tab.show();
    mainQueue.runDue();
    EXPECT_TRUE(total->text().contains(u"9 movies"));
}

} // namespace
} // namespace kelvo
