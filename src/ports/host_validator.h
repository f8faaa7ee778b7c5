// HostValidator: the one question the sync cycle asks about the remote host.
#pragma once

#include <QString>

namespace kelvo {

class HostValidator {
public:
    virtual ~HostValidator() = default;

    /// Asks the remote host who we are there and returns a verdict: "valid", "checkremotehost",
    /// "checkusername", "checksshkeys", "unknownerror", ssh's own words, or "" when user or host
    /// is not set. `timeout` is ssh's connect time-out in seconds. Blocks; any thread.
    virtual QString validateRemoteHostWithWhoami(qint64 timeout) = 0;
};

} // namespace kelvo
