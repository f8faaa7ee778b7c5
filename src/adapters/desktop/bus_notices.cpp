#include "adapters/desktop/bus_notices.h"

#include "adapters/desktop/activation_token.h"

#include <QDBusMessage>
#include <QDBusPendingCallWatcher>
#include <QDBusPendingReply>
#include <QStringList>

#include <utility>

namespace kelvo {
namespace {

constexpr int cAnswerTimeout = 5000; // milliseconds
constexpr int cAsTheDesktopLikes = -1;

QString service() {
    return QStringLiteral("org.freedesktop.Notifications");
}

QString place() {
    return QStringLiteral("/org/freedesktop/Notifications");
}

QDBusMessage callOf(const QString& method) {
    return QDBusMessage::createMethodCall(service(), place(), service(), method);
}

/// "default" is a click on the notice itself, "show" a button on it.
QStringList showActions() {
    const QString label = BusNotices::tr("Show");
    return {QStringLiteral("default"), label, QStringLiteral("show"), label};
}

/// As the service counts it: 1 for ordinary, 2 for what stays until it has been read.
QVariant urgency(bool urgent) {
    return QVariant::fromValue(static_cast<uchar>(urgent ? 2 : 1));
}

} // namespace

BusNotices::BusNotices(std::function<void(const Notice&)> otherwise,
                       std::function<QDBusConnection()> connect, Profile profile)
    : fOtherwise(std::move(otherwise)), fConnect(std::move(connect)), fProfile(std::move(profile)) {
}

void BusNotices::showNotice(const Notice& notice) {
    const QDBusConnection bus = fConnect();
    // A call that fails at once is never reported as finished.
    if (!bus.isConnected()) {
        if (fOtherwise)
            fOtherwise(notice);
        return;
    }
    if (!notice.show) {
        notify(bus, notice, {});
        return;
    }
    listen(bus);
    auto* answer = new QDBusPendingCallWatcher(
        bus.asyncCall(callOf(QStringLiteral("GetCapabilities")), cAnswerTimeout), this);
    connect(answer, &QDBusPendingCallWatcher::finished, this,
            [this, bus, notice](QDBusPendingCallWatcher* finished) {
                finished->deleteLater();
                const QDBusPendingReply<QStringList> can = *finished;
                const bool choices = can.isValid() && can.value().contains(u"actions");
                notify(bus, notice, choices ? showActions() : QStringList());
            });
}

void BusNotices::notify(const QDBusConnection& bus, const Notice& notice,
                        const QStringList& actions) {
    QDBusMessage notify = callOf(QStringLiteral("Notify"));
    // The body may hold marks; the summary is always plain.
    notify << fProfile.title() << quint32{0} << QStringLiteral("kelvo-mirror") << notice.title
           << notice.text.toHtmlEscaped() << actions
           << QVariantMap{{QStringLiteral("desktop-entry"),
                           QStringLiteral("org.kelvo.KelvoMirror")},
                          {QStringLiteral("urgency"), urgency(notice.urgent)}}
           << cAsTheDesktopLikes;
    auto* answer = new QDBusPendingCallWatcher(bus.asyncCall(notify, cAnswerTimeout), this);
    connect(answer, &QDBusPendingCallWatcher::finished, this,
            [this, notice](QDBusPendingCallWatcher* finished) {
                finished->deleteLater();
                const QDBusPendingReply<uint> id = *finished;
                if (id.isValid() && notice.show)
                    fShows[id.value()] = notice.show;
                else if (id.isError() && fOtherwise)
                    fOtherwise(notice);
            });
}

void BusNotices::listen(QDBusConnection bus) {
    if (std::exchange(fListens, true))
        return;
    bus.connect(service(), place(), service(), QStringLiteral("ActivationToken"), this,
                SLOT(activationToken(uint, QString)));
    bus.connect(service(), place(), service(), QStringLiteral("ActionInvoked"), this,
                SLOT(actionInvoked(uint, QString)));
    bus.connect(service(), place(), service(), QStringLiteral("NotificationClosed"), this,
                SLOT(notificationClosed(uint, uint)));
}

/// Told right before the choice that it belongs to.
void BusNotices::activationToken(uint id, const QString& token) {
    if (fShows.contains(id))
        offerActivationToken(token.toUtf8());
}

/// The service tells every program of every choice: only our own numbers count.
void BusNotices::actionInvoked(uint id, const QString&) {
    if (const auto chosen = fShows.extract(id)) {
        chosen.mapped()();
        offerActivationToken({});
    }
}

void BusNotices::notificationClosed(uint id, uint) {
    fShows.erase(id);
}

} // namespace kelvo
