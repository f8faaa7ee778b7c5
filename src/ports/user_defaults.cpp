#include "ports/user_defaults.h"

#include "support/property_value.h"

namespace kelvo {

bool UserDefaults::boolForKey(QStringView key) const {
    return boolValue(object(key));
}

qint64 UserDefaults::integerForKey(QStringView key) const {
    return integerValue(object(key));
}

double UserDefaults::doubleForKey(QStringView key) const {
    return doubleValue(object(key));
}

std::optional<QString> UserDefaults::stringForKey(QStringView key) const {
    return stringValue(object(key));
}

std::optional<QVariantMap> UserDefaults::dictionaryForKey(QStringView key) const {
    return dictionaryValue(object(key));
}

} // namespace kelvo
