#include "adapters/network/resolver_pool.h"

#include <utility>

namespace kelvo {
namespace {

// Avahi's daemon lets one program hold about a thousand objects.
constexpr std::size_t cMostResolvers = 200;

constexpr AvahiProtocol cAddressAsked[] = {AVAHI_PROTO_INET, AVAHI_PROTO_UNSPEC, AVAHI_PROTO_INET};

} // namespace

void ResolverPool::ask(AvahiClient* client, ServiceQuestion question) {
    fWaiting.push_back(std::move(question));
    startMore(client);
}

void ResolverPool::forget(const std::string& name, AvahiIfIndex interface) {
    const auto isIt = [&](const ServiceQuestion& question) {
        return question.name == name && question.interface == interface;
    };
    std::erase_if(fWaiting, isIt);
    std::erase_if(fActive, [&](const auto& active) { return isIt(active.second.question); });
}

void ResolverPool::clear() {
    fWaiting.clear();
    fActive.clear();
}

void ResolverPool::startMore(AvahiClient* client) {
    while (!fWaiting.empty() && fActive.size() < cMostResolvers) {
        ServiceQuestion question = std::move(fWaiting.front());
        fWaiting.pop_front();
        AvahiHandle<AvahiServiceResolver> resolver(avahi_service_resolver_new(
            client, question.interface, question.protocol, question.name.c_str(),
            question.type.c_str(), question.domain.c_str(), cAddressAsked[question.tries],
            AVAHI_LOOKUP_NO_TXT, callback, this));
        // Without a resolver the client itself has failed, or the service is not to be had.
        if (!resolver)
            continue;
        AvahiServiceResolver* key = resolver.get();
        fActive.emplace(key, Active{std::move(resolver), std::move(question)});
    }
}

void ResolverPool::callback(AvahiServiceResolver* resolver, AvahiIfIndex interface, AvahiProtocol,
                            AvahiResolverEvent event, const char* name, const char* type,
                            const char* domain, const char* host, const AvahiAddress* address,
                            uint16_t port, AvahiStringList*, AvahiLookupResultFlags, void* self) {
    auto& pool = *static_cast<ResolverPool*>(self);
    const auto active = pool.fActive.find(resolver);
    if (active == pool.fActive.end())
        return;
    AvahiClient* client = avahi_service_resolver_get_client(resolver);
    ServiceQuestion question = std::move(active->second.question);
    if (event == AVAHI_RESOLVER_FOUND)
        pool.fAnswered({name, type, domain, host, address, interface, port});
    pool.fActive.erase(active);
    if (event != AVAHI_RESOLVER_FOUND &&
        ++question.tries < static_cast<int>(std::size(cAddressAsked)))
        pool.fWaiting.push_back(std::move(question));
    pool.startMore(client);
}

} // namespace kelvo
