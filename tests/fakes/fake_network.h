// FakeNetworkChecker: a network that tests switch on and off.
#pragma once

#include "ports/network_checker.h"
#include "support/notification_center.h"

#include <utility>

namespace kelvo {

class FakeNetworkChecker final : public NetworkChecker {
public:
    FakeNetworkChecker(NotificationCenter& center, QString message)
        : fCenter(center), fMessage(std::move(message)) {}

    void checknetwork2() override {
        if (!std::exchange(fWatching, true))
            say(fMessage);
    }

    /// The network's state changes.
    void say(const QString& message) {
        fMessage = message;
        if (fWatching)
            fCenter.post(cNWPathMonitorNotification.toString(),
                         {{cReachabilityMessage.toString(), message}});
    }

private:
    NotificationCenter& fCenter;
    QString fMessage;
    bool fWatching = false;
};

} // namespace kelvo
