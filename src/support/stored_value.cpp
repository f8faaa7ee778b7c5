#include "support/stored_value.h"

#include <QDateTime>

#include <algorithm>
#include <cmath>
#include <limits>

namespace kelvo {
namespace {

QVariant storedDate(const QDateTime& date) {
    if (!date.isValid())
        return {};
    const QDateTime utc = date.toUTC();
    if (utc.date().year() < 1000 || utc.date().year() > 9999)
        return {};
    const QTime time = utc.time();
    return QDateTime(utc.date(), QTime(time.hour(), time.minute(), time.second()), Qt::UTC);
}

/// `depth` counts the containers around `value` and, were it one, itself.
QVariant storedAt(const QVariant& value, int depth);

QVariant storedList(const QVariantList& list, int depth) {
    QVariantList stored;
    stored.reserve(list.size());
    for (const QVariant& item : list) {
        if (QVariant kept = storedAt(item, depth); kept.isValid())
            stored.append(std::move(kept));
    }
    return stored;
}

template <typename Map>
QVariant storedMap(const Map& map, int depth) {
    QVariantMap stored;
    for (auto it = map.cbegin(); it != map.cend(); ++it) {
        if (QVariant kept = storedAt(it.value(), depth); kept.isValid())
            stored.insert(it.key(), std::move(kept));
    }
    return stored;
}

QVariant storedContainer(const QVariant& value, int depth) {
    if (depth > cDeepestStoredValue)
        return {};
    switch (value.typeId()) {
    case QMetaType::QVariantMap:
        return storedMap(value.toMap(), depth + 1);
    case QMetaType::QVariantHash:
        return storedMap(value.toHash(), depth + 1);
    default:
        return storedList(value.toList(), depth + 1);
    }
}

QVariant storedAt(const QVariant& value, int depth) {
    switch (value.typeId()) {
    case QMetaType::Bool:
    case QMetaType::LongLong:
    case QMetaType::Double:
    case QMetaType::QString:
    case QMetaType::QByteArray:
        return value;
    case QMetaType::Char:
    case QMetaType::SChar:
    case QMetaType::UChar:
    case QMetaType::Short:
    case QMetaType::UShort:
    case QMetaType::Int:
    case QMetaType::UInt:
    case QMetaType::Long:
        return value.toLongLong();
    case QMetaType::ULong:
    case QMetaType::ULongLong:
        if (value.toULongLong() > static_cast<quint64>(std::numeric_limits<qint64>::max()))
            return value.toULongLong();
        return value.toLongLong();
    case QMetaType::Float:
        return value.toDouble();
    case QMetaType::QDateTime:
        return storedDate(value.toDateTime());
    case QMetaType::QStringList:
    case QMetaType::QVariantList:
    case QMetaType::QVariantMap:
    case QMetaType::QVariantHash:
        return storedContainer(value, depth);
    default:
        return {};
    }
}

bool sameList(const QVariantList& left, const QVariantList& right) {
    return std::equal(left.cbegin(), left.cend(), right.cbegin(), right.cend(), sameStoredValue);
}

bool sameMap(const QVariantMap& left, const QVariantMap& right) {
    if (left.size() != right.size())
        return false;
    auto other = right.cbegin();
    for (auto it = left.cbegin(); it != left.cend(); ++it, ++other) {
        if (it.key() != other.key() || !sameStoredValue(it.value(), other.value()))
            return false;
    }
    return true;
}

bool sameReal(double left, double right) {
    return left == right || (std::isnan(left) && std::isnan(right));
}

} // namespace

QVariant storedValue(const QVariant& value) {
    return storedAt(value, 1);
}

bool sameStoredValue(const QVariant& left, const QVariant& right) {
    if (left.typeId() != right.typeId())
        return false;
    switch (left.typeId()) {
    case QMetaType::QVariantList:
        return sameList(left.toList(), right.toList());
    case QMetaType::QVariantMap:
        return sameMap(left.toMap(), right.toMap());
    case QMetaType::Double:
        return sameReal(left.toDouble(), right.toDouble());
    default:
        return left == right;
    }
}

} // namespace kelvo
