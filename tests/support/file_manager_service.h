// FileManagerService: the desktop's file manager on a test's message bus.
#pragma once

#include <QDBusConnection>
#include <QDBusContext>
#include <QObject>
#include <QStringList>

namespace kelvo {

class FileManagerService final : public QObject, protected QDBusContext {
    Q_OBJECT
    Q_CLASSINFO("D-Bus Interface", "org.freedesktop.FileManager1")
public:
    explicit FileManagerService(QDBusConnection& bus) : fBus(bus) {}

    /// Takes the service's name on the bus. False when that failed.
    bool appear();

    QStringList shown;    ///< every item so far
    bool refuses = false; ///< answers with an error instead
    bool neverAnswers = false;

public Q_SLOTS:
    void ShowItems(const QStringList& addresses, const QString& startupId);

private:
    QDBusConnection& fBus;
};

} // namespace kelvo
