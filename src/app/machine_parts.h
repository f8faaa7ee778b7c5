// MachineParts: the real adapters, each after those it works with.
#pragma once

#include "adapters/console/headless_desktop.h"
#include "adapters/console/rotating_log_file.h"
#include "adapters/console/stream_console.h"
#include "adapters/desktop/autostart_entry.h"
#include "adapters/desktop/bus_notices.h"
#include "adapters/desktop/desktop_workspace.h"
#include "adapters/desktop/system_information.h"
#include "adapters/desktop/terminal_window.h"
#include "adapters/network/avahi_browser.h"
#include "adapters/process/local_notification_center.h"
#include "adapters/process/posix_sentinel_launcher.h"
#include "adapters/process/posix_shell_runner.h"
#include "adapters/process/qt_main_queue.h"
#include "adapters/process/signal_pipe.h"
#include "adapters/process/single_copy_socket.h"
#include "adapters/process/thread_pool_queue.h"
#include "adapters/settings/file_bundle.h"
#include "adapters/settings/plist_defaults.h"
#include "adapters/system/local_file_manager.h"
#include "remote/share_commands.h"

#include <memory>

namespace kelvo {

class NetworkChecker;
class TrayHost;
class TrayIcon;

/// Main thread only; made once the application object exists.
struct MachineParts {
    /// `withTray` needs a QApplication.
    explicit MachineParts(bool withTray);
    ~MachineParts();
    MachineParts(const MachineParts&) = delete;
    MachineParts& operator=(const MachineParts&) = delete;

    StatusMenu& statusMenu() { return *fStatusMenu; }
    std::unique_ptr<NetworkChecker> makeNetworkChecker();

    RotatingLogFile logFile;
    StreamConsole console;
    QtMainQueue mainQueue;
    PlistDefaults defaults;
    LocalFileManager files;
    AutostartEntry loginItem;
    PlatformShareCommands shareCommands;
    FileBundle bundle;
    LocalNotificationCenter notificationCenter;
    PosixShellRunner shell;
    ThreadPoolQueue bgQueue;
    DesktopWorkspace workspace;
    TerminalWindow terminal;
    LocalSystemInformation systemInformation;
    SingleCopySocket singleCopy;
    SignalPipe signals;
    PosixSentinelLauncher sentinelLauncher;
    AvahiBrowser dnssdBrowser;
    BusNotices notices;

private:
    std::unique_ptr<TrayHost> fTrayHost;
    std::unique_ptr<StatusMenu> fStatusMenu;
    TrayIcon* fTrayIcon = nullptr; ///< the status menu, where there is a tray
};

} // namespace kelvo
