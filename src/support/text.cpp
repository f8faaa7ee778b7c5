#include "support/text.h"

#include <QStringBuilder>

#include <cstdint>
#include <cstring>

namespace kelvo {

QString trimmedText(QStringView text) {
    return text.trimmed().toString();
}

QString withTrailingSlash(QStringView text) {
    const QStringView trimmed = text.trimmed();
    return trimmed.endsWith(u'/') ? trimmed.toString() : trimmed % QStringView(u"/");
}

qsizetype asciiAtStart(QStringView text) {
    constexpr std::uint64_t cBeyondAscii = 0xff80'ff80'ff80'ff80;
    constexpr qsizetype cAtATime = sizeof cBeyondAscii / sizeof(char16_t);
    qsizetype at = 0;
    for (std::uint64_t units = 0; at + cAtATime <= text.size(); at += cAtATime) {
        std::memcpy(&units, text.utf16() + at, sizeof units);
        if ((units & cBeyondAscii) != 0)
            break;
    }
    while (at < text.size() && text[at].unicode() < 0x80)
        ++at;
    return at;
}

QString expandingTilde(QStringView path, QStringView home) {
    if (path == u"~" || path.startsWith(u"~/"))
        return home % path.sliced(1);
    return path.toString();
}

QString appendingPathComponent(QStringView path, QStringView component) {
    QString joined;
    for (const QChar sign : QString(path % QStringView(u"/") % component)) {
        if (sign != u'/' || !joined.endsWith(u'/'))
            joined.append(sign);
    }
    if (path.isEmpty() && joined.startsWith(u'/'))
        joined.remove(0, 1);
    if (joined.size() > 1 && joined.endsWith(u'/'))
        joined.chop(1);
    return joined;
}

QString insideLine(QStringView typeName, QStringView operation, QStringView detail) {
    return QStringView(u"Inside ") % typeName % QStringView(u"->") % operation % detail;
}

QString quotedText(QStringView text) {
    QString escaped = text.toString();
    escaped.replace(u'\\', QStringLiteral("\\\\")).replace(u'"', QStringLiteral("\\\""));
    return u'"' + escaped + u'"';
}

QString optionalText(const std::optional<QString>& value) {
    if (!value)
        return QStringLiteral("nil");
    return QStringView(u"Optional(\"") % *value % QStringView(u"\")");
}

} // namespace kelvo
