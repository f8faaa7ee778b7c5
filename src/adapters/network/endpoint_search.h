// EndpointSearch: one search for endpoints, whenever an AvahiSession has a client for it.
#pragma once

#include "adapters/network/avahi_handles.h"
#include "ports/dnssd_browser.h"

#include <optional>
#include <string>
#include <vector>

namespace kelvo {

/// Avahi's thread only, and so is the listener called.
class EndpointSearch {
public:
    EndpointSearch(EndpointRequest request, EndpointListener listener);
    EndpointSearch(const EndpointSearch&) = delete;
    EndpointSearch& operator=(const EndpointSearch&) = delete;

    /// Searches by this client until it is let go.
    void begin(AvahiClient* client);

    /// Before the client goes: waits, with nothing found, if it was ready.
    void letGo();

    /// There is no daemon. Tells so a listener that has not heard of any state yet.
    void failUnlessTold(const QString& reason);

private:
    struct Item {
        AvahiIfIndex interface;
        AvahiProtocol protocol;
        std::string name;
        bool operator==(const Item&) const = default;
    };

    void heard(AvahiBrowserEvent event, const Item& item);
    void tellState(EndpointSearchState::Kind kind, const QString& errorText = {});
    void tellEndpoints() const;
    QString description(const Item& item) const;

    const EndpointRequest fRequest;
    const EndpointListener fListener;
    std::optional<EndpointSearchState::Kind> fTold;
    std::vector<Item> fFound;
    AvahiHandle<AvahiServiceBrowser> fBrowser;
};

} // namespace kelvo
