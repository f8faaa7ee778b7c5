// Conversions of stored values, as the typed getters of the settings store make them.
#pragma once

#include <QVariant>

#include <optional>

namespace kelvo {

/// True for true, a number other than 0, and the texts "YES", "true" (any case) and numeric
/// texts other than 0; false for everything else, a missing value included.
bool boolValue(const QVariant& value);

/// A number cut to its whole part, or the number a text begins with; 0 for everything else.
/// Values beyond 64 bits stop at the limits.
qint64 integerValue(const QVariant& value);

/// A number, or the number a text begins with; 0.0 for everything else. Never NaN.
double doubleValue(const QVariant& value);

/// A text as it is, a number as decimal text (a boolean as "1" or "0"); nothing for everything
/// else.
std::optional<QString> stringValue(const QVariant& value);

/// A dictionary as it is; nothing for everything else.
std::optional<QVariantMap> dictionaryValue(const QVariant& value);

} // namespace kelvo
