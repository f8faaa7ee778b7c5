// What a wrapped text measures, remembered or not.
#include "ui/widgets/wrapped_label.h"

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
                for (const int width : {4000, 900, 460, 380, 300, 220, 140, 60, 300, 2000, 3900})
                    EXPECT_EQ(label.heightForWidth(width), measured(label, width))
                        << what << ' ' << width;
            }
        };
        label.setText(cText);
        check("text");
        label.setText(u"  \u202e" + cText + u'\n' + cText);
        check("two lines");
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

TEST(WrappedLabelTest, TextOfOneLine_BreaksWhereItsPlaceEnds) {
    for (const QString& text : {cText, QString(cText + u' ' + cText), QStringLiteral("on")}) {
        WrappedLabel label;
        label.setText(text);
        const int whole = label.fontMetrics().horizontalAdvance(text);
        EXPECT_EQ(label.heightForWidth(10 * whole), measured(label, 10 * whole));
        for (int width = whole + 20; width > whole - 20; --width)
            EXPECT_EQ(label.heightForWidth(width), measured(label, width)) << width - whole;
    }
}

TEST(WrappedLabelTest, Markup_IsText) {
    WrappedLabel label;
    label.setText(QStringLiteral("<b>one</b>"));
    EXPECT_EQ(label.textFormat(), Qt::PlainText);
    EXPECT_TRUE(label.wordWrap());
}

} // namespace
} // namespace kelvo
