#include "passes/running_pass.h"

#include "passes/captured_text.h"
#include "passes/pass_cause.h"
#include "passes/rsync_statistics.h"

#include <utility>

namespace kelvo {

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
    NamedCause named =
        fRefused.isEmpty() ? causeOf(fRecord) : NamedCause{PassCause::SettingsRefused, fRefused};
    fRecord.cause = named.cause;
    fRecord.lastLine = std::move(named.lastLine);
    fPasses.fEnded(fRecord);
}

CommandResult RunningPass::run(CommandRole role, const Command& command) {
    const auto show = [this](std::optional<CommandRole> running, const QString& text) {
        const std::lock_guard lock(fPasses.fMutex);
        fNow.role = running;
        fNow.command = text;
    };
    show(role, command.text);
    const double began = fPasses.fClock.seconds();
    CommandResult result = fPasses.fCommands.run(command);
    show({}, {});
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

} // namespace kelvo
