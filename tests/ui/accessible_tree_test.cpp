// What can be seen, compared with what a screen reader is given: the same widgets asked both ways.
#include "fakes/memory_defaults.h"
#include "fakes/memory_pass_store.h"
#include "fakes/virtual_queues.h"
#include "ui/widgets/accessible_factory.h"
#include "ui/widgets/checklist_view.h"
#include "ui/widgets/elided_label.h"
#include "ui/widgets/main_window.h"
#include "ui/widgets/path_control_view.h"
#include "ui/widgets/recent_arrivals.h"
#include "ui/widgets/status_field_view.h"
#include "ui/widgets/sync_tab.h"

#include <QAbstractButton>
#include <QAccessible>
#include <QApplication>
#include <QFrame>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>

#include <gtest/gtest.h>

namespace kelvo {
namespace {

/// Every object below `root`, as far as it is not hidden, with all it is called.
void gather(const QAccessibleInterface& root, std::multimap<const QObject*, QString>& texts) {
    for (int i = 0; i < root.childCount(); ++i) {
        const QAccessibleInterface* child = root.child(i);
        if (!child || child->state().invisible)
            continue;
        texts.emplace(child->object(), child->text(QAccessible::Name));
        texts.emplace(child->object(), child->text(QAccessible::Value));
        gather(*child, texts);
    }
}

/// The letters as a person reads them: without signs for keys and for a dialog to come.
QString read(QString text) {
    return text.remove(u'&').remove(u'…');
}

class AccessibleTreeTest : public ::testing::Test {
protected:
    AccessibleTreeTest() {
        window.show();
        QApplication::setActiveWindow(&window);
    }

    /// The texts on the screen that are not in the tree; one without letters does not count.
    QStringList silentTexts() {
        QCoreApplication::processEvents();
        std::multimap<const QObject*, QString> spoken;
        gather(*QAccessible::queryAccessibleInterface(&window), spoken);
        QStringList silent;
        const auto require = [&](const QWidget& widget, const QString& text) {
            if (!widget.isVisible() || read(text).trimmed().isEmpty() || text == u"•")
                return;
            const auto [first, last] = spoken.equal_range(&widget);
            if (std::none_of(first, last,
                             [&](const auto& one) { return one.second.contains(read(text)); }))
                silent.append(widget.objectName() + u": " + text);
            ++required;
        };
        for (const QLabel* label : window.findChildren<QLabel*>()) {
            const auto* elided = qobject_cast<const ElidedLabel*>(label);
            require(*label, elided ? elided->fullText() : label->text());
        }
        for (const QAbstractButton* button : window.findChildren<QAbstractButton*>())
            require(*button, button->text());
        for (const QLineEdit* field : window.findChildren<QLineEdit*>()) {
            if (!field->objectName().startsWith(u"qt_"))
                require(*field, field->text());
        }
        return silent;
    }

    MemoryDefaults defaults;
    VirtualMainQueue mainQueue;
    MainWindow window{defaults, mainQueue};
    int required = 0;
};

TEST_F(AccessibleTreeTest, EveryVisibleText_IsSpokenWithItsWords) {
    window.showWork(
        {.phase = WorkPhase::Running,
         .step = QStringLiteral("First pull"),
         .file = QStringLiteral("A rather long name of a movie, too long for the row.mkv"),
         .count = QStringLiteral("file 7 of 15"),
         .share = 0.5,
         .health = {.sign = HealthSign::Trouble,
                    .text = QStringLiteral("It refuses logins."),
                    .lastSuccess = QStringLiteral("Last success: just now, 3 files"),
                    .remedy = Remedy::CheckAgain},
         .remarks = {QStringLiteral("The settings were damaged.")},
         .mayCancel = true});
    window.syncTab().checklist().setLines({{QStringLiteral("No host"), Remedy::ShowRemoteTab},
                                           {QStringLiteral("No folder"), Remedy::ChooseSource}});
    window.syncTab().setNetworkStatus(QStringLiteral("Connected to the network"));
    window.ibStatusTextField().show({QStringLiteral("Resting a bit ..."), StatusColor::Red});
    window.destinationPath().setPath(QStringLiteral("/in/a/box"));
    window.showKeyState(KeyState::NotAccepted);
    window.resize(300, 700);
    for (const MainWindow::Tab& tab : window.tabs()) {
        window.showTab(tab.identifier);
        EXPECT_EQ(silentTexts(), QStringList()) << qPrintable(tab.identifier);
    }
    EXPECT_GT(required, 60);
}

TEST_F(AccessibleTreeTest, StartButton_IsAPushButtonNamedByItsTitle) {
    QPushButton& start = window.ibStartButton();
    QAccessibleInterface& heard = *QAccessible::queryAccessibleInterface(&start);
    EXPECT_EQ(heard.role(), QAccessible::PushButton);
    EXPECT_EQ(heard.text(QAccessible::Name), u"Start rsync");
    heard.actionInterface()->doAction(QAccessibleActionInterface::pressAction());
    EXPECT_TRUE(start.isChecked());
    EXPECT_FALSE(heard.state().checkable || heard.state().checked);
    start.setEnabled(false);
    EXPECT_FALSE(
        heard.actionInterface()->actionNames().contains(QAccessibleActionInterface::pressAction()));
}

TEST_F(AccessibleTreeTest, StatusText_CanBeReachedAndReadAgain) {
    window.ibStatusTextField().show({QStringLiteral("Resting a bit ...")});
    auto* text = window.findChild<QLabel*>(QStringLiteral("statusText"));
    EXPECT_EQ(text->focusPolicy() & Qt::TabFocus, Qt::TabFocus);
    const QImage before = window.ibStatusTextField().grab().toImage();
    text->setFocus();
    ASSERT_TRUE(text->hasFocus());
    EXPECT_NE(window.ibStatusTextField().grab().toImage(), before) << "the focus is seen";
    const QAccessibleInterface& heard = *QAccessible::queryAccessibleInterface(text);
    EXPECT_EQ(heard.text(QAccessible::Name), u"Resting a bit ...");
    EXPECT_TRUE(heard.state().focused);
    EXPECT_EQ(QAccessible::queryAccessibleInterface(&window.ibStatusTextField())->role(),
              QAccessible::Grouping);
}

TEST_F(AccessibleTreeTest, Line_IsASeparatorAndAnotherFrameIsNot) {
    QFrame line;
    QFrame frame;
    line.setFrameShape(QFrame::HLine);
    frame.setFrameShape(QFrame::StyledPanel);
    EXPECT_EQ(QAccessible::queryAccessibleInterface(&line)->role(), QAccessible::Separator);
    EXPECT_NE(QAccessible::queryAccessibleInterface(&frame)->role(), QAccessible::Separator);
}

TEST_F(AccessibleTreeTest, StartButton_DoesWhatElseIsAskedOfAButton) {
    QPushButton& start = window.ibStartButton();
    auto* actions = QAccessible::queryAccessibleInterface(&start)->actionInterface();
    EXPECT_EQ(actions->actionNames().constFirst(), QAccessibleActionInterface::pressAction());
    window.button(QStringLiteral("showAllArrivals")).setFocus();
    actions->doAction(QAccessibleActionInterface::setFocusAction());
    EXPECT_TRUE(start.hasFocus());
    EXPECT_FALSE(start.isChecked()) << "it was not pressed";
    start.setText(QStringLiteral("St&op"));
    start.setAccessibleName({});
    EXPECT_EQ(QAccessible::queryAccessibleInterface(&start)->text(QAccessible::Name), u"Stop");
}

TEST_F(AccessibleTreeTest, Spokesman_IsHeardAndNotSeen) {
    const Spokesman spokesman(window, QStringLiteral("All is well."));
    EXPECT_FALSE(spokesman.isVisible());
    EXPECT_EQ(spokesman.size(), QSize(0, 0));
    auto* heard = QAccessible::queryAccessibleInterface(const_cast<Spokesman*>(&spokesman));
    EXPECT_EQ(heard->role(), QAccessible::Notification);
    EXPECT_EQ(heard->text(QAccessible::Name), u"All is well.");
    EXPECT_FALSE(heard->state().invisible);
}

} // namespace
} // namespace kelvo
