#include "app/machine_parts.h"

#include "adapters/network/kelvo_ssid.h"
#include "app/places.h"
#include "app/version.h"

#include <QCoreApplication>
#include <QFile>
#include <QFileInfo>

#include <unistd.h>

#include <utility>

namespace kelvo {

MachineParts::MachineParts(const FrontKind& kind, Profile ofProfile)
    : PassMachine(STDOUT_FILENO, STDERR_FILENO, DamagedFile::IsSetAside, std::move(ofProfile)),
      loginItem(autostartFolder(), QCoreApplication::applicationFilePath(), files, profile),
      sshConfiguration(resourceFolder() + QStringLiteral("/ssh.conf"),
                       QStringLiteral("/etc/ssh/ssh_config.d/kelvo-mirror.conf")),
      workspace(mainQueue, bgQueue, console, files.homeDirectory()),
      terminal(files, console, mainQueue, bgQueue),
      systemInformation(QString(u"Kelvo Mirror " + QStringView(cVersion)), commands, mainQueue,
                        bgQueue, console),
      singleCopy(QFile::encodeName(copyFolder(profile)).toStdString(), console),
      copies(QCoreApplication::applicationFilePath(), console),
      sentinelLauncher(commands.runningCommands()), dnssdBrowser(console, mainQueue),
      notices(
          [this](const Notice& notice) {
              if (fStatusMenu.showNotice)
                  fStatusMenu.showNotice(notice);
          },
          QDBusConnection::sessionBus, profile),
      fStatusMenu(kind.makeStatusMenu(mainQueue, profile)) {}

MachineParts::~MachineParts() = default;

std::unique_ptr<NetworkChecker> MachineParts::makeNetworkChecker() {
    return std::make_unique<KelvoSSID>(notificationCenter, mainQueue);
}

QString MachineParts::logFolder() const {
    return QFileInfo(logFile.defaultLogFileWithinSubdirectory(logSubdirectory(profile))).path();
}

} // namespace kelvo
