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

/// Null for an entry without an action.
QAction* addEntry(QMenu& menu, const Entry& entry) {
    if (!entry.action)
        return nullptr;
    QAction* action = menu.addAction(entry.title);
    action->setObjectName(QString::fromLatin1(entry.name));
    action->setShortcut(entry.shortcut);
    if (!entry.explanation.isEmpty()) {
        action->setToolTip(entry.explanation);
        action->setStatusTip(entry.explanation);
    }
    QObject::connect(action, &QAction::triggered, &menu, entry.action);
    return action;
}

QMenu* newMenu(const char* name, const QString& title, QWidget* parent) {
    auto* menu = new QMenu(title, parent);
    menu->setObjectName(QString::fromLatin1(name));
    menu->setToolTipsVisible(true);
    return menu;
}

/// An entry that can do nothing now says why instead of what it does; without one nothing happens.
void allow(QAction* entry, bool allowed, const QString& whyNot) {
    if (!entry)
        return;
    entry->setEnabled(allowed);
    entry->setToolTip(allowed ? entry->statusTip() : whyNot);
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

// -- what changes

QAction* ApplicationMenu::entry(const char* name) const {
    return findChild<QAction*>(QString::fromLatin1(name));
}

void ApplicationMenu::setCurrentTab(int index) {
    if (const auto tabs = fTabs->actions(); index >= 0 && index < tabs.size())
        tabs[index]->setChecked(true);
}

void ApplicationMenu::setTabs(const QStringList& tabs) {
    if (!fShowTab)
        return;
    while (fTabs->actions().size() < tabs.size())
        addTabEntry();
    const QList<QAction*> entries = fTabs->actions();
    for (qsizetype at = 0; at < entries.size(); ++at) {
        entries[at]->setVisible(at < tabs.size());
        if (at >= tabs.size())
            continue;
        const QString number = at < 9 ? QString(u'&' + QString::number(at + 1) + u' ') : QString();
        entries[at]->setText(QString(number + literal(tabs[at])));
    }
}

void ApplicationMenu::setDiagnosticsShown(bool shown) {
    if (QAction* diagnostics = entry("showDiagnostics"))
        diagnostics->setChecked(shown);
    for (const char* name : {"delegateQuitAndRelaunch", "setupWatchdog"}) {
        if (QAction* found = entry(name))
            found->setVisible(shown);
    }
}

void ApplicationMenu::setSyncing(bool on) {
    if (QAction* found = entry("startOrStop"))
        found->setText(on ? tr("&Stop Syncing") : tr("&Start Syncing"));
}

void ApplicationMenu::showWork(const WorkState& work) {
    allow(entry("syncNow"), work.maySyncNow,
          work.phase == WorkPhase::Off       ? tr("Syncing is off")
          : work.phase == WorkPhase::Missing ? tr("A pass begins as soon as nothing is missing")
          : passRuns(work.phase)             ? tr("A pass runs already")
                                             : tr("The next pass begins in a moment"));
    allow(entry("cancelPass"), work.mayCancel,
          work.phase == WorkPhase::Cancelling ? tr("The pass is being cancelled already")
                                              : tr("No pass runs"));
}

void ApplicationMenu::showTrayIcon() {
    if (!fTrayIcon)
        return;
    const TrayIconState icon = fTrayIcon();
    allow(entry("setupStatusItem"), icon == TrayIconState::Removed,
          icon == TrayIconState::Shown
              ? tr("The icon is in the tray already")
              : tr("The icon appears as soon as the desktop has a tray for it"));
    for (const char* name : {"removeStatusItem", "delegateQuitAndRelaunch"})
        allow(entry(name), icon != TrayIconState::Removed, tr("The icon is not in the tray"));
}

// -- the menus

void ApplicationMenu::addFileMenu(const ApplicationMenuActions& actions) {
    QMenu* menu = newMenu("fileMenu", tr("&File"), this);
    if (addEntry(*menu, {"anotherMac",
                         tr("&Another Mac…"),
                         {},
                         actions.anotherMac,
                         tr("Opens a window of its own for one more Mac")}))
        menu->addSeparator();
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
    fShowTab = actions.showTab;
    fTabsEnd = menu->addSeparator();
    if (actions.showDiagnostics) {
        const auto choose = [this, show = actions.showDiagnostics] {
            show(entry("showDiagnostics")->isChecked());
        };
        addEntry(*menu, {"showDiagnostics",
                         tr("&Diagnostics"),
                         {},
                         choose,
                         tr("A tab and menu entries for finding out why something does not work")})
            ->setCheckable(true);
    }
    setTabs(tabs);
    setCurrentTab(0);
    addIfFilled(*this, menu);
}

void ApplicationMenu::addTabEntry() {
    const int index = static_cast<int>(fTabs->actions().size());
    auto* tab = new QAction(this);
    tab->setObjectName(QString(u"showTab" + QString::number(index + 1)));
    if (index < 9)
        tab->setShortcut(QKeySequence(Qt::CTRL | static_cast<Qt::Key>(Qt::Key_1 + index)));
    tab->setCheckable(true);
    fTabs->addAction(tab);
    connect(tab, &QAction::triggered, this, [this, index] { fShowTab(index); });
    findChild<QMenu*>(QStringLiteral("viewMenu"))->insertAction(fTabsEnd, tab);
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

void ApplicationMenu::addTrayMenu(const ApplicationMenuActions& actions) {
    QMenu* menu = newMenu("trayMenu", tr("&Tray"), this);
    fTrayIcon = actions.trayIcon;
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
                     tr("Takes the icon out of the tray as Quit and Relaunch does; the program "
                        "keeps running")});
    menu->addSeparator();
    addEntry(*menu, {"setupWatchdog",
                     tr("Start Again After a &Crash"),
                     {},
                     actions.setupWatchdog,
                     tr("Has the program started again should it crash; each start does this by "
                        "itself")});
    connect(menu, &QMenu::aboutToShow, this, &ApplicationMenu::showTrayIcon);
    for (const QAction* chosen : menu->actions())
        connect(chosen, &QAction::triggered, this, &ApplicationMenu::showTrayIcon);
    setDiagnosticsShown(false);
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
