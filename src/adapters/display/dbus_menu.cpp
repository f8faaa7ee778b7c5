#include "adapters/display/dbus_menu.h"

#include <QDBusMetaType>
#include <QGuiApplication>
#include <QTimer>

#include <algorithm>

namespace kelvo {
namespace {

/// The bus marks a mnemonic with "_" and doubles one that stands for itself.
QString busTitle(const QString& title) {
    QString marked;
    for (qsizetype at = 0; at < title.size(); ++at) {
        if (title[at] == u'_')
            marked += QStringLiteral("__");
        else if (title[at] != u'&')
            marked += title[at];
        else if (QStringView(title).sliced(at + 1).startsWith(u'&'))
            marked += title[++at];
        else
            marked += u'_';
    }
    return marked;
}

/// All of them, so that one that is back at its default is told like any other.
QVariantMap entryProperties(const TrayEntry& entry) {
    if (entry.isSeparator)
        return {{QStringLiteral("type"), QStringLiteral("separator")},
                {QStringLiteral("visible"), entry.isVisible}};
    return {{QStringLiteral("label"), busTitle(entry.title)},
            {QStringLiteral("enabled"), entry.isEnabled},
            {QStringLiteral("visible"), entry.isVisible}};
}

template <typename... Types>
void registerTypes() {
    (qDBusRegisterMetaType<Types>(), ...);
}

} // namespace

QDBusArgument& operator<<(QDBusArgument& to, const MenuLayout& layout) {
    return writeStructure(to, layout.id, layout.properties, layout.children);
}
const QDBusArgument& operator>>(const QDBusArgument& from, MenuLayout& layout) {
    return readStructure(from, layout.id, layout.properties, layout.children);
}
QDBusArgument& operator<<(QDBusArgument& to, const MenuEvent& event) {
    return writeStructure(to, event.id, event.name, event.data, event.time);
}
const QDBusArgument& operator>>(const QDBusArgument& from, MenuEvent& event) {
    return readStructure(from, event.id, event.name, event.data, event.time);
}

DBusMenu::DBusMenu(std::function<void(std::size_t)> choose, std::function<void(bool)> shown)
    : fChoose(std::move(choose)), fShown(std::move(shown)) {
    // Parameters are looked up by the names that stand in the declarations.
    qRegisterMetaType<MenuEvents>("kelvo::MenuEvents");
    qRegisterMetaType<EntryProperties>("kelvo::EntryProperties");
    qRegisterMetaType<EntryPropertyNames>("kelvo::EntryPropertyNames");
    registerTypes<MenuLayout, MenuEvent, MenuEvents, EntryProperties::value_type, EntryProperties,
                  EntryPropertyNames::value_type, EntryPropertyNames>();
}

QString DBusMenu::textDirection() const {
    return QGuiApplication::isRightToLeft() ? QStringLiteral("rtl") : QStringLiteral("ltr");
}

void DBusMenu::setEntries(std::vector<TrayEntry> entries) {
    const auto before = std::exchange(fEntries, std::move(entries));
    if (before.size() != fEntries.size()) {
        Q_EMIT LayoutUpdated(++fRevision, 0);
        return;
    }
    EntryProperties changed;
    for (std::size_t at = 0; at < fEntries.size(); ++at) {
        if (fEntries[at] != before[at])
            changed.append({static_cast<int>(at) + 1, entryProperties(fEntries[at])});
    }
    if (!changed.isEmpty())
        Q_EMIT ItemsPropertiesUpdated(changed, {});
}

uint DBusMenu::GetLayout(int parent, int depth, const QStringList& names,
                         MenuLayout& layout) const {
    const auto own = properties(parent, names);
    if (!own) {
        refuse(QStringLiteral("there is no entry %1").arg(parent));
        return 0;
    }
    layout = {.id = parent, .properties = *own, .children = {}};
    for (int id = 1; parent == 0 && depth != 0 && isKnown(id); ++id)
        layout.children.append(QVariant::fromValue(MenuLayout{id, *properties(id, names), {}}));
    return fRevision;
}

EntryProperties DBusMenu::GetGroupProperties(const QList<int>& ids,
                                             const QStringList& names) const {
    EntryProperties found;
    for (const int id : ids) {
        if (const auto known = properties(id, names))
            found.append({id, *known});
    }
    return found;
}

QDBusVariant DBusMenu::GetProperty(int id, const QString& name) const {
    const auto known = properties(id);
    if (!known || !known->contains(name)) {
        refuse(QStringLiteral("there is no entry %1 with such a property").arg(id));
        return QDBusVariant(QString());
    }
    return QDBusVariant(known->value(name));
}

void DBusMenu::Event(int id, const QString& name, const QDBusVariant&, uint) {
    if (!isKnown(id))
        refuse(QStringLiteral("there is no entry %1").arg(id));
    take(id, name);
}

QList<int> DBusMenu::EventGroup(const MenuEvents& events) {
    QList<int> unknown;
    for (const MenuEvent& event : events) {
        if (!isKnown(event.id))
            unknown.append(event.id);
        take(event.id, event.name);
    }
    if (!events.isEmpty() && unknown.size() == events.size())
        refuse(QStringLiteral("there is none of these entries"));
    return unknown;
}

bool DBusMenu::AboutToShow(int id) const {
    if (!isKnown(id))
        refuse(QStringLiteral("there is no entry %1").arg(id));
    return false;
}

QList<int> DBusMenu::AboutToShowGroup(const QList<int>& ids, QList<int>& unknown) const {
    std::ranges::copy_if(ids, std::back_inserter(unknown), [this](int id) { return !isKnown(id); });
    return {};
}

/// Those of `names`, or all if there are no names; nothing if there is no such entry.
std::optional<QVariantMap> DBusMenu::properties(int id, const QStringList& names) const {
    if (id < 0 || static_cast<std::size_t>(id) > fEntries.size())
        return std::nullopt;
    const QVariantMap all =
        id == 0 ? QVariantMap{{QStringLiteral("children-display"), QStringLiteral("submenu")}}
                : entryProperties(fEntries[static_cast<std::size_t>(id) - 1]);
    QVariantMap wanted;
    for (auto each = all.cbegin(); each != all.cend(); ++each) {
        if (names.isEmpty() || names.contains(each.key()))
            wanted.insert(each.key(), each.value());
    }
    return wanted;
}

void DBusMenu::take(int id, const QString& event) {
    const bool opened = event == u"opened";
    if (id == 0 && (opened || event == u"closed"))
        QTimer::singleShot(0, this, [this, opened] { fShown(opened); });
    if (event != u"clicked" || id < 1 || !isKnown(id))
        return;
    // The panel has its answer first: what the entry does may take its time.
    QTimer::singleShot(0, this, [this, place = static_cast<std::size_t>(id) - 1] {
        if (place >= fEntries.size())
            return;
        const TrayEntry& entry = fEntries[place];
        if (entry.isEnabled && entry.isVisible && !entry.isSeparator)
            fChoose(place);
    });
}

void DBusMenu::refuse(const QString& what) const {
    if (calledFromDBus())
        sendErrorReply(QDBusError::InvalidArgs, what);
}

} // namespace kelvo
