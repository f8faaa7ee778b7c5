// What a wrapped text measures, remembered or not.
#include "ui/widgets/flow_layout.h"
#include "ui/widgets/wrapped_label.h"

#include <QPushButton>

#include <gtest/gtest.h>

namespace kelvo {
namespace {

const QString cText = QStringLiteral("The Mac is away or asleep. Wake it, then try again.");

/// A label as the toolkit makes it, set up alike.
int measured(const WrappedLabel& like, int width) {
    QLabel label(QStringLiteral("a text once"));
    label.setText(like.text());
    label.setTextFormat(Qt::PlainText);
    label.setWordWrap(true);
    label.setTextInteractionFlags(like.textInteractionFlags());
    label.setFont(like.font());
    return label.heightForWidth(width);
}

TEST(WrappedLabelTest, Heights_AreThoseOfTheTextAsItIs) {
    for (const bool selectable : {false, true}) {
        WrappedLabel label;
        if (selectable)
            label.setTextInteractionFlags(Qt::TextSelectableByMouse);
        const auto check = [&label](const char* what) {
            for (int round = 0; round < 2; ++round) {
                for (int width = 60; width <= 460; width += 80)
                    EXPECT_EQ(label.heightForWidth(width), measured(label, width))
                        << what << ' ' << width;
            }
        };
        label.setText(cText);
        check("text");
        label.setText(cText + u' ' + cText);
        check("longer text");
        QFont large = label.font();
        large.setPixelSize(40);
        label.setFont(large);
        check("larger letters");
        label.setText(QString());
        check("no text");
    }
}

TEST(WrappedLabelTest, Markup_IsText) {
    WrappedLabel label;
    label.setText(QStringLiteral("<b>one</b>"));
    EXPECT_EQ(label.textFormat(), Qt::PlainText);
    EXPECT_TRUE(label.wordWrap());
}

TEST(FlowLayoutTest, Height_FollowsWhatLiesInIt) {
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
