#include "support/plist_text.h"

#include <QMetaType>
#include <QXmlStreamWriter>

namespace kelvo {

namespace {

void writeValue(QXmlStreamWriter& xml, const QString& key, const QVariant& value) {
    const auto write = [&](const char* type, const QString& text) {
        xml.writeTextElement(QStringLiteral("key"), key);
        xml.writeTextElement(QString::fromLatin1(type), text);
    };
    switch (value.typeId()) {
    case QMetaType::Bool:
        xml.writeTextElement(QStringLiteral("key"), key);
        xml.writeEmptyElement(value.toBool() ? QStringLiteral("true") : QStringLiteral("false"));
        break;
    case QMetaType::Int:
    case QMetaType::LongLong:
        write("integer", QString::number(value.toLongLong()));
        break;
    case QMetaType::Double:
        write("real", QString::number(value.toDouble(), 'g', 17));
        break;
    case QMetaType::QString:
        write("string", value.toString());
        break;
    default:
        break;
    }
}

} // namespace

QByteArray plistText(const QVariantMap& values) {
    QByteArray text;
    QXmlStreamWriter xml(&text);
    xml.writeStartDocument();
    xml.writeStartElement(QStringLiteral("plist"));
    xml.writeAttribute(QStringLiteral("version"), QStringLiteral("1.0"));
    xml.writeStartElement(QStringLiteral("dict"));
    for (auto each = values.cbegin(); each != values.cend(); ++each)
        writeValue(xml, each.key(), each.value());
    xml.writeEndDocument();
    return text;
}

} // namespace kelvo
