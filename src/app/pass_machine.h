// PassMachine: the real adapters that passes need, each after those it works with.
#pragma once

#include "adapters/console/rotating_log_file.h"
#include "adapters/console/stream_console.h"
#include "adapters/passes/sqlite_pass_store.h"
#include "adapters/passes/whole_pull_file.h"
#include "adapters/process/posix_shell_runner.h"
#include "adapters/process/qt_main_queue.h"
#include "adapters/process/signal_pipe.h"
#include "adapters/process/ssh_connection.h"
#include "adapters/process/thread_pool_queue.h"
#include "adapters/settings/file_bundle.h"
#include "adapters/settings/plist_defaults.h"
#include "adapters/system/local_file_manager.h"
#include "engine/engine.h"
#include "support/profile.h"

namespace kelvo {

/// Main thread only; made once the application object exists. Destroyed after everything that runs
/// passes; what is written down reaches the disk then.
struct PassMachine {
    /// Lines for people and for the system log go to these descriptors; -1 for nowhere.
    PassMachine(int output, int errors, DamagedFile damagedSettings, Profile profile);

    /// What an engine works with: passes are written into the record. `ended` hears of each record
    /// too, on the thread of its pass; it may be empty.
    EngineParts engineParts(UserDefaults& settings,
                            std::function<void(const PassRecord&)> ended = {});

    /// The orderly end: nothing more is scheduled, running commands are ended with all their
    /// children, their callers are gone.
    void end();

    const Profile profile;
    RotatingLogFile logFile;
    StreamConsole console;
    QtMainQueue mainQueue;
    SignalPipe signals;
    PlistDefaults defaults;
    LocalFileManager files;
    FileBundle bundle;
    PosixShellRunner commands;
    ThreadPoolQueue bgQueue;
    SshConnection connection{commands, bgQueue};
    SqlitePassStore passes;
    WholePullFile wholePull;
};

} // namespace kelvo
