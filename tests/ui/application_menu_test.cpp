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
            .closeWindow = note("close"),
            .quit = note("quit"),
            .showSettings = note("settings"),
            .showTab = [this](int tab) { done.append(QString(u"tab" + QString::number(tab))); },
            .startOrStop = note("start"),
            .syncNow = note("now"),
            .cancelPass = note("cancel"),
            .setupStatusItem = note("setup"),
            .removeStatusItem = note("remove"),
            .delegateQuitAndRelaunch = note("delegate"),
            .setupWatchdog = note("watchdog"),
            .about = note("about"),
            .openLogFolder = note("log"),
        };
    }

    static QAction* entry(const ApplicationMenu& menu, const char* name) {
        return menu.findChild<QAction*>(QString::fromLatin1(name));
    }

    const QStringList tabs{QStringLiteral("Sync"), QStringLiteral("Remote Mac"),
                           QStringLiteral("Settings"), QStringLiteral("Tests & Tools")};
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
    for (const char* name :
         {"quitAndRelaunch", "closeWindow", "quit", "showSettings", "showTab1", "showTab4",
          "startOrStop", "syncNow", "cancelPass", "setupStatusItem", "removeStatusItem",
          "delegateQuitAndRelaunch", "setupWatchdog", "about", "openLogFolder"})
        entry(menu, name)->trigger();
    EXPECT_EQ(done.join(u' '),
              u"relaunch close quit settings tab0 tab3 start now cancel setup remove delegate "
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

} // namespace
} // namespace kelvo
