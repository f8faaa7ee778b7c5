#include "adapters/settings/plist_defaults.h"

#include "support/stored_value.h"

namespace kelvo {

PlistDefaults::PlistDefaults(const QString& path, DispatchQueue& mainQueue, Console& console)
    : fBoard(std::make_shared<Board>()),
      fDisk(path, fBoard->values, console,
            [&mainQueue, board = std::weak_ptr(fBoard)](const QStringList& keys) {
                for (const QString& key : keys) {
                    mainQueue.async([board, key] {
                        if (const auto alive = board.lock())
                            alive->tell(key);
                    });
                }
            }) {}

QVariant PlistDefaults::object(QStringView key) const {
    return fBoard->values.object(key);
}

void PlistDefaults::setObject(QStringView key, const QVariant& value) {
    change(key, storedValue(value));
}

void PlistDefaults::removeObject(QStringView key) {
    change(key, {});
}

void PlistDefaults::registerDefaults(const QVariantMap& defaults) {
    fBoard->values.registerDefaults(defaults);
}

void PlistDefaults::synchronize() {
    fDisk.flush();
}

Subscription PlistDefaults::observe(QStringView key, DefaultsObserver observer) {
    return fBoard->observers.add(key, std::move(observer));
}

void PlistDefaults::change(QStringView key, const QVariant& value) {
    if (fBoard->values.change(key, value))
        fDisk.wake();
    fBoard->tell(key.toString());
}

void PlistDefaults::Board::tell(const QString& key) const {
    observers.tell(key, [&] { return values.object(key); });
}

} // namespace kelvo
