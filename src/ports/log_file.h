// LogFile: the file that keeps every console and system-log line, with the time.
#pragma once

#include <QString>

namespace kelvo {

class LogFile {
public:
    virtual ~LogFile() = default;

    /// Where the program's log file within `subdirectory` of the user's state folder lies.
    virtual QString defaultLogFileWithinSubdirectory(const QString& subdirectory) const = 0;

    /// Later lines go to `path`; its folder is made, private to the user. Returns false when the
    /// file cannot be written: earlier lines are kept, later ones are dropped.
    virtual bool setLogFile(const QString& path) = 0;

    /// Appends one line with the time before it. Any thread; calls do not mix. A line over 64 KiB
    /// keeps its first and last 32 KiB and says how much was left out between. Without a file
    /// nothing happens. A file over its size is rotated.
    virtual void append(const QString& line) = 0;
};

} // namespace kelvo
