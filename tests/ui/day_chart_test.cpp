#include "ui/widgets/day_chart.h"

#include <QAccessible>
#include <QTest>

#include <gtest/gtest.h>

namespace kelvo {
namespace {

const QDate cToday(2026, 3, 30);

class DayChartTest : public ::testing::Test {
protected:
    DayChartTest() {
        chart.resize(300, 48);
        chart.setDays({{cToday.addDays(-40), 9, 9'000'000'000, true},
                       {cToday.addDays(-2), 0, 0, true},
                       {cToday.addDays(-1), 3, 1'500'000'000, true},
                       {cToday, 1, 3'000'000'000, false}},
                      cToday);
        chart.show();
    }

    QRect placeOf(int row) { return chart.visualRect(chart.model()->index(row, 0)); }
    /// How many dots of the day's place have the colour of a bar.
    int bar(const QImage& image, int row) {
        int sum = 0;
        const QRgb colour = chart.palette().color(QPalette::Highlight).rgb();
        const QRect place = placeOf(row);
        for (int y = place.top(); y <= place.bottom(); ++y)
            sum += image.pixel(place.center().x(), y) == colour ? 1 : 0;
        return sum;
    }

    DayChart chart;
};

TEST_F(DayChartTest, ScreenReader_ReadsItRowByRowAsATable) {
    QAccessibleInterface* read = QAccessible::queryAccessibleInterface(&chart);
    ASSERT_NE(read, nullptr);
    EXPECT_EQ(read->role(), QAccessible::Table);
    QAccessibleTableInterface* table = read->tableInterface();
    ASSERT_NE(table, nullptr);
    ASSERT_EQ(table->rowCount(), 30);
    ASSERT_EQ(table->columnCount(), 4);
    EXPECT_EQ(table->columnDescription(DayChart::Movies), QStringLiteral("Movies"));
    const auto line = [&](int row) {
        QStringList texts;
        for (int column = 0; column < table->columnCount(); ++column)
            texts.append(table->cellAt(row, column)->text(QAccessible::Name));
        return texts.join(u'|');
    };
    EXPECT_EQ(line(29), QStringLiteral("Today|3.0 GB|1|none"));
    EXPECT_EQ(line(28), QStringLiteral("Yesterday|1.5 GB|3|in trouble"));
    EXPECT_TRUE(line(0).endsWith(QStringLiteral("|0 bytes|0|none")))
        << "an older day is not shown: " << line(0).toStdString();
    EXPECT_EQ(table->cellAt(28, 0)->text(QAccessible::Description),
              QStringLiteral("1.5 GB, 3 movies; a pass was in trouble"));
}

TEST_F(DayChartTest, Bars_AreAsHighAsTheDaysAndTroubleHasAShape) {
    const QImage image = chart.viewport()->grab().toImage();
    EXPECT_GT(bar(image, 29), 30);
    EXPECT_NEAR(bar(image, 28), bar(image, 29) / 2, 2);
    EXPECT_EQ(bar(image, 27), 0);
    // Above the bar of a day in trouble a triangle: wider below than above.
    const auto other = [&](int row, int y) {
        int sum = 0;
        const QRect place = placeOf(row);
        for (int x = place.left(); x <= place.right(); ++x)
            sum += image.pixel(x, y) != image.pixel(2, 2) ? 1 : 0;
        return sum;
    };
    EXPECT_GT(other(27, 44), other(27, 41));
    EXPECT_GT(other(27, 41), 0);
    EXPECT_EQ(other(26, 42), 0);
}

TEST_F(DayChartTest, PointerAndArrowKeys_GoFromDayToDay) {
    for (const int row : {0, 13, 29})
        EXPECT_EQ(chart.indexAt(placeOf(row).center()).row(), row);
    EXPECT_TRUE(
        chart.model()
            ->index(28, 0)
            .data(Qt::ToolTipRole)
            .toString()
            .contains(QStringLiteral("Yesterday: 1.5 GB, 3 movies; a pass was in trouble")));
    chart.setFocus();
    QApplication::setActiveWindow(&chart);
    EXPECT_EQ(chart.currentIndex().row(), 29);
    QTest::keyClick(&chart, Qt::Key_Left);
    EXPECT_EQ(chart.currentIndex().row(), 28);
    QTest::keyClick(&chart, Qt::Key_Home);
    QTest::keyClick(&chart, Qt::Key_Left);
    EXPECT_EQ(chart.currentIndex().row(), 0);
    QTest::keyClick(&chart, Qt::Key_Down);
    EXPECT_EQ(chart.currentIndex().row(), 1);
}

} // namespace
} // namespace kelvo
