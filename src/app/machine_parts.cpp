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
      sshConfiguration(sshFragment(), sshFragmentOfTheMachine()),
      workspace(kind.makeWorkspace(*this)), terminal(files, console, mainQueue, bgQueue),
      systemInformation(QString(u"Kelvo Mirror " + QStringView(cVersion)), commands, mainQueue,
                        bgQueue, console),
      singleCopy(QFile::encodeName(copyFolder(profile)).toStdString(), console),
      copies(QCoreApplication::applicationFilePath(), console),
      sentinelLauncher(commands.runningCommands()),
      dnssdBrowser(kind.bus.makeBrowser(console, mainQueue)),
      notices(kind.bus.makeNotices(
          console,
          [this](const Notice& notice) {
              if (fStatusMenu.showNotice)
                  fStatusMenu.showNotice(notice);
          },
          profile)),
      fBus(kind.bus), fStatusMenu(kind.makeStatusMenu(mainQueue, profile)) {}

MachineParts::~MachineParts() = default;

std::unique_ptr<NetworkChecker> MachineParts::makeNetworkChecker() {
    return std::make_unique<KelvoSSID>(notificationCenter, mainQueue,
                                       [this](std::function<void()> changed) {
                                           return fBus.makeReachSource(console, std::move(changed));
                                       });
}

QString MachineParts::logFolder() const {
    return QFileInfo(logFile.defaultLogFileWithinSubdirectory(logSubdirectory(profile))).path();
}

} // namespace kelvo
