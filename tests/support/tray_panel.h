// TrayPanel: a desktop panel that reads one item on a bus and its menu, for tests.
#pragma once

#include <QDBusConnection>
#include <QDBusMessage>
#include <QObject>
#include <QStringList>
#include <QVariantMap>

namespace kelvo {

class TrayPanel final : public QObject {
    Q_OBJECT
public:
    /// The item of the connection named `service`.
    TrayPanel(QDBusConnection& bus, const QString& service);

    /// The answer to a call; runs the event loop until it is there.
    QDBusMessage ask(const QString& path, const QString& interface, const QString& member,
                     const QVariantList& arguments = {});
    QDBusMessage askItem(const QString& member, const QVariantList& arguments = {});
    QDBusMessage askMenu(const QString& member, const QVariantList& arguments = {});

    /// All properties of the item, as the bus has them.
    QVariantMap properties();

    struct Line {
        int id = 0;
        QVariantMap properties;
    };
    /// The menu's entries; of each at most the properties `names`.
    QList<Line> menu(const QStringList& names = {});

    QStringList heard; ///< "NewStatus NeedsAttention", each signal of item and menu

private Q_SLOTS:
    void hear(const QDBusMessage& signal);

private:
    QDBusConnection& fBus;
    const QString fService;
    QString fMenuPath;
};

} // namespace kelvo
