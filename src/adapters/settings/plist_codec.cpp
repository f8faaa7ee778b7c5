#include "adapters/settings/plist_codec.h"

#include "adapters/settings/c_numeric_locale.h"
#include "adapters/settings/plist_encoding.h"
#include "adapters/settings/plist_guard.h"
#include "support/stored_value.h"

#include <QDateTime>

#include <plist/plist.h>

#include <cstdlib>
#include <limits>
#include <memory>

namespace kelvo {
namespace {

struct FreeNode {
    void operator()(void* node) const { plist_free(node); }
};
using OwnedNode = std::unique_ptr<void, FreeNode>;

struct FreeText {
    void operator()(char* text) const { std::free(text); } // NOLINT: libplist allocates with malloc
};
using OwnedText = std::unique_ptr<char, FreeText>;

QByteArray xmlOf(plist_t node) {
    char* xml = nullptr;
    std::uint32_t length = 0;
    plist_to_xml(node, &xml, &length);
    const OwnedText owned(xml);
    return xml ? QByteArray(xml, static_cast<qsizetype>(length)) : QByteArray();
}

/// The text between `tag` and its end in the XML form of `node`: says of dates and integers what
/// the library's own getters cut to 32 bits or to a sign.
QByteArray textInXml(plist_t node, const QByteArray& tag) {
    const QByteArray xml = xmlOf(node);
    const QByteArray open = '<' + tag + '>';
    const QByteArray close = "</" + tag + '>';
    const qsizetype begin = xml.indexOf(open) + open.size();
    const qsizetype end = xml.indexOf(close, begin);
    return end < 0 ? QByteArray() : xml.sliced(begin, end - begin);
}

/// The other way round: a node that the library's own makers cannot make.
plist_t nodeFromXml(const QByteArray& tag, const QByteArray& text) {
    const QByteArray xml = "<plist version=\"1.0\"><" + tag + '>' + text + "</" + tag + "></plist>";
    plist_t node = nullptr;
    plist_from_xml(xml.constData(), static_cast<std::uint32_t>(xml.size()), &node);
    return node;
}

QVariant integerOf(plist_t node) {
    std::uint64_t bits = 0;
    plist_get_uint_val(node, &bits);
    const bool highBit = bits > static_cast<std::uint64_t>(std::numeric_limits<qint64>::max());
    if (highBit && !textInXml(node, "integer").startsWith('-'))
        return QVariant::fromValue<qulonglong>(bits);
    return QVariant::fromValue<qlonglong>(static_cast<qint64>(bits));
}

QVariant realOf(plist_t node) {
    double value = 0.0;
    plist_get_real_val(node, &value);
    return value;
}

QVariant boolOf(plist_t node) {
    std::uint8_t value = 0;
    plist_get_bool_val(node, &value);
    return value != 0;
}

QVariant textOf(plist_t node) {
    std::uint64_t length = 0;
    const char* text = plist_get_string_ptr(node, &length);
    return QString::fromUtf8(text, static_cast<qsizetype>(length));
}

QVariant dataOf(plist_t node) {
    std::uint64_t length = 0;
    const char* data = plist_get_data_ptr(node, &length);
    return data ? QByteArray(data, static_cast<qsizetype>(length)) : QByteArray("");
}

QVariant dateOf(plist_t node) {
    // With its "Z"; invalid for nonsense.
    return storedValue(
        QDateTime::fromString(QString::fromLatin1(textInXml(node, "date")), Qt::ISODate));
}

QVariant uidOf(plist_t node) {
    std::uint64_t value = 0;
    plist_get_uid_val(node, &value);
    return QVariant::fromValue<qlonglong>(static_cast<qint64>(value));
}

/// Turns libplist's tree into values and notes when it is too deep.
class Reader {
public:
    QVariant valueOf(plist_t node, int depth) {
        switch (plist_get_node_type(node)) {
        case PLIST_BOOLEAN:
            return boolOf(node);
        case PLIST_UINT:
            return integerOf(node);
        case PLIST_REAL:
            return realOf(node);
        case PLIST_STRING:
            return textOf(node);
        case PLIST_DATA:
            return dataOf(node);
        case PLIST_DATE:
            return dateOf(node);
        case PLIST_UID:
            return uidOf(node);
        case PLIST_ARRAY:
            return listOf(node, depth);
        case PLIST_DICT:
            return mapOf(node, depth);
        default:
            return {};
        }
    }

    QVariantMap mapOf(plist_t node, int depth) {
        QVariantMap map;
        if (tooDeep(depth))
            return map;
        plist_dict_iter place = nullptr;
        plist_dict_new_iter(node, &place);
        const OwnedText owned(static_cast<char*>(place));
        for (;;) {
            char* key = nullptr;
            plist_t value = nullptr;
            plist_dict_next_item(node, place, &key, &value);
            const OwnedText ownedKey(key);
            if (!value)
                return map;
            if (const QVariant kept = valueOf(value, depth + 1); kept.isValid())
                map.insert(QString::fromUtf8(key), kept);
        }
    }

    bool wasTooDeep() const { return fTooDeep; }

private:
    bool tooDeep(int depth) {
        fTooDeep = fTooDeep || depth > cDeepestStoredValue + 1;
        return fTooDeep;
    }

    QVariantList listOf(plist_t node, int depth) {
        QVariantList list;
        if (tooDeep(depth))
            return list;
        plist_array_iter place = nullptr;
        plist_array_new_iter(node, &place);
        const OwnedText owned(static_cast<char*>(place));
        for (;;) {
            plist_t item = nullptr;
            plist_array_next_item(node, place, &item);
            if (!item)
                return list;
            if (QVariant kept = valueOf(item, depth + 1); kept.isValid())
                list.append(std::move(kept));
        }
    }

    bool fTooDeep = false;
};

bool fitsXml(QChar character) {
    const char16_t code = character.unicode();
    if (code < 0x20)
        return code == '\t' || code == '\n' || code == '\r';
    return !character.isSurrogate() && code < 0xfffe;
}

QByteArray xmlText(QString text) {
    for (qsizetype at = 0; at < text.size(); ++at) {
        const bool pair = text.at(at).isHighSurrogate() && at + 1 < text.size() &&
                          text.at(at + 1).isLowSurrogate();
        if (pair)
            ++at;
        else if (!fitsXml(text.at(at)))
            text[at] = QChar::ReplacementCharacter;
    }
    return text.toUtf8();
}

plist_t nodeOf(const QVariant& value);

plist_t nodeOfMap(const QVariantMap& map) {
    plist_t node = plist_new_dict();
    for (auto it = map.cbegin(); it != map.cend(); ++it) {
        if (plist_t value = nodeOf(it.value()))
            plist_dict_set_item(node, xmlText(it.key()).constData(), value);
    }
    return node;
}

plist_t nodeOfList(const QVariantList& list) {
    plist_t node = plist_new_array();
    for (const QVariant& item : list) {
        if (plist_t value = nodeOf(item))
            plist_array_append_item(node, value);
    }
    return node;
}

/// Null for anything that is not a stored value.
plist_t nodeOf(const QVariant& value) {
    switch (value.typeId()) {
    case QMetaType::Bool:
        return plist_new_bool(value.toBool());
    case QMetaType::LongLong:
        // What is below zero has a maker of its own since libplist 2.3, and only since.
        if (value.toLongLong() < 0)
            return nodeFromXml("integer", QByteArray::number(value.toLongLong()));
        return plist_new_uint(static_cast<std::uint64_t>(value.toLongLong()));
    case QMetaType::ULongLong:
        return nodeFromXml("integer", QByteArray::number(value.toULongLong()));
    case QMetaType::Double:
        return plist_new_real(value.toDouble());
    case QMetaType::QString:
        return plist_new_string(xmlText(value.toString()).constData());
    case QMetaType::QByteArray: {
        const QByteArray data = value.toByteArray();
        return plist_new_data(data.constData(), static_cast<std::uint64_t>(data.size()));
    }
    case QMetaType::QDateTime:
        return nodeFromXml("date", value.toDateTime().toUTC().toString(Qt::ISODate).toLatin1());
    case QMetaType::QVariantList:
        return nodeOfList(value.toList());
    case QMetaType::QVariantMap:
        return nodeOfMap(value.toMap());
    default:
        return nullptr;
    }
}

} // namespace

DecodedPlist decodePlist(const QByteArray& bytes) {
    const QByteArray list = bytes.size() > cLargestPlist ? bytes : plistInUtf8(bytes);
    if (const QString fault = plistFault(list); !fault.isEmpty())
        return {std::nullopt, fault};
    const CNumericLocale plainNumbers;
    plist_t node = nullptr;
    const auto length = static_cast<std::uint32_t>(list.size());
    if (isBinaryPlist(list))
        plist_from_bin(list.constData(), length, &node);
    else
        plist_from_xml(list.constData(), length, &node);
    const OwnedNode root(node);
    if (!root)
        return {std::nullopt, QStringLiteral("it is no property list")};
    if (plist_get_node_type(node) != PLIST_DICT)
        return {std::nullopt, QStringLiteral("its root is no dictionary")};
    Reader reader;
    QVariantMap map = reader.mapOf(node, 1);
    if (reader.wasTooDeep())
        return {std::nullopt, QStringLiteral("it is nested too deep")};
    return {std::move(map), {}};
}

QByteArray encodePlist(const QVariantMap& root) {
    const CNumericLocale plainNumbers;
    const OwnedNode node(nodeOfMap(root));
    return xmlOf(node.get());
}

} // namespace kelvo
