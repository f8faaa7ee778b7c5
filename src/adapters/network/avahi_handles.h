// Owning handles for what libavahi-client makes.
#pragma once

#include <avahi-client/client.h>
#include <avahi-client/lookup.h>
#include <avahi-common/thread-watch.h>
#include <memory>

namespace kelvo {

struct AvahiDeleter {
    void operator()(AvahiThreadedPoll* poll) const { avahi_threaded_poll_free(poll); }
    void operator()(AvahiClient* client) const { avahi_client_free(client); }
    void operator()(AvahiServiceBrowser* browser) const { avahi_service_browser_free(browser); }
    void operator()(AvahiServiceResolver* resolver) const { avahi_service_resolver_free(resolver); }
};

template <typename Handle>
using AvahiHandle = std::unique_ptr<Handle, AvahiDeleter>;

} // namespace kelvo
