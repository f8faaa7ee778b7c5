// Engine: what runs the passes, put together once for every way to start the program.
#pragma once

#include "engine/connection_sharing.h"
#include "engine/host_answer.h"
#include "passes/running_pass.h"
#include "remote/key_state_watch.h"
#include "remote/remote_host_validation.h"
#include "sync/rsync_command.h"
#include "sync/sample_path.h"
#include "sync/sync_cycle.h"

namespace kelvo {

/// The machine as passes need it; all of it outlives the engine.
struct EngineParts {
    UserDefaults& defaults;
    DispatchQueue& mainQueue;
    BackgroundQueue& bgQueue;
    CommandRunner& commands;
    KeptConnection& connection;
    FileManager& files;
    Console& console;
    PassClock clock;
    WholePull wholePull;
    std::function<void(const PassRecord&)> passEnded; ///< on the thread of the pass
};

/// Main thread. Both queues must have ended before it is destroyed: what waits there belongs to it.
struct Engine {
    /// `showKeyState` receives what is known of the key, `hostAnswered` (may be empty) what came of
    /// each check of the host; both on the main thread.
    Engine(const EngineParts& parts, const CycleView& view,
           std::function<void(KeyState)> showKeyState,
           const std::function<void(const HostAnswer&)>& hostAnswered = {});

    ConnectionSharing sharing;
    RunningPasses passes;
    RsyncCommand rsyncCommand;
    SamplePath samplePath;
    RemoteHostValidation hostValidation;
    KeyStateWatch keyState;
    SyncCycle syncCycle;
};

} // namespace kelvo
