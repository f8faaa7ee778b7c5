#include "discovery/record_texts.h"

#include "support/service_name_rules.h"

namespace kelvo {
namespace {

QString quoted(const QString& text) {
    return u'"' + plainText(text) + u'"';
}

QString valueText(const QVariant& value) {
    switch (value.typeId()) {
    case QMetaType::QString:
        return quoted(value.toString());
    case QMetaType::QDateTime:
        return value.toDateTime().toUTC().toString(QStringLiteral("yyyy-MM-dd HH:mm:ss +0000"));
    default:
        return value.toString();
    }
}

QString optional(const QString& text) {
    return u"Optional(" + text + u')';
}

} // namespace

QString plainText(QStringView text) {
    return escapedForLog(text);
}

QString recordText(const DNSSD_Service& record) {
    return u"DNSSD_Service(" + plainText(record.name) + u", " + plainText(record.hostTarget) +
           u", " + plainText(record.ip4Address) + u')';
}

QString listText(const DNSSD_Services& records) {
    QStringList texts;
    texts.reserve(records.size());
    for (const DNSSD_Service& record : records)
        texts.append(recordText(record));
    return u'[' + texts.join(QStringLiteral(", ")) + u']';
}

QString listText(const std::optional<DNSSD_Services>& records) {
    return records ? optional(listText(*records)) : QStringLiteral("nil");
}

QString dictionaryText(const QVariantMap& dictionary) {
    QStringList entries;
    for (auto it = dictionary.cbegin(); it != dictionary.cend(); ++it)
        entries.append(quoted(it.key()) + u": " + valueText(it.value()));
    return entries.isEmpty() ? QStringLiteral("[:]")
                             : QString(u'[' + entries.join(QStringLiteral(", ")) + u']');
}

QString tableText(const std::optional<QMap<QString, QVariantMap>>& table) {
    if (!table)
        return QStringLiteral("nil");
    QStringList entries;
    for (auto it = table->cbegin(); it != table->cend(); ++it)
        entries.append(quoted(it.key()) + u": " + dictionaryText(it.value()));
    return optional(entries.isEmpty() ? QStringLiteral("[:]")
                                      : QString(u'[' + entries.join(QStringLiteral(", ")) + u']'));
}

QString countText(const std::optional<DNSSD_Services>& records) {
    return records ? optional(QString::number(records->size())) : QStringLiteral("nil");
}

} // namespace kelvo
