#include "adapters/posix/local_notification_center.h"

#include "support/observer_list.h"

namespace kelvo {

struct LocalNotificationCenter::Observers : ObserverList<Notification> {};

LocalNotificationCenter::LocalNotificationCenter() : fObservers(std::make_shared<Observers>()) {}

LocalNotificationCenter::~LocalNotificationCenter() = default;

void LocalNotificationCenter::post(const QString& name, const QVariantMap& userInfo) {
    fObservers->notify(name, {name, userInfo});
}

Subscription LocalNotificationCenter::observe(const QString& name, NotificationHandler handler) {
    return fObservers->add(name, std::move(handler));
}

} // namespace kelvo
