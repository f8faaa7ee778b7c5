#include "ui/widgets/tray_icon.h"

#include "ports/dispatch_queue.h"
#include "ports/tray_host.h"
#include "ui/widgets/icons.h"

#include <QEvent>
#include <QPalette>
#include <QtEndian>

#include <utility>

namespace kelvo {
namespace {

constexpr double cQuiet = 0.5; // seconds between two changes of what is said of the work

QString stateText(StatusMenuState state) {
    switch (state) {
    case StatusMenuState::Off:
        return TrayIcon::tr("Syncing is off");
    case StatusMenuState::Resting:
        return TrayIcon::tr("Waiting for the next pass");
    case StatusMenuState::Running:
        return TrayIcon::tr("Syncing now");
    case StatusMenuState::Trouble:
        return TrayIcon::tr("Needs attention");
    }
    return {};
}

/// What tooltip and menu say of the work; an empty one has nothing to say.
std::array<QString, 3> facts(const WorkState& work) {
    const bool said = work.headline == work.nextPass ||
                      (work.phase == WorkPhase::Resting && work.health.sign == HealthSign::Well);
    return {work.headline, work.health.lastSuccess, said ? QString() : work.nextPass};
}

QString literalTitle(const QString& title) {
    return QString(title).replace(u'&', QStringLiteral("&&"));
}

std::vector<TrayPicture> pictures(const QIcon& icon) {
    std::vector<TrayPicture> all;
    for (const QSize size : icon.availableSizes()) {
        const QImage image =
            icon.pixmap(size, 1.0).toImage().convertToFormat(QImage::Format_ARGB32);
        QByteArray argb(image.sizeInBytes(), Qt::Uninitialized);
        qToBigEndian<quint32>(image.constBits(), image.sizeInBytes() / 4, argb.data());
        all.push_back({.side = image.width(), .argb = argb});
    }
    return all;
}

} // namespace

TrayIcon::TrayIcon(TrayHost& host, TrayItem& item, DispatchQueue& mainQueue, const Profile& profile)
    : fHost(host), fItem(item), fMainQueue(mainQueue), fTitle(profile.title()),
      fHostChanges(host.observe([this] { update(); })) {
    using Actions = StatusMenuActions;
    fMenu.setObjectName(QStringLiteral("trayMenu"));
    fMenu.setAccessibleName(fTitle);
    addFactLines();
    fStartEntry = addEntry("startOrStop", tr("Start Syncing"), &Actions::startOrStop);
    fSyncNowEntry = addEntry("syncNow", tr("Sync &Now"), &Actions::syncNow);
    fCancelEntry = addEntry("cancelPass", tr("&Cancel This Pass"), &Actions::cancelPass);
    fMenu.addSeparator();
    fMenu.setDefaultAction(addEntry("showWindow", tr("Open &Window"), &Actions::showWindow));
    addEntry("showActivity", tr("&Activity"), &Actions::showActivity);
    fRevealEntry = addEntry("revealFolder", tr("Reveal &Folder"), &Actions::revealFolder);
    fMenu.addSeparator();
    addEntry("quitAndRelaunch", tr("Quit and &Relaunch"), &Actions::quitAndRelaunch);
    addEntry("quit", tr("&Quit"), &Actions::quit);
    fMenu.setToolTipsVisible(true);
    fMenu.installEventFilter(this);
    setActions({});
    showWorkNow();
    fItem.setChoices({
        .activate = [this] { run(&Actions::showWindow); },
        .choose = [this](std::size_t entry) { choose(entry); },
        .openMenu = [this](int x, int y) { fMenu.popup(QPoint(x, y)); },
        .menuShown = [this](bool shown) { tellMenuShown(shown); },
    });
    connect(&fMenu, &QMenu::aboutToShow, this, [this] { tellMenuShown(true); });
    connect(&fMenu, &QMenu::aboutToHide, this, [this] { tellMenuShown(false); });
}

TrayIcon::~TrayIcon() {
    fItem.setChoices({});
    fItem.hide();
    fMenu.removeEventFilter(this);
}

void TrayIcon::addFactLines() {
    constexpr std::array cNames{"headline", "lastSuccess", "nextPass"};
    for (std::size_t at = 0; at < fFacts.size(); ++at) {
        fFacts[at] = fMenu.addAction(QString());
        fFacts[at]->setObjectName(QString::fromLatin1(cNames[at]));
        fFacts[at]->setEnabled(false);
    }
    fFactsEnd = fMenu.addSeparator();
}

QAction* TrayIcon::addEntry(const char* name, const QString& title, Action action) {
    QAction* entry = fMenu.addAction(title);
    entry->setObjectName(QString::fromLatin1(name));
    connect(entry, &QAction::triggered, this, [this, action] { run(action); });
    return entry;
}

void TrayIcon::setActions(StatusMenuActions actions) {
    fActions = std::move(actions);
    const bool hasFolder = fActions.revealFolder != nullptr;
    fRevealEntry->setEnabled(hasFolder);
    fRevealEntry->setToolTip(hasFolder ? QString() : tr("No destination folder is chosen yet"));
    fillItem();
}

void TrayIcon::run(Action action) {
    // A copy: what it does may set other actions.
    if (const auto chosen = fActions.*action; chosen && fState)
        chosen();
}

void TrayIcon::tellMenuShown(bool shown) {
    if (const auto told = fActions.menuShown; told && fState)
        told(shown);
}

void TrayIcon::choose(std::size_t entry) {
    if (const QList<QAction*> entries = fMenu.actions();
        entry < static_cast<std::size_t>(entries.size()))
        entries[static_cast<qsizetype>(entry)]->trigger();
}

void TrayIcon::show(StatusMenuState state) {
    fState = state;
    update();
}

void TrayIcon::setStartTitle(const QString& title) {
    fStartEntry->setText(literalTitle(title));
    fillItem();
}

void TrayIcon::hide() {
    fState.reset();
    update();
}

bool TrayIcon::isReachable() const {
    return fState && fHost.isPresent();
}

const QSystemTrayIcon* TrayIcon::shownIcon() const {
    return fIcon && fIcon->isVisible() ? fIcon.get() : nullptr;
}

void TrayIcon::showNotice(const Notice& notice) {
    if (shownIcon())
        fIcon->showMessage(notice.title, notice.text);
}

// -- what is said of the work

void TrayIcon::showWork(const WorkState& work) {
    fWork = work;
    if (fIsQuiet || fWork == fShownWork)
        return;
    showWorkNow();
    fIsQuiet = true;
    fMainQueue.asyncAfter(cQuiet, [this] {
        fIsQuiet = false;
        showWork(fWork);
    });
}

void TrayIcon::showWorkNow() {
    fShownWork = fWork;
    const auto texts = facts(fWork);
    bool any = false;
    for (std::size_t at = 0; at < texts.size(); ++at) {
        fFacts[at]->setText(literalTitle(texts[at]));
        fFacts[at]->setVisible(!texts[at].isEmpty());
        any = any || !texts[at].isEmpty();
    }
    fFactsEnd->setVisible(any);
    fSyncNowEntry->setEnabled(fWork.maySyncNow);
    fCancelEntry->setEnabled(fWork.mayCancel);
    fillItem();
    update();
}

void TrayIcon::fillItem() {
    std::vector<TrayEntry> entries;
    for (const QAction* entry : fMenu.actions())
        entries.push_back({.title = entry->text(),
                           .isSeparator = entry->isSeparator(),
                           .isEnabled = entry->isEnabled(),
                           .isVisible = entry->isVisible()});
    fItem.setEntries(std::move(entries));
}

QString TrayIcon::tip() const {
    QStringList lines;
    for (const QString& fact : facts(fShownWork)) {
        if (!fact.isEmpty())
            lines.append(fact);
    }
    return lines.isEmpty() ? stateText(*fState) : lines.join(u'\n');
}

// -- the icon

void TrayIcon::update() {
    const TrayKind kind = fState ? fHost.kind() : TrayKind::None;
    if (kind != TrayKind::Bus)
        fItem.hide();
    if (kind != TrayKind::X11 && fIcon)
        fIcon->hide();
    if (kind == TrayKind::None)
        return;
    if (std::exchange(fDrawn, fState) != fState) {
        const QPalette palette = fMenu.palette();
        fPicture = statusIcon(*fState, palette.color(QPalette::WindowText),
                              palette.color(QPalette::Window));
        fLook.pictures = pictures(fPicture);
    }
    if (kind == TrayKind::Bus) {
        fLook.needsAttention = fState == StatusMenuState::Trouble;
        fLook.tip = tip();
        fItem.show(fLook);
        return;
    }
    if (!fIcon)
        makeIcon();
    if (fIcon->icon().cacheKey() != fPicture.cacheKey())
        fIcon->setIcon(fPicture);
    // The name stands on a line of its own: what follows a line end is never taken for marks.
    fIcon->setToolTip(QString(fTitle + u'\n' + tip()));
    fIcon->show();
}

void TrayIcon::makeIcon() {
    fIcon = std::make_unique<QSystemTrayIcon>();
    fIcon->setContextMenu(&fMenu);
    connect(fIcon.get(), &QSystemTrayIcon::activated, this,
            [this](QSystemTrayIcon::ActivationReason reason) {
                if (reason == QSystemTrayIcon::Trigger)
                    run(&StatusMenuActions::showWindow);
            });
}

bool TrayIcon::eventFilter(QObject* watched, QEvent* event) {
    if (watched == &fMenu && event->type() == QEvent::PaletteChange) {
        fDrawn.reset();
        update();
    }
    return QObject::eventFilter(watched, event);
}

} // namespace kelvo
