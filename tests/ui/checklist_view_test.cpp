#include "ui/widgets/checklist_view.h"

#include <QApplication>
#include <QLabel>
#include <QPointer>
#include <QToolButton>

#include <gtest/gtest.h>

namespace kelvo {
namespace {

class ChecklistViewTest : public ::testing::Test {
protected:
    QStringList texts() {
        QStringList shown;
        for (const QLabel* label : view.findChildren<QLabel*>()) {
            if (!label->isHidden() && label->text() != QStringLiteral("•"))
                shown << label->text();
        }
        return shown;
    }

    QStringList shownButtons() {
        QStringList names;
        for (const QToolButton* button : view.findChildren<QToolButton*>()) {
            if (!button->isHidden())
                names << button->accessibleName();
        }
        return names;
    }

    QWidget window;
    ChecklistView view{&window};
};

TEST_F(ChecklistViewTest, LinesStandWithTheirButtons) {
    std::vector<Remedy> chosen;
    view.setRemedyChosen([&chosen](Remedy remedy) { chosen.push_back(remedy); });
    EXPECT_TRUE(view.isHidden()) << "nothing is known yet";
    view.setLines({{QStringLiteral("<b>one</b>"), Remedy::ShowRemoteTab},
                   {QStringLiteral("two"), Remedy::ChooseDestination}});
    EXPECT_FALSE(view.isHidden());
    EXPECT_EQ(texts(), (QStringList{QStringLiteral("<b>one</b>"), QStringLiteral("two")}));
    for (QToolButton* button : view.findChildren<QToolButton*>()) {
        EXPECT_FALSE(button->accessibleName().isEmpty());
        button->click();
    }
    EXPECT_EQ(chosen, (std::vector{Remedy::ShowRemoteTab, Remedy::ChooseDestination}));
}

TEST_F(ChecklistViewTest, SameRemedy_HasOneButtonBesideTheFirstOfItsLines) {
    view.setLines({{QStringLiteral("one"), Remedy::ShowRemoteTab},
                   {QStringLiteral("two"), Remedy::ShowRemoteTab},
                   {QStringLiteral("three"), Remedy::ChooseDestination}});
    EXPECT_EQ(texts().size(), 3);
    EXPECT_EQ(shownButtons(), (QStringList{"Show Remote Mac: one", "Choose…: three"}));
}

TEST_F(ChecklistViewTest, LineThatGoes_LeavesFocusAndButtonsOfTheOthers) {
    window.show();
    QApplication::setActiveWindow(&window);
    view.setLines({{QStringLiteral("one"), Remedy::ShowRemoteTab},
                   {QStringLiteral("two"), Remedy::ShowRemoteTab},
                   {QStringLiteral("three"), Remedy::ChooseDestination}});
    QPointer<QToolButton> button = view.findChild<QToolButton*>();
    button->setFocus();
    ASSERT_TRUE(button->hasFocus());
    view.setLines({{QStringLiteral("two"), Remedy::ShowRemoteTab},
                   {QStringLiteral("three"), Remedy::ChooseDestination}});
    ASSERT_TRUE(button);
    EXPECT_TRUE(button->hasFocus());
    EXPECT_EQ(texts(), (QStringList{"two", "three"}));
    EXPECT_EQ(shownButtons(), (QStringList{"Show Remote Mac: two", "Choose…: three"}));
}

TEST_F(ChecklistViewTest, LineThatMovesUp_TakesTheFocusOfItsButtonWithIt) {
    window.show();
    QApplication::setActiveWindow(&window);
    view.setLines({{QStringLiteral("one"), Remedy::ShowRemoteTab},
                   {QStringLiteral("two"), Remedy::ChooseDestination}});
    view.findChildren<QToolButton*>().at(1)->setFocus();
    view.setLines({{QStringLiteral("two"), Remedy::ChooseDestination}});
    const auto* focused = qobject_cast<QToolButton*>(QApplication::focusWidget());
    ASSERT_TRUE(focused);
    EXPECT_EQ(focused->accessibleName(), u"Choose…: two");
}

TEST_F(ChecklistViewTest, FocusedLineThatGoes_LeavesTheFocusToANeighbour) {
    window.show();
    QApplication::setActiveWindow(&window);
    view.setLines({{QStringLiteral("one"), Remedy::ShowRemoteTab},
                   {QStringLiteral("two"), Remedy::ChooseDestination}});
    view.findChildren<QToolButton*>().at(1)->setFocus();
    view.setLines({{QStringLiteral("one"), Remedy::ShowRemoteTab}});
    EXPECT_EQ(QApplication::focusWidget(), view.findChildren<QToolButton*>().at(0));
}

TEST_F(ChecklistViewTest, AllWell_TakesTheLinesAway) {
    view.setLines({{QStringLiteral("one"), Remedy::ChooseSource}});
    view.setLines({});
    EXPECT_TRUE(view.isHidden());
    EXPECT_TRUE(texts().isEmpty());
    view.setLines({{QStringLiteral("two"), Remedy::ChooseSource}});
    EXPECT_EQ(texts(), QStringList{QStringLiteral("two")});
}

} // namespace
} // namespace kelvo
