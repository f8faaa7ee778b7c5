// FakeSentinelLauncher: sentinels that only remember how they were started and told to end.
#pragma once

#include "ports/sentinel_launcher.h"

#include <QSet>

#include <memory>
#include <utility>
#include <vector>

namespace kelvo {

class FakeSentinelLauncher final : public SentinelLauncher {
public:
    struct Sentinel {
        QString path;
        QStringList arguments;
        Terminated terminated;
        int requests = 0; ///< how often it was asked to end
        bool ended = false;

        /// The sentinel ends, for whatever reason.
        void end(int exitCode) {
            if (std::exchange(ended, true))
                return;
            if (terminated)
                terminated(exitCode);
        }
    };

    bool isExecutable(const QString& path) const override { return executable.contains(path); }

    std::optional<SentinelTask> launch(const QString& path, const QStringList& arguments,
                                       Terminated terminated) override {
        if (!executable.contains(path) || failing)
            return std::nullopt;
        sentinels.push_back(
            std::make_shared<Sentinel>(Sentinel{path, arguments, std::move(terminated)}));
        return SentinelTask([watch = std::make_shared<Watch>(sentinels.back())] {
            if (!watch->sentinel->ended)
                ++watch->sentinel->requests;
        });
    }

    QSet<QString> executable;
    bool failing = false; ///< nothing can be started
    std::vector<std::shared_ptr<Sentinel>> sentinels;

private:
    struct Watch {
        explicit Watch(std::shared_ptr<Sentinel> watched) : sentinel(std::move(watched)) {}
        ~Watch() {
            if (sentinel->requests > 0)
                sentinel->end(0);
            sentinel->terminated = nullptr;
        }
        Watch(const Watch&) = delete;
        Watch& operator=(const Watch&) = delete;

        const std::shared_ptr<Sentinel> sentinel;
    };
};

} // namespace kelvo
