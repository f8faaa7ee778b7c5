#include "settings/defaults_observers.h"

namespace kelvo {

Subscription DefaultsObservers::add(QStringView key, DefaultsObserver observer) {
    const QString name = key.toString();
    auto entry = std::make_shared<Entry>();
    entry->call = std::move(observer);
    {
        const std::lock_guard lock(fTable->mutex);
        fTable->entries[name].push_back(entry);
    }
    return Subscription([name, entry, weak = std::weak_ptr(fTable)] {
        entry->ended = true;
        const auto table = weak.lock();
        if (!table)
            return;
        const std::lock_guard lock(table->mutex);
        std::erase(table->entries[name], entry);
    });
}

void DefaultsObservers::tell(const QString& key, const std::function<QVariant()>& current) const {
    Entries told;
    {
        const std::lock_guard lock(fTable->mutex);
        told = fTable->entries.value(key);
    }
    for (const auto& entry : told) {
        if (entry->ended)
            continue;
        const QVariant value = current();
        entry->call({key, value.isValid() ? std::optional(value) : std::nullopt});
    }
}

} // namespace kelvo
