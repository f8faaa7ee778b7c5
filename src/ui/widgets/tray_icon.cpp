#include "ui/widgets/tray_icon.h"

#include "ports/tray_host.h"
#include "ui/widgets/icons.h"

#include <QEvent>
#include <QPalette>

namespace kelvo {
namespace {

QString stateText(StatusMenuState state) {
    switch (state) {
    case StatusMenuState::Off:
        return TrayIcon::tr("Kelvo Mirror: syncing is off");
    case StatusMenuState::Resting:
        return TrayIcon::tr("Kelvo Mirror: waiting for the next pass");
    case StatusMenuState::Running:
        return TrayIcon::tr("Kelvo Mirror: syncing now");
    case StatusMenuState::Trouble:
        return TrayIcon::tr("Kelvo Mirror: needs attention");
    }
    return {};
}

} // namespace

TrayIcon::TrayIcon(TrayHost& host) : fHost(host), fHostChanges(host.observe([this] { update(); })) {
    fMenu.setObjectName(QStringLiteral("trayMenu"));
    fMenu.setAccessibleName(QStringLiteral("Kelvo Mirror"));
    fMenu.setDefaultAction(
        addEntry(QStringLiteral("showWindow"), tr("Show &Window"), &StatusMenuActions::showWindow));
    fMenu.addSeparator();
    fStartEntry = addEntry(QStringLiteral("startOrStop"), tr("Start Syncing"),
                           &StatusMenuActions::startOrStop);
    fMenu.addSeparator();
    addEntry(QStringLiteral("quitAndRelaunch"), tr("Quit and &Relaunch"),
             &StatusMenuActions::quitAndRelaunch);
    addEntry(QStringLiteral("quit"), tr("&Quit"), &StatusMenuActions::quit);
    fMenu.installEventFilter(this);
}

TrayIcon::~TrayIcon() {
    fMenu.removeEventFilter(this);
}

QAction* TrayIcon::addEntry(const QString& name, const QString& title, Action action) {
    QAction* entry = fMenu.addAction(title);
    entry->setObjectName(name);
    connect(entry, &QAction::triggered, this, [this, action] { run(action); });
    return entry;
}

void TrayIcon::run(Action action) {
    // A copy: what it does may set other actions.
    if (const auto chosen = fActions.*action; chosen && fState)
        chosen();
}

void TrayIcon::show(StatusMenuState state) {
    fState = state;
    update();
}

void TrayIcon::showWork(const WorkState&) {}

void TrayIcon::setStartTitle(const QString& title) {
    fStartEntry->setText(QString(title).replace(u'&', QStringLiteral("&&")));
}

void TrayIcon::hide() {
    fState.reset();
    update();
}

bool TrayIcon::isReachable() const {
    return shownIcon() && fHost.isPresent();
}

const QSystemTrayIcon* TrayIcon::shownIcon() const {
    return fIcon && fIcon->isVisible() ? fIcon.get() : nullptr;
}

void TrayIcon::showNotice(const Notice& notice) {
    if (shownIcon())
        fIcon->showMessage(notice.title, notice.text);
}

void TrayIcon::update() {
    if (!fState) {
        if (fIcon)
            fIcon->hide();
        return;
    }
    if (!fIcon && fHost.isPresent())
        makeIcon();
    if (!fIcon)
        return;
    const QPalette palette = fMenu.palette();
    fIcon->setIcon(
        statusIcon(*fState, palette.color(QPalette::WindowText), palette.color(QPalette::Window)));
    fIcon->setToolTip(stateText(*fState));
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
    if (watched == &fMenu && event->type() == QEvent::PaletteChange)
        update();
    return QObject::eventFilter(watched, event);
}

} // namespace kelvo
