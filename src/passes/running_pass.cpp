#include "passes/running_pass.h"

#include "passes/captured_text.h"
#include "passes/progress_line.h"
#include "passes/rsync_statistics.h"
#include "support/partial_option.h"

#include <algorithm>
#include <utility>

namespace kelvo {
namespace {

/// Bytes that take about as long to come as a command takes to begin anew.
constexpr qint64 cWorthKeeping = qint64{32} * 1024 * 1024;

CommandRole roleOf(PassStep step) {
    if (step == PassStep::AskingTheMac)
        return CommandRole::HostCheck;
    return step == PassStep::AfterArrivals ? CommandRole::AfterArrivals : CommandRole::Pull;
}

bool isPull(PassStep step) {
    return step == PassStep::Pull || step == PassStep::Movies;
}

/// A command that says nothing may have brought more than the others told.
void countArrivals(PassRecord& record) {
    const auto files = static_cast<qint64>(record.arrivals.size());
    if (files <= record.transfer.files.value_or(0))
        return;
    qint64 bytes = 0;
    for (const Arrival& arrival : record.arrivals)
        bytes += arrival.size;
    record.transfer.files = files;
    record.transfer.bytes = std::max(bytes, record.transfer.bytes.value_or(0));
    record.transfer.source = std::max(record.transfer.source, TransferSource::Lines);
}

} // namespace

RunningPasses::RunningPasses(CommandRunner& commands, PassClock clock, WholePull wholePull,
                             std::function<void(const PassRecord&)> ended, RunStep run)
    : fCommands(commands), fClock(std::move(clock)), fWholePull(std::move(wholePull)),
      fEnded(std::move(ended)),
      fRun(run ? std::move(run)
               : [&commands](PassStep, const Command& command) { return commands.run(command); }) {}

std::vector<PassUnderWay> RunningPasses::underWay() const {
    const std::lock_guard lock(fMutex);
    std::vector<PassUnderWay> all;
    for (RunningPass* pass : fPasses)
        all.push_back(pass->seen());
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
    countArrivals(fRecord);
    NamedCause named = fRefused ? *fRefused : causeOf(fRecord);
    if (fNow.cancelled)
        named = {PassCause::Cancelled, {}};
    fRecord.cause = named.cause;
    fRecord.lastLine = std::move(named.lastLine);
    fPasses.fEnded(fRecord);
}

/// Whether the pass may go on.
bool RunningPass::show(PassStep step, const QString& command) {
    const std::lock_guard lock(fPasses.fMutex);
    fNow.progress = {.step = step};
    fNow.command = command;
    fCommand.reset();
    fReader.reset();
    fWritten = {};
    if (isPull(step))
        fReader.emplace(command, command == fPasses.fWentWell);
    return !fNow.cancelled;
}

CommandResult RunningPass::run(PassStep step, const Command& command) {
    if (!isPull(step) || !command.text.contains(cPartialOption))
        return runOnce(step, command);
    if (fPasses.fWholePull.last() == command.text) {
        bool large = false;
        Command without = command;
        without.variables[cPartialVariable] = "";
        without.received = [&](QByteArrayView bytes) {
            large = large || endAtLargeFile();
            if (command.received)
                command.received(bytes);
        };
        CommandResult result = runOnce(step, without);
        if (!large || result.exitStatus || isCancelled())
            return result;
        fRecord.commands.pop_back();
    }
    // Should this run never end, nobody knows what it has left.
    remember({});
    Command with = command;
    with.variables[cPartialVariable] = cPartialWord.toLatin1();
    return runOnce(step, with);
}

/// An equal text would be written to the disk again.
void RunningPass::remember(const QString& wholePull) {
    if (fPasses.fWholePull.last() != wholePull)
        fPasses.fWholePull.keep(wholePull);
}

/// Whether the command was to be ended.
bool RunningPass::endAtLargeFile() {
    std::optional<CommandId> command;
    {
        const std::lock_guard lock(fPasses.fMutex);
        if (fReader->largestNamed() >= cWorthKeeping)
            command = fCommand;
    }
    if (command)
        fPasses.fCommands.cancel(*command);
    return command.has_value();
}

CommandResult RunningPass::runOnce(PassStep step, const Command& command) {
    if (!show(step, command.text))
        return {};
    Command ours = command;
    // The command after arrivals may go on in the background.
    ours.leavesNothing = step != PassStep::AfterArrivals;
    ours.started = [this, &command](CommandId id) { commandStarted(id, command); };
    if (isPull(step))
        ours.received = [this, &command](QByteArrayView bytes) { received(bytes, command); };
    const double began = fPasses.fClock.seconds();
    CommandResult result = fPasses.fRun(step, ours);
    const double seconds = fPasses.fClock.seconds() - began;
    const Transfer transfer = isPull(step) ? pulled(result, command.text) : Transfer();
    (void)show(PassStep::Begun, {});
    fRecord.commands.push_back({.role = roleOf(step),
                                .command = command.text,
                                .exitStatus = result.exitStatus,
                                .seconds = seconds,
                                .text = capturedText(result.output, result.errors),
                                .transfer = transfer});
    // What the runner left out lies in the middle too.
    CapturedText& text = fRecord.commands.back().text;
    if (text.leftOut > 0)
        text.leftOut += result.leftOut;
    return result;
}

void RunningPass::received(QByteArrayView bytes, const Command& command) {
    {
        const double now = fPasses.fClock.seconds();
        const std::lock_guard lock(fPasses.fMutex);
        fReader->read(bytes, now);
    }
    if (command.received)
        command.received(bytes);
}

/// Takes the lines that show progress out of the output. Names that were left out of it were read
/// as they came.
Transfer RunningPass::pulled(CommandResult& result, const QString& command) {
    std::optional<qint64> filesNamed;
    {
        const std::lock_guard lock(fPasses.fMutex);
        filesNamed = fReader->filesNamed();
        fNames.append(fReader->takeNames());
        if (result.exitStatus == 0 && fReader->tellsProgress())
            fPasses.fWentWell = command;
    }
    if (command.contains(cPartialOption))
        remember(result.exitStatus == 0 ? command : QString());
    result.output = withoutProgress(std::move(result.output));
    Transfer transfer = transferOf(command, result.output);
    if (result.leftOut > 0 && transfer.source == TransferSource::Lines)
        transfer.files = filesNamed;
    return transfer;
}

/// Under the lock.
PassUnderWay RunningPass::seen() {
    PassUnderWay now = fNow;
    if (!fReader)
        return now;
    const double seconds = fPasses.fClock.seconds();
    const PassStep step = now.progress.step;
    now.progress = fReader->progress(seconds);
    now.progress.step = step;
    if (fReader->tellsProgress())
        return now;
    if (fCommand && fWritten.isDue(seconds))
        fWritten.saw(fPasses.fCommands.fileBeingWritten(*fCommand), seconds);
    fWritten.addTo(now.progress, seconds);
    return now;
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
