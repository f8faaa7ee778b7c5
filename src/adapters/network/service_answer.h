// What Avahi's callbacks say about a service, and the record made of it.
#pragma once

#include "support/dnssd_service.h"

#include <string_view>

namespace kelvo {

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

} // namespace kelvo
