#include "adapters/avahi/avahi_network_browser.h"

#include "adapters/avahi/avahi_browser.h"
#include "ports/dispatch_queue.h"

#include <atomic>
#include <utility>

namespace kelvo {
namespace {

/// What there is now, as text; the interface is the kernel's number for it.
QStringList endpoints(const DNSSD_Services& services) {
    QStringList texts;
    for (const DNSSD_Service& service : services) {
        if (service.available)
            texts.append(service.name + u'.' + service.type + u'.' + service.domain + u".@" +
                         QString::number(service.interface));
    }
    return texts;
}

} // namespace

class AvahiNetworkBrowser::Search : public std::enable_shared_from_this<Search> {
public:
    Search(DispatchQueue& mainQueue, Console& console, StateHandler stateHandler,
           ResultsHandler resultsHandler)
        : fMainQueue(mainQueue), fState(std::move(stateHandler)),
          fResults(std::move(resultsHandler)), fBrowser(console, [this] { changed(); }) {}

    void start(const QString& type) { fBrowser.browseForType(type); }

private:
    /// Avahi's thread, which ends with the browser, and so before this object.
    void changed() {
        if (fTold.exchange(true))
            return;
        fMainQueue.async([search = weak_from_this()] {
            if (const auto alive = search.lock())
                alive->tell();
        });
    }

    void tell() {
        fTold = false;
        if (fBrowser.settled() && !std::exchange(fReady, true))
            fState({NetworkBrowserState::Kind::Ready, {}});
        const QStringList now = endpoints(fBrowser.services());
        if (now != std::exchange(fLast, now))
            fResults(now);
    }

    DispatchQueue& fMainQueue;
    const StateHandler fState;
    const ResultsHandler fResults;
    std::atomic<bool> fTold = false; ///< a call of `tell` is under way
    bool fReady = false;
    QStringList fLast;
    AvahiBrowser fBrowser;
};

AvahiNetworkBrowser::AvahiNetworkBrowser(DispatchQueue& mainQueue, Console& console)
    : fMainQueue(mainQueue), fConsole(console) {}

AvahiNetworkBrowser::~AvahiNetworkBrowser() = default;

void AvahiNetworkBrowser::start(const NetworkBrowserRequest& request, StateHandler stateHandler,
                                ResultsHandler resultsHandler) {
    fSearches.push_back(std::make_shared<Search>(fMainQueue, fConsole, std::move(stateHandler),
                                                 std::move(resultsHandler)));
    fSearches.back()->start(request.type);
}

} // namespace kelvo
