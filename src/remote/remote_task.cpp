#include "remote/remote_task.h"

namespace kelvo {

RemoteTask::RemoteTask(RemoteTasks& owner, std::weak_ptr<int> ownerLives)
    : fOwner(owner), fOwnerLives(std::move(ownerLives)) {}

/// On whichever thread let go last.
RemoteTask::~RemoteTask() {
    if (fOwnerLives.expired())
        return;
    fOwner.fParts.mainQueue.async([&owner = fOwner, lives = fOwnerLives] {
        if (!lives.expired())
            owner.taskIsOver();
    });
}

void RemoteTask::inBackground(std::function<void(RemoteTask&)> body, Work next) {
    background(
        fOwner.fParts.bgQueue, fOwner.fParts.mainQueue, 0.0,
        [self = shared_from_this(), body = std::move(body)] {
            if (!self->isCancelled())
                body(*self);
        },
        [self = shared_from_this(), next = std::move(next)] {
            if (!self->isCancelled())
                next();
        });
}

void RemoteTask::ask(double seconds, const QString& command,
                     std::function<void(const QString&)> next) {
    const auto output = std::make_shared<QString>();
    inBackground(
        [seconds, command, output](RemoteTask& task) {
            *output =
                task.run({.text = command, .seconds = seconds, .bounds = cShortAnswer}).output;
        },
        [output, next = std::move(next)] { next(*output); });
}

void RemoteTask::after(double seconds, Work next) {
    fOwner.fParts.mainQueue.asyncAfter(seconds,
                                       [self = shared_from_this(), next = std::move(next)] {
                                           if (!self->isCancelled())
                                               next();
                                       });
}

CommandResult RemoteTask::run(const Command& command) {
    if (isCancelled())
        return {};
    Command ours = command;
    ours.started = [this, &command](CommandId id) { commandStarted(id, command); };
    CommandResult result = fOwner.fParts.shell.run(ours);
    const std::lock_guard lock(fMutex);
    fCommand.reset();
    fCancelled = fCancelled || !result.exitStatus;
    return result;
}

/// A wish that came while the command was being started counts too.
void RemoteTask::commandStarted(CommandId id, const Command& command) {
    {
        const std::lock_guard lock(fMutex);
        fCommand = id;
    }
    if (isCancelled())
        fOwner.fParts.shell.cancel(id);
    if (command.started)
        command.started(id);
}

void RemoteTask::giveUp() {
    std::optional<CommandId> running;
    {
        const std::lock_guard lock(fMutex);
        fCancelled = true;
        running = fCommand;
    }
    if (running)
        fOwner.fParts.shell.cancel(*running);
}

bool RemoteTask::isCancelled() const {
    const std::lock_guard lock(fMutex);
    return fCancelled;
}

RemoteTaskRef RemoteTasks::begin(RemoteTaskKind kind) {
    if (!fTask.expired())
        return {};
    RemoteTaskRef task(new RemoteTask(*this, fAlive));
    fTask = task;
    fParts.show(kind);
    return task;
}

void RemoteTasks::whenFree(RemoteTaskKind kind, std::function<void(const RemoteTaskRef&)> go) {
    if (const RemoteTaskRef task = begin(kind))
        go(task);
    else
        fWaiting.emplace_back(kind, std::move(go));
}

void RemoteTasks::cancel() {
    const RemoteTaskRef task = fTask.lock();
    if (!task || task->isCancelled())
        return;
    fParts.show(RemoteTaskKind::Ending);
    task->giveUp();
}

/// Another one may have begun since.
void RemoteTasks::taskIsOver() {
    if (!fTask.expired())
        return;
    if (fWaiting.empty()) {
        fParts.show(RemoteTaskKind::None);
        return;
    }
    const auto [kind, go] = std::move(fWaiting.front());
    fWaiting.pop_front();
    whenFree(kind, go);
}

} // namespace kelvo
