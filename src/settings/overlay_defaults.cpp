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
    return fBeneath.object(key);
}

void OverlayDefaults::setObject(QStringView key, const QVariant& value) {
    const QString name = key.toString();
    {
        const std::lock_guard lock(fMutex);
        fValues.insert(name, storedValue(value));
    }
    tell(name);
}

void OverlayDefaults::registerDefaults(const QVariantMap& defaults) {
    {
        const std::lock_guard lock(fMutex);
        for (auto it = defaults.cbegin(); it != defaults.cend(); ++it)
            fRegistered.insert(it.key(), storedValue(it.value()));
    }
    fBeneath.registerDefaults(defaults);
}

Subscription OverlayDefaults::observe(QStringView key, DefaultsObserver observer) {
    const QString name = key.toString();
    {
        const std::lock_guard lock(fMutex);
        if (!fObservedBeneath.contains(name))
            fObservedBeneath.emplace(name,
                                     fBeneath.observe(key, [this, name](const DefaultsChange&) {
                                         changedBeneath(name);
                                     }));
    }
    return fObservers.add(key, std::move(observer));
}

void OverlayDefaults::changedBeneath(const QString& key) const {
    {
        const std::lock_guard lock(fMutex);
        if (fValues.contains(key))
            return;
    }
    tell(key);
}

void OverlayDefaults::tell(const QString& key) const {
    fObservers.tell(key, [&] { return object(key); });
}

} // namespace kelvo
