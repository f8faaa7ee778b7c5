// Console: the program's diagnostic lines.
#pragma once

#include <QString>
#include <QStringList>

#include <chrono>
#include <vector>

namespace kelvo {

/// Printing and logging: any thread; lines of one thread keep their order, a line is never mixed
/// with another; the call returns without waiting for a slow reader. Failures are nobody's
/// business.
class Console {
public:
    virtual ~Console() = default;

    /// One line to standard output: `text` and a line end. Line ends inside `text` stand.
    void print(const QString& text) { print(QStringList{text}); }

    /// The same for a text in pieces, which are not joined in memory: for captured output.
    void print(const QStringList& pieces) { printAll({pieces}); }

    /// Several lines, each in pieces, as `print` would print them one by one; no line of another
    /// thread gets between them. A fraction of the time: whoever writes is told once.
    virtual void printAll(const std::vector<QStringList>& lines) = 0;

    /// One line to the system log, with the time.
    virtual void log(const QString& text) = 0;

    /// Waits until every line so far is written; false when `timeout` came first. Any thread.
    virtual bool flush(std::chrono::milliseconds timeout) = 0;
};

} // namespace kelvo
