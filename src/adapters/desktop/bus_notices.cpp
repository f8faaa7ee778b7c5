#include "adapters/desktop/bus_notices.h"

#include <QDBusMessage>
#include <QDBusPendingCallWatcher>
#include <QDBusPendingReply>

#include <utility>

namespace kelvo {
namespace {

constexpr int cAnswerTimeout = 5000; // milliseconds
constexpr int cAsTheDesktopLikes = -1;

} // namespace

BusNotices::BusNotices(std::function<void(const Notice&)> otherwise,
                       std::function<QDBusConnection()> connect)
    : fOtherwise(std::move(otherwise)), fConnect(std::move(connect)) {}

void BusNotices::showNotice(const Notice& notice) {
    const QDBusConnection bus = fConnect();
    // A call that fails at once is never reported as finished.
    if (!bus.isConnected()) {
        if (fOtherwise)
            fOtherwise(notice);
        return;
    }
    const QString service = QStringLiteral("org.freedesktop.Notifications");
    QDBusMessage notify =
        QDBusMessage::createMethodCall(service, QStringLiteral("/org/freedesktop/Notifications"),
                                       service, QStringLiteral("Notify"));
    // The body may hold marks; the summary is always plain.
    notify << QStringLiteral("Kelvo Mirror") << quint32{0} << QStringLiteral("kelvo-mirror")
           << notice.title << notice.text.toHtmlEscaped() << QStringList()
           << QVariantMap{{QStringLiteral("desktop-entry"),
                           QStringLiteral("org.kelvo.KelvoMirror")}}
           << cAsTheDesktopLikes;
    auto* answer = new QDBusPendingCallWatcher(bus.asyncCall(notify, cAnswerTimeout), this);
    connect(answer, &QDBusPendingCallWatcher::finished, this,
            [this, notice](QDBusPendingCallWatcher* finished) {
                finished->deleteLater();
                if (finished->isError() && fOtherwise)
                    fOtherwise(notice);
            });
}

} // namespace kelvo
