// KelvoSSID: watches the network through the kernel's links and the system's NetworkManager.
#pragma once

#include "adapters/network/network_reach.h"
#include "ports/network_checker.h"

#include <QString>

#include <functional>
#include <memory>

namespace kelvo {

class DispatchQueue;
class NotificationCenter;

/// The sentence people read. A usable link is enough for mirroring, whatever lies beyond it.
QString reachabilityMessage(bool usableLink, NetworkReach reach);

/// Main thread only, and posts there. Needs a QCoreApplication. Between changes nothing runs; the
/// changes of 0.2 s are one. Without NetworkManager, and until it has answered, the
/// links and routes alone say how far this machine sees.
class KelvoSSID final : public NetworkChecker {
public:
    /// Makes the one who hears from NetworkManager, or nothing; called where that is on the
    /// machine.
    using MakeReachSource =
        std::function<std::unique_ptr<NetworkReachSource>(std::function<void()> changed)>;

    KelvoSSID(NotificationCenter& center, DispatchQueue& mainQueue, MakeReachSource makeManager);
    ~KelvoSSID() override;

    void checknetwork2() override;

private:
    class Watcher;
    std::shared_ptr<Watcher> fWatcher; ///< also what delayed looks hold on to, weakly
    NotificationCenter& fCenter;
    DispatchQueue& fMainQueue;
    const MakeReachSource fMakeManager;
};

} // namespace kelvo
