#include "adapters/network/service_answer.h"

#include "ports/console.h"
#include "support/service_name_rules.h"
#include "support/text.h"

namespace kelvo {
namespace {

constexpr qsizetype cMostTold = 1000;

QString text(std::string_view bytes) {
    return QString::fromUtf8(bytes.data(), static_cast<qsizetype>(bytes.size()));
}

/// "smb" of "_smb._tcp".
QString schemeOf(const QString& type) {
    const QString first = type.section(u'.', 0, 0);
    return first.startsWith(u'_') ? first.sliced(1) : first;
}

QDateTime wholeSeconds(const QDateTime& time) {
    return QDateTime::fromSecsSinceEpoch(time.toSecsSinceEpoch(), Qt::UTC);
}

} // namespace

std::optional<DNSSD_Service> recordFromAnswer(const ServiceAnswer& answer, const QDateTime& now) {
    DNSSD_Service record;
    record.name = text(answer.name);
    record.type = text(answer.type);
    record.domain = text(answer.domain);
    record.hostTarget = text(answer.host);
    const bool acceptable =
        isAcceptableServiceName(record.name) && isAcceptableHostName(record.type) &&
        isAcceptableHostName(record.domain) &&
        (record.hostTarget.isEmpty() || isAcceptableHostName(record.hostTarget));
    if (!acceptable)
        return std::nullopt;
    if (const QString address = text(answer.address); isDottedIPv4(address))
        record.ip4Address = address;
    record.scheme = schemeOf(record.type);
    record.fullName = fullServiceName(record.name, record.type, record.domain);
    record.dateAdded = wholeSeconds(now);
    record.interface = answer.interface;
    record.hostPort = answer.port;
    record.available = true;
    return record;
}

QString fullServiceType(const QString& type) {
    return type.contains(u'.') ? type : QString(type + u"._tcp");
}

void RefusedNames::tell(const QString& name) {
    if (fTold.size() >= cMostTold || fTold.contains(name))
        return;
    fTold.insert(name);
    const bool last = fTold.size() == cMostTold;
    fConsole.log(insideLine(u"AvahiBrowser", u"services",
                            QString(u".......refused the service name [" + escapedForLog(name) +
                                    (last ? u"]; further ones are not told" : u"]"))));
}

} // namespace kelvo
