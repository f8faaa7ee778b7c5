// RemoteTask and RemoteTasks: what a person has set going on the remote side, one thing at a time
// and never on the main thread.
#pragma once

#include "ports/command_runner.h"
#include "ports/dispatch_queue.h"
#include "support/remote_task_kind.h"

#include <QString>

#include <deque>
#include <functional>
#include <memory>
#include <mutex>
#include <optional>
#include <utility>

namespace kelvo {

class RemoteTask;
class RemoteTasks;

/// Who holds one keeps the task going; it is over once nobody does.
using RemoteTaskRef = std::shared_ptr<RemoteTask>;

/// A cancelled task runs no command any more and begins no further step.
class RemoteTask final : public std::enable_shared_from_this<RemoteTask> {
public:
    ~RemoteTask();
    RemoteTask(const RemoteTask&) = delete;
    RemoteTask& operator=(const RemoteTask&) = delete;

    /// Runs `body` on the background queue, and then `next` on the main queue. Main thread; returns
    /// at once, as the two that follow.
    void inBackground(std::function<void(RemoteTask&)> body, Work next);

    /// Runs `command`, bounded by `seconds`, and hands what it printed to `next`.
    void ask(double seconds, const QString& command, std::function<void(const QString&)> next);

    /// Runs `next` on the main queue, `seconds` from now.
    void after(double seconds, Work next);

    /// Runs `command` as CommandRunner does; a cancelled task answers as a command does that was
    /// given up. Blocks; any thread but the main one.
    CommandResult run(const Command& command);

    /// The same for whoever wants a function; the task outlives it.
    RunCommand runner() {
        return [this](const Command& command) { return run(command); };
    }

    /// Nothing more is to be done, as when a person cancels it. Any thread; returns at once.
    void giveUp();

    /// True also once a command was given up because the program is quitting. Any thread.
    bool isCancelled() const;

private:
    friend RemoteTasks;

    RemoteTask(RemoteTasks& owner, std::weak_ptr<int> ownerLives);

    void commandStarted(CommandId id, const Command& command);

    RemoteTasks& fOwner;
    const std::weak_ptr<int> fOwnerLives;
    mutable std::mutex fMutex;
    std::optional<CommandId> fCommand; ///< the one that runs
    bool fCancelled = false;
};

/// Main thread only. Both queues must have ended before this is destroyed.
class RemoteTasks {
public:
    struct Parts {
        DispatchQueue& mainQueue;
        BackgroundQueue& bgQueue;
        CommandRunner& shell;
        std::function<void(RemoteTaskKind)> show; ///< what runs, at each change
    };

    explicit RemoteTasks(Parts parts) : fParts(std::move(parts)) {}
    RemoteTasks(const RemoteTasks&) = delete;
    RemoteTasks& operator=(const RemoteTasks&) = delete;

    /// A new task; nothing while another one runs.
    RemoteTaskRef begin(RemoteTaskKind kind);

    /// Begins a task, now or once those before it are over, and hands it to `go`.
    void whenFree(RemoteTaskKind kind, std::function<void(const RemoteTaskRef&)> go);

    /// Ends what runs, at a person's wish: its command with everything in its session. Returns at
    /// once; the task is over when its command is, about 3 s later at worst.
    void cancel();

private:
    friend RemoteTask;

    void taskIsOver();

    const Parts fParts;
    std::weak_ptr<RemoteTask> fTask;
    std::deque<std::pair<RemoteTaskKind, std::function<void(const RemoteTaskRef&)>>> fWaiting;
    std::shared_ptr<int> fAlive = std::make_shared<int>();
};

} // namespace kelvo
