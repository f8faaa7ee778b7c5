// ObserverList: callbacks registered under a name, called from any thread.
#pragma once

#include "support/subscription.h"

#include <QString>

#include <algorithm>
#include <atomic>
#include <functional>
#include <memory>
#include <mutex>
#include <vector>

namespace kelvo {

/// Held by a shared_ptr, so that subscriptions may outlive it. Callbacks run without a lock held:
/// they may add and end observers, their own too. Once a subscription is gone no new call begins.
template <typename Notice>
class ObserverList : public std::enable_shared_from_this<ObserverList<Notice>> {
public:
    using Callback = std::function<void(const Notice&)>;

    Subscription add(QStringView name, Callback callback) {
        auto observer = std::make_shared<Observer>(name.toString(), std::move(callback));
        {
            const std::lock_guard lock(fMutex);
            fObservers.push_back(observer);
        }
        return Subscription([weak = this->weak_from_this(), observer] {
            observer->ended = true;
            if (const auto list = weak.lock()) {
                const std::lock_guard lock(list->fMutex);
                std::erase(list->fObservers, observer);
            }
        });
    }

    /// Calls those registered under `name` at this moment, in the order of registration.
    void notify(QStringView name, const Notice& notice) const {
        std::vector<std::shared_ptr<Observer>> told;
        {
            const std::lock_guard lock(fMutex);
            std::ranges::copy_if(fObservers, std::back_inserter(told),
                                 [&](const auto& observer) { return observer->name == name; });
        }
        for (const auto& observer : told) {
            if (!observer->ended)
                observer->callback(notice);
        }
    }

private:
    struct Observer {
        Observer(QString observed, Callback call)
            : name(std::move(observed)), callback(std::move(call)) {}
        const QString name;
        const Callback callback;
        std::atomic<bool> ended = false;
    };

    mutable std::mutex fMutex;
    std::vector<std::shared_ptr<Observer>> fObservers;
};

} // namespace kelvo
