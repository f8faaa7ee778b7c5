#include "adapters/network/avahi_session.h"

#include "adapters/network/neighbour_table.h"
#include "ports/console.h"
#include "support/text.h"

#include <unistd.h>

#include <algorithm>
#include <array>
#include <avahi-common/error.h>
#include <avahi-common/timeval.h>
#include <utility>

namespace kelvo {
namespace {

constexpr double cFirstPause = 0.25;
constexpr double cLongestPause = 8.0;

std::optional<HeardOver> heardOver(AvahiProtocol protocol) {
    switch (protocol) {
    case AVAHI_PROTO_INET:
        return HeardOver::IPv4;
    case AVAHI_PROTO_INET6:
        return HeardOver::IPv6;
    default:
        return std::nullopt;
    }
}

bool isInstalled() {
    return std::ranges::any_of(std::array{"/usr/sbin/avahi-daemon", "/usr/local/sbin/avahi-daemon"},
                               [](const char* program) { return ::access(program, X_OK) == 0; });
}

} // namespace

AvahiSession::AvahiSession(const AvahiPoll& poll, ServiceTable& table, Console& console,
                           StateChanged stateChanged)
    : fPoll(poll), fTable(table), fConsole(console), fStateChanged(std::move(stateChanged)),
      fRefused(console),
      fTimeout(poll.timeout_new(
          &poll, nullptr,
          [](AvahiTimeout*, void* self) { static_cast<AvahiSession*>(self)->connect(); }, this)),
      fResolvers([this](const ResolvedService& service) { serviceResolved(service); }) {}

AvahiSession::~AvahiSession() {
    fPoll.timeout_free(fTimeout);
}

void AvahiSession::searchAfresh() {
    if (fTable.search().number == fSearchNumber)
        return;
    if (fConnected)
        startBrowser(fClient.get());
    else
        connectAtOnce();
}

void AvahiSession::searchEndpoints(std::unique_ptr<EndpointSearch> search) {
    fEndpointSearches.push_back(std::move(search));
    if (fConnected)
        fEndpointSearches.back()->begin(fClient.get());
    else
        connectAtOnce();
}

// -- the client

void AvahiSession::connect() {
    fPoll.timeout_update(fTimeout, nullptr);
    disconnect();
    AvahiHandle<AvahiClient> client(avahi_client_new(
        &fPoll, AVAHI_CLIENT_NO_FAIL,
        [](AvahiClient* changed, AvahiClientState state, void* self) {
            static_cast<AvahiSession*>(self)->clientChanged(changed, state);
        },
        this, nullptr));
    if (client) {
        fClient = std::move(client);
        return;
    }
    tell(QStringLiteral("no message bus to reach the discovery service by"));
    isAway(QStringLiteral("there is no system bus"));
    connectLater();
}

void AvahiSession::disconnect() {
    fResolvers.clear();
    fBrowser.reset();
    for (const auto& search : fEndpointSearches)
        search->letGo();
    fClient.reset();
    fConnected = false;
}

void AvahiSession::connectAtOnce() {
    fPause = 0;
    connectLater();
}

void AvahiSession::connectLater() {
    timeval due = {};
    avahi_elapse_time(&due, static_cast<unsigned>(fPause * 1000), 0);
    fPoll.timeout_update(fTimeout, &due);
    fPause = std::clamp(fPause * 2, cFirstPause, cLongestPause);
}

void AvahiSession::isAway(const QString& reason) {
    fStateChanged(isInstalled() ? DiscoveryState::NotRunning : DiscoveryState::NotInstalled);
    failEndpoints(reason);
}

void AvahiSession::failEndpoints(const QString& reason) {
    for (const auto& search : fEndpointSearches)
        search->failUnlessTold(reason);
}

void AvahiSession::clientChanged(AvahiClient* client, AvahiClientState state) {
    switch (state) {
    case AVAHI_CLIENT_S_REGISTERING:
    case AVAHI_CLIENT_S_RUNNING:
    case AVAHI_CLIENT_S_COLLISION:
        fPause = 0;
        if (!fConnected) {
            fConnected = true;
            fTold.clear();
            fStateChanged(DiscoveryState::Running);
            startBrowser(client);
            for (const auto& search : fEndpointSearches)
                search->begin(client);
        }
        break;
    case AVAHI_CLIENT_CONNECTING:
        fTable.lose();
        tell(QStringLiteral("waiting for the discovery service (avahi-daemon)"));
        isAway(QString::fromUtf8(avahi_strerror(AVAHI_ERR_NO_DAEMON)));
        break;
    case AVAHI_CLIENT_FAILURE:
        // The client cannot be freed from its own callback.
        fConnected = false;
        fTable.lose();
        tell(u"lost the discovery service: " + lastError(client));
        isAway(lastError(client));
        connectLater();
        break;
    }
}

// -- the search

void AvahiSession::startBrowser(AvahiClient* client) {
    fResolvers.clear();
    const ServiceSearch search = fTable.beginSearch();
    if (search.type.isEmpty())
        return;
    fSearchNumber = search.number;
    const auto callback = [](AvahiServiceBrowser* browser, AvahiIfIndex interface,
                             AvahiProtocol protocol, AvahiBrowserEvent event, const char* name,
                             const char* type, const char* domain, AvahiLookupResultFlags,
                             void* self) {
        auto& session = *static_cast<AvahiSession*>(self);
        switch (event) {
        case AVAHI_BROWSER_NEW:
            session.serviceFound(avahi_service_browser_get_client(browser),
                                 {name, type, domain, interface, protocol});
            break;
        case AVAHI_BROWSER_REMOVE:
            session.serviceVanished({name, type, domain, interface, protocol});
            break;
        case AVAHI_BROWSER_ALL_FOR_NOW:
            session.fTable.settle(session.fSearchNumber);
            break;
        case AVAHI_BROWSER_FAILURE:
            session.tell(QStringLiteral("the search failed and is started again"));
            session.fConnected = false;
            session.fTable.lose();
            session.connectLater();
            break;
        case AVAHI_BROWSER_CACHE_EXHAUSTED:
            break;
        }
    };
    fBrowser.reset(avahi_service_browser_new(client, AVAHI_IF_UNSPEC, AVAHI_PROTO_UNSPEC,
                                             search.type.toUtf8().constData(), "local",
                                             AvahiLookupFlags{}, callback, this));
    if (fBrowser)
        return;
    fConnected = false;
    connectLater();
}

void AvahiSession::serviceFound(AvahiClient* client, const ServiceQuestion& question) {
    const auto protocol = heardOver(question.protocol);
    const auto record = recordFromAnswer({.name = question.name,
                                          .type = question.type,
                                          .domain = question.domain,
                                          .interface = static_cast<quint32>(question.interface)},
                                         QDateTime::currentDateTimeUtc());
    if (!record)
        fRefused.tell(QString::fromStdString(question.name));
    else if (protocol && fTable.found(*record, *protocol))
        fResolvers.ask(client, question);
}

void AvahiSession::serviceVanished(const ServiceQuestion& question) {
    const auto protocol = heardOver(question.protocol);
    if (protocol && fTable.vanished(QString::fromStdString(question.name),
                                    static_cast<quint32>(question.interface), *protocol))
        fResolvers.forget(question.name, question.interface);
}

void AvahiSession::serviceResolved(const ResolvedService& service) {
    char address[AVAHI_ADDRESS_STR_MAX] = {};
    if (service.address)
        avahi_address_snprint(address, sizeof address, service.address);
    auto record = recordFromAnswer({.name = service.name,
                                    .type = service.type,
                                    .domain = service.domain,
                                    .host = service.host,
                                    .address = address,
                                    .interface = static_cast<quint32>(service.interface),
                                    .port = service.port},
                                   QDateTime::currentDateTimeUtc());
    if (!record) {
        fRefused.tell(
            QString(QString::fromUtf8(service.name) + u" at " + QString::fromUtf8(service.host)));
        return;
    }
    record->macAddress = macAddressOf(record->ip4Address, record->interface);
    fTable.resolved(*record);
}

/// A search for endpoints has its own listener.
void AvahiSession::tell(const QString& what) {
    if (fTable.search().type.isEmpty())
        return;
    if (std::exchange(fTold, what) == what)
        return;
    fConsole.log(insideLine(u"AvahiBrowser", u"browseForType:", QString(u"......." + what)));
}

} // namespace kelvo
