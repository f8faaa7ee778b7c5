#include "settings/remote_account.h"

#include "ports/user_defaults.h"
#include "settings/preference_keys.h"
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

std::optional<PassPaths> plainPaths(const UserDefaults& defaults) {
    return paths(defaults, prefPath1);
}

std::optional<PassPaths> remotePaths(const UserDefaults& defaults) {
    return paths(defaults, prefSampleRemoteFullPath);
}

} // namespace kelvo
