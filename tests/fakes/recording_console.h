// RecordingConsole: keeps every line instead of writing it.
#pragma once

#include "ports/console.h"

#include <mutex>
#include <vector>

namespace kelvo {

class RecordingConsole final : public Console {
public:
    enum class Kind { Print, Log };
    struct Line {
        Kind kind;
        QString text;
        bool operator==(const Line&) const = default;
    };

    void printAll(const std::vector<QStringList>& lines) override {
        const std::lock_guard lock(fMutex);
        for (const QStringList& pieces : lines)
            fLines.push_back({Kind::Print, pieces.join(QString())});
    }
    void log(const QString& text) override {
        const std::lock_guard lock(fMutex);
        fLines.push_back({Kind::Log, text});
    }
    bool flush(std::chrono::milliseconds) override { return true; }

    std::vector<Line> lines() const {
        const std::lock_guard lock(fMutex);
        return fLines;
    }
    QStringList printed() const { return texts(Kind::Print); }
    QStringList logged() const { return texts(Kind::Log); }
    void clear() {
        const std::lock_guard lock(fMutex);
        fLines.clear();
    }

private:
    QStringList texts(Kind kind) const {
        const std::lock_guard lock(fMutex);
        QStringList found;
        for (const Line& line : fLines) {
            if (line.kind == kind)
                found.append(line.text);
        }
        return found;
    }

    mutable std::mutex fMutex;
    std::vector<Line> fLines;
};

} // namespace kelvo
