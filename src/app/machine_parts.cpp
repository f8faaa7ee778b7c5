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

namespace kelvo {

MachineParts::MachineParts(bool withTray)
    : PassMachine(STDOUT_FILENO, STDERR_FILENO, DamagedFile::IsSetAside),
      loginItem(autostartFolder(), QCoreApplication::applicationFilePath(), files),
      sshConfiguration(resourceFolder() + QStringLiteral("/ssh.conf"),
                       QStringLiteral("/etc/ssh/ssh_config.d/kelvo-mirror.conf")),
      workspace(mainQueue, bgQueue, console, files.homeDirectory()),
      terminal(files, console, mainQueue, bgQueue),
      systemInformation(QString(u"Kelvo Mirror " + QStringView(cVersion)), commands, mainQueue,
                        bgQueue, console),
      singleCopy(QFile::encodeName(logFolder()).toStdString(), console),
      sentinelLauncher(commands.runningCommands()), dnssdBrowser(console, mainQueue),
      notices([this](const Notice& notice) {
          if (fTrayIcon)
              fTrayIcon->showNotice(notice);
      }) {
    if (withTray) {
        fTrayHost = std::make_unique<DesktopTrayHost>();
        fTrayItem = std::make_unique<StatusNotifierItem>();
        auto icon = std::make_unique<TrayIcon>(*fTrayHost, *fTrayItem, mainQueue);
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
    return QFileInfo(logFile.defaultLogFileWithinSubdirectory(QStringLiteral("Kelvo"))).path();
}

} // namespace kelvo
