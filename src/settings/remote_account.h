// What a pass needs from the settings: whom it asks, and between which places it copies.
#pragma once

#include <QString>

#include <optional>

namespace kelvo {

class UserDefaults;

struct RemoteAccount {
    QString user; ///< as stored
    QString host; ///< as stored

    /// "user@host".
    QString destination() const { return user + u'@' + host; }
};

/// The account on the remote host; nothing while user or host is not set. An empty text is set.
std::optional<RemoteAccount> remoteAccount(const UserDefaults& defaults);

/// What keeps `account` and the key at `keyPath` from being named in a command, as in `the host
/// name holds a line break`; empty when nothing does.
QString accountFault(const RemoteAccount& account, QStringView keyPath);

/// Both trimmed.
struct PassPaths {
    QString source;
    QString destination;
};

/// The folders of a plain pass; nothing while one of them is not set. An empty text is set.
std::optional<PassPaths> plainPaths(const UserDefaults& defaults);

/// The same for a remote pass; the source is in rsync's form, user@host:path.
std::optional<PassPaths> remotePaths(const UserDefaults& defaults);

} // namespace kelvo
