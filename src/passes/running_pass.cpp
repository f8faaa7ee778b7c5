#include "passes/running_pass.h"

#include "passes/captured_text.h"
#include "passes/rsync_statistics.h"

#include <utility>

namespace kelvo {
namespace {

CommandRole roleOf(PassStep step) {
    if (step == PassStep::AskingTheMac)
        return CommandRole::HostCheck;
    return step == PassStep::AfterArrivals ? CommandRole::AfterArrivals : CommandRole::Pull;
}

} // namespace

RunningPasses::RunningPasses(CommandRunner& commands, PassClock clock,
                             std::function<void(const PassRecord&)> ended)
    : fCommands(commands), fClock(std::move(clock)), fEnded(std::move(ended)) {}

std::vector<PassUnderWay> RunningPasses::underWay() const {
    const std::lock_guard lock(fMutex);
    std::vector<PassUnderWay> all;
    for (const RunningPass* pass : fPasses)
        all.push_back(pass->fNow);
    return all;
}

void RunningPasses::cancel() {
    std::vector<CommandId> running;
    {
        const std::lock_guard lock(fMutex);
        for (RunningPass* pass : fPasses) {
            pass->fNow.cancelled = true;
            if (pass->fCommand)
                running.push_back(*pass->fCommand);
        }
    }
    for (const CommandId command : running)
        fCommands.cancel(command);
}

RunningPass::RunningPass(RunningPasses& passes, PassKind kind)
    : fPasses(passes), fBegan(passes.fClock.seconds()) {
    fRecord.began = passes.fClock.now();
    fRecord.kind = kind;
    fNow.kind = kind;
    fNow.began = fRecord.began;
    const std::lock_guard lock(fPasses.fMutex);
    fPasses.fPasses.push_back(this);
}

RunningPass::~RunningPass() {
    {
        const std::lock_guard lock(fPasses.fMutex);
        std::erase(fPasses.fPasses, this);
    }
    fRecord.seconds = fPasses.fClock.seconds() - fBegan;
    for (const CommandRecord& command : fRecord.commands)
        fRecord.transfer = sumOf(fRecord.transfer, command.transfer);
    NamedCause named = fRefused ? *fRefused : causeOf(fRecord);
    if (fNow.cancelled)
        named = {PassCause::Cancelled, {}};
    fRecord.cause = named.cause;
    fRecord.lastLine = std::move(named.lastLine);
    fPasses.fEnded(fRecord);
}

CommandResult RunningPass::run(PassStep step, const Command& command) {
    const auto show = [this](PassStep running, const QString& text) {
        const std::lock_guard lock(fPasses.fMutex);
        fNow.progress = {.step = running};
        fNow.command = text;
        fCommand.reset();
        return !fNow.cancelled;
    };
    if (!show(step, command.text))
        return {};
    Command ours = command;
    ours.started = [this, &command](CommandId id) { commandStarted(id, command); };
    const double began = fPasses.fClock.seconds();
    CommandResult result = fPasses.fCommands.run(ours);
    (void)show(PassStep::Begun, {});
    const CommandRole role = roleOf(step);
    fRecord.commands.push_back({.role = role,
                                .command = command.text,
                                .exitStatus = result.exitStatus,
                                .seconds = fPasses.fClock.seconds() - began,
                                .text = capturedText(result.output, result.errors),
                                .transfer = role == CommandRole::Pull
                                                ? transferOf(command.text, result.output)
                                                : Transfer()});
    return result;
}

/// A wish that came while the command was being started counts too.
void RunningPass::commandStarted(CommandId id, const Command& command) {
    bool cancelled = false;
    {
        const std::lock_guard lock(fPasses.fMutex);
        fCommand = id;
        cancelled = fNow.cancelled;
    }
    if (cancelled)
        fPasses.fCommands.cancel(id);
    if (command.started)
        command.started(id);
}

bool RunningPass::isCancelled() const {
    const std::lock_guard lock(fPasses.fMutex);
    return fNow.cancelled;
}

void RunningPass::brought(std::vector<Arrival> arrivals) {
    fRecord.arrivals.insert(fRecord.arrivals.end(), std::make_move_iterator(arrivals.begin()),
                            std::make_move_iterator(arrivals.end()));
}

} // namespace kelvo
