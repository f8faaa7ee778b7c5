// ScriptedBrowser: a network on which a test lets services come, change and go.
#pragma once

#include "ports/dnssd_browser.h"
#include "support/service_name_rules.h"

#include <QStringList>

#include <algorithm>
#include <map>
#include <memory>
#include <optional>
#include <utility>
#include <vector>

namespace kelvo {

class ScriptedBrowser final : public DnssdBrowser {
public:
    void browseForType(const QString& type) override {
        browsed.append(type);
        if (whenBrowsed)
            whenBrowsed();
        if (type != fType)
            fListed.clear();
        fType = type;
        tellState();
        fListed.removeIf([](const DNSSD_Service& service) { return !service.available; });
        lookAgain();
    }
    DNSSD_Services services() const override { return fListed; }
    Subscription observeState(std::function<void(DiscoveryState)> changed) override {
        const int number = ++fLast;
        fObservers->emplace(number, std::move(changed));
        fObservers->at(number)(fState);
        return Subscription([number, all = std::weak_ptr(fObservers)] {
            if (const auto alive = all.lock())
                alive->erase(number);
        });
    }
    void searchEndpoints(const EndpointRequest& request, EndpointListener listener) override {
        searches.push_back({request, std::move(listener), {}, {}});
    }

    /// A service appears, or answers otherwise from now on; found at once if it is looked for.
    void announce(const DNSSD_Service& service) {
        const auto same = [&](const DNSSD_Service& other) { return isSame(other, service); };
        if (const auto found = std::ranges::find_if(fAnnounced, same); found != fAnnounced.end())
            *found = service;
        else
            fAnnounced.append(service);
        if (!fType.isEmpty() && fRunning)
            list(service);
    }

    /// What the main thread does at last: the listeners hear of what has changed for them.
    void tellListeners() {
        using Kind = EndpointSearchState::Kind;
        const QStringList now = endpoints();
        for (Search& search : searches) {
            if (std::exchange(search.toldEndpoints, now) != now)
                search.listener.endpointsChanged(now);
            const bool wasTold = search.toldState.has_value();
            const Kind kind = fRunning                                       ? Kind::Ready
                              : !wasTold || search.toldState == Kind::Failed ? Kind::Failed
                                                                             : Kind::Waiting;
            if (std::exchange(search.toldState, kind) != kind)
                search.listener.stateChanged({kind, QStringLiteral("no discovery service")});
        }
    }

    void withdraw(const QString& name) {
        fAnnounced.removeIf([&](const DNSSD_Service& service) { return service.name == name; });
        for (DNSSD_Service& service : fListed) {
            if (service.name == name)
                service.available = false;
        }
    }

    /// The discovery service of this machine stops or starts.
    void setRunning(bool running) {
        fRunning = running;
        for (DNSSD_Service& service : fListed)
            service.available = false;
        if (!fType.isEmpty())
            tellState();
        lookAgain();
    }

    DiscoveryState away = DiscoveryState::NotRunning; ///< what it is while it does not run
    QStringList browsed;                              ///< every type asked for so far
    std::function<void()> whenBrowsed;                ///< called at each of them
    QStringList refused;                              ///< names that were left out

    struct Search {
        EndpointRequest request;
        EndpointListener listener; ///< the test's to call, or tellListeners'
        std::optional<EndpointSearchState::Kind> toldState;
        QStringList toldEndpoints;
    };
    std::vector<Search> searches; ///< for endpoints, every one so far

private:
    static bool isSame(const DNSSD_Service& one, const DNSSD_Service& other) {
        return one.name == other.name && one.interface == other.interface;
    }

    QStringList endpoints() const {
        QStringList found;
        for (const DNSSD_Service& service : fAnnounced) {
            if (fRunning)
                found.append(service.name + u'.' + service.type + u'.' + service.domain + u'.');
        }
        return found;
    }

    void tellState() {
        const DiscoveryState now = fRunning ? DiscoveryState::Running : away;
        if (std::exchange(fState, now) == now)
            return;
        for (const auto& [number, changed] : std::map(*fObservers)) {
            if (fObservers->contains(number))
                changed(now);
        }
    }

    void lookAgain() {
        if (!fRunning || fType.isEmpty())
            return;
        for (const DNSSD_Service& service : std::as_const(fAnnounced))
            list(service);
    }

    void list(DNSSD_Service service) {
        if (service.type != fType && service.type != fType + u"._tcp")
            return;
        if (!isAcceptableServiceName(service.name)) {
            if (!refused.contains(service.name))
                refused.append(service.name);
            return;
        }
        service.available = true;
        const auto same = [&](const DNSSD_Service& other) { return isSame(other, service); };
        if (const auto found = std::ranges::find_if(fListed, same); found != fListed.end())
            *found = service;
        else
            fListed.append(service);
    }

    QString fType;
    bool fRunning = true;
    DiscoveryState fState = DiscoveryState::Unknown;
    int fLast = 0;
    std::shared_ptr<std::map<int, std::function<void(DiscoveryState)>>> fObservers =
        std::make_shared<std::map<int, std::function<void(DiscoveryState)>>>();
    DNSSD_Services fAnnounced;
    DNSSD_Services fListed;
};

} // namespace kelvo
