#include "discovery/service_filter.h"

namespace kelvo {
namespace {

constexpr qsizetype cShortestAddress = 7; // as in 1.2.3.4

} // namespace

Admission admit(const DNSSD_Service& record, QSet<QString>& addresses) {
    if (record.ip4Address.size() < cShortestAddress)
        return Admission::BadKey;
    const qsizetype before = addresses.size();
    addresses.insert(record.ip4Address);
    return addresses.size() > before ? Admission::Admitted : Admission::Duplicate;
}

} // namespace kelvo
