// What has arrived, as rows of a tree.
#include "ui/widgets/arrival_rows.h"

#include <QAbstractItemModelTester>
#include <QBrush>
#include <QFont>
#include <QFontMetrics>
#include <QGuiApplication>
#include <QPalette>
#include <QSignalSpy>

#include <gtest/gtest.h>

namespace kelvo {
namespace {

class ArrivalRowsTest : public ::testing::Test {
protected:
    static KeptArrival arrival(qint64 id, int daysAgo) {
        const QDateTime noon(QDate::currentDate().addDays(-daysAgo), QTime(12, 0));
        return {.id = id,
                .arrival = {"/in/" + QByteArray::number(id) + ".mov", 2'000'000, noon.toUTC()}};
    }
    QString shape() const {
        QStringList days;
        for (int day = 0; day < rows.rowCount(); ++day) {
            QStringList names;
            const QModelIndex above = rows.index(day, 0);
            for (int row = 0; row < rows.rowCount(above); ++row)
                names.append(rows.index(row, ArrivalRows::Name, above).data().toString());
            days.append(names.join(u' '));
        }
        return days.join(u'|');
    }

    ArrivalRows rows;
    QAbstractItemModelTester tester{&rows, QAbstractItemModelTester::FailureReportingMode::Fatal};
};

TEST_F(ArrivalRowsTest, NewerAndOlder_JoinTheirDays) {
    EXPECT_EQ(rows.newest(), 0);
    EXPECT_EQ(rows.oldest(), 0);
    rows.setArrivals({arrival(5, 1), arrival(4, 1), arrival(3, 2)}, QStringLiteral("/in"));
    EXPECT_EQ(shape(), u"5.mov 4.mov|3.mov");
    EXPECT_EQ(rows.newest(), 5);
    EXPECT_EQ(rows.oldest(), 3);
    rows.addOlder({arrival(2, 2), arrival(1, 7)});
    EXPECT_EQ(shape(), u"5.mov 4.mov|3.mov 2.mov|1.mov");
    EXPECT_EQ(rows.oldest(), 1);
    rows.addNewer({arrival(8, 0), arrival(7, 0), arrival(6, 1), arrival(5, 1)});
    EXPECT_EQ(shape(), u"8.mov 7.mov|6.mov 5.mov 4.mov|3.mov 2.mov|1.mov");
    EXPECT_EQ(rows.newest(), 8);
    const QModelIndex day = rows.index(1, 0);
    EXPECT_EQ(rows.arrivalAt(rows.index(2, 0, day))->id, 4);
    EXPECT_EQ(rows.arrivalAt(day), nullptr);
    EXPECT_EQ(rows.arrivalAt({}), nullptr);
    EXPECT_EQ(rows.parent(rows.index(2, 0, day)), day);
    EXPECT_EQ(rows.rowCount(rows.index(2, 0, day)), 0);
    EXPECT_EQ(rows.rowCount(rows.index(1, 1)), 0) << "below the first column only";
    rows.setArrivals({arrival(9, 0)}, QStringLiteral("/in"));
    EXPECT_EQ(shape(), u"9.mov");
}

TEST_F(ArrivalRowsTest, Columns_AreNamedAndSizesStandAtTheEnd) {
    rows.setArrivals({arrival(1, 0)}, QStringLiteral("/in"));
    QStringList names;
    for (int column = 0; column < rows.columnCount(); ++column)
        names.append(rows.headerData(column, Qt::Horizontal, Qt::DisplayRole).toString());
    EXPECT_EQ(names.join(u'|'), u"Time|Name|Size");
    EXPECT_EQ(rows.headerData(-1, Qt::Horizontal, Qt::DisplayRole), QVariant(0));
    EXPECT_NE(rows.headerData(3, Qt::Horizontal, Qt::DisplayRole), QVariant(names[2]));
    EXPECT_NE(rows.headerData(0, Qt::Vertical, Qt::DisplayRole), QVariant(names[0]));
    EXPECT_FALSE(rows.headerData(0, Qt::Horizontal, Qt::DecorationRole).isValid());
    const QModelIndex day = rows.index(0, 0);
    const auto cell = [&](int column, int role) { return rows.index(0, column, day).data(role); };
    EXPECT_EQ(cell(ArrivalRows::Size, Qt::TextAlignmentRole).value<Qt::Alignment>(),
              Qt::AlignRight | Qt::AlignVCenter);
    EXPECT_FALSE(cell(ArrivalRows::Name, Qt::TextAlignmentRole).isValid());
    EXPECT_TRUE(cell(ArrivalRows::Name, Qt::ToolTipRole).toString().contains(u"/in/1.mov"));
    EXPECT_FALSE(cell(ArrivalRows::Time, Qt::ToolTipRole).isValid());
    EXPECT_FALSE(cell(ArrivalRows::Name, Qt::ForegroundRole).isValid());
    EXPECT_FALSE(cell(ArrivalRows::Name, Qt::DecorationRole).isValid());
    EXPECT_EQ(cell(ArrivalRows::Size, Qt::DisplayRole), QVariant(QStringLiteral("2.0 MB")));
}

TEST_F(ArrivalRowsTest, Day_IsABoldHeading) {
    rows.setArrivals({arrival(1, 1)}, {});
    const QModelIndex day = rows.index(0, 0);
    EXPECT_EQ(day.data(), QVariant(QStringLiteral("Yesterday")));
    EXPECT_TRUE(day.data(Qt::FontRole).value<QFont>().bold());
    EXPECT_FALSE(rows.index(0, 1).data().isValid());
    EXPECT_FALSE(day.data(Qt::ForegroundRole).isValid());
    EXPECT_FALSE(rows.index(0, 0, day).data(Qt::FontRole).isValid());
    const int line = QFontMetrics(QGuiApplication::font()).lineSpacing();
    EXPECT_GT(day.data(Qt::SizeHintRole).toSize().height(), line) << "rows have air";
    EXPECT_LT(day.data(Qt::SizeHintRole).toSize().height(), 2 * line);
}

TEST_F(ArrivalRowsTest, Fault_IsToldInItsRowAndGoesWhenTheFileIsBack) {
    rows.setArrivals({arrival(3, 0), arrival(2, 1), arrival(1, 1)}, QStringLiteral("/in"));
    QSignalSpy changes(&rows, &QAbstractItemModel::dataChanged);
    rows.setFault(2, QStringLiteral("gone"));
    EXPECT_EQ(shape(), u"3.mov|2.mov (gone) 1.mov");
    const QModelIndex fault = rows.index(0, ArrivalRows::Name, rows.index(1, 0));
    bool isTold = false;
    for (const QList<QVariant>& change : changes) {
        const auto first = change[0].toModelIndex();
        const auto last = change[1].toModelIndex();
        isTold |= first.parent() == fault.parent() && first.row() <= 0 && last.row() == 1 &&
                  first.column() == 0 && last.column() == ArrivalRows::Size;
    }
    EXPECT_TRUE(isTold) << "the whole row is drawn anew";
    EXPECT_EQ(fault.data(Qt::ForegroundRole).value<QBrush>(),
              QGuiApplication::palette().brush(QPalette::Disabled, QPalette::Text));
    rows.setFault(2, {});
    EXPECT_EQ(shape(), u"3.mov|2.mov 1.mov");
    rows.setFault(1, QStringLiteral("gone"));
    rows.setArrivals({arrival(1, 1)}, QStringLiteral("/in"));
    EXPECT_EQ(shape(), u"1.mov") << "who asks anew hopes anew";
}

} // namespace
} // namespace kelvo
