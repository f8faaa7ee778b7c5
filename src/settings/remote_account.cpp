#include "settings/remote_account.h"

#include "ports/user_defaults.h"
#include "settings/preference_keys.h"
#include "support/shell_words.h"
#include "support/text.h"

namespace kelvo {
namespace {

std::optional<PassPaths> paths(const UserDefaults& defaults, QStringView sourceKey) {
    const auto source = defaults.stringForKey(sourceKey);
    const auto destination = defaults.stringForKey(prefPath2);
    if (!source || !destination)
        return {};
    return PassPaths{.source = trimmedText(*source), .destination = trimmedText(*destination)};
}

} // namespace

std::optional<RemoteAccount> remoteAccount(const UserDefaults& defaults) {
    const auto user = defaults.stringForKey(prefRemoteUsername);
    const auto host = defaults.stringForKey(prefRemoteBonjourName);
    if (!user || !host)
        return {};
    return RemoteAccount{.user = *user, .host = *host};
}

QString accountFault(const RemoteAccount& account, QStringView keyPath) {
    if (const QString fault = wordFault(account.user); !fault.isEmpty())
        return u"the user name " + fault;
    if (const QString fault = wordFault(account.host); !fault.isEmpty())
        return u"the host name " + fault;
    // rsync would take the text before the first colon for the host, and after a slash for a path.
    if (account.user.contains(u':') || account.user.contains(u'/'))
        return QStringLiteral("the user name holds \":\" or \"/\"");
    if (account.host.contains(u'/'))
        return QStringLiteral("the host name holds \"/\"");
    if (const QString fault = wordFault(keyPath); !fault.isEmpty())
        return u"the path of the key file " + fault;
    return {};
}

std::optional<PassPaths> plainPaths(const UserDefaults& defaults) {
    return paths(defaults, prefPath1);
}

std::optional<PassPaths> remotePaths(const UserDefaults& defaults) {
    return paths(defaults, prefSampleRemoteFullPath);
}

} // namespace kelvo
