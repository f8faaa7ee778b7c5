// DNSSD_Service: one service of the local network, as far as it has been resolved.
#pragma once

#include <QDateTime>
#include <QHash>
#include <QString>
#include <QVariant>

#include <optional>

namespace kelvo {

struct DNSSD_Service {
    QString name;       ///< as advertised, blanks and all
    QString type;       ///< for example "_smb._tcp"
    QString scheme;     ///< of the URLs that lead to such a service: "smb"
    QString domain;     ///< "local"
    QString hostTarget; ///< the host it runs on, "Remote-Mac.local"; empty until resolved
    QString ip4Address; ///< dotted; empty until resolved, and for a host without IPv4
    QString macAddress; ///< "aa:bb:cc:dd:ee:ff"; empty when unknown
    QString fullName;   ///< name, type and domain in the escaped form of DNS
    QDateTime dateAdded = QDateTime::fromSecsSinceEpoch(0, Qt::UTC); ///< UTC, whole seconds
    quint32 interface = 0; ///< index of the network interface it was seen on
    quint32 hostPort = 0;  ///< 0 until resolved
    bool available = false;

    /// The twelve fields under their names, in the forms the settings store keeps: texts (empty
    /// ones too), a date, whole numbers without sign, a boolean. Always present.
    std::optional<QVariantMap> asDictionary() const;

    bool operator==(const DNSSD_Service&) const = default;
};

using DNSSD_Services = QList<DNSSD_Service>;

inline size_t qHash(const DNSSD_Service& service, size_t seed = 0) {
    return qHashMulti(seed, service.name, service.ip4Address, service.interface);
}

} // namespace kelvo
