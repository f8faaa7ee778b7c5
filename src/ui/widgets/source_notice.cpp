#include "ui/widgets/source_notice.h"

#include "ports/user_defaults.h"
#include "settings/preference_keys.h"

#include <QCoreApplication>

namespace kelvo {
namespace {

QString say(const char* text) {
    return QCoreApplication::translate("sourceNotice", text);
}

} // namespace

QString sourceNotice(const UserDefaults& defaults) {
    const auto user = defaults.stringForKey(prefRemoteUsername);
    const auto host = defaults.stringForKey(prefRemoteBonjourName);
    const auto path = defaults.stringForKey(prefRemotePath);
    if (!host)
        return say("Choose the remote Mac on the Remote Mac tab.");
    if (!user)
        return say("Enter the user name on the Remote Mac tab.");
    if (!path)
        return say("Enter the remote folder on the Remote Mac tab.");
    if (!sourceMayBeUsed(defaults))
        return {};
    return say("Passes still pull from the source above. The new host or folder takes effect with "
               "\"Use This Source Now\", or else when the user name changes or the program starts "
               "again.");
}

bool sourceMayBeUsed(const UserDefaults& defaults) {
    const auto user = defaults.stringForKey(prefRemoteUsername);
    const auto host = defaults.stringForKey(prefRemoteBonjourName);
    const auto path = defaults.stringForKey(prefRemotePath);
    return user && host && path &&
           defaults.stringForKey(prefSampleRemoteFullPath) !=
               QString(*user + u'@' + *host + u':' + *path);
}

} // namespace kelvo
