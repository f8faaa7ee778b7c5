// NotificationService: a desktop's notification service on a bus, for tests.
#pragma once

#include <QDBusConnection>
#include <QObject>
#include <QStringList>
#include <QVariantMap>

namespace kelvo {

class NotificationService final : public QObject {
    Q_OBJECT
    Q_CLASSINFO("D-Bus Interface", "org.freedesktop.Notifications")
public:
    explicit NotificationService(QDBusConnection& bus) : fBus(bus) {}

    /// False when the name or the place on the bus is taken.
    bool appear();

    QStringList shown;   ///< "<summary> | <body>", as they came
    QStringList actions; ///< of the last notice
    QVariantMap hints;   ///< of the last notice
    /// Of the last notice: program, number of the notice that it replaces, icon, milliseconds.
    QVariantList frame;
    QStringList can{QStringLiteral("actions")}; ///< what it says it can do

Q_SIGNALS:
    void ActivationToken(uint id, const QString& token);
    void ActionInvoked(uint id, const QString& action);
    void NotificationClosed(uint id, uint reason);

public Q_SLOTS:
    QStringList GetCapabilities() const { return can; }
    uint Notify(const QString& program, uint replaces, const QString& icon, const QString& summary,
                const QString& body, const QStringList& actions, const QVariantMap& hints,
                int milliseconds);

private:
    QDBusConnection& fBus;
};

} // namespace kelvo
