// What Avahi's callbacks say about a service: the record made of it, or the name that is refused.
#pragma once

#include "support/dnssd_service.h"

#include <QSet>

#include <string_view>

namespace kelvo {

class Console;

/// Bytes from the network, as they came.
struct ServiceAnswer {
    std::string_view name = {};
    std::string_view type = {};
    std::string_view domain = {};
    std::string_view host = {};    ///< empty while it is not resolved
    std::string_view address = {}; ///< as text; IPv4 or anything else
    quint32 interface = 0;
    quint32 port = 0;
};

/// The record of `answer`, available, added at `now`; an address that is no dotted IPv4 is left
/// empty. Nothing when one of its texts must not reach a shell (see support/service_name_rules.h).
/// Any bytes, any thread.
std::optional<DNSSD_Service> recordFromAnswer(const ServiceAnswer& answer, const QDateTime& now);

/// "_smb" as Avahi wants it: "_smb._tcp". A type that names its transport stays as it is.
QString fullServiceType(const QString& type);

/// Says once of each name that it is not listed. One thread only.
class RefusedNames {
public:
    explicit RefusedNames(Console& console) : fConsole(console) {}

    /// Leaves a line with `name` escaped, the first time; after very many names it says that the
    /// rest is not told.
    void tell(const QString& name);

private:
    Console& fConsole;
    QSet<QString> fTold;
};

} // namespace kelvo
