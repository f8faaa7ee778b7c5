#include "support/tray_panel.h"

#include "support/wait_in_loop.h"

#include <QDBusArgument>
#include <QDBusObjectPath>
#include <QDBusPendingCall>

namespace kelvo {
namespace {

const QString cItem = QStringLiteral("org.kde.StatusNotifierItem");
const QString cItemPath = QStringLiteral("/StatusNotifierItem");
const QString cMenu = QStringLiteral("com.canonical.dbusmenu");

} // namespace

TrayPanel::TrayPanel(QDBusConnection& bus, const QString& service) : fBus(bus), fService(service) {
    fBus.connect(fService, QString(), cItem, QString(), this, SLOT(hear(QDBusMessage)));
    fBus.connect(fService, QString(), cMenu, QString(), this, SLOT(hear(QDBusMessage)));
    fMenuPath = properties().value(QStringLiteral("Menu")).value<QDBusObjectPath>().path();
}

QDBusMessage TrayPanel::ask(const QString& path, const QString& interface, const QString& member,
                            const QVariantList& arguments) {
    QDBusMessage call = QDBusMessage::createMethodCall(fService, path, interface, member);
    call.setArguments(arguments);
    const QDBusPendingCall answer = fBus.asyncCall(call);
    waitInLoop([&] { return answer.isFinished(); });
    return answer.reply();
}

QDBusMessage TrayPanel::askItem(const QString& member, const QVariantList& arguments) {
    return ask(cItemPath, cItem, member, arguments);
}

QDBusMessage TrayPanel::askMenu(const QString& member, const QVariantList& arguments) {
    return ask(fMenuPath, cMenu, member, arguments);
}

QVariantMap TrayPanel::properties() {
    const QDBusMessage answer = ask(cItemPath, QStringLiteral("org.freedesktop.DBus.Properties"),
                                    QStringLiteral("GetAll"), {cItem});
    return answer.arguments().isEmpty() ? QVariantMap()
                                        : qdbus_cast<QVariantMap>(answer.arguments().constFirst());
}

QList<TrayPanel::Line> TrayPanel::menu(const QStringList& names) {
    const QDBusMessage answer = askMenu(QStringLiteral("GetLayout"), {0, -1, names});
    QList<Line> lines;
    if (answer.signature() != u"u(ia{sv}av)")
        return lines;
    const auto layout = answer.arguments().at(1).value<QDBusArgument>();
    Line root;
    QVariantList children;
    layout.beginStructure();
    layout >> root.id >> root.properties >> children;
    layout.endStructure();
    for (const QVariant& child : children) {
        const auto entry = child.value<QDBusArgument>();
        Line line;
        entry.beginStructure();
        entry >> line.id >> line.properties;
        entry.endStructure();
        lines.append(line);
    }
    return lines;
}

void TrayPanel::hear(const QDBusMessage& signal) {
    QStringList words{signal.member()};
    for (const QVariant& argument : signal.arguments()) {
        if (argument.canConvert<QString>())
            words.append(argument.toString());
    }
    heard.append(words.join(u' '));
}

} // namespace kelvo
