#include "support/array_controller.h"
#include "ui/widgets/service_list.h"
#include "ui/widgets/service_rows.h"

#include <QAbstractItemModelTester>
#include <QHeaderView>
#include <QTableView>

#include <gtest/gtest.h>

namespace kelvo {
namespace {

DNSSD_Service service(const char* name, const char* address, const char* host) {
    DNSSD_Service made;
    made.name = QString::fromUtf8(name);
    made.ip4Address = QString::fromUtf8(address);
    made.hostTarget = QString::fromUtf8(host);
    return made;
}

TEST(ServiceRowsTest, Records_AreNameAddressAndHostWithVisibleControls) {
    ServiceRows rows;
    const QAbstractItemModelTester tester(&rows,
                                          QAbstractItemModelTester::FailureReportingMode::Fatal);
    rows.setRecords({service("one\x1b", "10.0.0.2", "one\x1b.local"), service("two", "", "")});
    EXPECT_EQ(rows.rowCount(), 2);
    EXPECT_EQ(rows.columnCount(), 3);
    EXPECT_EQ(rows.rowCount(rows.index(0, 0)), 0);
    EXPECT_EQ(rows.columnCount(rows.index(0, 0)), 0);
    QStringList cells;
    QStringList titles;
    for (int column = 0; column < 3; ++column) {
        cells.append(rows.index(0, column).data().toString());
        titles.append(rows.headerData(column, Qt::Horizontal, Qt::DisplayRole).toString());
    }
    EXPECT_EQ(cells.join(u'|'), u"one\\x1b|10.0.0.2|one\\x1b.local");
    EXPECT_EQ(titles.join(u'|'), u"Name|Address|Host");
    EXPECT_EQ(rows.index(1, 0).data().toString(), u"two");
    EXPECT_FALSE(rows.index(0, 0).data(Qt::ToolTipRole).isValid());
    EXPECT_FALSE(rows.data({}, Qt::DisplayRole).isValid());
    EXPECT_FALSE(rows.headerData(0, Qt::Vertical, Qt::DisplayRole).isValid());
    EXPECT_FALSE(rows.headerData(0, Qt::Horizontal, Qt::ToolTipRole).isValid());
}

TEST(ServiceListTest, Table_ShowsTheRecordsAndTellsWhichIsSelected) {
    QTableView table;
    ArrayController records;
    records.setContent(DNSSD_Services{service("one", "10.0.0.2", "one.local"),
                                      service("two", "10.0.0.3", "two.local")});
    showServices(records, table);
    table.resize(600, 200);
    table.show();
    EXPECT_EQ(table.model()->rowCount(), 2);
    EXPECT_EQ(records.selectionIndex(), -1);
    table.setCurrentIndex(table.model()->index(1, 2));
    EXPECT_EQ(records.selectionIndex(), 1);
    EXPECT_EQ(table.selectionModel()->selectedRows().size(), 1) << "a row, not a cell";
    EXPECT_EQ(table.selectionModel()->selectedIndexes().size(), 3);
    table.selectAll();
    EXPECT_LE(table.selectionModel()->selectedRows().size(), 1) << "one at a time";
    EXPECT_FALSE(table.tabKeyNavigation());
    EXPECT_TRUE(table.verticalHeader()->isHidden());
    EXPECT_EQ(table.horizontalHeader()->length(), table.viewport()->width());
    records.setContent(DNSSD_Services{service("three", "10.0.0.4", "three.local")});
    EXPECT_EQ(table.model()->index(0, 0).data().toString(), u"three");
    EXPECT_EQ(records.selectionIndex(), -1) << "what was selected has gone";
}

} // namespace
} // namespace kelvo
