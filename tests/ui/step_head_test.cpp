#include "ui/widgets/elided_label.h"
#include "ui/widgets/step_head.h"

#include <QLabel>
#include <QPushButton>

#include <gtest/gtest.h>

namespace kelvo {
namespace {

class StepHeadTest : public ::testing::Test {
protected:
    StepHeadTest() {
        head.setTitle(QStringLiteral("Account"));
        head.resize(700, 40);
        head.show();
    }

    QLabel& label(const char* name) { return *head.findChild<QLabel*>(QString::fromLatin1(name)); }
    QLabel& sign() { return *head.findChild<QLabel*>(QString(), Qt::FindDirectChildrenOnly); }
    QImage picture() { return sign().pixmap().toImage(); }
    void show(StepState state, StepHead::Fold fold = StepHead::Fold::Never) {
        SetupLine line;
        line.state = state;
        line.summary = QStringLiteral("ann@mac.local");
        head.showStep(line, fold);
    }

    StepHead head;
};

TEST_F(StepHeadTest, State_IsAWordAndASign) {
    QList<QImage> pictures;
    for (const auto& [state, word] :
         {std::pair(StepState::Done, "Done"), std::pair(StepState::Next, "Next"),
          std::pair(StepState::Trouble, "Trouble")}) {
        show(state);
        EXPECT_EQ(label("stepWord").text(), QLatin1StringView(word));
        EXPECT_FALSE(picture().isNull());
        EXPECT_FALSE(pictures.contains(picture())) << word;
        pictures.append(picture());
    }
    show(StepState::Later);
    EXPECT_EQ(label("stepWord").text(), u"Later");
    EXPECT_TRUE(picture().isNull()) << "what comes later has no sign yet";
    EXPECT_EQ(head.title(), u"Account");
    EXPECT_TRUE(label("stepTitle").font().bold());
    EXPECT_FALSE(label("stepWord").font().bold());
    for (const char* name : {"stepTitle", "stepWord"})
        EXPECT_EQ(label(name).textFormat(), Qt::PlainText);
}

TEST_F(StepHeadTest, Button_FoldsAndUnfoldsAndSaysWhat) {
    const auto& summary = *head.findChild<ElidedLabel*>(QStringLiteral("stepSummary"));
    const QPushButton& button = head.changeButton();
    EXPECT_FALSE(button.isVisible());
    EXPECT_FALSE(summary.isVisible());
    EXPECT_TRUE(button.autoDefault());
    show(StepState::Done, StepHead::Fold::Folded);
    EXPECT_EQ(button.text(), u"Change");
    EXPECT_EQ(button.accessibleName(), u"Change: Account");
    EXPECT_TRUE(button.isVisible());
    EXPECT_TRUE(summary.isVisible());
    EXPECT_EQ(summary.fullText(), u"ann@mac.local");
    show(StepState::Done, StepHead::Fold::Unfolded);
    EXPECT_EQ(button.text(), u"Close");
    EXPECT_TRUE(button.isVisible());
    EXPECT_FALSE(summary.isVisible());
    show(StepState::Next);
    EXPECT_FALSE(button.isVisible());
}

TEST_F(StepHeadTest, Sign_FollowsLettersAndColours) {
    show(StepState::Trouble);
    EXPECT_EQ(sign().height(), head.fontMetrics().height());
    const QImage before = picture();
    QPalette dark;
    dark.setColor(QPalette::Window, QColor(0x20, 0x20, 0x20));
    dark.setColor(QPalette::WindowText, Qt::white);
    head.setPalette(dark);
    EXPECT_NE(picture(), before);
    show(StepState::Done);
    const QImage white = picture();
    QPalette light = dark;
    light.setColor(QPalette::WindowText, Qt::black);
    head.setPalette(light);
    EXPECT_NE(picture(), white);
    QFont large = head.font();
    large.setPixelSize(40);
    head.setFont(large);
    EXPECT_EQ(sign().height(), QFontMetrics(large).height());
    EXPECT_EQ(picture().width(), sign().width());
    head.hide();
    show(StepState::Trouble);
    head.show();
    EXPECT_NE(picture(), white) << "drawn once it is looked at";
}

} // namespace
} // namespace kelvo
