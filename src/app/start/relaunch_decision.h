// Whether the program keeps itself running after it was started again, as pure functions.
#pragma once

#include <QDateTime>
#include <QString>
#include <QVariant>

#include <functional>
#include <optional>

namespace kelvo {

/// True keeps relaunching on, although `count` relaunches came within `interval` seconds.
using RelaunchEscape = std::function<bool(unsigned long count, double interval)>;

/// A start by a person, or by anything else but the sentinel: the record begins anew.
bool isOrdinaryStart(unsigned long count, bool autorelaunched);

/// A date as an element of the record: seconds since the beginning of 1970, to the millisecond. The
/// store cuts dates to whole seconds.
double recordedDate(const QDateTime& date);

/// Seconds from the `count`-th most recent date in `record` to `now`; `seconds` when the record is
/// no array, is shorter, or has no date there, and when `count` is 0. Dates that are stored as
/// such, as earlier versions did, count too.
double relaunchInterval(const QVariant& record, unsigned long count, double seconds,
                        const QDateTime& now);

struct RelaunchDecision {
    bool keepRunning = true;
    std::optional<QString> line; ///< what the system log shall say of it
    QVariantList record;         ///< what was recorded, `now` the last
};

/// Decides after a relaunch: on, unless the last `count` relaunches came within `seconds` and
/// `escape`, asked only then (or when `count` is 0), is empty or answers false.
RelaunchDecision decideRelaunch(const QVariant& record, unsigned long count, double seconds,
                                const RelaunchEscape& escape, const QDateTime& now);

} // namespace kelvo
