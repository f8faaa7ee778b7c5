// What a wrapped text measures, remembered or not.
#include "ui/widgets/wrapped_label.h"

#include <gtest/gtest.h>

namespace kelvo {
namespace {

const QString cText = QStringLiteral("The Mac is away or asleep. Wake it, then try again.");

/// Has a label as the toolkit makes it, set up alike, answer.
template <typename Question>
int answered(const WrappedLabel& like, const Question& question) {
    QLabel label(QStringLiteral("a text once"));
    label.setText(like.text());
    label.setTextFormat(Qt::PlainText);
    label.setWordWrap(true);
    label.setTextInteractionFlags(like.textInteractionFlags());
    label.setFont(like.font());
    return question(label);
}

int measured(const WrappedLabel& like, int width) {
    return answered(like, [width](const QLabel& label) { return label.heightForWidth(width); });
}

int longestWord(const WrappedLabel& like) {
    return answered(like, [](const QLabel& label) { return label.minimumSizeHint().width(); });
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
                EXPECT_EQ(label.minimumSizeHint().width(), longestWord(label)) << what;
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

TEST(WrappedLabelTest, Hint_IsTheWholeTextUpToALineOf80Letters) {
    WrappedLabel label;
    label.setText(QStringLiteral("Wake it."));
    EXPECT_EQ(label.sizeHint(), QLabel(label.text()).sizeHint());
    label.setText(QString(cText + u' ').repeated(10));
    const QSize hint = label.sizeHint();
    EXPECT_EQ(hint.width(), label.fontMetrics().averageCharWidth() * 80);
    EXPECT_NEAR(hint.height(), label.heightForWidth(hint.width()),
                2 * label.fontMetrics().lineSpacing());
}

TEST(WrappedLabelTest, Markup_IsText) {
    WrappedLabel label;
    label.setText(QStringLiteral("<b>one</b>"));
    EXPECT_EQ(label.textFormat(), Qt::PlainText);
    EXPECT_TRUE(label.wordWrap());
}

} // namespace
} // namespace kelvo
