#include "app/commands/setup_faults.h"

#include "ports/file_manager.h"
#include "ports/user_defaults.h"
#include "settings/preference_keys.h"
#include "settings/remote_account.h"
#include "support/key_file.h"
#include "support/text.h"
#include "sync/rsync_command.h"

namespace kelvo {
namespace {

/// Stands in for what is not known yet; no command can go wrong by it.
const QString cAnything = QStringLiteral("x");

} // namespace

QString SetupFaults::ofMac(const QString& host) const {
    return host.isEmpty() ? QStringLiteral("a Mac is needed")
                          : accountFault({.user = cAnything, .host = host}, keyPath());
}

QString SetupFaults::ofAccount(const QString& user) const {
    return user.isEmpty() ? QStringLiteral("an account is needed")
                          : accountFault({.user = user, .host = cAnything}, keyPath());
}

QString SetupFaults::ofFolder(const QString& folder) const {
    return folder.isEmpty() ? QStringLiteral("a folder is needed") : ofPass(folder, cAnything);
}

QString SetupFaults::ofDestination(const QString& typed) const {
    const QString path = wholePath(typed);
    if (!path.startsWith(u'/'))
        return QStringLiteral("the folder's whole path is needed, from \"/\" or \"~\"");
    if (fFiles.fileExistsAtPath(path) && !fFiles.isWritableFolder(path))
        return QStringLiteral("%1 is no folder that you may write to").arg(path);
    return ofPass(cAnything, path);
}

QString SetupFaults::wholePath(const QString& path) const {
    return expandingTilde(path, fFiles.homeDirectory());
}

QString SetupFaults::keyPath() const {
    return wholePath(cPrivateKeyFile.toString());
}

/// Of the command that a pass would run.
QString SetupFaults::ofPass(const QString& folder, const QString& destination) const {
    const auto set = [this](QStringView key, const QString& otherwise) {
        return fSettings.stringForKey(key).value_or(otherwise);
    };
    const QString source = set(prefRemoteUsername, cAnything) + u'@' +
                           set(prefRemoteBonjourName, cAnything) + u':' + folder;
    const QString command = set(prefRsyncCommandString1, cMissingRsyncCommandString1.toString());
    return commandFault(command, {source, destination, keyPath()});
}

} // namespace kelvo
