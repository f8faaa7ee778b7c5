// ResolverPool: resolves services through Avahi, a limited number at a time.
#pragma once

#include "adapters/network/avahi_handles.h"

#include <deque>
#include <functional>
#include <map>
#include <string>

namespace kelvo {

/// A service that is to be resolved.
struct ServiceQuestion {
    std::string name;
    std::string type;
    std::string domain;
    AvahiIfIndex interface = AVAHI_IF_UNSPEC;
    AvahiProtocol protocol = AVAHI_PROTO_UNSPEC; ///< over which it was heard of
    int tries = 0;
};

/// What Avahi answered; the texts live for the call.
struct ResolvedService {
    const char* name;
    const char* type;
    const char* domain;
    const char* host;
    const AvahiAddress* address;
    AvahiIfIndex interface;
    uint16_t port;
};

/// Avahi's thread only. A resolver ends with its answer. A service that gives no IPv4 address in
/// time is asked for any address, then once more for IPv4, and then left alone.
class ResolverPool {
public:
    using Answered = std::function<void(const ResolvedService&)>;
    explicit ResolverPool(Answered answered) : fAnswered(std::move(answered)) {}

    void ask(AvahiClient* client, ServiceQuestion question);

    /// Drops what is asked about this service.
    void forget(const std::string& name, AvahiIfIndex interface);

    /// Drops everything; before the client is freed.
    void clear();

private:
    struct Active {
        AvahiHandle<AvahiServiceResolver> resolver;
        ServiceQuestion question;
    };

    void startMore(AvahiClient* client);
    static void callback(AvahiServiceResolver* resolver, AvahiIfIndex interface,
                         AvahiProtocol protocol, AvahiResolverEvent event, const char* name,
                         const char* type, const char* domain, const char* host,
                         const AvahiAddress* address, uint16_t port, AvahiStringList* txt,
                         AvahiLookupResultFlags flags, void* self);

    const Answered fAnswered;
    std::deque<ServiceQuestion> fWaiting;
    std::map<AvahiServiceResolver*, Active> fActive;
};

} // namespace kelvo
