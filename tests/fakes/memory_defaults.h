// MemoryDefaults: the settings store without a disk.
#pragma once

#include "ports/user_defaults.h"

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

    int synchronized() const { return fSynchronized; }

    /// Every change so far, in order: the key and the user value (invalid when removed).
    std::vector<std::pair<QString, QVariant>> changes() const;

private:
    struct Observer {
        QString key;
        DefaultsObserver call;
        bool ended = false;
    };
    void change(QStringView key, const QVariant& value);

    mutable std::mutex fMutex;
    std::map<QString, QVariant, std::less<>> fValues;
    std::map<QString, QVariant, std::less<>> fDefaults;
    std::vector<std::pair<QString, QVariant>> fChanges;
    std::shared_ptr<std::vector<std::shared_ptr<Observer>>> fObservers =
        std::make_shared<std::vector<std::shared_ptr<Observer>>>();
    int fSynchronized = 0;
};

} // namespace kelvo
