#include "support/contrast.h"
#include "ui/widgets/health_view.h"
#include "ui/widgets/muted_hints.h"
#include "ui/widgets/path_control_view.h"
#include "ui/widgets/progress_view.h"
#include "ui/widgets/recent_arrivals.h"

#include <QLabel>
#include <QPalette>
#include <QVBoxLayout>

#include <gtest/gtest.h>

namespace kelvo {
namespace {

struct Desktop {
    const char* name;
    QColor text;
    QColor ground;
};

const Desktop cDesktops[] = {
    {"light", QColor(0x23, 0x26, 0x29), QColor(0xef, 0xf0, 0xf1)},
    {"dark", QColor(0xf0, 0xf0, 0xf0), QColor(0x20, 0x20, 0x20)},
    {"black on white", Qt::black, Qt::white},
    {"white on black", Qt::white, Qt::black},
    {"pale", QColor(0x60, 0x60, 0x60), QColor(0xe8, 0xe8, 0xe8)},
};

/// As a desktop sets it that knows nothing of placeholders.
QPalette paletteOf(const Desktop& desktop) {
    QPalette palette;
    palette.setColor(QPalette::Window, desktop.ground);
    palette.setColor(QPalette::WindowText, desktop.text);
    palette.setColor(QPalette::PlaceholderText, desktop.ground);
    return palette;
}

class MutedHintsTest : public ::testing::Test {
protected:
    MutedHintsTest() {
        auto* rows = new QVBoxLayout(&window);
        auto* path = new PathControlView;
        path->setTextWhenEmpty(QStringLiteral("No folder"));
        for (QWidget* view : std::initializer_list<QWidget*>{path, new ProgressView,
                                                             new RecentArrivals, new HealthView})
            rows->addWidget(view);
    }

    std::vector<QLabel*> hints() const {
        std::vector<QLabel*> found;
        for (QLabel* label : window.findChildren<QLabel*>()) {
            if (label->foregroundRole() == QPalette::PlaceholderText && !label->text().isEmpty())
                found.push_back(label);
        }
        return found;
    }

    QWidget window;
};

TEST_F(MutedHintsTest, EachPalette_LeavesThemReadableAndMuted) {
    ASSERT_EQ(hints().size(), 4U);
    for (const Desktop& desktop : cDesktops) {
        window.setPalette(paletteOf(desktop));
        for (const QLabel* hint : hints()) {
            const QColor ink = hint->palette().color(QPalette::PlaceholderText);
            const QColor ground = hint->palette().color(QPalette::Window);
            EXPECT_EQ(ground, desktop.ground) << desktop.name;
            EXPECT_GE(contrast(ink, ground), 4.5) << desktop.name << ": " << qPrintable(ink.name());
            EXPECT_LT(contrast(ink, ground), contrast(desktop.text, ground)) << desktop.name;
        }
    }
}

TEST_F(MutedHintsTest, TextThatIsPaleItself_StaysAsItIs) {
    EXPECT_EQ(mutedColor(QColor(0x90, 0x90, 0x90), Qt::white), QColor(0x90, 0x90, 0x90));
    EXPECT_EQ(mutedColor(Qt::red, Qt::red), QColor(Qt::red));
}

TEST_F(MutedHintsTest, Hint_IsAsMutedAsItMayBe) {
    // In steps of five per cent of the ground, two fifths at most.
    EXPECT_EQ(mutedColor(Qt::black, Qt::white), QColor(0x66, 0x66, 0x66));
    EXPECT_EQ(mutedColor(Qt::white, Qt::black), QColor(0x99, 0x99, 0x99));
    for (const Desktop& desktop : cDesktops) {
        QColor expected = desktop.text;
        for (int share = 5; share <= 40; share += 5) {
            const auto mixed = [share](int text, int ground) {
                return text + (ground - text) * share / 100;
            };
            const QColor muted(mixed(desktop.text.red(), desktop.ground.red()),
                               mixed(desktop.text.green(), desktop.ground.green()),
                               mixed(desktop.text.blue(), desktop.ground.blue()));
            if (contrast(muted, desktop.ground) >= 4.5)
                expected = muted;
        }
        EXPECT_EQ(mutedColor(desktop.text, desktop.ground), expected) << desktop.name;
    }
    // Each colour counts as the eye has it: the same light, one after the other.
    for (const QColor& text : {QColor(0xb0, 0, 0), QColor(0, 0x70, 0), QColor(0, 0, 0xff),
                               QColor(0x60, 0, 0x60), QColor(0x05, 0x05, 0x05)}) {
        const QColor muted = mutedColor(text, Qt::white);
        EXPECT_GE(contrast(muted, Qt::white), 4.5) << qPrintable(text.name());
        const int share =
            100 *
            (muted.red() + muted.green() + muted.blue() - text.red() - text.green() - text.blue()) /
            (3 * 255 - text.red() - text.green() - text.blue());
        if (share < 38) {
            const auto more = [share](int from) { return from + (255 - from) * (share + 6) / 100; };
            EXPECT_LT(contrast(QColor(more(text.red()), more(text.green()), more(text.blue())),
                               Qt::white),
                      4.5)
                << qPrintable(text.name()) << " could be more muted";
        }
    }
}

} // namespace
} // namespace kelvo
