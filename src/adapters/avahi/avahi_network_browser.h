// AvahiNetworkBrowser: the searches of a person who tests the network, through Avahi's daemon.
#pragma once

#include "ports/network_browser.h"

#include <memory>
#include <vector>

namespace kelvo {

class Console;
class DispatchQueue;

/// Ready is told once the daemon has answered; without a daemon nothing is told until there is one.
/// Changes that come close together are one.
class AvahiNetworkBrowser final : public NetworkBrowser {
public:
    /// Both outlive the browser.
    AvahiNetworkBrowser(DispatchQueue& mainQueue, Console& console);
    ~AvahiNetworkBrowser() override;

    void start(const NetworkBrowserRequest& request, StateHandler stateHandler,
               ResultsHandler resultsHandler) override;

private:
    class Search;

    DispatchQueue& fMainQueue;
    Console& fConsole;
    std::vector<std::shared_ptr<Search>> fSearches;
};

} // namespace kelvo
