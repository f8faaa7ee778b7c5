#include "app/start/relaunch_decision.h"

#include <array>
#include <charconv>
#include <cmath>
#include <limits>

namespace kelvo {
namespace {

/// As printf writes it in the C locale; a tie goes to the even digit, unlike QString::number.
QString decimal(double number, int digits) {
    std::array<char, std::numeric_limits<double>::max_exponent10 + 8> text{};
    const auto end = std::to_chars(text.data(), text.data() + text.size(), number,
                                   std::chars_format::fixed, digits)
                         .ptr;
    return QString::fromLatin1(text.data(), end - text.data());
}

/// Beyond the year 9999, and well within what fits 64 bits in milliseconds.
constexpr double cLatestDate = 1e12;

/// Milliseconds since the beginning of 1970; nothing for what is no date.
std::optional<qint64> milliseconds(const QVariant& recorded) {
    if (recorded.typeId() == QMetaType::QDateTime)
        return recorded.toDateTime().toMSecsSinceEpoch();
    if (recorded.typeId() != QMetaType::Double)
        return std::nullopt;
    const double seconds = recorded.toDouble();
    if (!(std::abs(seconds) < cLatestDate))
        return std::nullopt;
    return std::llround(seconds * 1000.0);
}

} // namespace

double recordedDate(const QDateTime& date) {
    return static_cast<double>(date.toMSecsSinceEpoch()) / 1000.0;
}

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
    const auto date = milliseconds(dates.at(static_cast<qsizetype>(index)));
    if (!date)
        return seconds;
    return static_cast<double>(now.toMSecsSinceEpoch() - *date) / 1000.0;
}

RelaunchDecision decideRelaunch(const QVariant& record, unsigned long count, double seconds,
                                const RelaunchEscape& escape, const QDateTime& now) {
    RelaunchDecision decision;
    if (record.typeId() == QMetaType::QVariantList)
        decision.record = record.toList();
    decision.record.append(recordedDate(now));

    const double interval = relaunchInterval(record, count, seconds, now);
    if (count != 0 && !(interval < seconds))
        return decision;
    decision.keepRunning = escape && escape(count, interval);
    decision.line =
        QStringLiteral("%1setting auto-relaunch because interval since %2 previous launches is "
                       "less than %3 sec (%4)")
            .arg(decision.keepRunning ? QString() : QStringLiteral("NOT "), QString::number(count),
                 decimal(seconds, 1), decimal(interval, 0));
    return decision;
}

} // namespace kelvo
