#include "support/work_state.h"
#include "ui/widgets/application_menu.h"
#include "ui/widgets/edit_menu.h"

#include <QApplication>
#include <QClipboard>
#include <QLabel>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QVBoxLayout>

#include <gtest/gtest.h>

#include <set>

namespace kelvo {
namespace {

QString plain(const QAction& action) {
    return action.text().remove(u'&');
}

class ApplicationMenuTest : public ::testing::Test {
protected:
    std::function<void()> note(const char* what) {
        return [this, what] { done.append(QString::fromLatin1(what)); };
    }

    ApplicationMenuActions all() {
        return {
            .quitAndRelaunch = note("relaunch"),
            .anotherMac = note("another"),
            .closeWindow = note("close"),
            .quit = note("quit"),
            .showSettings = note("settings"),
            .showTab = [this](int tab) { done.append(QString(u"tab" + QString::number(tab))); },
            .showDiagnostics =
                [this](bool shown) {
                    done.append(shown ? QStringLiteral("diagnostics")
                                      : QStringLiteral("no diagnostics"));
                },
            .startOrStop = note("start"),
            .syncNow = note("now"),
            .cancelPass = note("cancel"),
            .setupStatusItem = note("setup"),
            .removeStatusItem = note("remove"),
            .delegateQuitAndRelaunch = note("delegate"),
            .setupWatchdog = note("watchdog"),
            .trayIcon = [this] { return trayIcon; },
            .about = note("about"),
            .openLogFolder = note("log"),
        };
    }

    static QAction* entry(const ApplicationMenu& menu, const char* name) {
        return menu.findChild<QAction*>(QString::fromLatin1(name));
    }

    const QStringList tabs{QStringLiteral("Sync"), QStringLiteral("Remote Mac"),
                           QStringLiteral("Settings"), QStringLiteral("Tests & Tools")};
    TrayIconState trayIcon = TrayIconState::Shown;
    QStringList done;
};

TEST_F(ApplicationMenuTest, Menus_AreTheUsualOnesWithMnemonicsOfTheirOwn) {
    const ApplicationMenu menu(all(), tabs);
    QStringList titles;
    for (const QAction* title : menu.actions())
        titles.append(title->text());
    EXPECT_EQ(titles.join(u'|'), u"&File|&Edit|&View|&Passes|&Tray|&Help");
}

TEST_F(ApplicationMenuTest, Entries_HaveMnemonicsThatDoNotClash) {
    const ApplicationMenu menu(all(), tabs);
    for (const QAction* title : menu.actions()) {
        std::set<QChar> seen;
        for (const QAction* entry : title->menu()->actions()) {
            if (entry->isSeparator())
                continue;
            const auto at = entry->text().indexOf(u'&');
            ASSERT_GE(at, 0) << entry->text().toStdString();
            EXPECT_TRUE(seen.insert(entry->text()[at + 1].toLower()).second)
                << entry->text().toStdString();
        }
    }
}

TEST_F(ApplicationMenuTest, Shortcuts_AreTheUsualOnesAndUnique) {
    const ApplicationMenu menu(all(), tabs);
    const std::vector<std::pair<const char*, const char*>> expected{
        {"closeWindow", "Ctrl+W"}, {"quit", "Ctrl+Q"},      {"showSettings", "Ctrl+,"},
        {"showTab1", "Ctrl+1"},    {"showTab2", "Ctrl+2"},  {"showTab3", "Ctrl+3"},
        {"showTab4", "Ctrl+4"},    {"undo", "Ctrl+Z"},      {"cut", "Ctrl+X"},
        {"startOrStop", "Ctrl+T"}, {"syncNow", "Ctrl+R"},   {"copy", "Ctrl+C"},
        {"paste", "Ctrl+V"},       {"selectAll", "Ctrl+A"},
    };
    std::set<QString> seen;
    for (const auto& [name, keys] : expected) {
        const QAction* action = entry(menu, name);
        ASSERT_NE(action, nullptr) << name;
        EXPECT_EQ(action->shortcut().toString(), QString::fromLatin1(keys)) << name;
        EXPECT_TRUE(seen.insert(action->shortcut().toString()).second) << name;
    }
    EXPECT_EQ(entry(menu, "redo")->shortcut(), QKeySequence(QKeySequence::Redo));
    EXPECT_TRUE(entry(menu, "quitAndRelaunch")->shortcut().isEmpty());
}

TEST_F(ApplicationMenuTest, EachEntry_CallsItsAction) {
    ApplicationMenu menu(all(), tabs);
    menu.showWork({.maySyncNow = true, .mayCancel = true});
    menu.setDiagnosticsShown(true);
    for (const char* name :
         {"quitAndRelaunch", "anotherMac", "closeWindow", "quit", "showSettings", "showTab1",
          "showTab4", "startOrStop", "syncNow", "cancelPass", "setupStatusItem", "removeStatusItem",
          "delegateQuitAndRelaunch", "setupWatchdog", "about", "openLogFolder"})
        entry(menu, name)->trigger();
    EXPECT_EQ(
        done.join(u' '),
        u"relaunch another close quit settings tab0 tab3 start now cancel setup remove delegate "
        u"watchdog about log");
}

TEST_F(ApplicationMenuTest, EntriesAboutPasses_CanBeChosenWhenTheyDoSomething) {
    ApplicationMenu menu(all(), tabs);
    for (const char* name : {"syncNow", "cancelPass"})
        EXPECT_FALSE(entry(menu, name)->isEnabled()) << name;
    menu.showWork({.maySyncNow = true});
    EXPECT_TRUE(entry(menu, "syncNow")->isEnabled());
    EXPECT_FALSE(entry(menu, "cancelPass")->isEnabled());
    menu.showWork({.mayCancel = true});
    EXPECT_FALSE(entry(menu, "syncNow")->isEnabled());
    EXPECT_TRUE(entry(menu, "cancelPass")->isEnabled());
    EXPECT_EQ(plain(*entry(menu, "startOrStop")), u"Start Syncing");
    menu.setSyncing(true);
    EXPECT_EQ(plain(*entry(menu, "startOrStop")), u"Stop Syncing");
    for (const char* name : {"startOrStop", "syncNow"})
        EXPECT_FALSE(entry(menu, name)->autoRepeat()) << name;
}

TEST_F(ApplicationMenuTest, MissingActions_LeaveNoDeadEntries) {
    const ApplicationMenu menu({.quit = note("quit")}, tabs);
    QStringList titles;
    for (const QAction* title : menu.actions())
        titles.append(plain(*title));
    EXPECT_EQ(titles.join(u'|'), u"File|Edit");
    EXPECT_EQ(entry(menu, "about"), nullptr);
    EXPECT_EQ(entry(menu, "showTab1"), nullptr);
    EXPECT_NE(entry(menu, "quit"), nullptr);
}

TEST_F(ApplicationMenuTest, Tabs_CarryTheirTitlesAndTheCurrentMark) {
    ApplicationMenu menu(all(), tabs);
    EXPECT_EQ(entry(menu, "showTab2")->text(), u"&2 Remote Mac");
    EXPECT_EQ(entry(menu, "showTab4")->text(), u"&4 Tests && Tools");
    EXPECT_TRUE(entry(menu, "showTab1")->isChecked());
    menu.setCurrentTab(2);
    EXPECT_TRUE(entry(menu, "showTab3")->isChecked());
    EXPECT_FALSE(entry(menu, "showTab1")->isChecked());
    menu.setCurrentTab(17);
    menu.setCurrentTab(-1);
    EXPECT_TRUE(entry(menu, "showTab3")->isChecked());
    EXPECT_TRUE(done.isEmpty());
}

TEST_F(ApplicationMenuTest, TrayEntries_SayWhatTheyDo) {
    const ApplicationMenu menu(all(), tabs);
    for (const char* name :
         {"setupStatusItem", "removeStatusItem", "delegateQuitAndRelaunch", "setupWatchdog"})
        EXPECT_FALSE(entry(menu, name)->statusTip().isEmpty()) << name;
}

TEST_F(ApplicationMenuTest, EntriesForFindingFaults_AreSeenOnlyOnDemand) {
    ApplicationMenu menu(all(), tabs);
    for (const bool shown : {false, true, false}) {
        menu.setDiagnosticsShown(shown);
        EXPECT_EQ(entry(menu, "showDiagnostics")->isChecked(), shown);
        for (const char* name : {"delegateQuitAndRelaunch", "setupWatchdog"})
            EXPECT_EQ(entry(menu, name)->isVisible(), shown) << name;
    }
    const ApplicationMenu fresh(all(), tabs);
    EXPECT_FALSE(entry(fresh, "setupWatchdog")->isVisible());
    EXPECT_TRUE(done.isEmpty());
    entry(menu, "showDiagnostics")->trigger();
    entry(menu, "showDiagnostics")->trigger();
    EXPECT_EQ(done.join(u' '), u"diagnostics no diagnostics");
}

TEST_F(ApplicationMenuTest, TabThatComesAndGoes_HasItsEntryMeanwhile) {
    ApplicationMenu menu(all(), tabs);
    menu.setCurrentTab(3);
    menu.setTabs(tabs + QStringList{QStringLiteral("Fifth")});
    QAction* fifth = entry(menu, "showTab5");
    EXPECT_EQ(fifth->text(), u"&5 Fifth");
    EXPECT_EQ(fifth->shortcut().toString(), u"Ctrl+5");
    fifth->trigger();
    EXPECT_EQ(done.join(u' '), u"tab4");
    menu.setTabs(tabs);
    EXPECT_FALSE(fifth->isVisible());
    EXPECT_TRUE(entry(menu, "showTab4")->isVisible());
    menu.setTabs(tabs + QStringList{QStringLiteral("Another")});
    EXPECT_TRUE(fifth->isVisible());
    EXPECT_EQ(fifth->text(), u"&5 Another");
    const QList<QAction*> entries = menu.findChild<QMenu*>(QStringLiteral("viewMenu"))->actions();
    EXPECT_LT(entries.indexOf(fifth), entries.indexOf(entry(menu, "showDiagnostics")));
}

TEST_F(ApplicationMenuTest, EntriesThatCanDoNothing_AreDisabledAndSayWhy) {
    ApplicationMenu menu(all(), tabs);
    menu.setDiagnosticsShown(true);
    const auto look = [&](TrayIconState state) {
        trayIcon = state;
        menu.showTrayIcon();
        QStringList open;
        for (const char* name :
             {"setupStatusItem", "removeStatusItem", "delegateQuitAndRelaunch", "setupWatchdog"}) {
            const QAction* found = entry(menu, name);
            EXPECT_FALSE(found->toolTip().isEmpty()) << name;
            EXPECT_EQ(found->toolTip() == found->statusTip(), found->isEnabled()) << name;
            if (found->isEnabled())
                open.append(QString::fromLatin1(name));
        }
        return open.join(u' ');
    };
    EXPECT_EQ(look(TrayIconState::Shown),
              u"removeStatusItem delegateQuitAndRelaunch setupWatchdog");
    EXPECT_EQ(entry(menu, "setupStatusItem")->toolTip(), u"The icon is in the tray already");
    EXPECT_EQ(look(TrayIconState::Waiting),
              u"removeStatusItem delegateQuitAndRelaunch setupWatchdog");
    EXPECT_EQ(entry(menu, "setupStatusItem")->toolTip(),
              u"The icon appears as soon as the desktop has a tray for it");
    EXPECT_EQ(look(TrayIconState::Removed), u"setupStatusItem setupWatchdog");

    const auto why = [&](const WorkState& work, const char* name) {
        menu.showWork(work);
        const QAction* found = entry(menu, name);
        return found->isEnabled() ? QString() : found->toolTip();
    };
    EXPECT_EQ(why({.phase = WorkPhase::Off}, "syncNow"), u"Syncing is off");
    EXPECT_EQ(why({.phase = WorkPhase::Missing}, "syncNow"),
              u"A pass begins as soon as nothing is missing");
    EXPECT_EQ(why({.phase = WorkPhase::Running}, "syncNow"), u"A pass runs already");
    EXPECT_EQ(why({.phase = WorkPhase::Resting}, "syncNow"), u"The next pass begins in a moment");
    EXPECT_EQ(why({.maySyncNow = true}, "syncNow"), u"");
    EXPECT_EQ(entry(menu, "syncNow")->toolTip(), u"Begins the next pass now");
    EXPECT_EQ(why({.phase = WorkPhase::Resting}, "cancelPass"), u"No pass runs");
    EXPECT_EQ(why({.phase = WorkPhase::Cancelling}, "cancelPass"),
              u"The pass is being cancelled already");
}

TEST_F(ApplicationMenuTest, TrayEntries_AreAskedAboutBeforeAndAfterEachLook) {
    ApplicationMenuActions actions = all();
    actions.removeStatusItem = [this] { trayIcon = TrayIconState::Removed; };
    ApplicationMenu menu(actions, tabs);
    Q_EMIT menu.findChild<QMenu*>(QStringLiteral("trayMenu"))->aboutToShow();
    EXPECT_FALSE(entry(menu, "setupStatusItem")->isEnabled());
    entry(menu, "removeStatusItem")->trigger();
    EXPECT_FALSE(entry(menu, "removeStatusItem")->isEnabled());
    EXPECT_TRUE(entry(menu, "setupStatusItem")->isEnabled());
}

TEST_F(ApplicationMenuTest, Entries_StandInTheirOrder) {
    ApplicationMenu menu(all(), tabs);
    QStringList lines;
    for (const QAction* title : menu.actions()) {
        QStringList entries;
        for (const QAction* entry : title->menu()->actions())
            entries.append(entry->isSeparator() ? QStringLiteral("-") : plain(*entry));
        lines.append(entries.join(u'|'));
    }
    EXPECT_EQ(lines[0], u"Another Mac…|-|Close Window|-|Quit and Relaunch|Quit");
    EXPECT_EQ(lines[1], u"Undo|Redo|-|Cut|Copy|Paste|-|Select All|-|Settings…");
    EXPECT_EQ(lines[2], u"1 Sync|2 Remote Mac|3 Settings|4 Tests  Tools|-|Diagnostics");
    EXPECT_EQ(lines[3], u"Start Syncing|-|Sync Now|Cancel This Pass");
    EXPECT_EQ(lines[4],
              u"Set Up Tray Icon|Remove Tray Icon|Remove Tray Icon as Before a Relaunch|-|"
              u"Start Again After a Crash");
    EXPECT_EQ(lines[5], u"Open Log Folder|-|About Kelvo Mirror");
    EXPECT_EQ(menu.accessibleName(), u"Application menu");
    ApplicationMenuActions one = all();
    one.anotherMac = nullptr;
    const ApplicationMenu alone(one, tabs);
    EXPECT_EQ(plain(*alone.actions()[0]->menu()->actions()[0]), u"Close Window")
        << "no line above the first entry";
    one.showSettings = nullptr;
    EXPECT_EQ(plain(*ApplicationMenu(one, tabs).actions()[1]->menu()->actions().last()),
              u"Select All");
}

TEST_F(ApplicationMenuTest, Explanations_AreShownBesideTheEntries) {
    ApplicationMenu menu(all(), tabs);
    menu.showWork({.maySyncNow = true, .mayCancel = true});
    menu.setDiagnosticsShown(true);
    for (const char* name : {"anotherMac", "quitAndRelaunch", "showDiagnostics", "startOrStop",
                             "syncNow", "cancelPass", "removeStatusItem", "setupWatchdog"}) {
        const QAction* found = entry(menu, name);
        EXPECT_FALSE(found->statusTip().isEmpty()) << name;
        EXPECT_EQ(found->toolTip(), found->statusTip()) << name;
    }
    EXPECT_TRUE(entry(menu, "about")->statusTip().isEmpty());
    for (const char* name : {"fileMenu", "viewMenu", "passesMenu", "trayMenu", "helpMenu"})
        EXPECT_TRUE(menu.findChild<QMenu*>(QString::fromLatin1(name))->toolTipsVisible()) << name;
    EXPECT_FALSE(entry(menu, "cancelPass")->autoRepeat());
}

TEST_F(ApplicationMenuTest, TenthTab_HasNoKeyOfItsOwn) {
    ApplicationMenu menu(all(), tabs + tabs + tabs);
    EXPECT_EQ(entry(menu, "showTab9")->shortcut().toString(), u"Ctrl+9");
    EXPECT_EQ(entry(menu, "showTab9")->text(), u"&9 Sync");
    EXPECT_TRUE(entry(menu, "showTab10")->shortcut().isEmpty());
    EXPECT_EQ(entry(menu, "showTab10")->text(), u"Remote Mac");
    entry(menu, "showTab10")->trigger();
    EXPECT_EQ(done.join(u' '), u"tab9");
    EXPECT_TRUE(entry(menu, "showTab10")->isChecked());
    EXPECT_FALSE(entry(menu, "showTab1")->isChecked()) << "one at a time";
    menu.setCurrentTab(12);
    menu.setCurrentTab(11);
    EXPECT_TRUE(entry(menu, "showTab12")->isChecked());
}

TEST_F(ApplicationMenuTest, Syncing_IsStartedAndStoppedByOneEntry) {
    ApplicationMenu menu(all(), tabs);
    menu.setSyncing(true);
    EXPECT_EQ(entry(menu, "startOrStop")->text(), u"&Stop Syncing");
    menu.setSyncing(false);
    EXPECT_EQ(entry(menu, "startOrStop")->text(), u"&Start Syncing");
    ApplicationMenu none({.quit = note("quit")}, tabs);
    none.setSyncing(true);
    none.setDiagnosticsShown(true);
    none.setTabs(tabs);
    none.showTrayIcon();
    EXPECT_EQ(none.findChildren<QAction*>(QStringLiteral("startOrStop")).size(), 0);
}

class EditMenuTest : public ::testing::Test {
protected:
    EditMenuTest() {
        QGuiApplication::clipboard()->clear();
        auto* rows = new QVBoxLayout(&window);
        label.setTextInteractionFlags(Qt::TextSelectableByKeyboard | Qt::TextSelectableByMouse);
        for (QWidget* field : std::initializer_list<QWidget*>{&line, &text, &label, &button})
            rows->addWidget(field);
        window.show();
        window.activateWindow();
        QCoreApplication::processEvents();
    }

    void focus(QWidget& field) {
        field.setFocus();
        QCoreApplication::processEvents();
        ASSERT_EQ(QApplication::focusWidget(), &field);
    }

    QAction* entry(const char* name) { return menu.findChild<QAction*>(QString::fromLatin1(name)); }

    /// As a person does it: the menu opens, then the entry is chosen.
    void choose(const char* name) {
        Q_EMIT menu.aboutToShow();
        entry(name)->trigger();
    }

    QString enabled() {
        menu.updateEntries();
        QStringList names;
        for (const QAction* action : menu.actions()) {
            if (!action->isSeparator() && action->isEnabled())
                names.append(action->objectName());
        }
        return names.join(u' ');
    }

    static QString clipboard() { return QGuiApplication::clipboard()->text(); }

    QWidget window;
    QLineEdit line{QStringLiteral("movie")};
    QPlainTextEdit text{QStringLiteral("template")};
    QLabel label{QStringLiteral("status")};
    QPushButton button{QStringLiteral("press")};
    EditMenu menu;
};

TEST_F(EditMenuTest, LineField_IsCutPastedAndUndone) {
    focus(line);
    EXPECT_EQ(enabled(), u"selectAll");
    choose("selectAll");
    EXPECT_EQ(enabled(), u"cut copy selectAll");
    choose("cut");
    EXPECT_EQ(line.text(), QString());
    EXPECT_EQ(clipboard(), u"movie");
    EXPECT_EQ(enabled(), u"undo paste");
    choose("undo");
    EXPECT_EQ(line.text(), u"movie");
    choose("redo");
    EXPECT_EQ(line.text(), QString());
    choose("paste");
    EXPECT_EQ(line.text(), u"movie");
}

TEST_F(EditMenuTest, TextField_IsCopied) {
    focus(text);
    choose("selectAll");
    choose("copy");
    EXPECT_EQ(clipboard(), u"template");
    EXPECT_EQ(enabled(), u"cut copy paste selectAll");
    text.setReadOnly(true);
    EXPECT_EQ(enabled(), u"copy selectAll");
}

TEST_F(EditMenuTest, Label_IsCopiedButNotChanged) {
    focus(label);
    choose("selectAll");
    EXPECT_EQ(enabled(), u"copy selectAll");
    choose("copy");
    EXPECT_EQ(clipboard(), u"status");
    choose("cut");
    EXPECT_EQ(label.text(), u"status");
}

TEST_F(EditMenuTest, Password_IsNotCopied) {
    focus(line);
    line.setEchoMode(QLineEdit::Password);
    line.selectAll();
    EXPECT_EQ(enabled(), u"selectAll");
    choose("copy");
    EXPECT_EQ(clipboard(), QString());
}

TEST_F(EditMenuTest, NoField_CanDoNothing) {
    focus(button);
    EXPECT_EQ(enabled(), QString());
    choose("selectAll");
    EXPECT_EQ(button.text(), u"press");
}

TEST_F(EditMenuTest, Opening_BringsTheEntriesUpToDate) {
    focus(button);
    menu.updateEntries();
    focus(line);
    Q_EMIT menu.aboutToShow();
    EXPECT_TRUE(entry("selectAll")->isEnabled());
}

TEST_F(EditMenuTest, TextField_IsUndoneAndRedone) {
    focus(text);
    choose("selectAll");
    choose("cut");
    EXPECT_EQ(text.toPlainText(), QString());
    EXPECT_EQ(enabled(), u"undo paste");
    choose("undo");
    EXPECT_EQ(text.toPlainText(), u"template");
    EXPECT_TRUE(enabled().contains(u"redo"));
    choose("redo");
    EXPECT_EQ(text.toPlainText(), QString());
    text.setReadOnly(true);
    EXPECT_EQ(enabled(), QString());
}

TEST_F(EditMenuTest, LineField_ThatMayNotBeChangedIsCopiedOnly) {
    focus(line);
    line.insert(QStringLiteral("s"));
    line.undo();
    line.setReadOnly(true);
    line.selectAll();
    QGuiApplication::clipboard()->setText(QStringLiteral("x"));
    EXPECT_EQ(enabled(), u"copy selectAll");
    line.setReadOnly(false);
    EXPECT_EQ(enabled(), u"redo cut copy paste selectAll");
    line.clear();
    EXPECT_EQ(enabled(), u"undo paste");
}

TEST_F(EditMenuTest, EmptyLabel_HasNothingToSelect) {
    focus(label);
    label.clear();
    EXPECT_EQ(enabled(), QString());
}

} // namespace
} // namespace kelvo
