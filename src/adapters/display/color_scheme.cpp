#include "adapters/display/color_scheme.h"

#include <QDBusMessage>
#include <QDBusPendingCallWatcher>
#include <QDBusPendingReply>

#include <utility>

namespace kelvo {
namespace {

const QString cPortal = QStringLiteral("org.freedesktop.portal.Desktop");
const QString cPlace = QStringLiteral("/org/freedesktop/portal/desktop");
const QString cSettings = QStringLiteral("org.freedesktop.portal.Settings");
const QString cGroup = QStringLiteral("org.freedesktop.appearance");
const QString cKey = QStringLiteral("color-scheme");
constexpr uint cPrefersDark = 1;

} // namespace

ColorScheme::ColorScheme(std::function<void(bool dark)> changed, QDBusConnection bus)
    : fChanged(std::move(changed)), fBus(std::move(bus)) {
    if (!fBus.isConnected())
        return;
    // The toolkit looks the types of a slot up by name, and knows none that nobody has used yet.
    qRegisterMetaType<QDBusVariant>();
    fBus.connect(cPortal, cPlace, cSettings, QStringLiteral("SettingChanged"), this,
                 SLOT(settingChanged(QString, QString, QDBusVariant)));
    fPortals.setConnection(fBus);
    fPortals.setWatchMode(QDBusServiceWatcher::WatchForRegistration);
    fPortals.addWatchedService(cPortal);
    connect(&fPortals, &QDBusServiceWatcher::serviceRegistered, this, &ColorScheme::ask);
    ask();
}

bool ColorScheme::isTakenOverByToolkit() {
    return !qEnvironmentVariableIsEmpty("QT_QPA_PLATFORMTHEME") ||
           qEnvironmentVariable("XDG_CURRENT_DESKTOP").split(u':').contains(u"KDE");
}

void ColorScheme::ask() {
    QDBusMessage question =
        QDBusMessage::createMethodCall(cPortal, cPlace, cSettings, QStringLiteral("Read"));
    question << cGroup << cKey;
    question.setAutoStartService(false);
    auto* answer = new QDBusPendingCallWatcher(fBus.asyncCall(question), this);
    connect(answer, &QDBusPendingCallWatcher::finished, this, [this, answer] {
        answer->deleteLater();
        const QDBusPendingReply<QDBusVariant> reply = *answer;
        if (reply.isValid())
            take(reply.value().variant());
    });
}

void ColorScheme::settingChanged(const QString& group, const QString& key,
                                 const QDBusVariant& value) {
    if (group == cGroup && key == cKey)
        take(value.variant());
}

/// An answer has the value in a variant of its own, a signal has not.
void ColorScheme::take(const QVariant& value) {
    const QVariant scheme = value.metaType() == QMetaType::fromType<QDBusVariant>()
                                ? value.value<QDBusVariant>().variant()
                                : value;
    const bool dark = scheme.toUInt() == cPrefersDark;
    if (std::exchange(fIsDark, dark) != dark)
        fChanged(dark);
}

} // namespace kelvo
