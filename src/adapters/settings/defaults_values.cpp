#include "adapters/settings/defaults_values.h"

#include "settings/preferences.h"
#include "support/stored_value.h"

#include <utility>

namespace kelvo {
namespace {

/// A copy that shares nothing with `values`: two threads that shared one map would write to it by
/// turns, each trusting a count that Qt reads without ordering.
QVariantMap ownCopy(QVariantMap values) {
    values.detach();
    return values;
}

} // namespace

void applyChanges(QVariantMap& values, const DefaultsChanges& changes) {
    for (auto it = changes.cbegin(); it != changes.cend(); ++it) {
        if (it.value().isValid())
            values.insert(it.key(), it.value());
        else
            values.remove(it.key());
    }
}

QVariant DefaultsValues::object(QStringView key) const {
    const QString name = key.toString();
    const std::lock_guard lock(fMutex);
    if (const auto found = fUser.constFind(name); found != fUser.cend())
        return *found;
    return fRegistered.value(name);
}

DefaultsValues::Haste DefaultsValues::change(QStringView key, const QVariant& value) {
    const QString name = key.toString();
    const std::lock_guard lock(fMutex);
    const bool differed = briefOnesDiffer();
    if (isBrief(key) && !fBefore.contains(name))
        fBefore.insert(name, fUser.value(name));
    if (value.isValid())
        fUser.insert(name, value);
    else
        fUser.remove(name);
    fChanges.insert(name, value);
    if (!isBrief(key))
        return std::exchange(fPressed, true) ? Haste::AsBefore : Haste::Soon;
    const bool differ = briefOnesDiffer();
    if (fPressed || differ == differed)
        return Haste::AsBefore;
    return differ ? Haste::Later : Haste::Never;
}

bool DefaultsValues::briefOnesDiffer() const {
    for (auto it = fBefore.cbegin(); it != fBefore.cend(); ++it) {
        if (!sameStoredValue(fUser.value(it.key()), it.value()))
            return true;
    }
    return false;
}

void DefaultsValues::registerDefaults(const QVariantMap& defaults) {
    const std::lock_guard lock(fMutex);
    for (auto it = defaults.cbegin(); it != defaults.cend(); ++it) {
        if (const QVariant value = storedValue(it.value()); value.isValid())
            fRegistered.insert(it.key(), value);
    }
}

DefaultsChanges DefaultsValues::takeChanges() {
    const std::lock_guard lock(fMutex);
    fPressed = false;
    fBefore.clear();
    return std::exchange(fChanges, {});
}

bool DefaultsValues::hasChanges() const {
    const std::lock_guard lock(fMutex);
    return !fChanges.isEmpty();
}

bool DefaultsValues::isPressed() const {
    const std::lock_guard lock(fMutex);
    return fPressed;
}

QVariantMap DefaultsValues::userValues() const {
    const std::lock_guard lock(fMutex);
    return ownCopy(fUser);
}

QStringList DefaultsValues::adopt(const QVariantMap& stored, const KeyTest& kept) {
    const std::lock_guard lock(fMutex);
    QVariantMap next = ownCopy(stored);
    if (kept) {
        next.removeIf([&](QVariantMap::iterator entry) { return kept(entry.key()); });
        for (auto it = fUser.cbegin(); it != fUser.cend(); ++it) {
            if (kept(it.key()))
                next.insert(it.key(), it.value());
        }
    }
    applyChanges(next, fChanges);
    QStringList changed;
    for (auto it = fUser.cbegin(); it != fUser.cend(); ++it) {
        if (!next.contains(it.key()))
            changed.append(it.key());
    }
    for (auto it = next.cbegin(); it != next.cend(); ++it) {
        if (!sameStoredValue(fUser.value(it.key()), it.value()))
            changed.append(it.key());
    }
    fUser = std::move(next);
    return changed;
}

} // namespace kelvo
