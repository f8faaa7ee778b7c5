// The texts of the Activity tab: what a pass did, what has arrived, all passes as a table.
#pragma once

#include "ports/pass_store.h"
#include "support/work_state.h"

#include <QString>

#include <span>

namespace kelvo {

/// Everything that is known of `pass`, for reading and copying. Control characters are spelled out.
QString passReport(const PassRecord& pass);

/// `records` as comma-separated values, a line each under a line of headings. A text that a
/// spreadsheet would take for a formula gets an apostrophe before it.
QString passesAsCsv(std::span<const PassRecord> records);

/// The pass's beginning as people here write it.
QString beganText(const PassRecord& pass);

/// Hours and minutes here, as people here write them.
QString timeText(const QDateTime& moment);

/// The same of a moment on the day of `now`, "22.11.26 15:22" of any other.
QString momentText(const QDateTime& moment, const QDateTime& now);

/// Passes that brought nothing new, between the beginnings of the first and the last one:
/// "42 passes, nothing new, 09:10 to 09:52".
QString foldedText(qint64 passes, const QDateTime& first, const QDateTime& last);

/// Whether a pass runs.
bool isRunning(const WorkState& work);

/// The pass that runs in one line: "First pull, file 7 of 15, 48 %".
QString runningText(const WorkState& work);

/// Everything that is known of the pass that runs, a line each.
QString runningReport(const WorkState& work);

/// "1.2 GB", "212 GB", "0 bytes".
QString bytesText(qint64 bytes);

/// `path` in one line for reading, without the folder `folder` in front of it (which may end in
/// "/"). Control characters are spelled out, as are bytes that are not UTF-8: "\xff".
QString arrivedName(const QByteArray& path, const QString& folder);

/// "Today", "Yesterday", else the day as people here write it.
QString dayText(QDate day, QDate today);

/// What came on a day: "1.2 GB, 3 movies; a pass was in trouble".
QString dayReport(const DayOfPasses& day);

/// "212 GB, 48 movies in 30 days".
QString totalText(std::span<const DayOfPasses> all, int days);

} // namespace kelvo
