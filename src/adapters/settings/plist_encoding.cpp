#include "adapters/settings/plist_encoding.h"

#include <QRegularExpression>
#include <QStringDecoder>

#include <algorithm>

namespace kelvo {
namespace {

constexpr qsizetype cLongestDeclaration = 200;

/// The name in `<?xml … encoding="…"?>`; empty without one.
QByteArray declaredEncoding(const QByteArray& bytes) {
    static const QRegularExpression declaration(
        QStringLiteral(R"(^\s*<\?xml[^>]*\sencoding\s*=\s*["']([A-Za-z0-9._:-]+)["'])"));
    const QString head =
        QString::fromLatin1(bytes.first(std::min(bytes.size(), cLongestDeclaration)));
    return declaration.match(head).captured(1).toLatin1();
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
