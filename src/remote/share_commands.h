// ShareCommands: the shell texts that mount the remote Mac's share and find it on this machine.
#pragma once

#include "ports/command_runner.h"

#include <QString>

#include <optional>

namespace kelvo {

class UserDefaults;

/// Seconds: what a call of gio is given by its own text, and what any of these commands is given.
inline constexpr int cShareTimeout = 20;
inline constexpr double cSharePatience = cShareTimeout + cCommandGrace;

/// Whose folder on whose share.
struct ShareTarget {
    QString host;       ///< as stored
    QString user;       ///< trimmed; may be empty
    QString remotePath; ///< trimmed, from the user's home folder on; may be empty

    bool operator==(const ShareTarget&) const = default;
};

/// From the settings; nothing when no host is set.
std::optional<ShareTarget> shareTarget(const UserDefaults& defaults);

/// The service name that became a host name: "Office-Mac.local" is "Office%20Mac".
QString shareHost(const QString& host);

/// Pure: no operation runs anything. The texts are whole shell command lines.
class ShareCommands {
public:
    virtual ~ShareCommands() = default;

    /// Opens the remote folder, or what has to be open before it is; prints nothing when it is.
    virtual QString openRemoteFolder(const ShareTarget& target) const = 0;

    /// Mounts the share; prints nothing when it is mounted, newly or already.
    virtual QString openShare(const ShareTarget& target) const = 0;

    /// Prints what is known of mounted shares.
    virtual QString listVolumes(const ShareTarget& target) const = 0;

    /// Prints the mount points of the target's share, a line each. `listing` is what `listVolumes`
    /// printed, trimmed.
    virtual QString pickVolume(const QString& listing, const ShareTarget& target) const = 0;

    /// The remote folder inside the mount point `volume`.
    virtual QString localFolder(const QString& volume, const ShareTarget& target) const = 0;

    /// Opens `path` in the file browser; nothing where the desktop's own service is to do that.
    virtual std::optional<QString> openLocalPath(const QString& path) const = 0;

    /// Mounts the share in a terminal window, when `output` of opening it says that a person has to
    /// answer a question first; otherwise nothing.
    virtual std::optional<QString> mountInTerminal(const QString& output,
                                                   const ShareTarget& target) const = 0;

    /// Whether `openRemoteFolder` only mounts, so that the folder is still to be looked for.
    virtual bool folderIsSoughtAfterwards() const = 0;
};

/// macOS: `open`, `df` and `awk`.
class MacShareCommands final : public ShareCommands {
public:
    QString openRemoteFolder(const ShareTarget& target) const override;
    QString openShare(const ShareTarget& target) const override;
    QString listVolumes(const ShareTarget& target) const override;
    QString pickVolume(const QString& listing, const ShareTarget& target) const override;
    QString localFolder(const QString& volume, const ShareTarget& target) const override;
    std::optional<QString> openLocalPath(const QString& path) const override;
    std::optional<QString> mountInTerminal(const QString&, const ShareTarget&) const override {
        return {};
    }
    bool folderIsSoughtAfterwards() const override { return false; }
};

/// Linux desktops: `gio`, each call bounded so that a server that keeps silent holds nothing up.
class GioShareCommands final : public ShareCommands {
public:
    QString openRemoteFolder(const ShareTarget& target) const override { return openShare(target); }
    QString openShare(const ShareTarget& target) const override;
    QString listVolumes(const ShareTarget& target) const override;
    QString pickVolume(const QString& listing, const ShareTarget& target) const override;
    QString localFolder(const QString& volume, const ShareTarget& target) const override;
    std::optional<QString> openLocalPath(const QString&) const override { return {}; }
    std::optional<QString> mountInTerminal(const QString& output,
                                           const ShareTarget& target) const override;
    bool folderIsSoughtAfterwards() const override { return true; }
};

#ifdef __APPLE__
using PlatformShareCommands = MacShareCommands;
#else
using PlatformShareCommands = GioShareCommands;
#endif

} // namespace kelvo
