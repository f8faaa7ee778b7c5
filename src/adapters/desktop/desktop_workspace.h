// DesktopWorkspace: the services that Linux desktops share for showing files and folders.
#pragma once

#include "ports/workspace.h"

#include <QDBusConnection>
#include <QString>

#include <functional>
#include <memory>

namespace kelvo {

class BackgroundQueue;
class Console;
class DispatchQueue;

/// Opens with xdg-open, shows items through the file manager's service on the session bus; without
/// a bus or such a service the folder around them is opened instead. No file system is touched on
/// the main thread. What was opened lives on after this object.
class DesktopWorkspace final : public Workspace {
public:
    /// Files are looked at on `bgQueue`; the answers arrive through `mainQueue`. The session bus is
    /// joined when something is to be revealed. `opener` is the program that opens an address.
    DesktopWorkspace(DispatchQueue& mainQueue, BackgroundQueue& bgQueue, Console& console,
                     QString home,
                     std::function<QDBusConnection()> joinBus = &QDBusConnection::sessionBus,
                     QString opener = QStringLiteral("xdg-open"));

    /// Requests under way are no longer reported on.
    ~DesktopWorkspace() override;

    void openUrl(const QString& url) override;
    void openFile(const QString& path) override;
    void revealInFinder(const QString& path) override;
    void activateFileViewerSelecting(const QStringList& paths) override;

private:
    struct Watches;

    /// The address of a usable path; otherwise empty, with a line in the log.
    QString addressOf(const QString& path) const;
    void open(const QString& address);
    void openFoldersOf(const QStringList& addresses);

    DispatchQueue& fMainQueue;
    BackgroundQueue& fBgQueue;
    Console& fConsole;
    const QString fHome;
    const std::function<QDBusConnection()> fJoinBus;
    const QString fOpener;
    std::shared_ptr<Watches> fWatches;
};

} // namespace kelvo
