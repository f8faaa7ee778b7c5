#include "settings/overlay_defaults.h"

#include "support/stored_value.h"

namespace kelvo {

QVariant OverlayDefaults::object(QStringView key) const {
    const QString name = key.toString();
    {
        const std::lock_guard lock(fMutex);
        if (const auto own = fValues.constFind(name); own != fValues.cend())
            return own->isValid() ? *own : fRegistered.value(name);
    }
    if (QVariant value = fBeneath.object(key); value.isValid())
        return value;
    const std::lock_guard lock(fMutex);
    return fRegistered.value(name);
}

void OverlayDefaults::setObject(QStringView key, const QVariant& value) {
    const std::lock_guard lock(fMutex);
    fValues.insert(key.toString(), storedValue(value));
}

void OverlayDefaults::registerDefaults(const QVariantMap& defaults) {
    const std::lock_guard lock(fMutex);
    fRegistered.insert(defaults);
}

} // namespace kelvo
