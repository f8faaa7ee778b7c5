// What a process has used of the processor.
#pragma once

#include <QHash>
#include <QString>

namespace kelvo::bench {

/// Processor seconds that all threads of process `pid` have used, those that have ended too, to the
/// microsecond; its children are left out. -1 when it is not there.
double processorSeconds(qint64 pid);

/// The share of the memory that process `pid` and all its descendants have (PSS), in KiB; -1 when
/// that cannot be read.
double proportionalKiB(qint64 pid);

/// How often each thread of process `pid` has gone to sleep, and so been woken up, so far.
QHash<QString, qint64> wakeUps(qint64 pid);

/// How often threads that live now have been woken up since `before`.
qint64 wakeUpsSince(const QHash<QString, qint64>& before, qint64 pid);

} // namespace kelvo::bench
