#include "fakes/memory_pass_store.h"
#include "fakes/virtual_queues.h"
#include "ui/widgets/activity_tab.h"

#include <QApplication>
#include <QCheckBox>
#include <QClipboard>
#include <QFile>
#include <QLabel>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QTableView>
#include <QTemporaryDir>

#include <gtest/gtest.h>

namespace kelvo {
namespace {

class ActivityTabTest : public ::testing::Test {
protected:
    template <typename Widget>
    Widget* child(const char* name) {
        return tab.findChild<Widget*>(QString::fromLatin1(name));
    }
    QString cell(int row, int column) {
        const auto* model = child<QTableView>("passes")->model();
        return model->index(row, column).data().toString();
    }
    int rows() { return child<QTableView>("passes")->model()->rowCount(); }

    void append(PassCause cause, const QString& text = {}) {
        PassRecord record;
        record.began = QDateTime::currentDateTimeUtc();
        record.kind = PassKind::Remote;
        record.verdict = HostVerdict::Valid;
        record.cause = cause;
        record.transfer = {TransferSource::Statistics, 3, 3000};
        CommandRecord command;
        command.command = QStringLiteral("rsync");
        command.text.head = text;
        record.commands.push_back(command);
        store.append(record);
        mainQueue.runDue();
    }

    void open() {
        tab.setStore(store);
        tab.show();
        mainQueue.runDue();
    }

    VirtualMainQueue mainQueue;
    MemoryPassStore store{mainQueue};
    ActivityTab tab;
};

TEST_F(ActivityTabTest, Hidden_ItIsEmptyAndAsksNothing) {
    append(PassCause::Well);
    tab.setStore(store);
    mainQueue.runDue();
    EXPECT_TRUE(tab.findChildren<QWidget*>().isEmpty());
    tab.show();
    mainQueue.runDue();
    EXPECT_EQ(rows(), 1);
}

TEST_F(ActivityTabTest, Passes_StandNewestFirst) {
    append(PassCause::HostAway);
    append(PassCause::Well);
    open();
    ASSERT_EQ(rows(), 2);
    EXPECT_EQ(cell(0, 1), QStringLiteral("All is well."));
    EXPECT_EQ(cell(1, 1), QStringLiteral("The Mac is away or asleep."));
    EXPECT_EQ(cell(0, 2), QStringLiteral("3 files"));
    EXPECT_EQ(child<QLabel>("headline")->text(),
              QStringLiteral("Last success: just now, 3 files."));
}

TEST_F(ActivityTabTest, NewPass_JoinsAtTheTopAndChangesTheHeadline) {
    open();
    EXPECT_EQ(child<QLabel>("headline")->text(), QStringLiteral("No pass yet."));
    append(PassCause::Well);
    append(PassCause::DiskFull);
    ASSERT_EQ(rows(), 2);
    EXPECT_EQ(cell(0, 1), QStringLiteral("The disk here is full."));
    EXPECT_TRUE(
        child<QLabel>("headline")->text().contains(QStringLiteral("The disk here is full.")));
}

TEST_F(ActivityTabTest, TroubleOnly_HidesTheGoodPasses) {
    open();
    append(PassCause::Well);
    append(PassCause::CutOff);
    child<QCheckBox>("troubleOnly")->click();
    EXPECT_EQ(rows(), 1);
    append(PassCause::Well);
    EXPECT_EQ(rows(), 1);
    append(PassCause::KeyMissing);
    EXPECT_EQ(rows(), 2);
    child<QCheckBox>("troubleOnly")->click();
    EXPECT_EQ(rows(), 4);
}

TEST_F(ActivityTabTest, SelectedPass_IsToldAndCopied) {
    append(PassCause::FilesNotTaken, QStringLiteral("the first <b>text</b>"));
    append(PassCause::Well, QStringLiteral("the second text"));
    open();
    child<QTableView>("passes")->selectRow(1);
    mainQueue.runDue();
    EXPECT_TRUE(child<QPlainTextEdit>("passText")
                    ->toPlainText()
                    .contains(QStringLiteral("the first <b>text</b>")));
    child<QPushButton>("copyPass")->click();
    EXPECT_EQ(QApplication::clipboard()->text(), child<QPlainTextEdit>("passText")->toPlainText());
    append(PassCause::Well);
    EXPECT_TRUE(child<QPlainTextEdit>("passText")->toPlainText().contains(QStringLiteral("first")))
        << "a new pass does not change what is read";
}

TEST_F(ActivityTabTest, Export_WritesAllOrSaysWhyNot) {
    append(PassCause::Well);
    append(PassCause::HostAway);
    open();
    child<QCheckBox>("troubleOnly")->click();
    const QTemporaryDir folder;
    tab.exportTo(folder.filePath(QStringLiteral("a.csv")));
    QFile file(folder.filePath(QStringLiteral("a.csv")));
    ASSERT_TRUE(file.open(QFile::ReadOnly));
    EXPECT_EQ(file.readAll().count('\n'), 3);
    tab.exportTo(folder.filePath(QStringLiteral("no/such/folder/a.csv")));
    EXPECT_TRUE(child<QLabel>("exportResult")->text().startsWith(QStringLiteral("Not written: ")));
}

TEST_F(ActivityTabTest, TenThousandPasses_StayInStep) {
    for (int i = 0; i < PassStore::cMostPasses; ++i) {
        PassRecord record;
        record.began = QDateTime::currentDateTimeUtc();
        record.cause = i % 3 == 0 ? PassCause::HostAway : PassCause::Well;
        store.append(record);
    }
    mainQueue.runDue();
    std::vector<PassRecord> all;
    store.readAll([&](std::vector<PassRecord> records) { all = std::move(records); });
    mainQueue.runDue();
    ASSERT_EQ(all.size(), 10000U);
    open();
    child<QCheckBox>("troubleOnly")->click();
    child<QCheckBox>("troubleOnly")->click();
    append(PassCause::Well);
    child<QTableView>("passes")->selectRow(5);
    append(PassCause::CutOff);
    EXPECT_EQ(child<QTableView>("passes")->currentIndex().row(), 6) << "the selection stays";
    EXPECT_EQ(rows(), 10000);
}

} // namespace
} // namespace kelvo
