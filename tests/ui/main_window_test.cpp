#include "fakes/fake_desktop.h"
#include "fakes/fake_login_item.h"
#include "fakes/memory_defaults.h"
#include "fakes/memory_pass_store.h"
#include "fakes/virtual_queues.h"
#include "settings/preference_keys.h"
#include "ui/widgets/activity_tab.h"
#include "ui/widgets/elided_label.h"
#include "ui/widgets/main_window.h"
#include "ui/widgets/path_control_view.h"
#include "ui/widgets/settings_tab.h"
#include "ui/widgets/status_field_view.h"
#include "ui/widgets/sync_tab.h"
#include "ui/widgets/widget_button.h"

#include <QApplication>
#include <QComboBox>
#include <QDoubleSpinBox>
#include <QLabel>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QRadioButton>
#include <QScreen>
#include <QScrollBar>
#include <QSignalSpy>
#include <QStyleOptionButton>
#include <QTabWidget>
#include <QTest>
#include <QToolButton>

#include <gtest/gtest.h>

#include <cstdlib>

namespace kelvo {
namespace {

class MainWindowTest : public ::testing::Test {
protected:
    MainWindowTest() {
        set(prefShowDiagnostics, true);
        window.settingsTab().setLoginItem(loginItem);
        window.activityTab().setParts({.store = store,
                                       .workspace = workspace,
                                       .mainQueue = mainQueue,
                                       .bgQueue = bgQueue,
                                       .defaults = defaults,
                                       .destination = [] { return QString(); }});
    }

    template <typename Widget>
    Widget* child(const char* name) {
        return window.findChild<Widget*>(QString::fromLatin1(name));
    }
    void set(QStringView key, const QVariant& value) {
        defaults.setObject(key, value);
        mainQueue.runDue();
    }

    /// The sign beside the status text: the other label of the field.
    QLabel* sign() {
        for (QLabel* label : window.ibStatusTextField().findChildren<QLabel*>()) {
            if (label->objectName() != u"statusText")
                return label;
        }
        return nullptr;
    }

    FakeLoginItem loginItem;
    MemoryDefaults defaults;
    VirtualMainQueue mainQueue;
    ManualBackgroundQueue bgQueue;
    MemoryPassStore store{mainQueue};
    FakeWorkspace workspace;
    MainWindow window{defaults, mainQueue};
};

// -- the Sync tab

TEST_F(MainWindowTest, NothingSet_SaysWhatIsMissing) {
    EXPECT_EQ(window.fNsPathControl1().findChild<QLabel*>()->text(),
              u"No source folder chosen yet");
    EXPECT_EQ(window.destinationPath().findChild<QLabel*>()->text(),
              u"No destination folder chosen yet");
    set(prefRsyncWithSSH, true);
    EXPECT_EQ(child<ElidedLabel>("sourceText")->fullText(), u"No remote Mac chosen yet");
    EXPECT_EQ(child<QLabel>("sourceNotice")->text(),
              u"Choose the remote Mac on the Remote Mac tab.");
}

TEST_F(MainWindowTest, SettingsChanged_AreShownOnTheNextTurn) {
    window.show();
    defaults.setObject(prefRsyncWithSSH, true);
    defaults.setObject(prefSampleRemoteFullPath, QStringLiteral("ann@mac.local:Movies"));
    defaults.setObject(prefPath2, QStringLiteral("/in <b>box</b>"));
    mainQueue.runDue();
    EXPECT_EQ(child<ElidedLabel>("sourceText")->fullText(), u"ann@mac.local:Movies");
    EXPECT_TRUE(child<ElidedLabel>("sourceText")->isVisible());
    EXPECT_EQ(window.destinationPath().path(), u"/in <b>box</b>");
    set(prefRsyncWithSSH, false);
    set(prefPath1, QStringLiteral("/cam"));
    EXPECT_FALSE(child<ElidedLabel>("sourceText")->isVisible());
    EXPECT_TRUE(window.fNsPathControl1().isVisible());
    EXPECT_EQ(window.fNsPathControl1().path(), u"/cam");
}

TEST_F(MainWindowTest, SourceInUseDiffers_IsSaidUntilItAgrees) {
    window.showTab(QStringLiteral("remote"));
    set(prefRsyncWithSSH, true);
    set(prefRemoteUsername, QStringLiteral("ann"));
    set(prefRemoteBonjourName, QStringLiteral("new.local"));
    set(prefRemotePath, QStringLiteral("Movies"));
    set(prefSampleRemoteFullPath, QStringLiteral("ann@old.local:Movies"));
    for (const char* notice : {"sourceNotice", "remoteNotice"})
        EXPECT_TRUE(child<QLabel>(notice)->text().contains(QStringLiteral("takes effect")));
    EXPECT_FALSE(child<QWidget>("sourceNow")->isHidden());
    set(prefSampleRemoteFullPath, QStringLiteral("ann@new.local:Movies"));
    for (const char* notice : {"sourceNotice", "remoteNotice"})
        EXPECT_EQ(child<QLabel>(notice)->text(), u"");
    EXPECT_TRUE(child<QWidget>("sourceNow")->isHidden());
    set(prefRemotePath, QStringLiteral("Clips"));
    set(prefRsyncWithSSH, false);
    EXPECT_TRUE(child<QWidget>("sourceNow")->isHidden()) << "passes between folders have none";
}

TEST_F(MainWindowTest, NetworkLine_IsPlainText) {
    window.syncTab().setNetworkStatus(QStringLiteral("<b>Connected</b>"));
    EXPECT_EQ(child<QLabel>("networkStatus")->text(), u"<b>Connected</b>");
    EXPECT_EQ(child<QLabel>("networkStatus")->textFormat(), Qt::PlainText);
}

TEST_F(MainWindowTest, StartButton_TurnsOverAndSendsItself) {
    int sent = 0;
    WidgetButton button(window.ibStartButton(), [&](Control* sender) {
        ++sent;
        EXPECT_EQ(dynamic_cast<Button*>(sender)->state(), sent % 2);
    });
    button.performClick();
    window.ibStartButton().click();
    EXPECT_EQ(sent, 2);
    button.setTitle(QStringLiteral("click to stop rsync"));
    EXPECT_EQ(window.ibStartButton().text(), u"click to stop rsync");
    EXPECT_EQ(window.ibStartButton().accessibleName(), u"click to stop rsync");
}

TEST_F(MainWindowTest, Trouble_HasASignBesideItsColour) {
    window.show();
    WidgetStatusField field(window.ibStatusTextField());
    field.setAttributedStringValue(
        {QStringLiteral("<i>bad</i>"), StatusColor::Red, TextAlignment::Centered});
    auto* text = child<QLabel>("statusText");
    EXPECT_EQ(text->text(), u"<i>bad</i>");
    EXPECT_EQ(text->textFormat(), Qt::PlainText);
    EXPECT_TRUE(text->alignment() & Qt::AlignHCenter);
    EXPECT_TRUE(sign()->isVisible());
    EXPECT_FALSE(sign()->pixmap().isNull());
    const QColor red = text->palette().color(QPalette::WindowText);
    EXPECT_GT(red.red(), red.green() + red.blue());

    field.setAttributedStringValue(
        {QStringLiteral("fine"), StatusColor::Black, TextAlignment::Natural});
    EXPECT_FALSE(sign()->isVisible());
    EXPECT_TRUE(text->alignment() & Qt::AlignLeft);
    EXPECT_EQ(text->palette().color(QPalette::WindowText),
              window.palette().color(QPalette::WindowText));
    field.clear();
    EXPECT_EQ(text->text(), u"");
}

TEST_F(MainWindowTest, FieldThatIsGone_DropsTheMessage) {
    auto view = std::make_unique<StatusFieldView>();
    WidgetStatusField field(*view);
    field.setAttributedStringValue(
        {QStringLiteral("early"), StatusColor::Red, TextAlignment::Natural});
    EXPECT_EQ(view->findChild<QLabel*>(QStringLiteral("statusText"))->text(), u"early");
    view.reset();
    const auto show = [&field] {
        field.setAttributedStringValue(
            {QStringLiteral("late"), StatusColor::Red, TextAlignment::Natural});
        std::_Exit(0);
    };
    EXPECT_EXIT(show(), ::testing::ExitedWithCode(0), "");
    const auto clear = [&field] {
        field.clear();
        std::_Exit(0);
    };
    EXPECT_EXIT(clear(), ::testing::ExitedWithCode(0), "");
}

// -- the other tabs

TEST_F(MainWindowTest, RemoteFields_AreBoundBothWays) {
    const std::vector<std::pair<const char*, QStringView>> fields = {
        {"remoteHost", prefRemoteBonjourName},
        {"remoteUser", prefRemoteUsername},
        {"remotePath", prefRemotePath}};
    window.show();
    window.showTab(QStringLiteral("remote"));
    QApplication::setActiveWindow(&window);
    for (const auto& [name, key] : fields) {
        auto* field = child<QLineEdit>(name);
        set(key, QStringLiteral("outside"));
        EXPECT_EQ(field->text(), u"outside") << name;
        field->setFocus();
        QTest::keyClicks(field, QStringLiteral("!"));
        QTest::keyClick(field, Qt::Key_Return);
        EXPECT_EQ(defaults.stringForKey(key), QStringLiteral("outside!")) << name;
    }
}

TEST_F(MainWindowTest, Settings_AreBoundBothWays) {
    window.show();
    window.showTab(QStringLiteral("prefs"));
    QApplication::setActiveWindow(&window);
    set(prefAdvancedShown, true);
    set(prefRsyncWithSSH, true);
    EXPECT_TRUE(child<QRadioButton>("remotePass")->isChecked());
    child<QRadioButton>("plainPass")->click();
    EXPECT_EQ(defaults.object(prefRsyncWithSSH), QVariant(false));

    for (const auto& [name, key] : {std::pair("autoStart", prefAutoStartScanOnLaunch),
                                    std::pair("hideOnLaunch", prefHideOnLaunch)}) {
        auto* box = child<QAbstractButton>(name);
        set(key, true);
        EXPECT_TRUE(box->isChecked()) << name;
        box->click();
        EXPECT_EQ(defaults.object(key), QVariant(false)) << name;
    }

    set(prefRsyncCommandOptionTag, 102);
    auto* option = child<QComboBox>("optionTag");
    EXPECT_TRUE(option->currentText().contains(QStringLiteral("--ignore-existing")));
    option->setFocus();
    QTest::keyClick(option, Qt::Key_Home);
    EXPECT_EQ(defaults.integerForKey(prefRsyncCommandOptionTag), 100);
    set(prefRsyncCommandOptionTag, 105);
    EXPECT_TRUE(option->currentText().contains(QStringLiteral("105")));

    set(prefDelayBetweenScans, 12.5);
    auto* delay = child<QDoubleSpinBox>("delayBetweenScans");
    EXPECT_EQ(delay->value(), 12.5);
    delay->stepUp();
    EXPECT_EQ(defaults.doubleForKey(prefDelayBetweenScans), 13.5);

    set(prefRsyncCommandString1, QStringLiteral("rsync %@1"));
    auto* field = child<QPlainTextEdit>("rsyncTemplate");
    EXPECT_EQ(field->toPlainText(), u"rsync %@1");
    field->setFocus();
    field->moveCursor(QTextCursor::End);
    QTest::keyClicks(field, QStringLiteral(" x"));
    option->setFocus();
    EXPECT_EQ(defaults.stringForKey(prefRsyncCommandString1), QStringLiteral("rsync %@1 x"));

    set(prefRsyncCommandStringExample, QStringLiteral("<rsync>"));
    EXPECT_EQ(child<QLabel>("commandExample")->text(), u"<rsync>");
    set(prefVersionDisplayString, QStringLiteral("9.9"));
    EXPECT_EQ(child<ElidedLabel>("versionText")->fullText(), u"Version 9.9");
}

TEST_F(MainWindowTest, ChosenTab_IsToldBeforeItIsShown) {
    std::vector<QString> told;
    std::vector<QString> shown;
    window.show();
    window.setWillSelectTab([&](const MainWindow::Tab& tab) {
        told.push_back(tab.identifier);
        for (const QWidget* page : window.findChild<QTabWidget*>()->findChildren<QWidget*>()) {
            if (page->property("identifier").isValid() && page->isVisible())
                shown.push_back(page->property("identifier").toString());
        }
    });
    const QSignalSpy tabShown(&window, &MainWindow::tabShown);
    window.showTab(QStringLiteral("prefs"));
    window.showTab(0);
    window.showTab(QStringLiteral("no such tab"));
    EXPECT_EQ(tabShown, (QList<QVariantList>{{2}, {0}}));
    EXPECT_EQ(told, (std::vector<QString>{QStringLiteral("prefs"), QStringLiteral("sync")}));
    EXPECT_EQ(shown, (std::vector<QString>{QStringLiteral("sync"), QStringLiteral("prefs")}));
}

// -- actions

TEST_F(MainWindowTest, Button_RunsItsActionAndTellsItsDescription) {
    auto* button = child<QPushButton>("ibTestNWBrowser");
    int calls = 0;
    window.setAction(QStringLiteral("ibTestNWBrowser"), [&] { ++calls; });
    EXPECT_FALSE(button->toolTip().isEmpty());
    EXPECT_EQ(button->toolTip(), button->accessibleDescription());
    button->click();
    EXPECT_EQ(calls, 1);
}

TEST_F(MainWindowTest, UnknownButton_StopsTheProgram) {
    EXPECT_DEATH(window.setAction(QStringLiteral("ibNoSuchThing"), [] {}), "ibNoSuchThing");
}

TEST_F(MainWindowTest, ChangeButton_ShowsTheRemoteTab) {
    child<QPushButton>("showRemoteTab")->click();
    EXPECT_EQ(window.tabs()[static_cast<std::size_t>(window.currentTab())].identifier, u"remote");
}

// -- closing and coming back

TEST_F(MainWindowTest, Close_AsksFirst) {
    window.show();
    bool may = false;
    window.setMayClose([&] { return may; });
    window.close();
    EXPECT_TRUE(window.isVisible());
    may = true;
    window.close();
    EXPECT_FALSE(window.isVisible());
}

TEST_F(MainWindowTest, SizeAndTab_AreRemembered) {
    window.show();
    window.resize(781, 655);
    window.showTab(QStringLiteral("diagnostics"));
    window.close();
    MainWindow next(defaults, mainQueue);
    EXPECT_EQ(next.size(), QSize(781, 655));
    EXPECT_EQ(next.tabs()[static_cast<std::size_t>(next.currentTab())].identifier, u"diagnostics");
}

TEST_F(MainWindowTest, PlaceAndMaximizedState_AreRemembered) {
    window.resize(600, 500);
    window.move(30, 40);
    window.show();
    window.close();
    EXPECT_EQ(MainWindow(defaults, mainQueue).pos(), QPoint(30, 40));
    window.showMaximized();
    window.close();
    {
        MainWindow next(defaults, mainQueue);
        EXPECT_TRUE(next.isMaximized());
        next.show();
        EXPECT_TRUE(next.isMaximized());
        next.showNormal();
        EXPECT_EQ(next.size(), QSize(600, 500));
        next.close();
    }
    EXPECT_FALSE(MainWindow(defaults, mainQueue).isMaximized());
}

TEST_F(MainWindowTest, ScreenThatBecameSmaller_HoldsTheWholeWindow) {
    const QRect room = window.screen()->availableGeometry();
    set(prefMainWindowSize, QStringLiteral("%1x%2").arg(room.width() + 9).arg(room.height() - 9));
    set(prefMainWindowPlace,
        QStringLiteral("%1,%2").arg(room.width() - 20).arg(room.height() - 20));
    EXPECT_EQ(MainWindow(defaults, mainQueue).geometry(), room.adjusted(0, 9, 0, 0));
    set(prefMainWindowPlace, QStringLiteral("%1,0").arg(room.width() + 20));
    EXPECT_EQ(MainWindow(defaults, mainQueue).pos(), window.pos()) << "that screen is gone";
}

TEST_F(MainWindowTest, NonsenseAboutTheLook_IsIgnored) {
    for (const char* size : {"", "x", "-5x9", "99999999x99999999", "axb", "1x1"}) {
        defaults.setObject(u"mainWindowSize", QString::fromLatin1(size));
        defaults.setObject(u"mainWindowPlace", QString::fromLatin1(size));
        defaults.setObject(u"mainWindowMaximized", QString::fromLatin1(size));
        defaults.setObject(u"mainWindowTab", 7);
        MainWindow next(defaults, mainQueue);
        EXPECT_GE(next.width(), next.minimumSizeHint().width()) << size;
        EXPECT_LE(next.width(), 4000) << size;
        EXPECT_EQ(next.currentTab(), 0);
    }
}

TEST_F(MainWindowTest, HalfTypedText_IsStoredWhenTheWindowGoes) {
    auto doomed = std::make_unique<MainWindow>(defaults, mainQueue);
    doomed->show();
    doomed->showTab(QStringLiteral("remote"));
    QApplication::setActiveWindow(doomed.get());
    auto* field = doomed->findChild<QLineEdit*>(QStringLiteral("remoteUser"));
    field->setFocus();
    QTest::keyClicks(field, QStringLiteral("ann"));
    doomed.reset();
    EXPECT_EQ(defaults.stringForKey(prefRemoteUsername), QStringLiteral("ann"));
}

// -- for everybody

TEST_F(MainWindowTest, EveryControl_HasAnAccessibleNameOrText) {
    window.setDiagnosticsShown(true);
    for (int tab = 0; tab < 5; ++tab)
        window.showTab(tab); // its controls are made now
    for (QWidget* widget : window.findChildren<QWidget*>()) {
        if (widget->focusPolicy() == Qt::NoFocus || widget->objectName().startsWith(u"qt_") ||
            widget->window() != &window)
            continue;
        const auto* button = qobject_cast<QAbstractButton*>(widget);
        if (qobject_cast<const QLabel*>(widget)) {
            EXPECT_TRUE(widget->accessibleName().isEmpty())
                << qPrintable(widget->objectName()) << ": a text speaks for itself";
            continue;
        }
        EXPECT_FALSE(widget->accessibleName().isEmpty() && (!button || button->text().isEmpty()))
            << qPrintable(widget->objectName()) << " " << widget->metaObject()->className();
    }
}

TEST_F(MainWindowTest, EveryButtonAndField_SaysWhatItIsForOrIsNamedByItsText) {
    for (QPushButton* button : window.findChildren<QPushButton*>())
        EXPECT_FALSE(button->accessibleDescription().isEmpty() &&
                     button->accessibleName().isEmpty())
            << qPrintable(button->objectName());
    for (QLineEdit* field : window.findChildren<QLineEdit*>()) {
        if (!field->objectName().startsWith(u"qt_")) {
            EXPECT_FALSE(field->accessibleDescription().isEmpty())
                << qPrintable(field->objectName());
        }
    }
}

TEST_F(MainWindowTest, MnemonicsOfATab_AreDifferent) {
    set(prefAdvancedShown, true);
    for (const MainWindow::Tab& tab : window.tabs()) {
        window.showTab(tab.identifier);
        window.show();
        QSet<QString> seen;
        for (QAbstractButton* button : window.findChildren<QAbstractButton*>()) {
            const QString key = button->shortcut().toString();
            if (!button->isVisible() || key.isEmpty())
                continue;
            EXPECT_FALSE(seen.contains(key)) << qPrintable(tab.label + u": " + key);
            EXPECT_FALSE(
                QStringList({"Alt+F", "Alt+E", "Alt+V", "Alt+P", "Alt+T", "Alt+H"}).contains(key))
                << "belongs to the menus: " << qPrintable(tab.label + u": " + key);
            seen.insert(key);
        }
    }
}

TEST_F(MainWindowTest, TabKey_ReachesEveryControlFromTopToBottom) {
    set(prefAdvancedShown, true);
    for (const MainWindow::Tab& tab : window.tabs()) {
        window.showTab(tab.identifier);
        for (QAbstractButton* button : window.findChildren<QAbstractButton*>())
            button->setEnabled(true);
        set(prefPath2, QStringLiteral("/a/b"));
        window.show();
        QApplication::setActiveWindow(&window);
        QList<QWidget*> wanted;
        for (QWidget* widget : window.findChildren<QWidget*>()) {
            if (widget->isVisible() && (widget->focusPolicy() & Qt::TabFocus) &&
                !widget->focusProxy() && !widget->objectName().startsWith(u"qt_"))
                wanted.append(widget);
        }
        QList<QWidget*> reached;
        wanted.first()->setFocus();
        for (int i = 0; i < 200 && !reached.contains(QApplication::focusWidget()); ++i) {
            reached.append(QApplication::focusWidget());
            QTest::keyClick(QApplication::focusWidget(), Qt::Key_Tab);
        }
        for (QWidget* widget : wanted) {
            const auto* radio = qobject_cast<QRadioButton*>(widget);
            if (!radio || radio->isChecked()) {
                EXPECT_TRUE(reached.contains(widget))
                    << qPrintable(tab.label + u": " + widget->objectName());
            }
        }
        // A person reads from top to bottom; within one row from left to right.
        for (int i = 1; i < reached.size(); ++i) {
            const QPoint before = reached[i - 1]->mapTo(&window, QPoint(0, 0));
            const QPoint now = reached[i]->mapTo(&window, QPoint(0, 0));
            if (reached[i]->objectName() == u"qt_tabwidget_tabbar")
                continue; // Round the corner, at the top again.
            EXPECT_TRUE(now.y() > before.y() - 20)
                << qPrintable(tab.label + u": " + reached[i - 1]->objectName() + u" → " +
                              reached[i]->objectName());
        }
    }
}

TEST_F(MainWindowTest, LongNames_DoNotWidenTheWindow) {
    const QString longName(200, u'm');
    const int before = window.minimumSizeHint().width();
    set(prefRsyncWithSSH, true);
    for (const QStringView key :
         {prefRemoteUsername, prefRemoteBonjourName, prefRemotePath, prefSampleRemoteFullPath,
          prefVersionDisplayString, prefRsyncCommandStringExample})
        set(key, longName);
    for (const QStringView key : {prefPath1, prefPath2})
        set(key, QString(u'/' + longName + u'/' + longName));
    window.syncTab().setNetworkStatus(longName);
    EXPECT_EQ(window.minimumSizeHint().width(), before);
    window.resize(800, 600);
    window.show();
    for (const MainWindow::Tab& tab : window.tabs()) {
        window.showTab(tab.identifier);
        QCoreApplication::processEvents();
        EXPECT_LE(window.width(), 800);
    }
}

/// No button and no caption may lose letters, whatever the size of the letters.
TEST_F(MainWindowTest, LettersOfDoubleSize_AreNotCut) {
    set(prefAdvancedShown, true);
    const QFont usual = QApplication::font();
    QFont large = usual;
    large.setPointSizeF(usual.pointSizeF() * 2);
    QApplication::setFont(large);
    {
        MainWindow large_window(defaults, mainQueue);
        large_window.resize(800, 600);
        large_window.show();
        for (const MainWindow::Tab& tab : large_window.tabs()) {
            large_window.showTab(tab.identifier);
            QCoreApplication::processEvents();
            for (QWidget* widget : large_window.findChildren<QWidget*>()) {
                if (!widget->isVisible() || qobject_cast<ElidedLabel*>(widget))
                    continue;
                if (const auto* button = qobject_cast<QAbstractButton*>(widget)) {
                    if (!qobject_cast<QToolButton*>(widget)) {
                        EXPECT_GE(button->width(), button->minimumSizeHint().width())
                            << qPrintable(button->objectName());
                    }
                } else if (const auto* label = qobject_cast<QLabel*>(widget)) {
                    const int height = label->wordWrap() ? label->heightForWidth(label->width())
                                                         : label->sizeHint().height();
                    EXPECT_GE(label->height(), height) << qPrintable(label->objectName());
                    if (!label->wordWrap()) {
                        EXPECT_GE(label->width(), label->sizeHint().width())
                            << qPrintable(label->objectName());
                    }
                }
            }
        }
    }
    QApplication::setFont(usual);
}

TEST_F(MainWindowTest, DarkPalette_KeepsTroubleReadable) {
    QPalette dark;
    dark.setColor(QPalette::Window, QColor(0x20, 0x20, 0x20));
    dark.setColor(QPalette::WindowText, Qt::white);
    window.setPalette(dark);
    WidgetStatusField field(window.ibStatusTextField());
    field.setAttributedStringValue(
        {QStringLiteral("bad"), StatusColor::Red, TextAlignment::Centered});
    EXPECT_GT(child<QLabel>("statusText")->palette().color(QPalette::WindowText).lightnessF(),
              0.6F);
}

} // namespace
} // namespace kelvo
