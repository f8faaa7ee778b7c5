// MachineParts: the real adapters of a program with a front, beyond those that passes need.
#pragma once

#include "adapters/desktop/autostart_entry.h"
#include "adapters/desktop/system_information.h"
#include "adapters/desktop/terminal_window.h"
#include "adapters/process/copy_starter.h"
#include "adapters/process/posix_sentinel_launcher.h"
#include "adapters/process/single_copy_socket.h"
#include "adapters/process/user_ssh_configuration.h"
#include "app/front.h"
#include "app/pass_machine.h"
#include "ports/dnssd_browser.h"
#include "ports/workspace.h"
#include "remote/share_commands.h"
#include "support/notification_center.h"

#include <memory>

namespace kelvo {

class NetworkChecker;

/// Main thread only; made once the application object exists.
struct MachineParts : PassMachine {
    MachineParts(const FrontKind& kind, Profile profile);
    ~MachineParts();
    MachineParts(const MachineParts&) = delete;
    MachineParts& operator=(const MachineParts&) = delete;

    StatusMenu& statusMenu() { return *fStatusMenu.menu; }
    std::unique_ptr<NetworkChecker> makeNetworkChecker();
    /// Where the log file lies.
    QString logFolder() const;

    AutostartEntry loginItem;
    UserSshConfiguration sshConfiguration;
    PlatformShareCommands shareCommands;
    NotificationCenter notificationCenter;
    const std::unique_ptr<Workspace> workspace;
    TerminalWindow terminal;
    SystemInformation systemInformation;
    SingleCopySocket singleCopy;
    CopyStarter copies;
    PosixSentinelLauncher sentinelLauncher;
    const std::unique_ptr<DnssdBrowser> dnssdBrowser;
    const std::unique_ptr<DesktopNotices> notices;

private:
    const BusParts fBus;
    StatusMenuParts fStatusMenu;
};

} // namespace kelvo
