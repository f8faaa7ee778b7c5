#include "fakes/memory_defaults.h"

#include "support/stored_value.h"

#include <algorithm>

namespace kelvo {

MemoryDefaults::MemoryDefaults(const QVariantMap& values) {
    for (auto it = values.cbegin(); it != values.cend(); ++it)
        fValues.emplace(it.key(), storedValue(it.value()));
}

QVariant MemoryDefaults::object(QStringView key) const {
    const std::lock_guard lock(fMutex);
    if (const auto found = fValues.find(key); found != fValues.end())
        return found->second;
    if (const auto found = fDefaults.find(key); found != fDefaults.end())
        return found->second;
    return {};
}

void MemoryDefaults::setObject(QStringView key, const QVariant& value) {
    change(key, storedValue(value));
}

void MemoryDefaults::removeObject(QStringView key) {
    change(key, {});
}

void MemoryDefaults::registerDefaults(const QVariantMap& defaults) {
    const std::lock_guard lock(fMutex);
    for (auto it = defaults.cbegin(); it != defaults.cend(); ++it)
        fDefaults.insert_or_assign(it.key(), storedValue(it.value()));
}

Subscription MemoryDefaults::observe(QStringView key, DefaultsObserver observer) {
    auto entry = std::make_shared<Observer>(key.toString(), std::move(observer));
    const std::lock_guard lock(fMutex);
    fObservers->push_back(entry);
    return Subscription([this, observers = std::weak_ptr(fObservers), entry] {
        if (const auto alive = observers.lock()) {
            const std::lock_guard guard(fMutex);
            entry->ended = true;
            std::erase(*alive, entry);
        }
    });
}

std::vector<std::pair<QString, QVariant>> MemoryDefaults::changes() const {
    const std::lock_guard lock(fMutex);
    return fChanges;
}

void MemoryDefaults::changeByAnotherProgram(DispatchQueue& main, QStringView key,
                                            const QVariant& value) {
    store(key, storedValue(value));
    main.async([this, name = key.toString()] { tell(name); });
}

void MemoryDefaults::change(QStringView key, const QVariant& value) {
    {
        const std::lock_guard lock(fMutex);
        fChanges.emplace_back(key.toString(), value);
    }
    store(key, value);
    tell(key.toString());
}

void MemoryDefaults::store(QStringView key, const QVariant& value) {
    const std::lock_guard lock(fMutex);
    if (value.isValid())
        fValues.insert_or_assign(key.toString(), value);
    else if (const auto found = fValues.find(key); found != fValues.end())
        fValues.erase(found);
}

void MemoryDefaults::tell(const QString& key) const {
    Observers told;
    {
        const std::lock_guard lock(fMutex);
        std::ranges::copy_if(*fObservers, std::back_inserter(told),
                             [&](const auto& observer) { return observer->key == key; });
    }
    for (const auto& observer : told) {
        if (observer->ended)
            continue;
        const QVariant now = object(key);
        observer->call({key, now.isValid() ? std::optional(now) : std::nullopt});
    }
}

} // namespace kelvo
