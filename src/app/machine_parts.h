// MachineParts: the real adapters, each after those it works with.
#pragma once

#include "adapters/avahi/avahi_browser.h"
#include "adapters/headless/headless_status_menu.h"
#include "adapters/posix/autostart_entry.h"
#include "adapters/posix/local_checklist_probe.h"
#include "adapters/posix/local_file_changes.h"
#include "adapters/posix/local_file_manager.h"
#include "adapters/posix/local_notification_center.h"
#include "adapters/posix/posix_sentinel_launcher.h"
#include "adapters/posix/posix_shell_runner.h"
#include "adapters/posix/rotating_log_file.h"
#include "adapters/posix/stream_console.h"
#include "adapters/posix/thread_pool_queue.h"
#include "adapters/qt/avahi_network_browser.h"
#include "adapters/qt/bus_notices.h"
#include "adapters/qt/desktop_workspace.h"
#include "adapters/qt/file_bundle.h"
#include "adapters/qt/plist_defaults.h"
#include "adapters/qt/qt_main_queue.h"
#include "adapters/qt/runtime_folder.h"
#include "adapters/qt/signal_pipe.h"
#include "adapters/qt/single_copy_socket.h"
#include "adapters/qt/system_information.h"
#include "adapters/qt/terminal_window.h"
#include "remote/share_commands.h"

#include <memory>

namespace kelvo {

class NetworkChecker;
class TrayHost;

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
    LocalChecklistProbe checklistProbe;
    LocalFileChanges fileChanges;
    AutostartEntry loginItem;
    UserTemporaryFolder temporaryFolder;
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
    AvahiNetworkBrowser networkBrowser;
    BusNotices notices;

private:
    std::unique_ptr<TrayHost> fTrayHost;
    std::unique_ptr<StatusMenu> fStatusMenu;
};

} // namespace kelvo
