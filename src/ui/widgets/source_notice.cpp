#include "ui/widgets/source_notice.h"

#include "ports/user_defaults.h"
#include "settings/preference_keys.h"

#include <QCoreApplication>

namespace kelvo {
QString sourceNotice(const UserDefaults& defaults) {
    const auto user = defaults.stringForKey(prefRemoteUsername);
    const auto host = defaults.stringForKey(prefRemoteBonjourName);
    const auto path = defaults.stringForKey(prefRemotePath);
    if (!host)
        return QCoreApplication::translate("sourceNotice",
                                           "Choose the remote Mac on the Remote Mac tab.");
    if (!user)
        return QCoreApplication::translate("sourceNotice",
                                           "Enter the user name on the Remote Mac tab.");
    if (!path)
        return QCoreApplication::translate("sourceNotice",
                                           "Enter the remote folder on the Remote Mac tab.");
    if (!sourceMayBeUsed(defaults))
        return {};
    return QCoreApplication::translate(
        "sourceNotice",
        "Passes still pull from the source above. The new host or folder takes "
        "effect with \"Use This Source Now\", or else when the user name changes or "
        "the program starts again.");
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
