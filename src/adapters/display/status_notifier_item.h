// StatusNotifierItem: an icon for panels that speak over the session bus.
#pragma once

#include "adapters/display/dbus_menu.h"
#include "ports/tray_item.h"
#include "support/profile.h"

#include <QDBusConnection>
#include <QDBusObjectPath>
#include <QDBusServiceWatcher>
#include <QObject>

#include <optional>

namespace kelvo {

struct BusPicture {
    int width = 0;
    int height = 0;
    QByteArray argb;
};
using BusPictures = QList<BusPicture>;

struct BusToolTip {
    QString iconName;
    BusPictures icon;
    QString title;
    QString text; ///< may hold marks
};

QDBusArgument& operator<<(QDBusArgument& to, const BusPicture& picture);
const QDBusArgument& operator>>(const QDBusArgument& from, BusPicture& picture);
QDBusArgument& operator<<(QDBusArgument& to, const BusToolTip& tip);
const QDBusArgument& operator>>(const QDBusArgument& from, BusToolTip& tip);

/// Panels take an item away when its connection ends; each time it is shown it has one of its own.
class StatusNotifierItem final : public QObject, public TrayItem {
    Q_OBJECT
    Q_CLASSINFO("D-Bus Interface", "org.kde.StatusNotifierItem")
    Q_PROPERTY(QString Category READ category CONSTANT)
    Q_PROPERTY(QString Id READ id CONSTANT)
    Q_PROPERTY(QString Title READ title CONSTANT)
    Q_PROPERTY(QString Status READ status)
    Q_PROPERTY(int WindowId READ windowId CONSTANT)
    Q_PROPERTY(QString IconName READ noName CONSTANT)
    Q_PROPERTY(kelvo::BusPictures IconPixmap READ pictures)
    Q_PROPERTY(QString OverlayIconName READ noName CONSTANT)
    Q_PROPERTY(QString AttentionIconName READ noName CONSTANT)
    Q_PROPERTY(kelvo::BusPictures AttentionIconPixmap READ pictures)
    Q_PROPERTY(kelvo::BusToolTip ToolTip READ toolTip)
    Q_PROPERTY(bool ItemIsMenu READ itemIsMenu CONSTANT)
    Q_PROPERTY(QDBusObjectPath Menu READ menu CONSTANT)
public:
    using Connect = std::function<QDBusConnection(const QString& name)>;
    /// `connect` opens a connection to the session bus under `name`; a real one by default.
    explicit StatusNotifierItem(Connect connect = connectToSessionBus, Profile profile = {});
    ~StatusNotifierItem() override { hide(); }
    static QDBusConnection connectToSessionBus(const QString& name);

    void setChoices(TrayChoices choices) override { fChoices = std::move(choices); }
    void setEntries(std::vector<TrayEntry> entries) override;
    void show(const TrayLook& look) override;
    void hide() override;

    QString category() const { return QStringLiteral("ApplicationStatus"); }
    QString id() const;
    QString title() const { return fProfile.title(); }
    QString status() const;
    int windowId() const { return 0; }
    QString noName() const { return {}; }
    BusPictures pictures() const;
    BusToolTip toolTip() const;
    bool itemIsMenu() const { return false; }
    QDBusObjectPath menu() const;

public Q_SLOTS:
    Q_SCRIPTABLE void Activate(int x, int y);
    Q_SCRIPTABLE void SecondaryActivate(int x, int y);
    Q_SCRIPTABLE void ContextMenu(int x, int y);
    Q_SCRIPTABLE void Scroll(int delta, const QString& orientation);
    Q_SCRIPTABLE void ProvideXdgActivationToken(const QString& token);

Q_SIGNALS:
    Q_SCRIPTABLE void NewTitle();
    Q_SCRIPTABLE void NewIcon();
    Q_SCRIPTABLE void NewAttentionIcon();
    Q_SCRIPTABLE void NewToolTip();
    Q_SCRIPTABLE void NewStatus(const QString& status);

private:
    void appear();
    void announce();
    void later(std::function<void()> choice);

    const Connect fConnect;
    const Profile fProfile;
    TrayChoices fChoices;
    DBusMenu fMenu;
    QDBusServiceWatcher fPanels;
    std::optional<QDBusConnection> fBus; ///< nothing while hidden
    TrayLook fLook;
};

} // namespace kelvo

Q_DECLARE_METATYPE(kelvo::BusPicture)
Q_DECLARE_METATYPE(kelvo::BusToolTip)
