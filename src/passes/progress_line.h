// The line that rsync writes over and over to show how far it is.
#pragma once

#include <QByteArrayView>
#include <QString>

#include <optional>

namespace kelvo {

/// "  2,097,152  13%    1.95MB/s    0:00:06 (xfr#1, to-chk=7/9)", the last part only at the end of
/// a file. Every figure may be wrong: the text is somebody else's.
struct ProgressLine {
    qint64 bytes = 0;
    int percent = 0;
    double bytesPerSecond = 0;
    std::optional<qint64> seconds; ///< left, or used at the end of a file
    struct FileEnd {
        qint64 transferred = 0; ///< files so far
        qint64 unchecked = 0;   ///< entries of the list that rsync has not come to
        qint64 entries = 0;     ///< of the list, folders included
        bool listIsWhole = false;
    };
    std::optional<FileEnd> fileEnd;
    qsizetype length = 0; ///< of the text that was read
};

/// What stands at the beginning of `text`; nothing when it is no such line, or only part of one.
std::optional<ProgressLine> progressLineIn(QByteArrayView text);

/// `output` as a terminal would show it in the end, without the lines of progress. Costs no copy.
QString withoutProgress(QString output);

} // namespace kelvo
