// What a process has used of the processor.
#pragma once

#include <QtGlobal>

namespace kelvo::bench {

/// Processor seconds that process `pid` has used, its children left out; -1 when it is not there.
double processorSeconds(qint64 pid);

/// How often threads of process `pid` have gone to sleep, and so been woken up, by themselves; -1
/// when it is not there.
qint64 wakeUps(qint64 pid);

} // namespace kelvo::bench
