#include "support/file_url.h"
#include "ui/widgets/path_control_view.h"
#include "ui/widgets/widget_controls.h"

#include <QAction>
#include <QApplication>
#include <QDir>
#include <QLabel>
#include <QLineEdit>
#include <QMenu>
#include <QSignalSpy>
#include <QTest>
#include <QToolButton>

#include <gtest/gtest.h>

#include <algorithm>

namespace kelvo {
namespace {

class PathControlViewTest : public ::testing::Test {
protected:
    PathControlViewTest() {
        view.setTextWhenEmpty(QStringLiteral("No folder"));
        view.resize(900, 30);
        view.show();
    }
    QStringList visibleParts() const {
        QStringList texts;
        for (const QToolButton* button : view.findChildren<QToolButton*>()) {
            if (button->isVisible() && button->objectName() != u"hiddenParts")
                texts.append(button->text());
        }
        return texts;
    }
    QToolButton* hidden() const {
        return view.findChild<QToolButton*>(QStringLiteral("hiddenParts"));
    }

    PathControlView view;
};

TEST_F(PathControlViewTest, Path_IsARowOfParts) {
    view.setPath(QStringLiteral("/Users/near/My Movies"));
    EXPECT_EQ(visibleParts(), (QStringList{"/", "Users", "near", "My Movies"}));
    EXPECT_FALSE(hidden()->isVisible());
    QSignalSpy clicked(&view, &PathControlView::partClicked);
    view.findChild<QToolButton*>(QStringLiteral("part2"))->click();
    EXPECT_EQ(clicked.at(0).at(0).toString(), u"/Users/near");
}

TEST_F(PathControlViewTest, OtherPath_KeepsTheFocusInTheRow) {
    QApplication::setActiveWindow(&view);
    view.setPath(QStringLiteral("/Users/near/Movies"));
    view.findChild<QToolButton*>(QStringLiteral("part3"))->setFocus();
    view.setPath(QStringLiteral("/Volumes/Disk/Movies"));
    EXPECT_EQ(QApplication::focusWidget()->accessibleName(), u"Movies");
    view.setPath(QStringLiteral("/Volumes"));
    EXPECT_EQ(QApplication::focusWidget()->accessibleName(), u"Volumes");
}

TEST_F(PathControlViewTest, Home_IsATilde) {
    const QString home = QDir::homePath();
    view.setPath(home + u"/Videos/Incoming");
    EXPECT_EQ(visibleParts(), (QStringList{"~", "Videos", "Incoming"}));
    EXPECT_EQ(view.parts()[0].path, home);
    EXPECT_EQ(view.parts()[2].path, QString(home + u"/Videos/Incoming"));
    EXPECT_TRUE(view.toolTip().contains(home)) << "the whole path";
    view.setPath(home);
    EXPECT_EQ(visibleParts(), QStringList{"~"});
    view.setPath(home + u"less/Videos");
    EXPECT_EQ(visibleParts().first(), u"/");
}

TEST_F(PathControlViewTest, ContextMenuOfAPart_AsksForItsFolder) {
    view.setPath(QStringLiteral("/Users/R&D/My Movies"));
    QSignalSpy clicked(&view, &PathControlView::partClicked);
    QSignalSpy open(&view, &PathControlView::openRequested);
    const auto* part = view.findChild<QToolButton*>(QStringLiteral("part2"));
    EXPECT_EQ(part->contextMenuPolicy(), Qt::ActionsContextMenu);
    ASSERT_EQ(part->actions().size(), 1);
    EXPECT_EQ(part->actions()[0]->text(), u"Open R&&D");
    part->actions()[0]->trigger();
    ASSERT_EQ(open.size(), 1);
    EXPECT_EQ(open.at(0).at(0).toString(), u"/Users/R&D");
    EXPECT_TRUE(clicked.isEmpty());
}

TEST_F(PathControlViewTest, NoPath_SaysSo) {
    EXPECT_EQ(view.findChild<QLabel*>()->text(), u"No folder");
    EXPECT_TRUE(view.findChild<QLabel*>()->isVisible());
    view.setPath(QStringLiteral("/a"));
    EXPECT_FALSE(view.findChild<QLabel*>()->isVisible());
}

TEST_F(PathControlViewTest, LittleRoom_KeepsTheLastPartsAndPutsTheOthersInAMenu) {
    view.setPath(QStringLiteral("/") + QStringLiteral("folder/").repeated(30) + u"last");
    view.resize(300, 30);
    EXPECT_EQ(visibleParts().last(), u"last");
    EXPECT_LT(visibleParts().size(), 10);
    ASSERT_TRUE(hidden()->isVisible());
    EXPECT_EQ(visibleParts().first(), u"/");
    EXPECT_EQ(hidden()->menu()->actions().size() + visibleParts().size(), 32);
    int right = 0;
    for (const QToolButton* button : view.findChildren<QToolButton*>()) {
        if (!button->isVisible())
            continue;
        EXPECT_TRUE(view.rect().contains(button->geometry())) << qPrintable(button->text());
        EXPECT_EQ(button->height(), view.height());
        right = std::max(right, button->geometry().right());
    }
    EXPECT_GT(right, view.width() / 2) << "as many as fit";
    QSignalSpy clicked(&view, &PathControlView::partClicked);
    hidden()->menu()->actions().at(0)->trigger();
    EXPECT_EQ(clicked.at(0).at(0).toString(), u"/folder");
}

TEST_F(PathControlViewTest, LongName_IsCutInTheMiddleAndStaysInside) {
    const QString name = QString(100, u'a') + QString(100, u'z');
    view.setPath(u'/' + name);
    view.resize(300, 30);
    ASSERT_EQ(visibleParts().size(), 2);
    EXPECT_TRUE(visibleParts()[1].contains(u'…'));
    const auto* button = view.findChild<QToolButton*>(QStringLiteral("part1"));
    EXPECT_LE(button->geometry().right(), view.width());
    EXPECT_EQ(button->accessibleName(), name);
    EXPECT_TRUE(button->toolTip().contains(name));
}

TEST_F(PathControlViewTest, NamesFromElsewhere_AreText) {
    view.setPath(QStringLiteral("/<b>a</b>&b"));
    const auto* button = view.findChild<QToolButton*>(QStringLiteral("part2"));
    EXPECT_EQ(button->text(), u"b>&&b") << "the ampersand is no mnemonic";
    EXPECT_FALSE(button->toolTip().contains(QStringLiteral("<b>")));
}

TEST_F(PathControlViewTest, AsAPort_ItTakesAndGivesLocations) {
    WidgetPathControl control(view);
    EXPECT_EQ(control.url(), std::nullopt);
    control.setUrl(fileUrl(u"/My Movies/ü"));
    EXPECT_EQ(view.path(), u"/My Movies/ü");
    EXPECT_EQ(control.url(), fileUrl(u"/My Movies/ü"));
    EXPECT_EQ(control.pathItems(),
              (std::vector<PathControl::Item>{{QStringLiteral("/"), fileUrl(u"/")},
                                              {QStringLiteral("My Movies"), fileUrl(u"/My Movies")},
                                              {QStringLiteral("ü"), fileUrl(u"/My Movies/ü")}}));
}

TEST_F(PathControlViewTest, Parts_StandSideBySideWithASignBetween) {
    view.setPath(QStringLiteral("/Users/near/My Movies"));
    const auto place = [this](const char* part) {
        return view.findChild<QToolButton*>(QString::fromLatin1(part))->geometry();
    };
    const int gap = place("part2").left() - place("part1").right() - 1;
    EXPECT_EQ(place("part0").left(), 0);
    EXPECT_EQ(place("part1").left(), place("part0").right() + 1) << "the root is a sign itself";
    EXPECT_EQ(place("part3").left() - place("part2").right() - 1, gap);
    EXPECT_GE(gap, view.fontMetrics().horizontalAdvance(u'/'));
    const QImage image = view.grab().toImage();
    const auto inked = [&](int from, int width) {
        int sum = 0;
        for (int x = from; x < from + width; ++x) {
            for (int y = 0; y < image.height(); ++y)
                sum += image.pixel(x, y) != image.pixel(view.width() - 1, 0) ? 1 : 0;
        }
        return sum;
    };
    EXPECT_GT(inked(place("part1").right() + 1, gap), 5) << "a stroke between two names";
    EXPECT_GT(inked(place("part2").right() + 1, gap), 5);
    EXPECT_EQ(inked(place("part3").right() + 1, gap), 0) << "none after the last";
    view.setPath(QStringLiteral("/Users"));
    const QImage shorter = view.grab().toImage();
    EXPECT_EQ(shorter.copy(place("part1").right() + 1, 0, 200, shorter.height()),
              shorter.copy(view.width() - 200, 0, 200, shorter.height()))
        << "strokes go with their parts";
}

TEST_F(PathControlViewTest, RoomThatIsAskedFor_ShowsAllParts) {
    view.setPath(QStringLiteral("/Users/near/My Movies/Features/2019"));
    view.resize(view.sizeHint());
    EXPECT_FALSE(hidden()->isVisible());
    EXPECT_EQ(visibleParts().size(), 6);
    EXPECT_GE(view.sizeHint().height(), hidden()->sizeHint().height());
    EXPECT_LT(view.minimumSizeHint().width(), view.sizeHint().width());
    EXPECT_EQ(view.minimumSizeHint().height(), view.sizeHint().height());
    view.resize(view.minimumSizeHint());
    EXPECT_TRUE(hidden()->isVisible());
    view.setPath(QString());
    EXPECT_GE(view.sizeHint().width(),
              view.fontMetrics().horizontalAdvance(QStringLiteral("No folder")));
    EXPECT_EQ(view.findChild<QLabel*>()->geometry(), view.rect());
    EXPECT_EQ(view.findChild<QLabel*>()->textFormat(), Qt::PlainText);
}

TEST_F(PathControlViewTest, PartThatJustFits_IsShown) {
    view.setPath(QStringLiteral("/one/two/three/four/five"));
    for (int width = view.sizeHint().width(); width > view.minimumSizeHint().width(); --width) {
        view.resize(width, 30);
        const auto shown = visibleParts();
        ASSERT_EQ(shown.size() + hidden()->menu()->actions().size(), 6) << width;
        EXPECT_EQ(hidden()->isVisible(), shown.size() < 6) << width;
        EXPECT_EQ(shown.last(), u"five") << width;
        if (shown.size() <= 2)
            break; // from here on the last one is cut
        int used = 0;
        for (const QToolButton* button : view.findChildren<QToolButton*>()) {
            if (!button->isVisible())
                continue;
            EXPECT_TRUE(view.rect().contains(button->geometry())) << width;
            EXPECT_GE(button->width(), button->sizeHint().width()) << "whole, at " << width;
            used = std::max(used, button->geometry().right() + 1);
        }
        // The next one would not have fitted.
        if (const auto left = hidden()->menu()->actions(); !left.isEmpty() && shown.size() > 1) {
            const QString next = left.last()->text();
            EXPECT_LT(width - used, view.fontMetrics().horizontalAdvance(next) + 40) << width;
        }
    }
}

TEST_F(PathControlViewTest, LargerLetters_GetMoreRoom) {
    view.setPath(QStringLiteral("/Users/near"));
    const auto* last = view.findChild<QToolButton*>(QStringLiteral("part2"));
    const int before = last->width();
    QFont large = view.font();
    large.setPixelSize(40);
    view.setFont(large);
    EXPECT_GT(last->width(), before);
    EXPECT_GE(last->width(), last->sizeHint().width());
    EXPECT_TRUE(last->autoRaise());
    EXPECT_EQ(last->focusPolicy(), Qt::StrongFocus);
    EXPECT_EQ(hidden()->popupMode(), QToolButton::InstantPopup);
    EXPECT_EQ(hidden()->text(), u"…");
    EXPECT_EQ(last->accessibleDescription(), u"/Users/near");
}

TEST_F(PathControlViewTest, TabKey_GoesFromPartToPart) {
    QWidget window;
    QLineEdit before(&window);
    PathControlView row(&window);
    QLineEdit after(&window);
    row.setPath(QStringLiteral("/one/two/three/four/five"));
    row.resize(row.sizeHint().width() * 2 / 3, 30);
    window.show();
    QApplication::setActiveWindow(&window);
    QStringList expected;
    for (const QToolButton* button : row.findChildren<QToolButton*>()) {
        if (button->isVisible() && button->objectName() != u"hiddenParts")
            expected << button->accessibleName();
    }
    ASSERT_GT(expected.size(), 2);
    expected.insert(1, QStringLiteral("Folders above"));
    before.setFocus();
    QStringList visited;
    for (qsizetype i = 0; i < expected.size(); ++i) {
        QTest::keyClick(QApplication::focusWidget(), Qt::Key_Tab);
        visited << QApplication::focusWidget()->accessibleName();
    }
    EXPECT_EQ(visited, expected) << "as it is read";
    QTest::keyClick(QApplication::focusWidget(), Qt::Key_Tab);
    EXPECT_TRUE(after.hasFocus());
}

TEST_F(PathControlViewTest, PathWithoutARoot_IsOnePart) {
    view.setPath(QStringLiteral("box/Movies"));
    EXPECT_EQ(visibleParts(), QStringList{QStringLiteral("box/Movies")});
    view.setPath(QStringLiteral("/"));
    EXPECT_EQ(visibleParts(), QStringList{QStringLiteral("/")});
}

} // namespace
} // namespace kelvo
