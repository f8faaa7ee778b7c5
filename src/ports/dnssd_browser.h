// DnssdBrowser: looks for services on the local network.
#pragma once

#include "support/dnssd_service.h"

#include <QString>

namespace kelvo {

/// One browser is shared by all who look. Main thread only; neither operation waits for anything.
class DnssdBrowser {
public:
    virtual ~DnssdBrowser() = default;

    /// Looks for services of `type` ("_smb" stands for "_smb._tcp") in the local domain from now
    /// on, and resolves each in the background. Asked again for the same type it looks afresh:
    /// services known to have vanished are forgotten, the others keep their places and are resolved
    /// anew. Another type forgets everything. Without a discovery service on this machine nothing
    /// is found; once there is one the search goes on by itself.
    virtual void browseForType(const QString& type) = 0;

    /// What has been found so far, in the order of discovery: one record for each name and network
    /// interface, resolved as far as it has come. One that vanished stays, with `available` false,
    /// and so do all while the discovery service is away. Names that must not reach a shell are
    /// left out and logged once.
    virtual DNSSD_Services services() const = 0;
};

} // namespace kelvo
