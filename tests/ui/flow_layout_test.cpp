// Widgets side by side, and in further rows where the width is short.
#include "ui/widgets/flow_layout.h"
#include "ui/widgets/wrapped_label.h"

#include <QPushButton>

#include <gtest/gtest.h>

#include <memory>

namespace kelvo {
namespace {

constexpr int cGap = 10;
const QString cText = QStringLiteral("The Mac is away or asleep. Wake it, then try again.");

/// Three boxes of 100 by 20 points, the second 30 high; the last takes what is left.
class FlowLayoutTest : public ::testing::Test {
protected:
    FlowLayoutTest() {
        for (QWidget* box : {&first, &second, &last}) {
            box->setParent(&row);
            box->setFixedSize(100, 20);
        }
        second.setFixedHeight(30);
        layout = new FlowLayout(row);
        layout->setSpacing(cGap);
        row.show();
    }

    /// The last one grows, and shrinks down to 60 points.
    void letLastGrow() {
        last.setMinimumSize(60, 20);
        last.setMaximumWidth(QWIDGETSIZE_MAX);
        last.setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed);
    }
    void giveRoom(int width) {
        row.resize(width, 200);
        layout->activate();
        layout->setGeometry(row.rect());
    }

    QWidget row;
    QWidget first;
    QWidget second;
    QWidget last;
    FlowLayout* layout = nullptr;
};

TEST_F(FlowLayoutTest, RoomForAll_IsOneRow) {
    giveRoom(320);
    EXPECT_EQ(first.x(), 0);
    EXPECT_EQ(second.x(), 110);
    EXPECT_EQ(last.x(), 220);
    EXPECT_EQ(layout->heightForWidth(320), 30) << "that of the highest";
    EXPECT_EQ(layout->sizeHint(), QSize(320, 30));
    EXPECT_EQ(layout->minimumSize(), QSize(100, 30));
    EXPECT_EQ(layout->contentsMargins(), QMargins());
}

TEST_F(FlowLayoutTest, ShortWidth_GoesOnBelow) {
    giveRoom(319);
    EXPECT_EQ(second.x(), 110);
    EXPECT_EQ(last.x(), 0);
    EXPECT_GE(last.y(), 30 + cGap);
    EXPECT_EQ(layout->heightForWidth(319), 30 + cGap + 20);
    EXPECT_EQ(layout->heightForWidth(209), 20 + cGap + 30 + cGap + 20);
    EXPECT_EQ(layout->heightForWidth(1), 20 + cGap + 30 + cGap + 20);
    EXPECT_EQ(layout->heightForWidth(320), 30) << "asked again";
}

TEST_F(FlowLayoutTest, PlaceElsewhere_IsFilledFromItsCorner) {
    row.resize(600, 200);
    layout->setGeometry(QRect(40, 50, 319, 150));
    EXPECT_EQ(first.x(), 40);
    EXPECT_EQ(second.x(), 150);
    EXPECT_EQ(last.x(), 40);
    EXPECT_GE(last.y(), 50 + 30 + cGap);
}

TEST_F(FlowLayoutTest, WhoeverWantsAll_TakesWhatIsLeft) {
    letLastGrow();
    giveRoom(500);
    EXPECT_EQ(last.x(), 220);
    EXPECT_EQ(last.width(), 280);
    giveRoom(280);
    EXPECT_EQ(last.y() / 30, 0) << "narrow is better than below";
    EXPECT_EQ(last.width(), 60);
    giveRoom(279);
    EXPECT_GE(last.y(), 30 + cGap);
    EXPECT_EQ(last.width(), 279);
}

TEST_F(FlowLayoutTest, SeveralThatWantAll_ShareWhatIsLeft) {
    letLastGrow();
    second.setMinimumSize(60, 30);
    second.setMaximumWidth(QWIDGETSIZE_MAX);
    second.setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed);
    giveRoom(341); // 101 points are left
    EXPECT_EQ(second.width() + last.width(), 341 - 100 - 2 * cGap);
    EXPECT_NEAR(second.width(), last.width(), 1);
    EXPECT_EQ(last.geometry().right(), 340) << "nothing is left over";
}

TEST_F(FlowLayoutTest, Hidden_TakesNoRoom) {
    second.hide();
    giveRoom(210);
    EXPECT_EQ(last.x(), 110);
    EXPECT_EQ(layout->heightForWidth(210), 20);
    EXPECT_EQ(layout->sizeHint(), QSize(210, 20));
    EXPECT_EQ(layout->minimumSize(), QSize(100, 20));
    first.hide();
    last.hide();
    EXPECT_EQ(layout->heightForWidth(210), 0);
    EXPECT_EQ(layout->sizeHint(), QSize(0, 0));
}

TEST_F(FlowLayoutTest, MirroredRow_BeginsAtTheRight) {
    row.setLayoutDirection(Qt::RightToLeft);
    giveRoom(400);
    EXPECT_EQ(first.geometry().right(), 399);
    EXPECT_EQ(second.geometry().right(), 399 - 110);
}

TEST_F(FlowLayoutTest, Items_AreInOrderAndCanBeTakenOut) {
    EXPECT_EQ(layout->count(), 3);
    EXPECT_EQ(layout->itemAt(0)->widget(), &first);
    EXPECT_EQ(layout->itemAt(2)->widget(), &last);
    EXPECT_EQ(layout->itemAt(3), nullptr);
    EXPECT_EQ(layout->itemAt(-1), nullptr);
    EXPECT_EQ(layout->takeAt(3), nullptr);
    EXPECT_EQ(layout->heightForWidth(320), 30);
    const std::unique_ptr<QLayoutItem> taken(layout->takeAt(1));
    EXPECT_EQ(taken->widget(), &second);
    EXPECT_EQ(layout->count(), 2);
    EXPECT_EQ(layout->heightForWidth(320), 20) << "measured anew";
}

TEST(FlowLayoutHeightTest, FollowsWhatLiesInIt) {
    QWidget row;
    auto* text = new WrappedLabel(&row);
    auto* button = new QPushButton(QStringLiteral("Choose"), &row);
    auto& layout = *new FlowLayout(row);
    const int asOne = layout.heightForWidth(2000);
    const int broken = layout.heightForWidth(10);
    EXPECT_GT(broken, asOne);
    EXPECT_EQ(layout.heightForWidth(2000), asOne);
    text->setText(cText.repeated(20));
    EXPECT_GT(layout.heightForWidth(300), asOne) << "another text";
    text->setText(QString());
    button->setFixedHeight(300);
    EXPECT_EQ(layout.heightForWidth(2000), 300) << "a higher button";
    button->hide();
    EXPECT_LT(layout.heightForWidth(2000), 300) << "none";
    layout.addWidget(new QPushButton(QStringLiteral("Reveal")));
    EXPECT_GE(layout.heightForWidth(2000), layout.itemAt(2)->sizeHint().height()) << "another one";
}

} // namespace
} // namespace kelvo
