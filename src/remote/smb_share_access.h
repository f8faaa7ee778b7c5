// SmbShareAccess: shows the remote Mac's folder in the file browser, by way of its share.
#pragma once

#include "ports/terminal.h"
#include "remote/remote_task.h"
#include "remote/share_commands.h"

#include <QString>
#include <QStringView>

#include <functional>

namespace kelvo {

class CommandFiles;
class Console;
class UserDefaults;
class Workspace;

/// The mount point among the lines of `picked`: the first that names "macintosh", in any letter
/// case; the whole text when none does. Trimmed.
QString volumePath(const QString& picked);

/// What the access works with; the references outlive it.
struct SmbShareAccessParts {
    const UserDefaults& defaults;
    Console& console;
    RemoteTasks& tasks;
    const ShareCommands& commands;
    CommandFiles& commandFiles;
    Workspace& workspace;
    std::function<void()> beep;
    /// No terminal could be opened for `command`, which asks for a password.
    std::function<void(const QString& command)> noTerminal;
};

/// Main thread only. Each action returns at once and is one task; while another task runs it does
/// nothing. What goes wrong is a line in the log. The share stays mounted. Both queues must have
/// ended before this is destroyed.
class SmbShareAccess {
public:
    explicit SmbShareAccess(SmbShareAccessParts parts);

    /// Has the system open the remote folder. Beeps when no host is set.
    void ibRevealSourcePathSMB();

    /// Opens the share, looks where it was mounted and opens the folder there.
    void ibRevealSourcePathSMBdebug();

    /// The same without waiting for the mount, and without choosing among several.
    void ibRevealSourcePathSMBdebugOLD();

    /// Opens the share itself and writes down what is mounted 0.5 s later.
    void ibTestShellCommand111();

private:
    enum class Search { Newer, Older };

    /// What follows once the share is open.
    using Opened = std::function<void(const RemoteTaskRef&)>;

    /// Runs `command`, which opens the share; then, or once a person has answered what the server
    /// asked, goes on with `opened`.
    void openShare(const RemoteTaskRef& task, QStringView operation, const QString& command,
                   const ShareTarget& target, const Opened& opened);
    /// Asks a person in a terminal, where `output` of opening the share says that the server wants
    /// an answer; goes on with `opened` once it has been given.
    void openByHand(const RemoteTaskRef& task, const QString& output, const ShareTarget& target,
                    const Opened& opened);
    void listVolumes(const RemoteTaskRef& task, const ShareTarget& target);
    void findFolder(const RemoteTaskRef& task, QStringView operation, const ShareTarget& target,
                    Search search);
    void pickFolder(const RemoteTaskRef& task, QStringView operation, const QString& listing,
                    const ShareTarget& target, Search search);
    void openFolder(const RemoteTaskRef& task, QStringView operation, const QString& path);
    void logOpening(QStringView operation, const QString& output) const;
    void logInside(QStringView operation, QStringView detail = u".......") const;

    const SmbShareAccessParts fParts;
};

} // namespace kelvo
