#include "support/contrast.h"
#include "ui/widgets/icons.h"
#include "ui/widgets/start_style.h"

#include <QImage>
#include <QStyleFactory>
#include <QStyleOption>

#include <gtest/gtest.h>

#include <array>
#include <cmath>

namespace kelvo {
namespace {

using enum StatusMenuState;
constexpr std::array cStates{Off, Resting, Running, Trouble};

/// The sign alone: ink is opaque, and a rim of no colour leaves no trace.
QImage sign(StatusMenuState state, int side) {
    return statusIcon(state, Qt::black, Qt::transparent)
        .pixmap(side)
        .toImage()
        .convertToFormat(QImage::Format_Alpha8);
}

/// The part of all pixels that are ink in one mask and not in the other.
double difference(const QImage& a, const QImage& b) {
    int differing = 0;
    for (int y = 0; y < a.height(); ++y) {
        for (int x = 0; x < a.width(); ++x)
            differing += std::abs(qAlpha(a.pixel(x, y)) - qAlpha(b.pixel(x, y))) > 127 ? 1 : 0;
    }
    return static_cast<double>(differing) / (a.width() * a.height());
}

int inkedPixels(const QImage& mask) {
    int inked = 0;
    for (int y = 0; y < mask.height(); ++y) {
        for (int x = 0; x < mask.width(); ++x)
            inked += qAlpha(mask.pixel(x, y)) > 127 ? 1 : 0;
    }
    return inked;
}

/// The colour of a pixel as it appears over `ground`.
QColor over(const QColor& pixel, const QColor& ground) {
    const auto mixed = [&](float front, float back) {
        return front * pixel.alphaF() + back * (1 - pixel.alphaF());
    };
    return QColor::fromRgbF(mixed(pixel.redF(), ground.redF()),
                            mixed(pixel.greenF(), ground.greenF()),
                            mixed(pixel.blueF(), ground.blueF()));
}

/// The part of all pixels that stand out from `ground`, 3 to 1 or more.
double readablePart(const QIcon& icon, int side, const QColor& ground) {
    const QImage image = icon.pixmap(side).toImage();
    int readable = 0;
    for (int y = 0; y < image.height(); ++y) {
        for (int x = 0; x < image.width(); ++x)
            readable += contrast(over(image.pixelColor(x, y), ground), ground) >= 3 ? 1 : 0;
    }
    return static_cast<double>(readable) / (image.width() * image.height());
}

TEST(IconsTest, EachState_HasAShapeOfItsOwn) {
    for (const int side : {16, 22, 24, 32}) {
        for (const StatusMenuState a : cStates) {
            EXPECT_GT(inkedPixels(sign(a, side)), side * side / 8) << side;
            for (const StatusMenuState b : cStates) {
                if (a < b) {
                    EXPECT_GT(difference(sign(a, side), sign(b, side)), 0.12)
                        << side << " px, states " << static_cast<int>(a) << " and "
                        << static_cast<int>(b);
                }
            }
        }
    }
}

TEST(IconsTest, Sign_IsDrawnInTheInkAsked) {
    const QImage image = statusIcon(Running, QColor(10, 200, 30), Qt::transparent)
                             .pixmap(32)
                             .toImage()
                             .convertToFormat(QImage::Format_ARGB32);
    int opaque = 0;
    for (int y = 0; y < image.height(); ++y) {
        for (int x = 0; x < image.width(); ++x) {
            if (qAlpha(image.pixel(x, y)) != 255)
                continue;
            ++opaque;
            ASSERT_EQ(image.pixelColor(x, y), QColor(10, 200, 30));
        }
    }
    EXPECT_GT(opaque, 100);
}

TEST(IconsTest, SignOfHealth_IsFinerOnAFinerScreen) {
    for (const HealthSign health : {HealthSign::Well, HealthSign::Trouble}) {
        const QPixmap usual = healthSign(health, Qt::black, 16, 1);
        const QPixmap fine = healthSign(health, Qt::black, 16, 2);
        EXPECT_EQ(fine.deviceIndependentSize(), QSizeF(16, 16));
        EXPECT_EQ(fine.size(), QSize(32, 32));
        const int inked = inkedPixels(usual.toImage());
        EXPECT_NEAR(inkedPixels(fine.toImage()), 4 * inked, inked) << "it fills the same room";
    }
}

TEST(IconsTest, Sign_StandsOutOnAPanelOfEitherColour) {
    for (const StatusMenuState state : cStates) {
        for (const QColor& panel : {QColor(Qt::white), QColor(Qt::black), QColor(0x30, 0x30, 0x30),
                                    QColor(0xe0, 0xe0, 0xe0)}) {
            EXPECT_GT(readablePart(statusIcon(state, Qt::black, Qt::white), 16, panel), 0.12);
            EXPECT_GT(readablePart(statusIcon(state, Qt::white, Qt::black), 16, panel), 0.12);
        }
    }
}

TEST(IconsTest, ApplicationIcon_StandsOutOnLightAndDark) {
    const QIcon icon = applicationIcon();
    for (const int side : {16, 24, 32, 48, 64, 128}) {
        ASSERT_EQ(icon.actualSize(QSize(side, side)), QSize(side, side));
        EXPECT_GT(readablePart(icon, side, Qt::white), 0.3) << side;
        EXPECT_GT(readablePart(icon, side, QColor(0x20, 0x20, 0x20)), 0.3) << side;
    }
}

TEST(IconsTest, SignForMore_CanBeSeenOnEitherGroundAndIsMirrored) {
    for (const bool rightToLeft : {false, true}) {
        for (const QColor& ground : {QColor(0xef, 0xef, 0xef), QColor(0x32, 0x32, 0x32)})
            EXPECT_GT(readablePart(moreIcon(rightToLeft), 16, ground), 0.1);
    }
    const QImage there = moreIcon(false).pixmap(16).toImage();
    EXPECT_NE(there, moreIcon(true).pixmap(16).toImage());
}

TEST(IconsTest, StyleOfTheStart_DrawsTheSignForMoreMenusAndLeavesTheRest) {
    const StartStyle style(QStyleFactory::create(QStringLiteral("fusion")));
    QStyleOption option;
    for (const Qt::LayoutDirection direction : {Qt::LeftToRight, Qt::RightToLeft}) {
        option.direction = direction;
        EXPECT_EQ(style.standardIcon(QStyle::SP_ToolBarHorizontalExtensionButton, &option, nullptr)
                      .pixmap(16)
                      .toImage(),
                  moreIcon(direction == Qt::RightToLeft).pixmap(16).toImage());
    }
    EXPECT_FALSE(style.standardIcon(QStyle::SP_MessageBoxWarning, nullptr, nullptr).isNull());
}

// -- what is drawn, point by point

constexpr const char* cTick = R"(
................
................
................
............###.
...........####.
...........###..
..........###...
..#......###....
.###....###.....
..###..####.....
...#######......
....#####.......
.....###........
......#.........
................
................
)";
constexpr const char* cCross = R"(
................
................
...#........#...
..###......###..
...###....###...
....###..###....
.....######.....
......####......
......####......
.....######.....
....###..###....
...###....###...
..###......###..
...#........#...
................
................
)";
constexpr const char* cDot = R"(
................
................
................
................
................
.......##.......
......####......
.....######.....
.....######.....
......####......
.......##.......
................
................
................
................
................
)";
constexpr const char* cHooks = R"(
................
................
................
...#....#.......
...##...##......
....##...##.....
.....##...##....
......##...##...
......##...##...
.....##...##....
....##...##.....
...##...##......
...#....#.......
................
................
................
)";

/// Where the ink is: a line of signs a row.
QStringList drawing(const QImage& image) {
    QStringList rows;
    for (int y = 0; y < image.height(); ++y) {
        QString row;
        for (int x = 0; x < image.width(); ++x)
            row += qAlpha(image.pixel(x, y)) > 127 ? u'#' : u'.';
        rows.append(row);
    }
    return rows;
}

QStringList rowsOf(const char* drawn) {
    return QString::fromLatin1(drawn).split(u'\n', Qt::SkipEmptyParts);
}

/// A point at an edge may be drawn otherwise by another toolkit; a line that moves is more.
void expectDrawing(const QImage& image, const QStringList& expected) {
    const QStringList found = drawing(image);
    ASSERT_EQ(found.size(), expected.size()) << qPrintable(found.join(u'\n'));
    int differing = 0;
    for (qsizetype y = 0; y < found.size(); ++y) {
        ASSERT_EQ(found[y].size(), expected[y].size());
        for (qsizetype x = 0; x < found[y].size(); ++x)
            differing += found[y][x] != expected[y][x] ? 1 : 0;
    }
    EXPECT_LE(differing, 2) << qPrintable(found.join(u'\n'));
}

TEST(IconsTest, SignsOfHealth_AreATickACrossAndADot) {
    const auto drawn = [](HealthSign sign) { return healthSign(sign, Qt::black, 16, 1).toImage(); };
    expectDrawing(drawn(HealthSign::Well), rowsOf(cTick));
    expectDrawing(drawn(HealthSign::Trouble), rowsOf(cCross));
    expectDrawing(drawn(HealthSign::Unknown), rowsOf(cDot));
    EXPECT_EQ(healthSign(HealthSign::Unknown, Qt::red, 16, 1).toImage().pixelColor(8, 8),
              QColor(Qt::red));
}

TEST(IconsTest, SignForMore_IsTwoHooks) {
    expectDrawing(moreIcon(false).pixmap(16).toImage(), rowsOf(cHooks));
    expectDrawing(moreIcon(true).pixmap(16).toImage(),
                  drawing(moreIcon(false).pixmap(16).toImage().mirrored(true, false)));
}

TEST(IconsTest, SignOfTheStartButton_IsASquareOrATriangleOfTheButtonsInk) {
    QPalette palette;
    palette.setColor(QPalette::Active, QPalette::ButtonText, Qt::blue);
    palette.setColor(QPalette::Disabled, QPalette::ButtonText, Qt::gray);
    for (const auto& [mode, ink] : {std::pair(QIcon::Normal, QColor(Qt::blue)),
                                    std::pair(QIcon::Disabled, QColor(Qt::gray))}) {
        const QImage square = startIcon(true, palette).pixmap(QSize(32, 32), mode).toImage();
        const QImage triangle = startIcon(false, palette).pixmap(QSize(32, 32), mode).toImage();
        QStringList rows(32, QString(32, u'.'));
        for (int y = 6; y < 26; ++y)
            rows[y] = QString(6, u'.') + QString(20, u'#') + QString(6, u'.');
        EXPECT_EQ(drawing(square), rows);
        EXPECT_EQ(square.pixelColor(16, 16), ink);
        EXPECT_EQ(triangle.pixelColor(12, 16), ink);
        const QStringList drawn = drawing(triangle);
        for (int y = 0; y < 32; ++y) {
            // As wide as the row is far from the upper or the lower edge, doubled.
            const int wide = y < 6 || y > 25 ? 0 : 2 * std::min(y - 5, 26 - y);
            EXPECT_NEAR(drawn[y].count(u'#'), wide, 1) << y;
            EXPECT_EQ(drawn[y].left(6).count(u'#'), 0) << y;
            EXPECT_EQ(drawn[y].trimmed().contains(u"#.#"), false) << y;
            EXPECT_EQ(drawn[y], drawn[31 - y]) << "the same above and below";
        }
    }
}

} // namespace
} // namespace kelvo
