// A text that is cut where there is no room for it.
#include "ui/widgets/elided_label.h"

#include <QApplication>
#include <QClipboard>
#include <QContextMenuEvent>
#include <QMenu>
#include <QTimer>

#include <gtest/gtest.h>

namespace kelvo {
namespace {

const QString cPath = QStringLiteral("/Volumes/Media/<b>Movies</b>/A Long Feature (2019).mkv");

class ElidedLabelTest : public ::testing::Test {
protected:
    ElidedLabelTest() { label.show(); }

    int widthOf(const QString& text) const { return label.fontMetrics().horizontalAdvance(text); }
    void giveRoom(int width) { label.resize(width, label.sizeHint().height()); }

    ElidedLabel label;
};

TEST_F(ElidedLabelTest, Room_ShowsTheTextWholeAndNeedsNoToolTip) {
    label.setFullText(cPath);
    giveRoom(label.sizeHint().width());
    EXPECT_EQ(label.text(), cPath);
    EXPECT_EQ(label.textFormat(), Qt::PlainText);
    EXPECT_EQ(label.toolTip(), QString());
    EXPECT_LE(label.sizeHint().width(), widthOf(cPath) + 3) << "rounded up, and two to spare";
    EXPECT_GE(label.sizeHint().height(), label.fontMetrics().height());
}

TEST_F(ElidedLabelTest, LittleRoom_CutsTheMiddleAndTheRestIsToldOtherwise) {
    label.setFullText(cPath);
    giveRoom(label.sizeHint().width() / 2);
    EXPECT_LE(widthOf(label.text()), label.width());
    EXPECT_TRUE(label.text().startsWith(u"/Vol"));
    EXPECT_TRUE(label.text().endsWith(u".mkv"));
    EXPECT_TRUE(label.text().contains(u'…'));
    EXPECT_TRUE(label.toolTip().contains(u"&lt;b&gt;Movies&lt;/b&gt;")) << "no markup";
    EXPECT_EQ(label.accessibleName(), cPath) << "heard whole";
    giveRoom(label.sizeHint().width());
    EXPECT_EQ(label.text(), cPath);
    EXPECT_EQ(label.toolTip(), QString());
}

TEST_F(ElidedLabelTest, LeastRoom_IsThatOfAFewLettersOrOfAShorterText) {
    label.setFullText(cPath);
    EXPECT_EQ(label.minimumSizeHint().width(), widthOf(QStringLiteral("mmmm…mmmm")));
    label.setFullText(QStringLiteral("a.mkv"));
    EXPECT_EQ(label.minimumSizeHint().width(), label.sizeHint().width());
    label.setContentsMargins(5, 0, 7, 0);
    EXPECT_EQ(label.sizeHint().width(), widthOf(QStringLiteral("a.mkv")) + 5 + 7 + 2);
    label.setFullText(QString());
    EXPECT_GE(label.sizeHint().height(), label.fontMetrics().height()) << "its line stays";
}

TEST_F(ElidedLabelTest, LargerLetters_AreCutAnew) {
    label.setFullText(cPath);
    giveRoom(label.sizeHint().width());
    QFont large = label.font();
    large.setPixelSize(40);
    label.setFont(large);
    EXPECT_TRUE(label.text().contains(u'…'));
    EXPECT_LE(widthOf(label.text()), label.width());
}

TEST_F(ElidedLabelTest, Menu_CopiesTheWholeText) {
    QStringList entries;
    const auto openMenu = [&] {
        entries.clear();
        QTimer::singleShot(0, &label, [&] {
            auto* menu = qobject_cast<QMenu*>(QApplication::activePopupWidget());
            if (!menu)
                return;
            for (QAction* entry : menu->actions()) {
                entries.append(entry->text());
                entry->trigger();
            }
            menu->close();
        });
        QContextMenuEvent event(QContextMenuEvent::Keyboard, QPoint(2, 2),
                                label.mapToGlobal(QPoint(2, 2)));
        QApplication::sendEvent(&label, &event);
        QCoreApplication::processEvents();
    };
    label.setFullText(cPath);
    giveRoom(label.sizeHint().width() / 2);
    openMenu();
    EXPECT_EQ(entries, QStringList{QStringLiteral("&Copy")});
    EXPECT_EQ(QGuiApplication::clipboard()->text(), cPath);
    label.setFullText(QString());
    openMenu();
    EXPECT_TRUE(entries.isEmpty()) << "there is nothing to copy";
}

TEST_F(ElidedLabelTest, OtherWayOfWriting_TurnsItRound) {
    EXPECT_EQ(label.alignment(), Qt::AlignLeft | Qt::AlignAbsolute | Qt::AlignVCenter);
    label.setLayoutDirection(Qt::RightToLeft);
    EXPECT_EQ(label.alignment(), Qt::AlignRight | Qt::AlignAbsolute | Qt::AlignVCenter);
}

TEST_F(ElidedLabelTest, PlainToolTip_OfNothingIsNone) {
    EXPECT_EQ(plainToolTip(QString()), QString());
    EXPECT_TRUE(plainToolTip(QStringLiteral("<i>")).contains(u"&lt;i&gt;"));
}

} // namespace
} // namespace kelvo
