// Any bytes as Avahi could hand them out, through everything up to the record and its log
// lines.
#include "adapters/network/neighbour_table.h"
#include "adapters/network/service_answer.h"
#include "adapters/network/service_table.h"
#include "discovery/record_texts.h"
#include "discovery/service_filter.h"
#include "fuzz_input.h"
#include "support/service_name_rules.h"
#include "support/stored_value.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    using namespace kelvo;
    std::string_view rest = inputText(data, size);
    ServiceAnswer answer;
    answer.interface = static_cast<quint32>(size);
    answer.name = nextText(rest);
    answer.host = nextText(rest);
    answer.address = nextText(rest);
    answer.type = rest.empty() ? "_smb._tcp" : nextText(rest);
    answer.domain = rest.empty() ? "local" : nextText(rest);

    const QString shown = escapedForLog(asText(answer.name));
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

    for (const QString& line : {recordText(*record), dictionaryText(*record)}) {
        for (const QChar character : line)
            require(character.category() != QChar::Other_Control);
    }
    QSet<QString> addresses;
    const Admission admission = admit(*record, addresses);
    require((admission == Admission::Admitted) == !record->ip4Address.isEmpty());
    require(admission == Admission::BadKey || admit(*record, addresses) == Admission::Duplicate);

    ServiceTable table;
    table.startSearch(record->type);
    require(table.found(*record, HeardOver::IPv4));
    table.resolved(*record);
    require(table.services() == DNSSD_Services{*record});
    return 0;
}
