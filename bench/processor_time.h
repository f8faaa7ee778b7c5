// What a process has used of the processor.
#pragma once

#include <QtGlobal>

namespace kelvo::bench {

/// Processor seconds that process `pid` has used, its children left out; -1 when it is not there.
double processorSeconds(qint64 pid);

} // namespace kelvo::bench
