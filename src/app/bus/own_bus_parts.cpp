#include "app/bus/own_bus_parts.h"

#include "adapters/desktop/bus_notices.h"
#include "adapters/network/avahi_browser.h"
#include "adapters/network/network_manager.h"
#include "support/profile.h"

#include <utility>

namespace kelvo {

BusParts ownBusParts() {
    return {
        .makeBrowser = [](Console& console,
                          DispatchQueue& mainQueue) -> std::unique_ptr<DnssdBrowser> {
            return std::make_unique<AvahiBrowser>(console, mainQueue);
        },
        .makeNotices = [](Console&, std::function<void(const Notice&)> otherwise,
                          const Profile& profile) -> std::unique_ptr<DesktopNotices> {
            return std::make_unique<BusNotices>(std::move(otherwise), QDBusConnection::sessionBus,
                                                profile);
        },
        .makeReachSource =
            [](Console&, std::function<void()> changed) -> std::unique_ptr<NetworkReachSource> {
            return std::make_unique<NetworkManager>(std::move(changed));
        },
    };
}

} // namespace kelvo
