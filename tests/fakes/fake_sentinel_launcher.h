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

    std::unique_ptr<SentinelTask> launch(const QString& path, const QStringList& arguments,
                                         Terminated terminated) override {
        if (!executable.contains(path) || failing)
            return nullptr;
        sentinels.push_back(
            std::make_shared<Sentinel>(Sentinel{path, arguments, std::move(terminated)}));
        return std::make_unique<Task>(sentinels.back());
    }

    QSet<QString> executable;
    bool failing = false; ///< nothing can be started
    std::vector<std::shared_ptr<Sentinel>> sentinels;

private:
    class Task final : public SentinelTask {
    public:
        explicit Task(std::shared_ptr<Sentinel> sentinel) : fSentinel(std::move(sentinel)) {}
        ~Task() override {
            if (fSentinel->requests > 0)
                fSentinel->end(0);
            fSentinel->terminated = nullptr;
        }
        Task(const Task&) = delete;
        Task& operator=(const Task&) = delete;
        void terminate() override {
            if (!fSentinel->ended)
                ++fSentinel->requests;
        }

    private:
        const std::shared_ptr<Sentinel> fSentinel;
    };
};

} // namespace kelvo
