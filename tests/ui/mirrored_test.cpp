// The window as it is written from right to left.
#include "fakes/memory_defaults.h"
#include "fakes/virtual_queues.h"
#include "ui/widgets/day_chart.h"
#include "ui/widgets/elided_label.h"
#include "ui/widgets/main_window.h"
#include "ui/widgets/path_control_view.h"

#include <QApplication>
#include <QImage>
#include <QPushButton>
#include <QTest>
#include <QToolButton>

#include <gtest/gtest.h>

namespace kelvo {
namespace {

QString text(const char* latin1) {
    return QString::fromLatin1(latin1);
}

class Mirrored {
public:
    Mirrored() { QGuiApplication::setLayoutDirection(Qt::RightToLeft); }
    ~Mirrored() { QGuiApplication::setLayoutDirection(Qt::LayoutDirectionAuto); }
};

TEST(MirroredTest, TheFirstPartOfAPathStandsAtTheRight) {
    const Mirrored arabic;
    PathControlView view;
    view.resize(900, 30);
    view.show();
    view.setPath(text("/Users/near"));
    const auto place = [&](const char* part) {
        return view.findChild<QToolButton*>(text(part))->geometry();
    };
    EXPECT_EQ(place("part0").right(), view.width() - 1);
    EXPECT_LT(place("part1").right(), place("part0").left());
    EXPECT_LT(place("part2").right(), place("part1").left());
}

TEST(MirroredTest, TodayStandsAtTheLeftOfTheChart) {
    const Mirrored arabic;
    DayChart chart;
    chart.resize(300, 48);
    chart.setDays({}, QDate(2026, 3, 30));
    chart.show();
    const auto place = [&](int row) { return chart.visualRect(chart.model()->index(row, 0)); };
    EXPECT_EQ(place(29).left(), 0);
    EXPECT_EQ(place(0).right(), chart.viewport()->width() - 1);
    EXPECT_EQ(chart.indexAt(place(3).center()).row(), 3);
    chart.setFocus();
    chart.setCurrentIndex(chart.model()->index(10, 0));
    QTest::keyClick(&chart, Qt::Key_Left);
    EXPECT_EQ(chart.currentIndex().row(), 11) << "where the eyes go";
}

TEST(MirroredTest, TheWindowIsTheOtherWayRound) {
    MemoryDefaults defaults;
    VirtualMainQueue mainQueue;
    const auto distances = [&] {
        const auto window = std::make_unique<MainWindow>(defaults, mainQueue);
        window->resize(900, 700);
        window->show();
        window->showTab(text("sync"));
        QCoreApplication::processEvents();
        const auto left = [&](const QWidget& widget) {
            return widget.mapTo(window.get(), QPoint(0, 0)).x();
        };
        const auto right = [&](const QWidget& widget) {
            return window->width() - left(widget) - widget.width();
        };
        const QWidget& start = window->ibStartButton();
        const QWidget& now = window->button(text("ibSyncNow"));
        return std::pair(std::pair(left(start), left(now)), std::pair(right(start), right(now)));
    };
    const auto usual = distances();
    const Mirrored arabic;
    EXPECT_EQ(distances().second, usual.first);
}

TEST(MirroredTest, ANameInOtherLetters_BeginsWhereTheLinesBegin) {
    ElidedLabel label;
    label.resize(400, 30);
    label.setFullText(text("user@host:Movies"));
    label.show();
    const auto inkBegins = [&label] {
        const QImage image = label.grab().toImage();
        for (int x = 0; x < image.width(); ++x) {
            for (int y = 0; y < image.height(); ++y) {
                if (image.pixel(x, y) != image.pixel(image.width() / 2, 0))
                    return x;
            }
        }
        return image.width();
    };
    EXPECT_LT(inkBegins(), 20);
    const Mirrored arabic;
    EXPECT_GT(inkBegins(), 200);
}

} // namespace
} // namespace kelvo
