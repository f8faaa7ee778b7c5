// NotificationCenter: named messages between parts that do not know each other.
#pragma once

#include "support/subscription.h"

#include <QString>
#include <QVariant>

#include <functional>

namespace kelvo {

struct Notification {
    QString name;
    QVariantMap userInfo;
};
using NotificationHandler = std::function<void(const Notification&)>;

class NotificationCenter {
public:
    virtual ~NotificationCenter() = default;

    /// Calls every observer of `name`, in the order of registration, on this thread, before it
    /// returns. Any thread. Without observers nothing happens.
    virtual void post(const QString& name, const QVariantMap& userInfo = {}) = 0;

    /// `handler` is called for each later post of `name`. It may post, and end subscriptions, its
    /// own too; an observer added meanwhile hears from the next post on. Once the subscription is
    /// gone no new call begins; one that another thread has begun is not waited for.
    virtual Subscription observe(const QString& name, NotificationHandler handler) = 0;
};

} // namespace kelvo
