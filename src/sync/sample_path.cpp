#include "sync/sample_path.h"

#include "ports/dispatch_queue.h"
#include "ports/user_defaults.h"
#include "settings/preference_keys.h"

namespace kelvo {

void SamplePath::updateSampleString() {
    fMainQueue.async([&defaults = fDefaults] {
        const auto user = defaults.stringForKey(prefRemoteUsername);
        const auto host = defaults.stringForKey(prefRemoteBonjourName);
        const auto path = defaults.stringForKey(prefRemotePath);
        if (user && host && path)
            defaults.setObject(prefSampleRemoteFullPath,
                               QString(*user + u'@' + *host + u':' + *path));
    });
}

} // namespace kelvo
