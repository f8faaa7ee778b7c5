#include "app/machine_parts.h"

#include "adapters/desktop/desktop_tray_host.h"
#include "adapters/desktop/status_notifier_item.h"
#include "adapters/network/kelvo_ssid.h"
#include "app/places.h"
#include "app/version.h"
#include "ui/widgets/tray_icon.h"

#include <QCoreApplication>
#include <QFile>
#include <QFileInfo>

#include <unistd.h>

#include <utility>

namespace kelvo {

MachineParts::MachineParts(bool withTray, Profile ofProfile)
    : PassMachine(STDOUT_FILENO, STDERR_FILENO, DamagedFile::IsSetAside, std::move(ofProfile)),
      loginItem(autostartFolder(), QCoreApplication::applicationFilePath(), files, profile),
      workspace(mainQueue, bgQueue, console, files.homeDirectory()),
      terminal(files, console, mainQueue, bgQueue),
      systemInformation(QString(u"Kelvo Mirror " + QStringView(cVersion)), commands, mainQueue,
                        bgQueue, console),
      singleCopy(QFile::encodeName(logFolder()).toStdString(), console),
      copies(QCoreApplication::applicationFilePath(), console),
      sentinelLauncher(commands.runningCommands()), dnssdBrowser(console, mainQueue),
      notices(
          [this](const Notice& notice) {
              if (fTrayIcon)
                  fTrayIcon->showNotice(notice);
          },
          QDBusConnection::sessionBus, profile) {
    if (withTray) {
        fTrayHost = std::make_unique<DesktopTrayHost>();
        fTrayItem =
            std::make_unique<StatusNotifierItem>(StatusNotifierItem::connectToSessionBus, profile);
        auto icon = std::make_unique<TrayIcon>(*fTrayHost, *fTrayItem, mainQueue, profile);
        fTrayIcon = icon.get();
        fStatusMenu = std::move(icon);
    } else {
        fStatusMenu = std::make_unique<HeadlessStatusMenu>();
    }
}

MachineParts::~MachineParts() = default;

std::unique_ptr<NetworkChecker> MachineParts::makeNetworkChecker() {
    return std::make_unique<KelvoSSID>(notificationCenter, mainQueue);
}

QString MachineParts::logFolder() const {
    return QFileInfo(logFile.defaultLogFileWithinSubdirectory(logSubdirectory(profile))).path();
}

} // namespace kelvo
