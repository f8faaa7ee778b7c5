#include "support/property_value.h"

#include <QLocale>

#include <cmath>
#include <limits>

namespace kelvo {
namespace {

/// The number at the start of `text`, white space before it skipped; 0 when there is none.
double leadingNumber(const QString& text) {
    const QByteArray bytes = text.trimmed().toLatin1();
    qsizetype end = 0;
    const auto digits = [&] {
        const qsizetype begin = end;
        while (end < bytes.size() && bytes[end] >= '0' && bytes[end] <= '9')
            ++end;
        return end > begin;
    };
    if (end < bytes.size() && (bytes[end] == '+' || bytes[end] == '-'))
        ++end;
    bool found = digits();
    if (end < bytes.size() && bytes[end] == '.') {
        ++end;
        found = digits() || found;
    }
    if (!found)
        return 0.0;
    if (end < bytes.size() && (bytes[end] == 'e' || bytes[end] == 'E')) {
        const qsizetype mantissaEnd = end++;
        if (end < bytes.size() && (bytes[end] == '+' || bytes[end] == '-'))
            ++end;
        if (!digits())
            end = mantissaEnd;
    }
    return bytes.first(end).toDouble();
}

bool isNumber(const QVariant& value) {
    switch (value.typeId()) {
    case QMetaType::Bool:
    case QMetaType::Int:
    case QMetaType::UInt:
    case QMetaType::LongLong:
    case QMetaType::ULongLong:
    case QMetaType::Double:
    case QMetaType::Float:
        return true;
    default:
        return false;
    }
}

bool isReal(const QVariant& value) {
    return value.typeId() == QMetaType::Double || value.typeId() == QMetaType::Float;
}

bool isText(const QVariant& value) {
    return value.typeId() == QMetaType::QString;
}

} // namespace

bool boolValue(const QVariant& value) {
    if (isText(value)) {
        const QString text = value.toString().trimmed();
        return text.compare(u"yes", Qt::CaseInsensitive) == 0 ||
               text.compare(u"true", Qt::CaseInsensitive) == 0 || leadingNumber(text) != 0.0;
    }
    return isNumber(value) && doubleValue(value) != 0.0;
}

qint64 integerValue(const QVariant& value) {
    using Limits = std::numeric_limits<qint64>;
    if (isNumber(value) && !isReal(value)) {
        const bool tooLarge = value.typeId() == QMetaType::ULongLong &&
                              value.toULongLong() > static_cast<quint64>(Limits::max());
        return tooLarge ? Limits::max() : value.toLongLong();
    }
    if (isText(value)) {
        bool exact = false;
        const qint64 number = value.toString().trimmed().toLongLong(&exact);
        if (exact)
            return number;
    }
    const double number = doubleValue(value);
    // Both bounds are powers of two and therefore exact as doubles.
    if (number >= 0x1p63)
        return Limits::max();
    if (number < -0x1p63)
        return Limits::min();
    return static_cast<qint64>(number);
}

double doubleValue(const QVariant& value) {
    double number = 0.0;
    if (isNumber(value))
        number = value.toDouble();
    else if (isText(value))
        number = leadingNumber(value.toString());
    return std::isnan(number) ? 0.0 : number;
}

std::optional<QString> stringValue(const QVariant& value) {
    if (isText(value))
        return value.toString();
    if (value.typeId() == QMetaType::Bool)
        return value.toBool() ? QStringLiteral("1") : QStringLiteral("0");
    if (isNumber(value))
        return isReal(value)
                   ? QString::number(value.toDouble(), 'g', QLocale::FloatingPointShortest)
                   : value.toString();
    return std::nullopt;
}

std::optional<QVariantMap> dictionaryValue(const QVariant& value) {
    if (value.typeId() == QMetaType::QVariantMap)
        return value.toMap();
    return std::nullopt;
}

} // namespace kelvo
