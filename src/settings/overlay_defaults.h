// OverlayDefaults: settings that can be changed without anybody else seeing it.
#pragma once

#include "ports/user_defaults.h"

#include <QMap>

#include <mutex>

namespace kelvo {

/// Reads through to the settings beneath, until a key is set or removed here. Nothing is stored and
/// nobody is told.
class OverlayDefaults final : public UserDefaults {
public:
    /// `beneath` outlives the overlay.
    explicit OverlayDefaults(const UserDefaults& beneath) : fBeneath(beneath) {}

    QVariant object(QStringView key) const override;
    void setObject(QStringView key, const QVariant& value) override;
    void removeObject(QStringView key) override { setObject(key, {}); }
    void registerDefaults(const QVariantMap& defaults) override;
    void synchronize() override {}
    Subscription observe(QStringView, DefaultsObserver) override { return {}; }

private:
    const UserDefaults& fBeneath;
    mutable std::mutex fMutex;
    QMap<QString, QVariant> fValues;
    QVariantMap fRegistered;
};

} // namespace kelvo
