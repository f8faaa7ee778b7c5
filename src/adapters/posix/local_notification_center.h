// LocalNotificationCenter: notifications within this process.
#pragma once

#include "ports/notification_center.h"

#include <memory>

namespace kelvo {

class LocalNotificationCenter final : public NotificationCenter {
public:
    LocalNotificationCenter();
    ~LocalNotificationCenter() override;

    void post(const QString& name, const QVariantMap& userInfo = {}) override;
    Subscription observe(const QString& name, NotificationHandler handler) override;

private:
    struct Observers;
    std::shared_ptr<Observers> fObservers; // subscriptions may outlive the centre
};

} // namespace kelvo
