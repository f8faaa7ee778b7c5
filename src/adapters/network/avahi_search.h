// AvahiSearch: one search of an AvahiNetworkBrowser.
#pragma once

#include "ports/network_browser.h"

#include <QDBusConnection>
#include <QDBusMessage>
#include <QDBusServiceWatcher>
#include <QObject>

#include <vector>

namespace kelvo {

/// Main thread only. Both handlers are called from the event loop while this lives.
class AvahiSearch final : public QObject {
    Q_OBJECT
public:
    AvahiSearch(const QDBusConnection& bus, NetworkBrowserRequest request,
                NetworkBrowser::StateHandler stateHandler,
                NetworkBrowser::ResultsHandler resultsHandler);
    ~AvahiSearch() override;

private Q_SLOTS:
    void heard(const QDBusMessage& signal);

private:
    struct Item {
        int interface;
        int protocol;
        QString name;
        bool operator==(const Item&) const = default;
    };

    void begin();
    void fail(const QString& text);
    void take(const QDBusMessage& signal);
    void tellResults();
    QString description(const Item& item) const;

    QDBusConnection fBus;
    const NetworkBrowserRequest fRequest;
    const NetworkBrowser::StateHandler fStateHandler;
    const NetworkBrowser::ResultsHandler fResultsHandler;
    QDBusServiceWatcher fService;
    quint64 fAttempt = 0;
    QString fPath;                    ///< of the service's own search; empty until it has answered
    std::vector<QDBusMessage> fEarly; ///< what came before that
    std::vector<Item> fFound;
};

} // namespace kelvo
