#include "app/relaunch_decision.h"

namespace kelvo {

bool isOrdinaryStart(unsigned long count, bool autorelaunched) {
    return count != 0 && !autorelaunched;
}

double relaunchInterval(const QVariant& record, unsigned long count, double seconds,
                        const QDateTime& now) {
    if (record.typeId() != QMetaType::QVariantList)
        return seconds;
    const QVariantList dates = record.toList();
    const auto size = static_cast<unsigned long>(dates.size());
    // Wraps round to a huge index when there are too few.
    const unsigned long index = size - count;
    if (size <= index)
        return seconds;
    const QVariant date = dates.at(static_cast<qsizetype>(index));
    if (date.typeId() != QMetaType::QDateTime)
        return seconds;
    return static_cast<double>(date.toDateTime().msecsTo(now)) / 1000.0;
}

RelaunchDecision decideRelaunch(const QVariant& record, unsigned long count, double seconds,
                                const RelaunchGuard::Escape& escape, const QDateTime& now) {
    RelaunchDecision decision;
    if (record.typeId() == QMetaType::QVariantList)
        decision.record = record.toList();
    decision.record.append(now);

    const double interval = relaunchInterval(record, count, seconds, now);
    if (count != 0 && !(interval < seconds))
        return decision;
    decision.keepRunning = escape && escape(count, interval);
    decision.line =
        QString::asprintf("%ssetting auto-relaunch because interval since %lu previous launches "
                          "is less than %.1f sec (%.f)",
                          decision.keepRunning ? "" : "NOT ", count, seconds, interval);
    return decision;
}

} // namespace kelvo
