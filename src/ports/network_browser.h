// NetworkBrowser: looks for services on the network, for a person who tests the network.
#pragma once

#include <QString>
#include <QStringList>

#include <functional>

namespace kelvo {

struct NetworkBrowserState {
    enum class Kind { Setup, Ready, Waiting, Failed, Cancelled } kind = Kind::Setup;
    QString errorText; ///< for people, when Failed
};

struct NetworkBrowserRequest {
    QString type;   ///< "_smb._tcp"
    QString domain; ///< "local."
    bool includePeerToPeer = false;
};

/// Main thread only.
class NetworkBrowser {
public:
    using StateHandler = std::function<void(const NetworkBrowserState&)>;
    /// Receives the debug description of every endpoint there is, in the set's order.
    using ResultsHandler = std::function<void(const QStringList& endpoints)>;

    virtual ~NetworkBrowser() = default;

    /// Begins one more search, which goes on as long as this browser lives. Both handlers are
    /// called later on the main thread: one at each change of state, the other at each change of
    /// what is found, with all of it. Once the browser is destroyed neither is called.
    virtual void start(const NetworkBrowserRequest& request, StateHandler stateHandler,
                       ResultsHandler resultsHandler) = 0;
};

} // namespace kelvo
