// OverlayDefaults: settings that can be changed without anybody else seeing it.
#pragma once

#include "ports/user_defaults.h"
#include "settings/defaults_observers.h"

#include <QMap>

#include <map>
#include <mutex>

namespace kelvo {

/// Reads through to the settings beneath, until a key is set or removed here; from then on changes
/// of that key beneath are neither read nor told. Only the observers of the overlay are told of its
/// changes, and nothing of them reaches the disk. After removal a default shows that was registered
/// here, not one that was registered beneath.
class OverlayDefaults final : public UserDefaults {
public:
    /// `beneath` outlives the overlay, which must not go while a change beneath is being told.
    explicit OverlayDefaults(UserDefaults& beneath) : fBeneath(beneath) {}

    QVariant object(QStringView key) const override;
    void setObject(QStringView key, const QVariant& value) override;
    void removeObject(QStringView key) override { setObject(key, {}); }

    /// Registered beneath as well.
    void registerDefaults(const QVariantMap& defaults) override;

    void synchronize() override {}
    Subscription observe(QStringView key, DefaultsObserver observer) override;
    bool areKnown() const override { return fBeneath.areKnown(); }
    SettingsStanding standing() const override { return fBeneath.standing(); }

private:
    void changedBeneath(const QString& key) const;
    void tell(const QString& key) const;

    UserDefaults& fBeneath;
    mutable std::mutex fMutex; ///< for what follows, but the observers
    QMap<QString, QVariant> fValues;
    QVariantMap fRegistered;
    DefaultsObservers fObservers;
    std::map<QString, Subscription> fObservedBeneath;
};

} // namespace kelvo
