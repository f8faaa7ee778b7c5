// Any bytes as a settings file: what is read is made of stored values only, reads the same again
// once it is written, and fits every typed getter.
#include "adapters/settings/plist_codec.h"
#include "fuzz_input.h"
#include "support/property_value.h"
#include "support/stored_value.h"

#include <cmath>

namespace {

using namespace kelvo;

bool fitsXml(const QString& text, qsizetype at) {
    const char16_t unit = text[at].unicode();
    if (text[at].isHighSurrogate())
        return at + 1 < text.size() && text[at + 1].isLowSurrogate();
    if (text[at].isLowSurrogate())
        return at > 0 && text[at - 1].isHighSurrogate();
    return unit >= 0x20 ? unit < 0xfffe : unit == u'\t' || unit == u'\n' || unit == u'\r';
}

/// What the written form of a text is to be read as.
QString carried(const QString& text) {
    QString result = text;
    for (qsizetype at = 0; at < text.size(); ++at) {
        if (!fitsXml(text, at))
            result[at] = QChar::ReplacementCharacter;
    }
    return result;
}

QVariant carried(const QVariant& value) {
    switch (value.typeId()) {
    case QMetaType::QString:
        return carried(value.toString());
    case QMetaType::QVariantList: {
        QVariantList list;
        for (const QVariant& item : value.toList())
            list.append(carried(item));
        return list;
    }
    case QMetaType::QVariantMap: {
        QVariantMap map;
        const QVariantMap original = value.toMap();
        for (auto it = original.cbegin(); it != original.cend(); ++it)
            map.insert(carried(it.key()), carried(it.value()));
        return map;
    }
    default:
        return value;
    }
}

void readAsEveryType(const QVariant& value) {
    require(boolValue(value) == boolValue(value));
    require(!std::isnan(doubleValue(value)));
    (void)integerValue(value);
    const auto text = stringValue(value);
    require(!text || value.typeId() != QMetaType::QVariantMap);
    require(dictionaryValue(value).has_value() == (value.typeId() == QMetaType::QVariantMap));
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    const std::string_view input = inputText(data, size);
    const DecodedPlist read =
        decodePlist(QByteArray(input.data(), static_cast<qsizetype>(input.size())));
    require(read.root.has_value() == read.fault.isEmpty());
    if (!read.root)
        return 0;
    require(sameStoredValue(storedValue(*read.root), *read.root));
    for (const QVariant& value : *read.root)
        readAsEveryType(value);

    const DecodedPlist again = decodePlist(encodePlist(*read.root));
    require(again.root.has_value());
    require(sameStoredValue(*again.root, carried(QVariant(*read.root))));
    return 0;
}
