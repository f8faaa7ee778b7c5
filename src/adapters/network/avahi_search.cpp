#include "adapters/network/avahi_search.h"

#include "support/plain_line.h"

#include <QDBusError>
#include <QDBusObjectPath>
#include <QDBusPendingCallWatcher>
#include <QDBusPendingReply>
#include <QTimer>

#include <algorithm>
#include <array>
#include <net/if.h>
#include <utility>

namespace kelvo {
namespace {

const QString cService = QStringLiteral("org.freedesktop.Avahi");
const QString cServer = QStringLiteral("org.freedesktop.Avahi.Server");
const QString cBrowser = QStringLiteral("org.freedesktop.Avahi.ServiceBrowser");
constexpr int cEvery = -1; ///< interface or protocol

QString withoutDot(const QString& domain) {
    return domain.endsWith(u'.') ? domain.chopped(1) : domain;
}

} // namespace

AvahiSearch::AvahiSearch(const QDBusConnection& bus, NetworkBrowserRequest request,
                         NetworkBrowser::StateHandler stateHandler,
                         NetworkBrowser::ResultsHandler resultsHandler)
    : fBus(bus), fRequest(std::move(request)), fStateHandler(std::move(stateHandler)),
      fResultsHandler(std::move(resultsHandler)),
      fService(cService, bus, QDBusServiceWatcher::WatchForOwnerChange) {
    // The search's own path is known only after the answer, which its first signals may overtake.
    for (const char* name : {"ItemNew", "ItemRemove", "Failure"})
        fBus.connect(cService, QString(), cBrowser, QString::fromLatin1(name), this,
                     SLOT(heard(QDBusMessage)));
    connect(&fService, &QDBusServiceWatcher::serviceOwnerChanged, this,
            [this](const QString&, const QString&, const QString& owner) {
                ++fAttempt;
                fPath.clear();
                fEarly.clear();
                if (!std::exchange(fFound, {}).empty())
                    tellResults();
                if (owner.isEmpty())
                    fStateHandler({NetworkBrowserState::Kind::Waiting, {}});
                else
                    begin();
            });
    QTimer::singleShot(0, this, &AvahiSearch::begin);
}

AvahiSearch::~AvahiSearch() {
    if (fPath.isEmpty())
        return;
    fBus.send(QDBusMessage::createMethodCall(cService, fPath, cBrowser, QStringLiteral("Free")));
}

void AvahiSearch::begin() {
    if (!fBus.isConnected()) {
        fail(QStringLiteral("there is no system bus"));
        return;
    }
    QDBusMessage request = QDBusMessage::createMethodCall(cService, QStringLiteral("/"), cServer,
                                                          QStringLiteral("ServiceBrowserNew"));
    request << cEvery << cEvery << fRequest.type << withoutDot(fRequest.domain) << 0U;
    auto* answer = new QDBusPendingCallWatcher(fBus.asyncCall(request), this);
    connect(answer, &QDBusPendingCallWatcher::finished, this, [this, answer, attempt = ++fAttempt] {
        answer->deleteLater();
        if (attempt != fAttempt)
            return;
        const QDBusPendingReply<QDBusObjectPath> reply = *answer;
        if (reply.isError()) {
            fail(withVisibleControls(reply.error().message()));
            return;
        }
        fPath = reply.value().path();
        fStateHandler({NetworkBrowserState::Kind::Ready, {}});
        for (const QDBusMessage& signal : std::exchange(fEarly, {}))
            heard(signal);
    });
}

void AvahiSearch::fail(const QString& text) {
    fStateHandler({NetworkBrowserState::Kind::Failed, text});
}

void AvahiSearch::heard(const QDBusMessage& signal) {
    if (fPath.isEmpty())
        fEarly.push_back(signal);
    else if (signal.path() == fPath)
        take(signal);
}

void AvahiSearch::take(const QDBusMessage& signal) {
    const QVariantList values = signal.arguments();
    if (signal.member() == u"Failure") {
        fail(withVisibleControls(values.value(0).toString()));
        return;
    }
    if (values.size() < 3)
        return;
    const Item item{values[0].toInt(), values[1].toInt(), values[2].toString()};
    const auto known = std::ranges::find(fFound, item);
    const bool isNew = signal.member() == u"ItemNew";
    if (isNew == (known != fFound.end()))
        return;
    if (isNew)
        fFound.push_back(item);
    else
        fFound.erase(known);
    tellResults();
}

void AvahiSearch::tellResults() {
    QStringList endpoints;
    for (const Item& item : fFound)
        endpoints.append(description(item));
    endpoints.removeDuplicates();
    fResultsHandler(endpoints);
}

/// One for both protocols of an interface.
QString AvahiSearch::description(const Item& item) const {
    std::array<char, IF_NAMESIZE> name{};
    const bool known =
        item.interface > 0 && ::if_indextoname(static_cast<unsigned>(item.interface), name.data());
    QString visible = item.name;
    visible.replace(u'\n', QStringLiteral("\\x0a"));
    return withVisibleControls(visible) + u'.' + fRequest.type + u'.' + fRequest.domain +
           (known ? QString(u'@' + QString::fromLatin1(name.data())) : QString());
}

} // namespace kelvo
