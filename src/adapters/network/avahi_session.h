// AvahiSession: the conversation with Avahi's daemon, whenever there is one.
#pragma once

#include "adapters/network/avahi_handles.h"
#include "adapters/network/endpoint_search.h"
#include "adapters/network/resolver_pool.h"
#include "adapters/network/service_answer.h"
#include "adapters/network/service_table.h"

namespace kelvo {

/// Hears whether there is a daemon; on Avahi's thread.
using StateChanged = std::function<void(DiscoveryState)>;

/// Avahi's thread only; destroyed once that thread has ended.
class AvahiSession {
public:
    AvahiSession(const AvahiPoll& poll, ServiceTable& table, Console& console,
                 StateChanged stateChanged);
    ~AvahiSession();
    AvahiSession(const AvahiSession&) = delete;
    AvahiSession& operator=(const AvahiSession&) = delete;

    /// Starts the search that the table wants, now or as soon as there is a daemon. From then on
    /// it finds back to a daemon, or a message bus, that goes and comes.
    /// Nothing happens when that search has begun already.
    void searchAfresh();

    /// Begins `search` in the same way; it goes on as long as the session.
    void searchEndpoints(std::unique_ptr<EndpointSearch> search);

private:
    void connect();
    void disconnect();
    void connectAtOnce();
    void connectLater();
    void isAway(const QString& reason);
    void failEndpoints(const QString& reason);
    void startBrowser(AvahiClient* client);
    void clientChanged(AvahiClient* client, AvahiClientState state);
    void serviceFound(AvahiClient* client, const ServiceQuestion& question);
    void serviceVanished(const ServiceQuestion& question);
    void serviceResolved(const ResolvedService& service);
    void tell(const QString& what);

    const AvahiPoll& fPoll;
    ServiceTable& fTable;
    Console& fConsole;
    const StateChanged fStateChanged;
    RefusedNames fRefused;
    AvahiTimeout* fTimeout = nullptr;
    double fPause = 0; ///< seconds before the next attempt to connect
    QString fTold;     ///< what was said last about a missing daemon
    bool fConnected = false;
    quint64 fSearchNumber = 0; ///< of the search that the browser serves
    AvahiHandle<AvahiClient> fClient;
    AvahiHandle<AvahiServiceBrowser> fBrowser; ///< belongs to the client, as do the resolvers
    ResolverPool fResolvers;
    std::vector<std::unique_ptr<EndpointSearch>> fEndpointSearches;
};

} // namespace kelvo
