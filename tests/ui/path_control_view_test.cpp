#include "support/file_url.h"
#include "ui/widgets/path_control_view.h"
#include "ui/widgets/widget_controls.h"

#include <QAction>
#include <QApplication>
#include <QDir>
#include <QLabel>
#include <QMenu>
#include <QSignalSpy>
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

} // namespace
} // namespace kelvo
