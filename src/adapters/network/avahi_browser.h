// AvahiBrowser: looks for services through Avahi's daemon.
#pragma once

#include "adapters/network/service_table.h"
#include "ports/dnssd_browser.h"

#include <list>
#include <memory>

namespace kelvo {

class Console;
class DispatchQueue;

/// The conversation with the daemon has a thread of its own, which starts with the first search;
/// the daemon, or the message bus, may be absent, come late, go and come again. Destruction waits
/// for a question that is under way.
class AvahiBrowser final : public DnssdBrowser {
public:
    /// Both outlive the browser.
    AvahiBrowser(Console& console, DispatchQueue& mainQueue);
    ~AvahiBrowser() override;

    void browseForType(const QString& type) override;
    DNSSD_Services services() const override;

    Subscription observeState(std::function<void(DiscoveryState)> changed) override;

    /// Peers beyond the network are not looked for: the daemon knows none.
    void searchEndpoints(const EndpointRequest& request, EndpointListener listener) override;

private:
    class Worker;
    using Observers = std::list<std::shared_ptr<std::function<void(DiscoveryState)>>>;

    Worker& worker();
    void setState(DiscoveryState state);

    Console& fConsole;
    DispatchQueue& fMainQueue;
    ServiceTable fTable;
    DiscoveryState fState = DiscoveryState::Unknown;
    std::shared_ptr<Observers> fObservers = std::make_shared<Observers>();
    std::shared_ptr<int> fAlive = std::make_shared<int>();
    std::unique_ptr<Worker> fWorker;
};

} // namespace kelvo
