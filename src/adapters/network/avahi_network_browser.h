// AvahiNetworkBrowser: asks the machine's discovery service over the system bus.
#pragma once

#include "ports/network_browser.h"

#include <QDBusConnection>

#include <functional>
#include <memory>
#include <vector>

namespace kelvo {

/// Nothing is asked and no bus is joined before the first search; nothing waits. Without a
/// discovery service a search fails, and is ready as soon as there is one; while the service is
/// away nothing counts as found. Peers beyond the network are not looked for: the service knows
/// none.
class AvahiNetworkBrowser final : public NetworkBrowser {
public:
    explicit AvahiNetworkBrowser(
        std::function<QDBusConnection()> joinBus = &QDBusConnection::systemBus);
    ~AvahiNetworkBrowser() override;

    void start(const NetworkBrowserRequest& request, StateHandler stateHandler,
               ResultsHandler resultsHandler) override;

private:
    std::function<QDBusConnection()> fJoinBus;
    std::vector<std::unique_ptr<class AvahiSearch>> fSearches;
};

} // namespace kelvo
