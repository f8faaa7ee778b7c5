// BusParts: how the parts are made that speak with others over a message bus.
#pragma once

#include "adapters/network/network_reach.h"
#include "ports/desktop_notices.h"

#include <functional>
#include <memory>

namespace kelvo {

class Console;
class DispatchQueue;
class DnssdBrowser;
struct Profile;

/// Main thread only. What is handed over outlives the part that is made of it.
struct BusParts {
    std::unique_ptr<DnssdBrowser> (*makeBrowser)(Console& console, DispatchQueue& mainQueue);
    /// `otherwise` shows what the desktop could not.
    std::unique_ptr<DesktopNotices> (*makeNotices)(Console& console,
                                                   std::function<void(const Notice&)> otherwise,
                                                   const Profile& profile);
    /// `changed` is called from the event loop. Null where nobody can be asked.
    std::unique_ptr<NetworkReachSource> (*makeReachSource)(Console& console,
                                                           std::function<void()> changed);
};

/// The one function of the module that holds them, for the program of `version`; null for another.
using GiveBusParts = const BusParts*(const char16_t* version);
inline constexpr const char* cGiveBusParts = "kelvoMirrorGiveBusParts";

/// The same parts, each of which loads that module when it is first asked for something. Where it
/// cannot be loaded, a line in the log says so, and they are as on a machine without a bus.
BusParts lateBusParts();

} // namespace kelvo
