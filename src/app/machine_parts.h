// MachineParts: the real adapters of a program with a front, beyond those that passes need.
#pragma once

#include "adapters/console/headless_desktop.h"
#include "adapters/desktop/autostart_entry.h"
#include "adapters/desktop/bus_notices.h"
#include "adapters/desktop/desktop_workspace.h"
#include "adapters/desktop/system_information.h"
#include "adapters/desktop/terminal_window.h"
#include "adapters/network/avahi_browser.h"
#include "adapters/process/copy_starter.h"
#include "adapters/process/posix_sentinel_launcher.h"
#include "adapters/process/single_copy_socket.h"
#include "app/pass_machine.h"
#include "remote/share_commands.h"
#include "support/notification_center.h"

#include <memory>

namespace kelvo {

class NetworkChecker;
class TrayHost;
class TrayIcon;
class TrayItem;

/// Main thread only; made once the application object exists.
struct MachineParts : PassMachine {
    /// `withTray` needs a QApplication.
    MachineParts(bool withTray, Profile profile);
    ~MachineParts();
    MachineParts(const MachineParts&) = delete;
    MachineParts& operator=(const MachineParts&) = delete;

    StatusMenu& statusMenu() { return *fStatusMenu; }
    std::unique_ptr<NetworkChecker> makeNetworkChecker();
    /// Where the log file lies.
    QString logFolder() const;

    AutostartEntry loginItem;
    PlatformShareCommands shareCommands;
    NotificationCenter notificationCenter;
    DesktopWorkspace workspace;
    TerminalWindow terminal;
    SystemInformation systemInformation;
    SingleCopySocket singleCopy;
    CopyStarter copies;
    PosixSentinelLauncher sentinelLauncher;
    AvahiBrowser dnssdBrowser;
    BusNotices notices;

private:
    std::unique_ptr<TrayHost> fTrayHost;
    std::unique_ptr<TrayItem> fTrayItem;
    std::unique_ptr<StatusMenu> fStatusMenu;
    TrayIcon* fTrayIcon = nullptr; ///< the status menu, where there is a tray
};

} // namespace kelvo
