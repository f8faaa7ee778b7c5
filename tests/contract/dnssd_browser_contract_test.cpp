#include "contract/dnssd_browser_contract.h"
#include "fakes/scripted_browser.h"

namespace kelvo {
namespace {

class ScriptedNetwork {
public:
    QString prepare() { return {}; }
    DnssdBrowser& browser() { return fBrowser; }
    bool becomes(const std::function<bool()>& condition, int = 0) { return condition(); }
    void announce(const QString& name, quint32 port) {
        DNSSD_Service service;
        service.name = name;
        service.type = QStringLiteral("_smb._tcp");
        service.scheme = QStringLiteral("smb");
        service.domain = QStringLiteral("local");
        service.hostTarget = QStringLiteral("Remote-Mac.local");
        service.ip4Address = QStringLiteral("10.77.0.2");
        service.fullName = fullServiceName(name, service.type, service.domain);
        service.dateAdded =
            QDateTime::fromSecsSinceEpoch(QDateTime::currentSecsSinceEpoch(), Qt::UTC);
        service.interface = 2;
        service.hostPort = port;
        fBrowser.announce(service);
    }
    void withdraw(const QString& name) { fBrowser.withdraw(name); }
    void setRunning(bool running) { fBrowser.setRunning(running); }
    bool wasRefused(const QString& name) const { return fBrowser.refused.contains(name); }

private:
    ScriptedBrowser fBrowser;
};

} // namespace

INSTANTIATE_TYPED_TEST_SUITE_P(Scripted, DnssdBrowserContractTest, ScriptedNetwork);

} // namespace kelvo
