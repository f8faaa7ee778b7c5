#include "adapters/display/status_notifier_item.h"

#include "adapters/desktop/activation_token.h"

#include <QDBusMessage>
#include <QDBusMetaType>
#include <QDBusPendingCall>
#include <QTimer>

namespace kelvo {
namespace {

const QString cConnection = QStringLiteral("kelvo-mirror tray item");
const QString cItemPath = QStringLiteral("/StatusNotifierItem");
const QString cMenuPath = QStringLiteral("/MenuBar");
const QString cWatcher = QStringLiteral("org.kde.StatusNotifierWatcher");

} // namespace

QDBusArgument& operator<<(QDBusArgument& to, const BusPicture& picture) {
    return writeStructure(to, picture.width, picture.height, picture.argb);
}
const QDBusArgument& operator>>(const QDBusArgument& from, BusPicture& picture) {
    return readStructure(from, picture.width, picture.height, picture.argb);
}
QDBusArgument& operator<<(QDBusArgument& to, const BusToolTip& tip) {
    return writeStructure(to, tip.iconName, tip.icon, tip.title, tip.text);
}
const QDBusArgument& operator>>(const QDBusArgument& from, BusToolTip& tip) {
    return readStructure(from, tip.iconName, tip.icon, tip.title, tip.text);
}

StatusNotifierItem::StatusNotifierItem(Connect connect, Profile profile)
    : fConnect(std::move(connect)), fProfile(std::move(profile)),
      fMenu(
          [this](std::size_t entry) {
              if (fBus && fChoices.choose)
                  fChoices.choose(entry);
          },
          [this](bool shown) {
              if (fBus && fChoices.menuShown)
                  fChoices.menuShown(shown);
          }) {
    qDBusRegisterMetaType<BusPicture>();
    qDBusRegisterMetaType<BusPictures>();
    qDBusRegisterMetaType<BusToolTip>();
    fPanels.setWatchMode(QDBusServiceWatcher::WatchForOwnerChange);
    fPanels.addWatchedService(cWatcher);
    QObject::connect(&fPanels, &QDBusServiceWatcher::serviceOwnerChanged, this,
                     &StatusNotifierItem::announce);
}

QDBusConnection StatusNotifierItem::connectToSessionBus(const QString& name) {
    return QDBusConnection::connectToBus(QDBusConnection::SessionBus, name);
}

void StatusNotifierItem::setEntries(std::vector<TrayEntry> entries) {
    fMenu.setEntries(std::move(entries));
}

void StatusNotifierItem::show(const TrayLook& look) {
    const TrayLook before = std::exchange(fLook, look);
    if (!fBus) {
        appear();
        return;
    }
    if (before.pictures != look.pictures) {
        Q_EMIT NewIcon();
        Q_EMIT NewAttentionIcon();
    }
    if (before.tip != look.tip)
        Q_EMIT NewToolTip();
    if (before.needsAttention != look.needsAttention)
        Q_EMIT NewStatus(status());
}

void StatusNotifierItem::appear() {
    fBus = fConnect(cConnection);
    fBus->registerObject(cItemPath, this, QDBusConnection::ExportScriptableContents);
    fBus->registerObject(cMenuPath, &fMenu, QDBusConnection::ExportScriptableContents);
    fPanels.setConnection(*fBus);
    announce();
}

void StatusNotifierItem::announce() {
    if (!fBus)
        return;
    QDBusMessage call =
        QDBusMessage::createMethodCall(cWatcher, QStringLiteral("/StatusNotifierWatcher"), cWatcher,
                                       QStringLiteral("RegisterStatusNotifierItem"));
    call << fBus->baseService();
    call.setAutoStartService(false);
    fBus->asyncCall(call);
}

void StatusNotifierItem::hide() {
    if (!fBus)
        return;
    fPanels.setConnection(QDBusConnection(QString()));
    // What stands on the connection goes with it.
    const QString name = fBus->name();
    fBus.reset();
    QDBusConnection::disconnectFromBus(name);
}

/// Panels remember by it which items a person wants to see.
QString StatusNotifierItem::id() const {
    return fProfile.isNamed() ? QString(u"kelvo-mirror-" + fProfile.name)
                              : QStringLiteral("kelvo-mirror");
}

QString StatusNotifierItem::status() const {
    return fLook.needsAttention ? QStringLiteral("NeedsAttention") : QStringLiteral("Active");
}

BusPictures StatusNotifierItem::pictures() const {
    BusPictures all;
    for (const TrayPicture& picture : fLook.pictures)
        all.append({picture.side, picture.side, picture.argb});
    return all;
}

BusToolTip StatusNotifierItem::toolTip() const {
    return {{}, {}, title(), fLook.tip.toHtmlEscaped()};
}

QDBusObjectPath StatusNotifierItem::menu() const {
    return QDBusObjectPath(cMenuPath);
}

void StatusNotifierItem::Activate(int, int) {
    later(fChoices.activate);
}

void StatusNotifierItem::SecondaryActivate(int, int) {}

void StatusNotifierItem::ContextMenu(int x, int y) {
    later([this, x, y] {
        if (fChoices.openMenu)
            fChoices.openMenu(x, y);
    });
}

void StatusNotifierItem::Scroll(int, const QString&) {}

void StatusNotifierItem::ProvideXdgActivationToken(const QString& token) {
    offerActivationToken(token.toUtf8());
}

/// The panel has its answer first: what is chosen may take its time.
void StatusNotifierItem::later(std::function<void()> choice) {
    QTimer::singleShot(0, this, [this, choice = std::move(choice)] {
        if (fBus && choice)
            choice();
        offerActivationToken({});
    });
}

} // namespace kelvo
