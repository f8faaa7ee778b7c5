// Owning handles for what libavahi-client makes, and its last error in words.
#pragma once

#include <QString>

#include <avahi-client/client.h>
#include <avahi-client/lookup.h>
#include <avahi-common/error.h>
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

inline QString lastError(AvahiClient* client) {
    return QString::fromUtf8(avahi_strerror(avahi_client_errno(client)));
}

} // namespace kelvo
