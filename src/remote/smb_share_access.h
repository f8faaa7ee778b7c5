// SmbShareAccess: shows the remote Mac's folder in the file browser, by way of its share.
#pragma once

#include "ports/terminal.h"
#include "remote/share_commands.h"

#include <QString>
#include <QStringView>

#include <functional>

namespace kelvo {

class CommandFiles;
class Console;
class DispatchQueue;
class CommandRunner;
class UserDefaults;
class Workspace;

/// The mount point among the lines of `picked`: the first that names "macintosh", in any letter
/// case; the whole text when none does. Trimmed.
QString volumePath(const QString& picked);

/// What the access works with; the references outlive it.
struct SmbShareAccessParts {
    const UserDefaults& defaults;
    Console& console;
    DispatchQueue& mainQueue;
    CommandRunner& shell;
    const ShareCommands& commands;
    CommandFiles& commandFiles;
    Workspace& workspace;
    std::function<void()> beep;
    /// No terminal could be opened for `command`, which asks for a password.
    std::function<void(const QString& command)> noTerminal;
};

/// Main thread only; blocks while commands run. What goes wrong is a line in the log. The share
/// stays mounted. The main queue must have ended before this is destroyed.
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

    /// Runs `command`, which opens the share; then, or once a person has answered what the server
    /// asked, goes on with `opened`.
    void openShare(QStringView operation, const QString& command, const ShareTarget& target,
                   const std::function<void()>& opened);
    /// Asks a person in a terminal, where `output` of opening the share says that the server wants
    /// an answer; goes on with `opened` once it has been given.
    void openByHand(const QString& output, const ShareTarget& target,
                    const std::function<void()>& opened);
    void listVolumes(const ShareTarget& target);
    void findFolder(QStringView operation, const ShareTarget& target, Search search);
    void openFolder(QStringView operation, const QString& path);
    void logInside(QStringView operation, QStringView detail = u".......") const;

    const SmbShareAccessParts fParts;
};

} // namespace kelvo
