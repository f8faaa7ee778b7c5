// Text from elsewhere made fit to stand in a log or on a terminal.
#pragma once

#include <QString>
#include <QStringList>

namespace kelvo {

/// `text` with every control character but the tab and the line end spelled out: "\x1b" below
/// U+0100, else "\u2028". Marks that turn the direction of reading, and line ends of other kinds,
/// count as control characters. A backslash stands as it is.
QString withVisibleControls(QStringView text);

/// The same with tab and line end spelled out too: a name from elsewhere stands on one line.
QString oneLine(QStringView text);

/// `pieces` as one line: whole up to 64 KiB of UTF-8; of more, the first and the last 32 KiB with
/// the number of bytes left out between them. Cut between characters; needs no copy of the whole.
QString shortenedLine(const QStringList& pieces);

/// `pieces` as they stand in the log file: shortened, controls spelled out, and "    | " at the
/// start of each line but the first.
QString logLine(const QStringList& pieces);

} // namespace kelvo
