#include "ui/widgets/application_menu.h"

#include "support/work_state.h"
#include "ui/widgets/edit_menu.h"

#include <QActionGroup>

namespace kelvo {
namespace {

struct Entry {
    const char* name;
    QString title;
    QKeySequence shortcut;
    std::function<void()> action;
    QString explanation;
};

void addEntry(QMenu& menu, const Entry& entry) {
    if (!entry.action)
        return;
    QAction* action = menu.addAction(entry.title);
    action->setObjectName(QString::fromLatin1(entry.name));
    action->setShortcut(entry.shortcut);
    if (!entry.explanation.isEmpty()) {
        action->setToolTip(entry.explanation);
        action->setStatusTip(entry.explanation);
    }
    QObject::connect(action, &QAction::triggered, &menu, entry.action);
}

QMenu* newMenu(const char* name, const QString& title, QWidget* parent) {
    auto* menu = new QMenu(title, parent);
    menu->setObjectName(QString::fromLatin1(name));
    menu->setToolTipsVisible(true);
    return menu;
}

void addIfFilled(QMenuBar& bar, QMenu* menu) {
    if (menu->isEmpty())
        delete menu;
    else
        bar.addMenu(menu);
}

/// A tab's title as a menu entry: a "&" in it is text.
QString literal(const QString& title) {
    return QString(title).replace(u'&', QStringLiteral("&&"));
}

} // namespace

ApplicationMenu::ApplicationMenu(const ApplicationMenuActions& actions, const QStringList& tabs,
                                 QWidget* parent)
    : QMenuBar(parent), fTabs(new QActionGroup(this)) {
    setObjectName(QStringLiteral("applicationMenu"));
    setAccessibleName(tr("Application menu"));
    addFileMenu(actions);
    addEditMenu(actions);
    addViewMenu(actions, tabs);
    addPassesMenu(actions);
    addTrayMenu(actions);
    addHelpMenu(actions);
}

void ApplicationMenu::setCurrentTab(int index) {
    if (const auto tabs = fTabs->actions(); index >= 0 && index < tabs.size())
        tabs[index]->setChecked(true);
}

void ApplicationMenu::addFileMenu(const ApplicationMenuActions& actions) {
    QMenu* menu = newMenu("fileMenu", tr("&File"), this);
    addEntry(*menu, {"closeWindow",
                     tr("&Close Window"),
                     QKeySequence(Qt::CTRL | Qt::Key_W),
                     actions.closeWindow,
                     {}});
    menu->addSeparator();
    addEntry(*menu, {"quitAndRelaunch",
                     tr("Quit and &Relaunch"),
                     {},
                     actions.quitAndRelaunch,
                     tr("Ends the program and starts it again")});
    addEntry(*menu, {"quit", tr("&Quit"), QKeySequence(Qt::CTRL | Qt::Key_Q), actions.quit, {}});
    addIfFilled(*this, menu);
}

void ApplicationMenu::addEditMenu(const ApplicationMenuActions& actions) {
    auto* menu = new EditMenu(this);
    if (actions.showSettings)
        menu->addSeparator();
    addEntry(*menu, {"showSettings",
                     tr("&Settings…"),
                     QKeySequence(Qt::CTRL | Qt::Key_Comma),
                     actions.showSettings,
                     {}});
    addMenu(menu);
}

void ApplicationMenu::addViewMenu(const ApplicationMenuActions& actions, const QStringList& tabs) {
    QMenu* menu = newMenu("viewMenu", tr("&View"), this);
    for (int index = 0; actions.showTab && index < tabs.size(); ++index) {
        const QString title =
            index < 9 ? QString(u'&' + QString::number(index + 1) + u' ' + literal(tabs[index]))
                      : literal(tabs[index]);
        QAction* entry = menu->addAction(title);
        entry->setObjectName(QString(u"showTab" + QString::number(index + 1)));
        if (index < 9)
            entry->setShortcut(QKeySequence(Qt::CTRL | static_cast<Qt::Key>(Qt::Key_1 + index)));
        entry->setCheckable(true);
        fTabs->addAction(entry);
        connect(entry, &QAction::triggered, this,
                [showTab = actions.showTab, index] { showTab(index); });
    }
    setCurrentTab(0);
    addIfFilled(*this, menu);
}

void ApplicationMenu::addPassesMenu(const ApplicationMenuActions& actions) {
    QMenu* menu = newMenu("passesMenu", tr("&Passes"), this);
    addEntry(*menu, {"startOrStop", tr("&Start Syncing"), QKeySequence(Qt::CTRL | Qt::Key_T),
                     actions.startOrStop, tr("Switches syncing on and off")});
    menu->addSeparator();
    addEntry(*menu, {"syncNow", tr("Sync &Now"), QKeySequence(Qt::CTRL | Qt::Key_R),
                     actions.syncNow, tr("Begins the next pass now")});
    addEntry(*menu, {"cancelPass",
                     tr("&Cancel This Pass"),
                     {},
                     actions.cancelPass,
                     tr("Ends the pass that runs; what it has begun to copy is kept for the next "
                        "one")});
    for (QAction* entry : menu->actions())
        entry->setAutoRepeat(false); // A held key is one wish.
    addIfFilled(*this, menu);
    showWork({});
}

void ApplicationMenu::setSyncing(bool on) {
    if (auto* entry = findChild<QAction*>(QStringLiteral("startOrStop")))
        entry->setText(on ? tr("&Stop Syncing") : tr("&Start Syncing"));
}

void ApplicationMenu::showWork(const WorkState& work) {
    if (auto* entry = findChild<QAction*>(QStringLiteral("syncNow")))
        entry->setEnabled(work.maySyncNow);
    if (auto* entry = findChild<QAction*>(QStringLiteral("cancelPass")))
        entry->setEnabled(work.mayCancel);
}

void ApplicationMenu::addTrayMenu(const ApplicationMenuActions& actions) {
    QMenu* menu = newMenu("trayMenu", tr("&Tray"), this);
    addEntry(*menu, {"setupStatusItem",
                     tr("&Set Up Tray Icon"),
                     {},
                     actions.setupStatusItem,
                     tr("Shows the program's icon in the tray")});
    addEntry(*menu, {"removeStatusItem",
                     tr("&Remove Tray Icon"),
                     {},
                     actions.removeStatusItem,
                     tr("Takes the icon out of the tray; the program keeps running")});
    addEntry(*menu, {"delegateQuitAndRelaunch",
                     tr("Remove Tray Icon as &Before a Relaunch"),
                     {},
                     actions.delegateQuitAndRelaunch,
                     tr("Takes the icon out of the tray; the program keeps running")});
    menu->addSeparator();
    addEntry(*menu, {"setupWatchdog",
                     tr("Set Up &Watchdog Again"),
                     {},
                     actions.setupWatchdog,
                     tr("Has the program started again should it crash")});
    addIfFilled(*this, menu);
}

void ApplicationMenu::addHelpMenu(const ApplicationMenuActions& actions) {
    QMenu* menu = newMenu("helpMenu", tr("&Help"), this);
    addEntry(*menu, {"openLogFolder", tr("Open &Log Folder"), {}, actions.openLogFolder, {}});
    menu->addSeparator();
    addEntry(*menu, {"about", tr("&About Kelvo Mirror"), {}, actions.about, {}});
    addIfFilled(*this, menu);
}

} // namespace kelvo
