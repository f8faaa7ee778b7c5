// The texts of the record of passes: how it stands, what a pass did, all of it as a table.
#pragma once

#include "support/pass_record.h"

#include <QString>

#include <span>

namespace kelvo {

/// One or two sentences over `records`, newest first: when the last success was and what it
/// brought; in trouble, since when and why, and what to do.
QString activityHeadline(std::span<const PassRecord> records, const QDateTime& now);

/// Everything that is known of `pass`, for reading and copying. Control characters are spelled out.
QString passReport(const PassRecord& pass);

/// `records` as comma-separated values, a line each under a line of headings. A text that a
/// spreadsheet would take for a formula gets an apostrophe before it.
QString passesAsCsv(std::span<const PassRecord> records);

/// The pass's beginning as people here write it.
QString beganText(const PassRecord& pass);

} // namespace kelvo
