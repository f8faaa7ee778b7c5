#include "discovery/record_texts.h"

#include "support/service_name_rules.h"

#include <algorithm>

namespace kelvo {
namespace {

QString quoted(const QString& text) {
    return u'"' + plainText(text) + u'"';
}

/// Behind a sign of their own; `number` has one digit or two, or is below zero and stands for none.
void appendTwoDigits(QString& text, QChar sign, int number) {
    const int shown = std::max(number, 0);
    text += sign;
    text += QChar(u'0' + shown / 10);
    text += QChar(u'0' + shown % 10);
}

/// Qt's own ways, and the C library's, take most of what a whole record does.
void appendDate(QString& text, const QDateTime& date) {
    const QDateTime utc = date.toUTC();
    const QDate day = utc.date();
    const QTime time = utc.time();
    text += QString::number(day.year()).rightJustified(4, u'0');
    appendTwoDigits(text, u'-', day.month());
    appendTwoDigits(text, u'-', day.day());
    appendTwoDigits(text, u' ', time.hour());
    appendTwoDigits(text, u':', time.minute());
    appendTwoDigits(text, u':', time.second());
    text += QStringView(u" +0000");
}

void appendRecord(QString& text, const DNSSD_Service& record) {
    text += QStringView(u"DNSSD_Service(");
    appendEscapedForLog(text, record.name);
    text += QStringView(u", ");
    appendEscapedForLog(text, record.hostTarget);
    text += QStringView(u", ");
    appendEscapedForLog(text, record.ip4Address);
    text += u')';
}

QString optional(const QString& text) {
    return u"Optional(" + text + u')';
}

} // namespace

QString plainText(QStringView text) {
    return escapedForLog(text);
}

QString recordText(const DNSSD_Service& record) {
    QString text;
    appendRecord(text, record);
    return text;
}

QString listText(const DNSSD_Services& records) {
    QString text(u'[');
    for (const DNSSD_Service& record : records) {
        if (text.size() > 1)
            text += QStringView(u", ");
        appendRecord(text, record);
    }
    return text + u']';
}

QString listText(const std::optional<DNSSD_Services>& records) {
    return records ? optional(listText(*records)) : QStringLiteral("nil");
}

QString dictionaryText(const DNSSD_Service& record) {
    constexpr qsizetype cUsual = 512;
    QString text;
    text.reserve(cUsual);
    const auto put = [&text](QStringView before, const QString& value) {
        text += before;
        appendEscapedForLog(text, value);
    };
    text += QStringView(record.available ? u"[\"available\": true" : u"[\"available\": false");
    text += QStringView(u", \"dateAdded\": ");
    appendDate(text, record.dateAdded);
    put(u", \"domain\": \"", record.domain);
    put(u"\", \"fullName\": \"", record.fullName);
    text += QStringView(u"\", \"hostPort\": ");
    text += QString::number(record.hostPort);
    put(u", \"hostTarget\": \"", record.hostTarget);
    text += QStringView(u"\", \"interface\": ");
    text += QString::number(record.interface);
    put(u", \"ip4Address\": \"", record.ip4Address);
    put(u"\", \"macAddress\": \"", record.macAddress);
    put(u"\", \"name\": \"", record.name);
    put(u"\", \"scheme\": \"", record.scheme);
    put(u"\", \"type\": \"", record.type);
    text += QStringView(u"\"]");
    return text;
}

QStringList tableText(const QMap<QString, QString>& dictionaries) {
    if (dictionaries.isEmpty())
        return {QStringLiteral("Optional([:])")};
    QStringList pieces;
    for (auto it = dictionaries.cbegin(); it != dictionaries.cend(); ++it) {
        const QStringView before = pieces.isEmpty() ? u"Optional([" : u", ";
        pieces << before % quoted(it.key()) % QStringView(u": ") << it.value();
    }
    return pieces << QStringLiteral("])");
}

QString countText(const std::optional<DNSSD_Services>& records) {
    return records ? optional(QString::number(records->size())) : QStringLiteral("nil");
}

} // namespace kelvo
