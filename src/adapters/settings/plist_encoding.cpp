#include "adapters/settings/plist_encoding.h"

#include <QStringDecoder>

#include <algorithm>

namespace kelvo {
namespace {

constexpr qsizetype cLongestDeclaration = 200;

/// The name in `<?xml … encoding="…"?>`; empty without one.
QByteArray declaredEncoding(QByteArrayView bytes) {
    constexpr QByteArrayView cEncoding = "encoding";
    QByteArrayView head = bytes.first(std::min(bytes.size(), cLongestDeclaration)).trimmed();
    const qsizetype end = head.indexOf('>');
    head = end < 0 ? head : head.first(end);
    const qsizetype at = head.lastIndexOf(cEncoding);
    if (!head.startsWith("<?xml") || at < 0 || !QChar::isSpace(uchar(head[at - 1])))
        return {};
    head = head.sliced(at + cEncoding.size()).trimmed();
    if (!head.startsWith('='))
        return {};
    head = head.sliced(1).trimmed();
    const char quote = head.isEmpty() ? '\0' : head[0];
    const qsizetype close = quote == '"' || quote == '\'' ? head.indexOf(quote, 1) : -1;
    return close < 0 ? QByteArray() : head.sliced(1, close - 1).toByteArray();
}

QStringDecoder decoderFor(const QByteArray& bytes) {
    if (const auto known = QStringConverter::encodingForData(bytes, u'<'))
        return QStringDecoder(*known);
    const QByteArray name = declaredEncoding(bytes);
    const auto declared = QStringConverter::encodingForName(name.constData());
    // What can be read up to here is in no encoding of two or four bytes a character.
    if (name.isEmpty() || (declared && *declared != QStringConverter::Latin1))
        return QStringDecoder(QStringConverter::Utf8);
    return QStringDecoder(name.constData());
}

} // namespace

QByteArray plistInUtf8(const QByteArray& bytes) {
    if (bytes.startsWith("\xef\xbb\xbf"))
        return bytes.sliced(3);
    QStringDecoder decoder = decoderFor(bytes);
    if (!decoder.isValid() || qstrcmp(decoder.name(), "UTF-8") == 0)
        return bytes;
    const QString text = decoder(bytes);
    return text.toUtf8();
}

} // namespace kelvo
