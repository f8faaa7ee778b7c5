#include "app/bus_parts.h"
#include "app/version.h"
#include "ports/console.h"
#include "ports/dispatch_queue.h"
#include "ports/dnssd_browser.h"
#include "starter/own_module.h"
#include "support/profile.h"

#include <utility>

namespace kelvo {
namespace {

/// Null, with a line in the log, where they are not to be had.
const BusParts* busParts(Console& console) {
    const OwnModule module = loadOwnModule("bus.so", cGiveBusParts);
    auto* const give = reinterpret_cast<GiveBusParts*>(module.function);
    const BusParts* const parts = give ? give(cVersion) : nullptr;
    if (!parts)
        console.log(QStringLiteral("The message bus is not used, for the program's own part for it "
                                   "cannot be loaded: %1")
                        .arg(give ? QStringLiteral("it belongs to another version of the program")
                                  : QString::fromLocal8Bit(module.detail)));
    return parts;
}

/// As where no discovery service is installed.
class NoBrowser final : public DnssdBrowser {
public:
    explicit NoBrowser(DispatchQueue& mainQueue) : fMainQueue(mainQueue) {}

    void browseForType(const QString&) override {}
    DNSSD_Services services() const override { return {}; }
    Subscription observeState(std::function<void(DiscoveryState)> changed) override {
        changed(DiscoveryState::NotInstalled);
        return {};
    }
    void searchEndpoints(const EndpointRequest&, EndpointListener listener) override {
        fMainQueue.async([told = std::move(listener.stateChanged)] {
            told({.kind = EndpointSearchState::Kind::Failed,
                  .errorText = QStringLiteral("there is no discovery service")});
        });
    }

private:
    DispatchQueue& fMainQueue;
};

class LateBrowser final : public DnssdBrowser {
public:
    LateBrowser(Console& console, DispatchQueue& mainQueue)
        : fConsole(console), fMainQueue(mainQueue) {}

    void browseForType(const QString& type) override { browser().browseForType(type); }
    DNSSD_Services services() const override {
        return fBrowser ? fBrowser->services() : DNSSD_Services();
    }
    Subscription observeState(std::function<void(DiscoveryState)> changed) override {
        return browser().observeState(std::move(changed));
    }
    void searchEndpoints(const EndpointRequest& request, EndpointListener listener) override {
        browser().searchEndpoints(request, std::move(listener));
    }

private:
    DnssdBrowser& browser() {
        if (!fBrowser) {
            const BusParts* const parts = busParts(fConsole);
            fBrowser = parts ? parts->makeBrowser(fConsole, fMainQueue)
                             : std::make_unique<NoBrowser>(fMainQueue);
        }
        return *fBrowser;
    }

    Console& fConsole;
    DispatchQueue& fMainQueue;
    std::unique_ptr<DnssdBrowser> fBrowser;
};

class LateNotices final : public DesktopNotices {
public:
    LateNotices(Console& console, std::function<void(const Notice&)> otherwise,
                const Profile& profile)
        : fConsole(console), fOtherwise(std::move(otherwise)), fProfile(profile) {}

    void showNotice(const Notice& notice) override {
        if (!std::exchange(fIsAsked, true)) {
            if (const BusParts* const parts = busParts(fConsole))
                fNotices = parts->makeNotices(fConsole, fOtherwise, fProfile);
        }
        if (fNotices)
            fNotices->showNotice(notice);
        else
            fOtherwise(notice);
    }

private:
    Console& fConsole;
    const std::function<void(const Notice&)> fOtherwise;
    const Profile fProfile;
    bool fIsAsked = false;
    std::unique_ptr<DesktopNotices> fNotices;
};

} // namespace

BusParts lateBusParts() {
    return {
        .makeBrowser = [](Console& console,
                          DispatchQueue& mainQueue) -> std::unique_ptr<DnssdBrowser> {
            return std::make_unique<LateBrowser>(console, mainQueue);
        },
        .makeNotices = [](Console& console, std::function<void(const Notice&)> otherwise,
                          const Profile& profile) -> std::unique_ptr<DesktopNotices> {
            return std::make_unique<LateNotices>(console, std::move(otherwise), profile);
        },
        .makeReachSource = [](Console& console, std::function<void()> changed)
            -> std::unique_ptr<NetworkReachSource> {
            const BusParts* const parts = busParts(console);
            return parts ? parts->makeReachSource(console, std::move(changed)) : nullptr;
        },
    };
}

} // namespace kelvo
