// PortalService: the desktop's portal on a bus, reduced to the wish for dark colours, for tests.
#pragma once

#include <QDBusConnection>
#include <QDBusVariant>
#include <QObject>

namespace kelvo {

class PortalService final : public QObject {
    Q_OBJECT
    Q_CLASSINFO("D-Bus Interface", "org.freedesktop.portal.Settings")
public:
    explicit PortalService(QDBusConnection& bus) : fBus(bus) {}

    /// False when the name or the place on the bus is taken.
    bool appear();

    /// 0 no preference, 1 dark, 2 light; told to whoever listens.
    void setScheme(uint scheme);

    int questions = 0;

Q_SIGNALS:
    void SettingChanged(const QString& group, const QString& key, const QDBusVariant& value);

public Q_SLOTS:
    QDBusVariant Read(const QString& group, const QString& key);

private:
    QDBusConnection& fBus;
    uint fScheme = 0;
};

} // namespace kelvo
