// MemoryDefaults: the settings store without a disk.
#pragma once

#include "ports/dispatch_queue.h"
#include "ports/user_defaults.h"

#include <atomic>
#include <map>
#include <memory>
#include <mutex>
#include <vector>

namespace kelvo {

class MemoryDefaults final : public UserDefaults {
public:
    explicit MemoryDefaults(const QVariantMap& values = {});

    QVariant object(QStringView key) const override;
    void setObject(QStringView key, const QVariant& value) override;
    void removeObject(QStringView key) override;
    void registerDefaults(const QVariantMap& defaults) override;
    void synchronize() override { ++fSynchronized; }
    Subscription observe(QStringView key, DefaultsObserver observer) override;

    /// As if another program had changed the stored file: observers are told on `main`, later.
    void changeByAnotherProgram(DispatchQueue& main, QStringView key, const QVariant& value);

    bool areKnown() const override { return fKnown; }
    void setKnown(bool known) { fKnown = known; }
    SettingsStanding standing() const override { return settingsStanding; }

    SettingsStanding settingsStanding; ///< what the store says of itself

    int synchronized() const { return fSynchronized; }

    /// Every change so far, in order: the key and the user value (invalid when removed).
    std::vector<std::pair<QString, QVariant>> changes() const;

private:
    struct Observer {
        Observer(QString observed, DefaultsObserver observer)
            : key(std::move(observed)), call(std::move(observer)) {}
        QString key;
        DefaultsObserver call;
        std::atomic<bool> ended = false;
    };
    using Observers = std::vector<std::shared_ptr<Observer>>;
    void change(QStringView key, const QVariant& value);
    void store(QStringView key, const QVariant& value);
    void tell(const QString& key) const;

    mutable std::mutex fMutex;
    std::map<QString, QVariant, std::less<>> fValues;
    std::map<QString, QVariant, std::less<>> fDefaults;
    std::vector<std::pair<QString, QVariant>> fChanges;
    std::shared_ptr<Observers> fObservers = std::make_shared<Observers>();
    std::atomic<int> fSynchronized = 0;
    std::atomic<bool> fKnown = true;
};

} // namespace kelvo
