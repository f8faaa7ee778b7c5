// RepeatTimerActions: the diagnostic timer beside the sync cycle, which only writes a line.
#pragma once

#include "sync/repeating_timer.h"

#include <memory>

namespace kelvo {

class Console;
class DispatchQueue;

/// Main thread only.
class RepeatTimerActions {
public:
    RepeatTimerActions(DispatchQueue& mainQueue, Console& console)
        : fMainQueue(mainQueue), fConsole(console) {}

    /// Makes the timer, suspended.
    void setupRepeatTimer();

    void ibSuspendTimer();
    void ibResumeTimer();

    /// Ends the timer until the program quits; it is not made again.
    void ibKillTimer();

private:
    /// The timer, made on the first call; nothing once it was killed.
    RepeatingTimer* repeatTimer();
    void repeatStuffToDo();

    DispatchQueue& fMainQueue;
    Console& fConsole;
    bool fRepeatTimerMade = false;
    std::unique_ptr<RepeatingTimer> fRepeatTimer;
};

} // namespace kelvo
