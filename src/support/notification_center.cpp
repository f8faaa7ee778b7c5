#include "support/notification_center.h"

#include "support/property_value.h"
#include "support/text.h"

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

QString entryText(const QVariant& value) {
    if (value.typeId() == QMetaType::QString)
        return quotedText(value.toString());
    return stringValue(value).value_or(
        QString(u'(' + QLatin1StringView(value.isValid() ? value.typeName() : "nothing") + u')'));
}

} // namespace

struct NotificationCenter::Observers {
    std::mutex mutex;
    std::vector<std::shared_ptr<Observer>> all;
};

NotificationCenter::NotificationCenter() : fObservers(std::make_shared<Observers>()) {}

void NotificationCenter::post(const QString& name, const QVariantMap& userInfo) {
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

Subscription NotificationCenter::observe(const QString& name, NotificationHandler handler) {
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

QString userInfoText(const QVariantMap& userInfo) {
    if (userInfo.isEmpty())
        return QStringLiteral("nil");
    QStringList entries;
    for (auto entry = userInfo.cbegin(); entry != userInfo.cend(); ++entry)
        entries.append(u"AnyHashable(" + quotedText(entry.key()) + u"): " +
                       entryText(entry.value()));
    return u"Optional([" + entries.join(QStringLiteral(", ")) + u"])";
}

QString notificationText(const Notification& notification) {
    return u"name = " + notification.name + u", object = nil, userInfo = " +
           userInfoText(notification.userInfo);
}

} // namespace kelvo
