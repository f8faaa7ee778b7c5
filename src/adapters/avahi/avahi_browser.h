// AvahiBrowser: looks for services through Avahi's daemon.
#pragma once

#include "adapters/avahi/service_table.h"
#include "ports/dnssd_browser.h"

#include <functional>
#include <memory>

namespace kelvo {

class Console;

/// The conversation with the daemon has a thread of its own, which starts with the first search;
/// the daemon, or the message bus, may be absent, come late, go and come again. Destruction waits
/// for a question that is under way.
class AvahiBrowser final : public DnssdBrowser {
public:
    /// `console` outlives the browser. `changed` is called after each change of what is known, on
    /// the thread of the conversation.
    explicit AvahiBrowser(Console& console, std::function<void()> changed = {});
    ~AvahiBrowser() override;

    void browseForType(const QString& type) override;
    DNSSD_Services services() const override;

    /// Whether the latest search has told all it knew at its beginning.
    bool settled() const { return fTable.settled(); }

private:
    class Worker;

    Console& fConsole;
    ServiceTable fTable;
    std::unique_ptr<Worker> fWorker;
};

} // namespace kelvo
