#include "adapters/network/avahi_browser.h"

#include "adapters/network/avahi_session.h"
#include "adapters/network/service_answer.h"

#include <sys/eventfd.h>
#include <unistd.h>

#include <cstdint>

namespace kelvo {

/// Avahi's thread with its session, woken through a descriptor: Avahi's own lock would make the
/// main thread wait for a question that is under way.
class AvahiBrowser::Worker {
public:
    Worker(ServiceTable& table, Console& console)
        : fWakeUp(::eventfd(0, EFD_CLOEXEC | EFD_NONBLOCK)), fThread(avahi_threaded_poll_new()),
          fPoll(*avahi_threaded_poll_get(fThread.get())), fSession(fPoll, table, console),
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

private:
    void wokenUp() {
        eventfd_t count = 0;
        ::eventfd_read(fWakeUp, &count);
        fSession.searchAfresh();
    }

    const int fWakeUp;
    const AvahiHandle<AvahiThreadedPoll> fThread;
    const AvahiPoll& fPoll;
    AvahiSession fSession;
    AvahiWatch* const fWatch;
};

AvahiBrowser::AvahiBrowser(Console& console) : fConsole(console) {}

AvahiBrowser::~AvahiBrowser() = default;

void AvahiBrowser::browseForType(const QString& type) {
    fTable.startSearch(fullServiceType(type));
    if (!fWorker)
        fWorker = std::make_unique<Worker>(fTable, fConsole);
    fWorker->wakeUp();
}

DNSSD_Services AvahiBrowser::services() const {
    return fTable.services();
}

} // namespace kelvo
