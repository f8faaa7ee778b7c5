// DefaultsValues: the settings in memory: user values over registered ones, and what of them is
// not on its way to the disk yet.
#pragma once

#include <QStringList>
#include <QVariant>

#include <functional>
#include <mutex>

namespace kelvo {

using KeyTest = std::function<bool(QStringView key)>;

/// A key with an invalid value was removed.
using DefaultsChanges = QVariantMap;

/// Lays `changes` over `values`.
void applyChanges(QVariantMap& values, const DefaultsChanges& changes);

/// Every operation: any thread; none of them waits for more than another one's memory work.
class DefaultsValues {
public:
    /// The user's value, else the registered one, else invalid.
    QVariant object(QStringView key) const;

    /// How a change changes when the disk is to have what was changed since the last
    /// `takeChanges`.
    enum class Haste {
        AsBefore,
        Soon,  ///< the first of a key that is not brief
        Later, ///< brief ones alone, which now differ from what they were
        Never, ///< those differ no more
    };
    /// Sets a user value, or removes it with an invalid one.
    Haste change(QStringView key, const QVariant& value);

    void registerDefaults(const QVariantMap& defaults);

    /// The changes since the last call.
    DefaultsChanges takeChanges();
    bool hasChanges() const;
    /// Whether one of them is of a key that is not brief.
    bool isPressed() const;

    QVariantMap userValues() const;

    /// Takes `stored` for the user values, except for keys with a change not taken yet and those
    /// that `kept` holds for; it may be empty. Returns the keys whose user value thereby became
    /// another.
    QStringList adopt(const QVariantMap& stored, const KeyTest& kept);

private:
    bool briefOnesDiffer() const;

    mutable std::mutex fMutex;
    QVariantMap fUser;
    QVariantMap fRegistered;
    DefaultsChanges fChanges;
    QVariantMap fBefore; ///< what the brief ones of these were; invalid for none
    bool fPressed = false;
};

} // namespace kelvo
