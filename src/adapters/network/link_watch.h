// LinkWatch: tells when this machine's network interfaces, addresses or routes have changed.
#pragma once

#include "adapters/system/unique_fd.h"

#include <functional>
#include <memory>

class QSocketNotifier;

namespace kelvo {

/// Whether an interface other than the loopback is up, has its cable or its radio link, and has an
/// address that other machines can reach: any of IPv4, or one of IPv6 beyond the link's own. Any
/// thread; does not block.
bool hasUsableLink();

/// Whether the kernel knows a way out of the networks this machine is in. Any thread; does not
/// block.
bool hasDefaultRoute();

/// Main thread only. Sleeps in the kernel; nothing ticks.
class LinkWatch {
public:
    /// `changed` is called from the event loop after each change, once for several together. It
    /// must not destroy the watch. Where the system refuses to tell of changes it is never called.
    explicit LinkWatch(std::function<void()> changed);
    ~LinkWatch();
    LinkWatch(const LinkWatch&) = delete;
    LinkWatch& operator=(const LinkWatch&) = delete;

private:
    UniqueFd fSocket;
    std::unique_ptr<QSocketNotifier> fNotifier;
};

} // namespace kelvo
