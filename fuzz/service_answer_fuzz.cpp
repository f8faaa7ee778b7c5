// Any bytes as Avahi could hand them out, through everything up to the record and its log lines.
//   cmake --preset release -DKELVO_FUZZ=ON -DCMAKE_CXX_COMPILER=clang++ …, then
//   bin/service-answer-fuzz -max_total_time=60
#include "adapters/avahi/neighbour_table.h"
#include "adapters/avahi/service_answer.h"
#include "adapters/avahi/service_table.h"
#include "support/service_name_rules.h"
#include "support/stored_value.h"

#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <string_view>

namespace {

/// The next text of `rest`, up to a zero byte.
std::string_view nextText(std::string_view& rest) {
    const std::size_t end = rest.find('\0');
    const std::string_view text = rest.substr(0, end);
    rest.remove_prefix(end == std::string_view::npos ? rest.size() : end + 1);
    return text;
}

void require(bool condition) {
    if (!condition)
        std::abort();
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    using namespace kelvo;
    std::string_view rest(reinterpret_cast<const char*>(data), size);
    ServiceAnswer answer;
    answer.interface = static_cast<quint32>(size);
    answer.name = nextText(rest);
    answer.host = nextText(rest);
    answer.address = nextText(rest);
    answer.type = rest.empty() ? "_smb._tcp" : nextText(rest);
    answer.domain = rest.empty() ? "local" : nextText(rest);

    const QString shown = escapedForLog(
        QString::fromUtf8(answer.name.data(), static_cast<qsizetype>(answer.name.size())));
    require(!shown.contains(u'\n') && !shown.contains(u'\x1b'));
    macAddressIn(QByteArray(rest.data(), static_cast<qsizetype>(rest.size())),
                 QStringLiteral("10.0.0.2"), "eth0");

    const auto record = recordFromAnswer(answer, QDateTime::fromSecsSinceEpoch(0, Qt::UTC));
    if (!record)
        return 0;
    for (const QString& text : {record->name, record->hostTarget, record->type, record->domain}) {
        for (const QChar refused : QStringLiteral("$`\"\\;&|<>\n\r"))
            require(!text.contains(refused));
    }
    require(record->ip4Address.isEmpty() || isDottedIPv4(record->ip4Address));
    const QVariantMap dictionary = record->asDictionary().value();
    require(dictionary.size() == 12 && sameStoredValue(storedValue(dictionary), dictionary));

    ServiceTable table;
    table.startSearch(record->type);
    require(table.found(*record, HeardOver::IPv4));
    table.resolved(*record);
    require(table.services() == DNSSD_Services{*record});
    return 0;
}
