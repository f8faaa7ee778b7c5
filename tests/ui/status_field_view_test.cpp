// What the program is doing, as the Sync tab shows it.
#include "support/contrast.h"
#include "ui/widgets/status_field_view.h"

#include <QApplication>
#include <QLabel>
#include <QTest>

#include <gtest/gtest.h>

namespace kelvo {
namespace {

class StatusFieldViewTest : public ::testing::Test {
protected:
    StatusFieldViewTest() {
        view.resize(500, view.sizeHint().height());
        view.setVisible(true);
        QApplication::setActiveWindow(&view);
    }

    QLabel& words() { return *view.findChild<QLabel*>(QStringLiteral("statusText")); }
    QLabel& sign() {
        const auto labels = view.findChildren<QLabel*>();
        return *(labels[0] == &words() ? labels[1] : labels[0]);
    }
    QColor ink() { return words().palette().color(QPalette::WindowText); }
    QColor ground() { return view.palette().color(QPalette::Window); }
    void show(StatusColor color, TextAlignment alignment = TextAlignment::Centered) {
        view.show({QStringLiteral("what it does"), color, alignment});
    }

    StatusFieldView view;
};

TEST_F(StatusFieldViewTest, Trouble_HasASignThatTakesNoRoomFromTheWords) {
    EXPECT_FALSE(sign().isVisible());
    show(StatusColor::Black);
    const QRect place = words().geometry();
    EXPECT_FALSE(sign().isVisible());
    show(StatusColor::Red);
    EXPECT_TRUE(sign().isVisible());
    EXPECT_FALSE(sign().pixmap().isNull());
    EXPECT_EQ(sign().accessibleName(), u"Trouble");
    EXPECT_EQ(sign().width(), sign().height());
    EXPECT_LE(sign().pixmap().deviceIndependentSize().width(), sign().width());
    EXPECT_EQ(words().geometry(), place);
    EXPECT_GT(words().width(), view.width() / 2);
    show(StatusColor::Black);
    EXPECT_FALSE(sign().isVisible());
    show(StatusColor::Red);
    EXPECT_TRUE(sign().isVisible());
    view.clear();
    EXPECT_FALSE(sign().isVisible());
    EXPECT_EQ(words().text(), QString());
}

TEST_F(StatusFieldViewTest, Words_StandWhereTheyAreToldTo) {
    show(StatusColor::Black);
    EXPECT_EQ(words().alignment(), Qt::AlignHCenter | Qt::AlignVCenter);
    show(StatusColor::Black, TextAlignment::Natural);
    EXPECT_EQ(words().alignment(), Qt::AlignLeft | Qt::AlignVCenter);
    EXPECT_EQ(words().textInteractionFlags(),
              Qt::TextSelectableByMouse | Qt::TextSelectableByKeyboard);
    EXPECT_EQ(words().accessibleDescription(), u"What the program is doing");
    EXPECT_EQ(&view.focusPlace(), &words());
    EXPECT_EQ(view.frameShape(), QFrame::StyledPanel);
}

TEST_F(StatusFieldViewTest, InkOfTrouble_CanBeReadOnEachGround) {
    for (const QColor& colour : {QColor(0xef, 0xf0, 0xf1), QColor(0x20, 0x20, 0x20)}) {
        show(StatusColor::Red);
        QPalette palette = view.palette();
        palette.setColor(QPalette::Window, colour);
        palette.setColor(QPalette::WindowText,
                         colour.lightness() > 128 ? QColor(Qt::black) : QColor(Qt::white));
        view.setPalette(palette);
        EXPECT_GE(contrast(ink(), ground()), 4.5) << qPrintable(colour.name());
        EXPECT_GT(ink().red(), ink().green()) << "red";
        show(StatusColor::Black);
        EXPECT_EQ(ink(), palette.color(QPalette::WindowText));
    }
}

TEST_F(StatusFieldViewTest, Focus_IsAFrameAroundTheWords) {
    show(StatusColor::Black);
    view.setFocus();
    const QImage without = view.grab().toImage();
    words().setFocus();
    const QImage with = view.grab().toImage();
    QRect drawn;
    for (int y = 0; y < with.height(); ++y) {
        for (int x = 0; x < with.width(); ++x) {
            if (with.pixel(x, y) != without.pixel(x, y))
                drawn |= QRect(x, y, 1, 1);
        }
    }
    EXPECT_TRUE(drawn.isValid());
    EXPECT_TRUE(drawn.contains(words().geometry()));
    EXPECT_TRUE(view.rect().contains(drawn.adjusted(-1, -1, 1, 1)));
    EXPECT_NEAR(drawn.left(), words().x() - 3, 1);
    EXPECT_NEAR(drawn.bottom(), words().geometry().bottom() + 3, 1);
    words().clearFocus();
    EXPECT_EQ(view.grab().toImage(), without);
}

} // namespace
} // namespace kelvo
