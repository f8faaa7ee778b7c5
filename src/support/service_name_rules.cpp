#include "support/service_name_rules.h"

#include "support/plain_line.h"

#include <algorithm>

namespace kelvo {
namespace {

constexpr qsizetype cLongestLabel = 63;
constexpr qsizetype cLongestHostName = 255;
constexpr QStringView cShellCharacters = u"$`\"\\;&|<>";

bool isRefused(QChar character) {
    switch (character.category()) {
    case QChar::Other_Control:
    case QChar::Separator_Line:
    case QChar::Separator_Paragraph:
        return true;
    default:
        return character == QChar::ReplacementCharacter || cShellCharacters.contains(character);
    }
}

bool isAcceptable(QStringView text, qsizetype mostBytes) {
    return !text.isEmpty() && text.isValidUtf16() && std::ranges::none_of(text, isRefused) &&
           text.toUtf8().size() <= mostBytes;
}

bool isPlainAscii(QChar character) {
    return character >= u' ' && character <= u'~' && character != u'\\';
}

bool isOctet(QStringView text) {
    const bool digits = std::ranges::all_of(
        text, [](QChar character) { return character >= u'0' && character <= u'9'; });
    return digits && !text.isEmpty() && text.size() <= 3 && text.toInt() <= 255 &&
           (text.size() == 1 || text.front() != u'0');
}

} // namespace

bool isAcceptableServiceName(QStringView name) {
    return isAcceptable(name, cLongestLabel);
}

bool isAcceptableHostName(QStringView name) {
    return isAcceptable(name, cLongestHostName);
}

QString escapedForLog(QStringView text) {
    QString escaped;
    appendEscapedForLog(escaped, text);
    return escaped;
}

void appendEscapedForLog(QString& line, QStringView text) {
    // Nearly every text is of this kind; the log has one for each of thousands of records.
    if (std::ranges::all_of(text, isPlainAscii))
        line += text;
    else
        line += withVisibleControls(text.toString().replace(u'\\', QStringLiteral("\\\\")))
                    .replace(u'\n', QStringLiteral("\\x0a"))
                    .replace(u'\t', QStringLiteral("\\x09"));
}

bool isDottedIPv4(QStringView text) {
    const auto parts = text.split(u'.');
    return parts.size() == 4 && std::ranges::all_of(parts, isOctet);
}

QString fullServiceName(QStringView name, QStringView type, QStringView domain) {
    QString escaped;
    for (const QChar character : name) {
        const char16_t code = character.unicode();
        if (code == u'.' || code == u'\\')
            escaped += QString(u'\\' + character);
        else if (code <= 0x20 || code == 0x7f)
            escaped += QStringLiteral("\\%1").arg(uint(code), 3, 10, QLatin1Char('0'));
        else
            escaped += character;
    }
    return escaped + u'.' + type + u'.' + domain;
}

} // namespace kelvo
