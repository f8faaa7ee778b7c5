#include "sync/sample_path.h"

#include "ports/dispatch_queue.h"
#include "ports/user_defaults.h"
#include "settings/preference_keys.h"
#include "settings/remote_account.h"

namespace kelvo {

void SamplePath::updateSampleString() {
    fMainQueue.async([&defaults = fDefaults] {
        const auto account = remoteAccount(defaults);
        const auto path = defaults.stringForKey(prefRemotePath);
        if (account && path)
            defaults.setObject(prefSampleRemoteFullPath,
                               QString(account->destination() + u':' + *path));
    });
}

} // namespace kelvo
