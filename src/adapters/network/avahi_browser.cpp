#include "adapters/network/avahi_browser.h"

#include "adapters/network/avahi_session.h"
#include "adapters/network/service_answer.h"
#include "ports/dispatch_queue.h"

#include <sys/eventfd.h>
#include <unistd.h>

#include <cstdint>
#include <mutex>
#include <utility>
#include <vector>

namespace kelvo {

/// Avahi's thread with its session, woken through a descriptor: Avahi's own lock would make the
/// main thread wait for a question that is under way.
class AvahiBrowser::Worker {
public:
    Worker(ServiceTable& table, Console& console, StateChanged stateChanged)
        : fWakeUp(::eventfd(0, EFD_CLOEXEC | EFD_NONBLOCK)), fThread(avahi_threaded_poll_new()),
          fPoll(*avahi_threaded_poll_get(fThread.get())),
          fSession(fPoll, table, console, std::move(stateChanged)),
          fWatch(fPoll.watch_new(
              &fPoll, fWakeUp, AVAHI_WATCH_IN,
              [](AvahiWatch*, int, AvahiWatchEvent, void* self) {
                  static_cast<Worker*>(self)->wokenUp();
              },
              this)) {
        avahi_threaded_poll_start(fThread.get());
    }
    ~Worker() {
        avahi_threaded_poll_stop(fThread.get());
        fPoll.watch_free(fWatch);
        ::close(fWakeUp);
    }
    Worker(const Worker&) = delete;
    Worker& operator=(const Worker&) = delete;

    void wakeUp() const { ::eventfd_write(fWakeUp, 1); }

    void searchEndpoints(std::unique_ptr<EndpointSearch> search) {
        {
            const std::lock_guard lock(fMutex);
            fNewSearches.push_back(std::move(search));
        }
        wakeUp();
    }

private:
    void wokenUp() {
        eventfd_t count = 0;
        ::eventfd_read(fWakeUp, &count);
        fSession.searchAfresh();
        for (auto& search : takeNewSearches())
            fSession.searchEndpoints(std::move(search));
    }

    std::vector<std::unique_ptr<EndpointSearch>> takeNewSearches() {
        const std::lock_guard lock(fMutex);
        return std::exchange(fNewSearches, {});
    }

    const int fWakeUp;
    const AvahiHandle<AvahiThreadedPoll> fThread;
    const AvahiPoll& fPoll;
    AvahiSession fSession;
    AvahiWatch* const fWatch;
    std::mutex fMutex;
    std::vector<std::unique_ptr<EndpointSearch>> fNewSearches;
};

AvahiBrowser::AvahiBrowser(Console& console, DispatchQueue& mainQueue)
    : fConsole(console), fMainQueue(mainQueue) {}

AvahiBrowser::~AvahiBrowser() = default;

void AvahiBrowser::browseForType(const QString& type) {
    fTable.startSearch(fullServiceType(type));
    worker().wakeUp();
}

DNSSD_Services AvahiBrowser::services() const {
    return fTable.services();
}

void AvahiBrowser::searchEndpoints(const EndpointRequest& request, EndpointListener listener) {
    const auto onMainQueue = [this](auto handler) {
        return [&queue = fMainQueue, alive = std::weak_ptr(fAlive),
                handler = std::move(handler)](const auto& value) {
            queue.async([alive, handler, value] {
                if (!alive.expired())
                    handler(value);
            });
        };
    };
    worker().searchEndpoints(std::make_unique<EndpointSearch>(
        request,
        EndpointListener{.stateChanged = onMainQueue(std::move(listener.stateChanged)),
                         .endpointsChanged = onMainQueue(std::move(listener.endpointsChanged))}));
}

Subscription AvahiBrowser::observeState(std::function<void(DiscoveryState)> changed) {
    const auto observer = std::make_shared<std::function<void(DiscoveryState)>>(std::move(changed));
    fObservers->push_back(observer);
    (*observer)(fState);
    return Subscription([observer, all = std::weak_ptr(fObservers)] {
        *observer = {};
        if (const auto alive = all.lock())
            alive->remove(observer);
    });
}

void AvahiBrowser::setState(DiscoveryState state) {
    if (std::exchange(fState, state) == state)
        return;
    for (const auto& observer : Observers(*fObservers)) {
        // It may end itself, or another one.
        if (const auto changed = *observer)
            changed(state);
    }
}

AvahiBrowser::Worker& AvahiBrowser::worker() {
    if (!fWorker)
        fWorker = std::make_unique<Worker>(
            fTable, fConsole,
            [this, &queue = fMainQueue, alive = std::weak_ptr(fAlive)](DiscoveryState state) {
                queue.async([this, alive, state] {
                    if (!alive.expired())
                        setState(state);
                });
            });
    return *fWorker;
}

} // namespace kelvo
