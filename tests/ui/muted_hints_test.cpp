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

} // namespace
} // namespace kelvo
