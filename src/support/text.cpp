#include "support/text.h"

#include <QStringBuilder>

namespace kelvo {

QString trimmedText(QStringView text) {
    return text.trimmed().toString();
}

QString withTrailingSlash(QStringView text) {
    const QStringView trimmed = text.trimmed();
    return trimmed.endsWith(u'/') ? trimmed.toString() : trimmed % QStringView(u"/");
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
