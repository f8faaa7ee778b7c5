// DBusMenu: a flat menu as com.canonical.dbusmenu, by which panels draw menus of other programs.
#pragma once

#include "ports/tray_item.h"

#include <QDBusArgument>
#include <QDBusContext>
#include <QDBusVariant>
#include <QObject>
#include <QStringList>
#include <QVariantMap>

#include <optional>
#include <utility>

namespace kelvo {

/// Writes and reads `parts` as one structure of the bus.
template <typename... Parts>
QDBusArgument& writeStructure(QDBusArgument& to, const Parts&... parts) {
    to.beginStructure();
    (to << ... << parts);
    to.endStructure();
    return to;
}
template <typename... Parts>
const QDBusArgument& readStructure(const QDBusArgument& from, Parts&... parts) {
    from.beginStructure();
    (from >> ... >> parts);
    from.endStructure();
    return from;
}

/// An entry and, in a variant each, those beneath it.
struct MenuLayout {
    int id = 0;
    QVariantMap properties;
    QVariantList children;
};
struct MenuEvent {
    int id = 0;
    QString name;
    QDBusVariant data;
    uint time = 0;
};
using MenuEvents = QList<MenuEvent>;
using EntryProperties = QList<std::pair<int, QVariantMap>>;
using EntryPropertyNames = QList<std::pair<int, QStringList>>;

QDBusArgument& operator<<(QDBusArgument& to, const MenuLayout& layout);
const QDBusArgument& operator>>(const QDBusArgument& from, MenuLayout& layout);
QDBusArgument& operator<<(QDBusArgument& to, const MenuEvent& event);
const QDBusArgument& operator>>(const QDBusArgument& from, MenuEvent& event);

/// Main thread only. The object to register on a bus; the entry at place n has the id n + 1, the
/// menu itself 0. Calls that name anything else are answered with errors.
class DBusMenu final : public QObject, protected QDBusContext {
    Q_OBJECT
    Q_CLASSINFO("D-Bus Interface", "com.canonical.dbusmenu")
    Q_PROPERTY(uint Version READ version CONSTANT)
    Q_PROPERTY(QString TextDirection READ textDirection CONSTANT)
    Q_PROPERTY(QString Status READ status CONSTANT)
    Q_PROPERTY(QStringList IconThemePath READ iconThemePath CONSTANT)
public:
    /// Both are called from the event loop: `choose` with the place of an entry that a person
    /// chose, `shown` when a panel tells that it has opened the menu or closed it.
    DBusMenu(std::function<void(std::size_t)> choose, std::function<void(bool)> shown);

    /// Tells the bus what differs.
    void setEntries(std::vector<TrayEntry> entries);

    uint version() const { return 3; }
    QString textDirection() const;
    QString status() const { return QStringLiteral("normal"); }
    QStringList iconThemePath() const { return {}; }

public Q_SLOTS:
    Q_SCRIPTABLE uint GetLayout(int parent, int depth, const QStringList& names,
                                kelvo::MenuLayout& layout) const;
    Q_SCRIPTABLE kelvo::EntryProperties GetGroupProperties(const QList<int>& ids,
                                                           const QStringList& names) const;
    Q_SCRIPTABLE QDBusVariant GetProperty(int id, const QString& name) const;
    Q_SCRIPTABLE void Event(int id, const QString& name, const QDBusVariant& data, uint time);
    Q_SCRIPTABLE QList<int> EventGroup(const kelvo::MenuEvents& events);
    Q_SCRIPTABLE bool AboutToShow(int id) const;
    Q_SCRIPTABLE QList<int> AboutToShowGroup(const QList<int>& ids, QList<int>& unknown) const;

Q_SIGNALS:
    Q_SCRIPTABLE void ItemsPropertiesUpdated(const kelvo::EntryProperties& changed,
                                             const kelvo::EntryPropertyNames& removed);
    Q_SCRIPTABLE void LayoutUpdated(uint revision, int parent);

private:
    std::optional<QVariantMap> properties(int id, const QStringList& names = {}) const;
    bool isKnown(int id) const { return properties(id).has_value(); }
    void take(int id, const QString& event);
    void refuse(const QString& what) const;

    const std::function<void(std::size_t)> fChoose;
    const std::function<void(bool)> fShown;
    std::vector<TrayEntry> fEntries;
    uint fRevision = 1;
};

} // namespace kelvo

Q_DECLARE_METATYPE(kelvo::MenuLayout)
Q_DECLARE_METATYPE(kelvo::MenuEvent)
