// SentinelLauncher: starts the small program that watches this one.
#pragma once

#include <QString>
#include <QStringList>

#include <functional>
#include <optional>
#include <utility>

namespace kelvo {

/// A sentinel that was started. Its end is told as long as the task lives; the end of the task does
/// not end the sentinel. One that was asked to end before is waited for, a second at most.
class SentinelTask {
public:
    /// The launcher's way to ask; what it holds on to watches the sentinel.
    explicit SentinelTask(std::function<void()> terminate) : fTerminate(std::move(terminate)) {}

    SentinelTask(SentinelTask&&) = default;
    SentinelTask& operator=(SentinelTask&&) = default;

    /// Asks the sentinel to end and returns at once. One that has ended is left alone. Any thread.
    void terminate() const { fTerminate(); }

private:
    std::function<void()> fTerminate;
};

class SentinelLauncher {
public:
    /// Gets the exit status, or the number of the signal that ended the sentinel.
    using Terminated = std::function<void(int exitCode)>;

    virtual ~SentinelLauncher() = default;

    /// Whether `path` is a file that this user may run. Any thread.
    virtual bool isExecutable(const QString& path) const = 0;

    /// Starts `path` with `arguments`. Returns when the sentinel has taken hold of what it watches,
    /// has ended, or after 2 s. It shares only the standard streams, the working folder and
    /// what the launcher hands it of this program's commands, and no terminal or signal meant for
    /// this process reaches it. `terminated` (may be empty) is called once, when it has ended, on a
    /// thread of the launcher's own. Nothing when it cannot be started. Any thread.
    virtual std::optional<SentinelTask> launch(const QString& path, const QStringList& arguments,
                                               Terminated terminated) = 0;
};

} // namespace kelvo
