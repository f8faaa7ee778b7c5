#include "adapters/settings/plist_defaults.h"

#include "support/stored_value.h"

#include <utility>

namespace kelvo {

PlistDefaults::PlistDefaults(const QString& path, DamagedFile damaged, KeyTest isState,
                             DispatchQueue& mainQueue, Console& console)
    : fShared(std::make_shared<Shared>()),
      fDisk(path, damaged, std::move(isState), fShared->values, console,
            [&mainQueue, shared = std::weak_ptr(fShared)](const QStringList& keys) {
                for (const QString& key : keys) {
                    mainQueue.async([shared, key] {
                        if (const auto alive = shared.lock())
                            alive->tell(key);
                    });
                }
                // Not before the keys are told: what is made of them must be of the same time.
                mainQueue.async([shared] {
                    if (const auto alive = shared.lock())
                        alive->known = true;
                });
            }) {
    if (fDisk.known())
        fShared->known = true;
}

QVariant PlistDefaults::object(QStringView key) const {
    return fShared->values.object(key);
}

void PlistDefaults::setObject(QStringView key, const QVariant& value) {
    change(key, storedValue(value));
}

void PlistDefaults::removeObject(QStringView key) {
    change(key, {});
}

void PlistDefaults::registerDefaults(const QVariantMap& defaults) {
    fShared->values.registerDefaults(defaults);
}

void PlistDefaults::synchronize() {
    fDisk.flush();
}

Subscription PlistDefaults::observe(QStringView key, DefaultsObserver observer) {
    return fShared->observers.add(key, std::move(observer));
}

void PlistDefaults::change(QStringView key, const QVariant& value) {
    {
        const std::lock_guard lock(fChanging);
        fDisk.hear(fShared->values.change(key, value));
    }
    fShared->tell(key.toString());
}

void PlistDefaults::Shared::tell(const QString& key) const {
    observers.tell(key, [&] { return values.object(key); });
}

} // namespace kelvo
