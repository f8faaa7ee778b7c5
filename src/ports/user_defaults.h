// UserDefaults: the settings store, which is also the program's message board.
#pragma once

#include "support/subscription.h"

#include <QString>
#include <QVariant>

#include <functional>
#include <optional>

namespace kelvo {

struct DefaultsChange {
    QString key;
    /// What the key reads as at the moment of the call; nothing when it was removed and no default
    /// lies under it. Of two changes close to each other an observer may see the last one twice.
    std::optional<QVariant> newValue;
};
using DefaultsObserver = std::function<void(const DefaultsChange&)>;

/// What a person should know of the stored settings; both are empty while all is well.
struct SettingsStanding {
    QString fault; ///< why they are not known or not saved, as a sentence without its full stop
    QString aside; ///< a damaged file was kept under this name, in this run of the program
};

/// Values are bool, qlonglong, double, QString, QByteArray, QDateTime (UTC, whole seconds),
/// QVariantList or QVariantMap of these; their types are kept. Others are brought into such a form
/// by storedValue (support/stored_value.h). Every operation may be called on any thread.
class UserDefaults {
public:
    virtual ~UserDefaults() = default;

    /// The user's value, else the registered default, else an invalid variant.
    virtual QVariant object(QStringView key) const = 0;

    /// Stores a user value; one that no stored form fits counts as removed. Observers of the key
    /// are told on this thread before the call returns, for an equal value too. The value reaches
    /// the disk later; no failure there is reported back, the value holds for the life of the
    /// process.
    virtual void setObject(QStringView key, const QVariant& value) = 0;

    /// Drops the user value; a registered default shows through again. Observers are told as above.
    virtual void removeObject(QStringView key) = 0;

    /// Lays `defaults` under the user values, over earlier defaults of the same keys. Tells nobody.
    virtual void registerDefaults(const QVariantMap& defaults) = 0;

    /// Returns once everything set so far is on disk, or the failure to put it there is logged.
    virtual void synchronize() = 0;

    /// Calls `observer` at every change of `key` from now on, a setting's change in the stored file
    /// by another program included (told on the main thread; run-time state is not taken over). An
    /// observer may set values and end subscriptions, its own too. Once the subscription is gone no
    /// new call begins.
    virtual Subscription observe(QStringView key, DefaultsObserver observer) = 0;

    /// Whether what the user has stored is known. Until it is, only what was set since and the
    /// defaults are read, and they are guesses. Becomes true once, on the main thread, after
    /// observers were told what the user has stored. Never waits.
    virtual bool areKnown() const = 0;

    /// Never waits. A store without a disk has nothing to say.
    virtual SettingsStanding standing() const { return {}; }

    /// Typed reading; a missing or unfit value gives the neutral one.
    bool boolForKey(QStringView key) const;
    qint64 integerForKey(QStringView key) const;
    double doubleForKey(QStringView key) const;
    std::optional<QString> stringForKey(QStringView key) const;
    std::optional<QVariantMap> dictionaryForKey(QStringView key) const;
};

} // namespace kelvo
