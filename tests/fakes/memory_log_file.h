// MemoryLogFile: a log without a disk; paths under "/unwritable" cannot be written.
#pragma once

#include "ports/log_file.h"
#include "support/plain_line.h"

#include <map>
#include <mutex>

namespace kelvo {

class MemoryLogFile final : public LogFile {
public:
    QString defaultLogFileWithinSubdirectory(const QString& subdirectory) const override {
        return u"/state/" + subdirectory + u"/kelvo-mirror.log";
    }

    bool setLogFile(const QString& path) override {
        const std::lock_guard lock(fMutex);
        const bool writable = !path.isEmpty() && !path.startsWith(u"/unwritable");
        fPath = writable ? path : QString();
        return writable;
    }

    using LogFile::append;
    void append(const QStringList& pieces) override {
        const std::lock_guard lock(fMutex);
        if (!fPath.isEmpty())
            fLines[fPath].append(logLine(pieces));
    }

    /// The lines of the file at `path`, without their times.
    QStringList lines(const QString& path) const {
        const std::lock_guard lock(fMutex);
        const auto found = fLines.find(path);
        return found == fLines.end() ? QStringList() : found->second;
    }

private:
    mutable std::mutex fMutex;
    QString fPath;
    std::map<QString, QStringList> fLines;
};

} // namespace kelvo
