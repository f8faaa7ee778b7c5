#include "adapters/network/avahi_network_browser.h"

#include "adapters/network/avahi_search.h"

#include <utility>

namespace kelvo {

AvahiNetworkBrowser::AvahiNetworkBrowser(std::function<QDBusConnection()> joinBus)
    : fJoinBus(std::move(joinBus)) {}

AvahiNetworkBrowser::~AvahiNetworkBrowser() = default;

void AvahiNetworkBrowser::start(const NetworkBrowserRequest& request, StateHandler stateHandler,
                                ResultsHandler resultsHandler) {
    fSearches.push_back(std::make_unique<AvahiSearch>(fJoinBus(), request, std::move(stateHandler),
                                                      std::move(resultsHandler)));
}

} // namespace kelvo
