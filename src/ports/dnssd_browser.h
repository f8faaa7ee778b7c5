// DnssdBrowser: looks for services on the local network.
#pragma once

#include "support/dnssd_service.h"
#include "support/subscription.h"

#include <QString>
#include <QStringList>

#include <functional>

namespace kelvo {

struct EndpointRequest {
    QString type;   ///< "_smb._tcp"
    QString domain; ///< "local."
    bool includePeerToPeer = false;
};

struct EndpointSearchState {
    enum class Kind { Setup, Ready, Waiting, Failed, Cancelled } kind = Kind::Setup;
    QString errorText; ///< for people, when Failed
};

/// Hears of one search for endpoints.
struct EndpointListener {
    std::function<void(const EndpointSearchState&)> stateChanged;
    /// Receives the debug description of every endpoint there is, in the order of discovery.
    std::function<void(const QStringList& endpoints)> endpointsChanged;
};

/// Whether there is somebody on this machine who knows of services.
enum class DiscoveryState {
    Unknown, ///< nobody has looked yet, or the answer is on its way
    Running,
    NotRunning, ///< it is installed here
    NotInstalled,
};

/// One browser is shared by all who look. Main thread only; no operation waits for anything.
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

    /// Calls `changed` now with what is known of the discovery service and again at each change, on
    /// the main thread; a search is what makes it known. Once the subscription is gone no new call
    /// begins.
    virtual Subscription observeState(std::function<void(DiscoveryState)> changed) = 0;

    /// Begins one more search of its own, for a person who tests the network; it goes on as long as
    /// this browser lives and resolves nothing. The listener is told later on the main thread: of
    /// each change of state, and at each change of what is found of all there is. Without a
    /// discovery service the search fails; it is ready as soon as there is one, waits while that is
    /// away again, and nothing counts as found meanwhile. Once the browser is destroyed nothing is
    /// told.
    virtual void searchEndpoints(const EndpointRequest& request, EndpointListener listener) = 0;
};

} // namespace kelvo
