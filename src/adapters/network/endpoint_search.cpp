#include "adapters/network/endpoint_search.h"

#include "support/plain_line.h"

#include <algorithm>
#include <array>
#include <net/if.h>
#include <utility>

namespace kelvo {
namespace {

using Kind = EndpointSearchState::Kind;

QString withoutDot(const QString& domain) {
    return domain.endsWith(u'.') ? domain.chopped(1) : domain;
}

} // namespace

EndpointSearch::EndpointSearch(EndpointRequest request, EndpointListener listener)
    : fRequest(std::move(request)), fListener(std::move(listener)) {}

void EndpointSearch::begin(AvahiClient* client) {
    const auto callback = [](AvahiServiceBrowser* browser, AvahiIfIndex interface,
                             AvahiProtocol protocol, AvahiBrowserEvent event, const char* name,
                             const char*, const char*, AvahiLookupResultFlags, void* self) {
        auto& search = *static_cast<EndpointSearch*>(self);
        if (event == AVAHI_BROWSER_FAILURE)
            search.tellState(Kind::Failed, lastError(avahi_service_browser_get_client(browser)));
        else if (event == AVAHI_BROWSER_NEW || event == AVAHI_BROWSER_REMOVE)
            search.heard(event, {interface, protocol, name});
    };
    fBrowser.reset(avahi_service_browser_new(
        client, AVAHI_IF_UNSPEC, AVAHI_PROTO_UNSPEC, fRequest.type.toUtf8().constData(),
        withoutDot(fRequest.domain).toUtf8().constData(), AvahiLookupFlags{}, callback, this));
    if (fBrowser)
        tellState(Kind::Ready);
    else
        tellState(Kind::Failed, lastError(client));
}

void EndpointSearch::letGo() {
    fBrowser.reset();
    if (!std::exchange(fFound, {}).empty())
        tellEndpoints();
    if (fTold == Kind::Ready)
        tellState(Kind::Waiting);
}

void EndpointSearch::failUnlessTold(const QString& reason) {
    if (!fTold)
        tellState(Kind::Failed, reason);
}

void EndpointSearch::heard(AvahiBrowserEvent event, const Item& item) {
    const auto known = std::ranges::find(fFound, item);
    const bool isNew = event == AVAHI_BROWSER_NEW;
    if (isNew == (known != fFound.end()))
        return;
    if (isNew)
        fFound.push_back(item);
    else
        fFound.erase(known);
    tellEndpoints();
}

void EndpointSearch::tellState(Kind kind, const QString& errorText) {
    fTold = kind;
    fListener.stateChanged({kind, errorText});
}

void EndpointSearch::tellEndpoints() const {
    QStringList endpoints;
    for (const Item& item : fFound)
        endpoints.append(description(item));
    endpoints.removeDuplicates();
    fListener.endpointsChanged(endpoints);
}

/// One for both protocols of an interface.
QString EndpointSearch::description(const Item& item) const {
    std::array<char, IF_NAMESIZE> device{};
    const bool known = ::if_indextoname(static_cast<unsigned>(item.interface), device.data());
    QString visible = QString::fromStdString(item.name);
    visible.replace(u'\n', QStringLiteral("\\x0a"));
    return withVisibleControls(visible) + u'.' + fRequest.type + u'.' + fRequest.domain +
           (known ? QString(u'@' + QString::fromLatin1(device.data())) : QString());
}

} // namespace kelvo
