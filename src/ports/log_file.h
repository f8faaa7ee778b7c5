// LogFile: the file that keeps every console and system-log line, with the time.
#pragma once

#include <QString>
#include <QStringList>

namespace kelvo {

class LogFile {
public:
    virtual ~LogFile() = default;

    /// Where the program's log file within `subdirectory` of the user's state folder lies.
    virtual QString defaultLogFileWithinSubdirectory(const QString& subdirectory) const = 0;

    /// Later lines go to `path`; its folder is made, private to the user. Returns false when the
    /// file cannot be written: earlier lines are kept, later ones are dropped while that is so.
    virtual bool setLogFile(const QString& path) = 0;

    /// Appends one line with the time before it. Any thread; calls do not mix. A line over 64 KiB
    /// (as UTF-8) keeps its first and last 32 KiB and says how much was left out between. A line
    /// end inside it is followed by four blanks and a bar, so that no text can pass for a line of
    /// its own, and control characters are spelled out ("\x1b"). Without a file nothing happens. A
    /// file over its size is rotated. Lines that cannot be written wait for a later one to try
    /// again; beyond a bound they are left out and counted.
    void append(const QString& line) { append(QStringList{line}); }

    /// The same for a line in pieces, which are not joined in memory.
    virtual void append(const QStringList& pieces) = 0;
};

} // namespace kelvo
