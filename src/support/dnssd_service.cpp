#include "support/dnssd_service.h"

namespace kelvo {

std::optional<QVariantMap> DNSSD_Service::asDictionary() const {
    QVariantMap dictionary;
    dictionary.insert(QStringLiteral("name"), name);
    dictionary.insert(QStringLiteral("type"), type);
    dictionary.insert(QStringLiteral("scheme"), scheme);
    dictionary.insert(QStringLiteral("domain"), domain);
    dictionary.insert(QStringLiteral("hostTarget"), hostTarget);
    dictionary.insert(QStringLiteral("ip4Address"), ip4Address);
    dictionary.insert(QStringLiteral("macAddress"), macAddress);
    dictionary.insert(QStringLiteral("fullName"), fullName);
    dictionary.insert(QStringLiteral("dateAdded"), dateAdded);
    dictionary.insert(QStringLiteral("interface"), qlonglong{interface});
    dictionary.insert(QStringLiteral("hostPort"), qlonglong{hostPort});
    dictionary.insert(QStringLiteral("available"), available);
    return dictionary;
}

} // namespace kelvo
