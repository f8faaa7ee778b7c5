// NotificationCenter: named messages between parts that do not know each other.
#pragma once

#include "support/subscription.h"

#include <QString>
#include <QVariant>

#include <functional>
#include <memory>

namespace kelvo {

struct Notification {
    QString name;
    QVariantMap userInfo;
};
using NotificationHandler = std::function<void(const Notification&)>;

/// Subscriptions may outlive the centre.
class NotificationCenter {
public:
    NotificationCenter();

    /// Calls every observer of `name`, in the order of registration, on this thread, before it
    /// returns. Any thread. Without observers nothing happens.
    void post(const QString& name, const QVariantMap& userInfo = {});

    /// `handler` is called for each later post of `name`. It may post, and end subscriptions, its
    /// own too; an observer added meanwhile hears from the next post on. Once the subscription is
    /// gone no new call begins; one that another thread has begun is not waited for.
    Subscription observe(const QString& name, NotificationHandler handler);

private:
    struct Observers;
    std::shared_ptr<Observers> fObservers;
};

/// How information reads in a diagnostic line: `Optional([AnyHashable("key"): "text"])`, or `nil`
/// for none.
QString userInfoText(const QVariantMap& userInfo);

/// The same of a notification: `name = …, object = nil, userInfo = …`.
QString notificationText(const Notification& notification);

} // namespace kelvo
