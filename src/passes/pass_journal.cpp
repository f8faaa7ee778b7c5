#include "passes/pass_journal.h"

#include "passes/captured_text.h"
#include "passes/pass_cause.h"
#include "passes/rsync_statistics.h"
#include "ports/command_runner.h"

#include <utility>

namespace kelvo {

PassJournal::PassJournal(PassClock clock, std::function<void(const PassRecord&)> done)
    : fClock(std::move(clock)), fDone(std::move(done)) {}

void PassJournal::passBegan(PassKind kind) {
    PassRecord record;
    record.began = fClock.now();
    record.kind = kind;
    const std::lock_guard lock(fMutex);
    fOpen.insert_or_assign(std::this_thread::get_id(), Open{std::move(record), fClock.seconds()});
}

/// Only this thread touches its own pass, and a map's entries stay where they are.
PassJournal::Open* PassJournal::open() {
    const std::lock_guard lock(fMutex);
    const auto found = fOpen.find(std::this_thread::get_id());
    return found == fOpen.end() ? nullptr : &found->second;
}

void PassJournal::hostJudged(const QString& verdict) {
    Open* pass = open();
    if (!pass)
        return;
    pass->record.verdict = verdict;
    for (CommandRecord& command : pass->record.commands) {
        command.role = CommandRole::HostCheck;
        command.brought = {};
    }
}

void PassJournal::commandEnded(const QString& command, const CommandResult& result,
                               double seconds) {
    Open* pass = open();
    if (!pass)
        return;
    pass->record.commands.push_back({CommandRole::Pull, command, result.exitStatus, seconds,
                                     capturedText(result.output, result.errors),
                                     broughtBy(command, result.output)});
}

void PassJournal::passEnded() {
    PassRecord record;
    {
        const std::lock_guard lock(fMutex);
        auto pass = fOpen.extract(std::this_thread::get_id());
        if (!pass)
            return;
        record = std::move(pass.mapped().record);
        record.seconds = fClock.seconds() - pass.mapped().began;
    }
    for (const CommandRecord& command : record.commands)
        record.brought = sumOf(record.brought, command.brought);
    NamedCause named = causeOf(record);
    record.cause = named.cause;
    record.lastLine = std::move(named.lastLine);
    fDone(record);
}

} // namespace kelvo
