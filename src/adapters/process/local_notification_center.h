// LocalNotificationCenter: the notification centre within this process.
#pragma once

#include "ports/notification_center.h"

#include <memory>

namespace kelvo {

/// Subscriptions may outlive the centre.
class LocalNotificationCenter final : public NotificationCenter {
public:
    LocalNotificationCenter();

    void post(const QString& name, const QVariantMap& userInfo = {}) override;
    Subscription observe(const QString& name, NotificationHandler handler) override;

private:
    struct Observers;
    std::shared_ptr<Observers> fObservers;
};

} // namespace kelvo
