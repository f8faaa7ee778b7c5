// PassRecording: the parts that write down each pass, put together.
#pragma once

#include "adapters/passes/sqlite_pass_store.h"
#include "passes/pass_journal.h"
#include "passes/recording_shell_runner.h"

#include <functional>

namespace kelvo {

class CommandRunner;
class Console;
class DispatchQueue;

/// Destroyed after everything that runs passes; what is written down reaches the disk then.
struct PassRecording {
    /// All three outlive it. `ended` is called with each record on the thread of its pass.
    PassRecording(CommandRunner& commands, DispatchQueue& mainQueue, Console& console,
                  const std::function<void(const PassRecord&)>& ended = {});

    SqlitePassStore store;
    PassJournal journal;
    RecordingShellRunner shell;
};

} // namespace kelvo
