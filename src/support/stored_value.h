// The form in which the settings store keeps a value, and when two values are the same there.
#pragma once

#include <QVariant>

namespace kelvo {

/// How many arrays and dictionaries of a stored value may lie within each other.
inline constexpr int cDeepestStoredValue = 255;

/// `value` as the store keeps it: integers as qlonglong (only one beyond its range as qulonglong),
/// real numbers as double, dates in UTC and cut to whole seconds, lists and dictionaries as
/// QVariantList and QVariantMap of such values. A bool, text or data stays as it is. Invalid for
/// everything else: other kinds, an invalid date or one outside the years 1000 to 9999, and a value
/// nested too deep; as a part of a list or dictionary such a value is left out.
QVariant storedValue(const QVariant& value);

/// Whether two stored values have the same type and content, in all their parts. Unlike QVariant's
/// own comparison, true is not 1, 1 is not 1.0, and NaN is NaN.
bool sameStoredValue(const QVariant& left, const QVariant& right);

} // namespace kelvo
