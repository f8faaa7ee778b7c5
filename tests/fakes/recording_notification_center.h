// RecordingNotificationCenter: delivers, and remembers what was posted.
#pragma once

#include "ports/notification_center.h"

#include <map>
#include <memory>
#include <mutex>
#include <utility>
#include <vector>

namespace kelvo {

class RecordingNotificationCenter final : public NotificationCenter {
public:
    void post(const QString& name, const QVariantMap& userInfo = {}) override {
        std::vector<int> due;
        {
            const std::lock_guard lock(fState->mutex);
            fState->posted.push_back({name, userInfo});
            for (const auto& [id, observer] : fState->observers) {
                if (observer.first == name)
                    due.push_back(id);
            }
        }
        for (const int id : due) {
            if (const NotificationHandler handler = fState->handler(id))
                handler({name, userInfo});
        }
    }

    Subscription observe(const QString& name, NotificationHandler handler) override {
        const std::lock_guard lock(fState->mutex);
        const int id = fState->last++;
        fState->observers.emplace(id, std::pair(name, std::move(handler)));
        return Subscription([state = fState, id] {
            decltype(state->observers)::node_type ended; // Its handler ends outside the lock.
            const std::lock_guard guard(state->mutex);
            ended = state->observers.extract(id);
        });
    }

    /// Every post so far, in order.
    std::vector<Notification> posted() const {
        const std::lock_guard lock(fState->mutex);
        return fState->posted;
    }

private:
    struct State {
        NotificationHandler handler(int id) {
            const std::lock_guard lock(mutex);
            const auto found = observers.find(id);
            return found == observers.end() ? nullptr : found->second.second;
        }
        std::mutex mutex;
        std::map<int, std::pair<QString, NotificationHandler>> observers;
        std::vector<Notification> posted;
        int last = 0;
    };
    std::shared_ptr<State> fState = std::make_shared<State>();
};

} // namespace kelvo
