// AvahiBrowser: looks for services through Avahi's daemon.
#pragma once

#include "adapters/network/service_table.h"
#include "ports/dnssd_browser.h"

#include <memory>

namespace kelvo {

class Console;

/// The conversation with the daemon has a thread of its own, which starts with the first search;
/// the daemon, or the message bus, may be absent, come late, go and come again. Destruction waits
/// for a question that is under way.
class AvahiBrowser final : public DnssdBrowser {
public:
    /// `console` outlives the browser.
    explicit AvahiBrowser(Console& console);
    ~AvahiBrowser() override;

    void browseForType(const QString& type) override;
    DNSSD_Services services() const override;

private:
    class Worker;

    Console& fConsole;
    ServiceTable fTable;
    std::unique_ptr<Worker> fWorker;
};

} // namespace kelvo
