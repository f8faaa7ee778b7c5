#include "adapters/process/local_notification_center.h"

#include <atomic>
#include <mutex>
#include <utility>
#include <vector>

namespace kelvo {
namespace {

struct Observer {
    QString name;
    NotificationHandler call;
    std::atomic<bool> ended = false;
};

} // namespace

struct LocalNotificationCenter::Observers {
    std::mutex mutex;
    std::vector<std::shared_ptr<Observer>> all;
};

LocalNotificationCenter::LocalNotificationCenter() : fObservers(std::make_shared<Observers>()) {}

void LocalNotificationCenter::post(const QString& name, const QVariantMap& userInfo) {
    std::vector<std::shared_ptr<Observer>> told;
    {
        const std::lock_guard lock(fObservers->mutex);
        for (const auto& observer : fObservers->all) {
            if (observer->name == name)
                told.push_back(observer);
        }
    }
    const Notification notification{name, userInfo};
    for (const auto& observer : told) {
        if (!observer->ended)
            observer->call(notification);
    }
}

Subscription LocalNotificationCenter::observe(const QString& name, NotificationHandler handler) {
    auto observer = std::make_shared<Observer>();
    observer->name = name;
    observer->call = std::move(handler);
    const std::lock_guard lock(fObservers->mutex);
    fObservers->all.push_back(observer);
    return Subscription([observers = std::weak_ptr(fObservers), observer] {
        observer->ended = true;
        if (const auto alive = observers.lock()) {
            const std::lock_guard guard(alive->mutex);
            std::erase(alive->all, observer);
        }
    });
}

} // namespace kelvo
