// FakeNetworkChecker and FakeNetworkBrowser: a network that tests switch on and off.
#pragma once

#include "ports/network_browser.h"
#include "ports/network_checker.h"
#include "support/notification_center.h"

#include <functional>
#include <utility>
#include <vector>

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

class FakeNetworkBrowser final : public NetworkBrowser {
public:
    struct Search {
        NetworkBrowserRequest request;
        StateHandler state;
        ResultsHandler results;
    };

    void start(const NetworkBrowserRequest& request, StateHandler stateHandler,
               ResultsHandler resultsHandler) override {
        searches.push_back({request, std::move(stateHandler), std::move(resultsHandler)});
    }

    std::vector<Search> searches; ///< every search so far; its handlers are the test's to call
};

} // namespace kelvo
