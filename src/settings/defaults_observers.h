// DefaultsObservers: who is told of which key.
#pragma once

#include "ports/user_defaults.h"

#include <QHash>

#include <atomic>
#include <functional>
#include <memory>
#include <mutex>
#include <vector>

namespace kelvo {

/// Any thread. No lock is held during a call: an observer may add, end and tell.
class DefaultsObservers {
public:
    /// The subscription may outlive this object.
    Subscription add(QStringView key, DefaultsObserver observer);

    /// Calls the observers of `key` that were there at the start, in the order in which they were
    /// added, each with what `current` reads at that moment (invalid: nothing).
    void tell(const QString& key, const std::function<QVariant()>& current) const;

private:
    struct Entry {
        DefaultsObserver call;
        std::atomic<bool> ended{false};
    };
    using Entries = std::vector<std::shared_ptr<Entry>>;
    struct Table {
        std::mutex mutex;
        QHash<QString, Entries> entries;
    };
    std::shared_ptr<Table> fTable = std::make_shared<Table>();
};

} // namespace kelvo
