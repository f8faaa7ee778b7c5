#include "ui/widgets/day_chart.h"

#include <QAccessible>
#include <QApplication>
#include <QHeaderView>
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

TEST_F(DayChartTest, Keys_GoToTheEndsAndNoFurther) {
    QApplication::setActiveWindow(&chart);
    chart.setFocus();
    const auto press = [this](Qt::Key key) {
        QTest::keyClick(&chart, key);
        return chart.currentIndex().row();
    };
    EXPECT_EQ(press(Qt::Key_Right), 29);
    EXPECT_EQ(press(Qt::Key_PageUp), 0);
    EXPECT_EQ(press(Qt::Key_Up), 0);
    EXPECT_EQ(press(Qt::Key_PageDown), 29);
    EXPECT_EQ(press(Qt::Key_Up), 28);
    EXPECT_EQ(press(Qt::Key_Home), 0);
    EXPECT_EQ(press(Qt::Key_Right), 1);
    EXPECT_EQ(press(Qt::Key_End), 29);
    EXPECT_EQ(press(Qt::Key_Left), 28);
    EXPECT_EQ(chart.selectionModel()->selectedRows().size(), 1);
}

TEST_F(DayChartTest, Focus_BeginsAtTodayAndComesBackToItsDay) {
    QWidget window;
    QWidget other(&window);
    chart.setParent(&window);
    other.setFocusPolicy(Qt::StrongFocus);
    window.show();
    chart.show();
    QApplication::setActiveWindow(&window);
    other.setFocus();
    EXPECT_FALSE(chart.currentIndex().isValid());
    chart.setFocus();
    EXPECT_EQ(chart.currentIndex().row(), 29);
    chart.setCurrentIndex(chart.model()->index(7, 0));
    QTest::keyClick(&chart, Qt::Key_Tab);
    EXPECT_TRUE(other.hasFocus()) << "one stop of the Tab key";
    chart.setFocus();
    EXPECT_EQ(chart.currentIndex().row(), 7);
    chart.setParent(nullptr);
}

TEST_F(DayChartTest, DayOfTheKeyboard_HasAFrameWhileTheChartHasTheFocus) {
    QApplication::setActiveWindow(&chart);
    const auto corner = [this](int row) {
        const QImage image = chart.viewport()->grab().toImage();
        const QRect place = placeOf(row);
        int drawn = 0; // above the bars, where only the frame is
        for (int x = place.left(); x <= place.right(); ++x)
            drawn += image.pixel(x, 0) != image.pixel(placeOf(15).center().x(), 0) ? 1 : 0;
        return drawn;
    };
    EXPECT_EQ(corner(5), 0);
    chart.window()->setAttribute(Qt::WA_KeyboardFocusChange); // as the Tab key leaves it
    chart.setFocus();
    chart.setCurrentIndex(chart.model()->index(5, 0));
    EXPECT_GT(corner(5), 2);
    EXPECT_EQ(corner(6), 0);
    chart.setCurrentIndex(chart.model()->index(6, 0));
    EXPECT_EQ(corner(5), 0);
    EXPECT_GT(corner(6), 2);
}

TEST_F(DayChartTest, Days_FillTheWidthWithoutAGap) {
    EXPECT_EQ(placeOf(0).left(), 0);
    EXPECT_EQ(placeOf(29).right(), chart.viewport()->width() - 1);
    for (int row = 0; row < 29; ++row)
        EXPECT_EQ(placeOf(row).right() + 1, placeOf(row + 1).left()) << row;
    EXPECT_EQ(placeOf(3).height(), chart.viewport()->height());
    EXPECT_FALSE(chart.indexAt(QPoint(-1, 5)).isValid());
    EXPECT_FALSE(chart.visualRect({}).isValid());
    EXPECT_EQ(chart.height(), chart.sizeHint().height());
    EXPECT_GE(chart.minimumSizeHint().width(), 2 * DayChart::cDays) << "a bar and a gap";
    EXPECT_GE(chart.sizeHint().width(), chart.minimumSizeHint().width());
    EXPECT_EQ(chart.sizePolicy().horizontalPolicy(), QSizePolicy::Expanding);
    for (const auto bars : {chart.horizontalScrollBarPolicy(), chart.verticalScrollBarPolicy()})
        EXPECT_EQ(bars, Qt::ScrollBarAlwaysOff);
    EXPECT_FALSE(chart.horizontalHeader()->isVisibleTo(&chart));
    EXPECT_FALSE(chart.verticalHeader()->isVisibleTo(&chart));
    EXPECT_EQ(chart.frameWidth(), 0);
    EXPECT_EQ(chart.editTriggers(), QAbstractItemView::NoEditTriggers);
}

TEST_F(DayChartTest, LittleThatArrived_IsMoreThanTheLineOfAnEmptyDay) {
    chart.setDays({{cToday.addDays(-1), 1, 1, false}, {cToday, 1, 9'000'000'000, false}}, cToday);
    const QImage image = chart.viewport()->grab().toImage();
    EXPECT_EQ(bar(image, 28), 3);
    const auto line = [&](int row) {
        const QRgb colour = chart.palette().color(QPalette::Mid).rgb();
        int sum = 0;
        for (int y = 0; y < image.height(); ++y)
            sum += image.pixel(placeOf(row).center().x(), y) == colour ? 1 : 0;
        return sum;
    };
    EXPECT_EQ(line(27), 1);
    EXPECT_EQ(line(28), 0);
    // Bars stand apart, on one ground.
    const int ground = image.height() - 2;
    EXPECT_NE(image.pixel(placeOf(29).center().x(), ground),
              image.pixel(placeOf(29).left(), ground));
    EXPECT_EQ(bar(image, 29), image.height() - 7 - 2 - 1) << "the mark has room above";
}

TEST_F(DayChartTest, Description_NamesTheDayOfTheMost) {
    EXPECT_EQ(chart.accessibleDescription().count(u"Today"), 1);
    EXPECT_TRUE(chart.accessibleDescription().contains(
        u". The most came on this day: Today, 3.0 GB, 1 movie. The arrow keys go"));
    chart.setDays({}, cToday);
    EXPECT_EQ(chart.accessibleDescription(),
              u"Nothing has arrived. The arrow keys go from day to day.");
}

} // namespace
} // namespace kelvo
