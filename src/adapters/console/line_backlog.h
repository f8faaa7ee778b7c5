// LineBacklog: the lines that wait for one reader, bounded in memory.
#pragma once

#include <QString>
#include <QStringList>

#include <deque>
#include <optional>

namespace kelvo {

/// Takes lines while less than its limit waits, so at most the limit and one line of any size.
/// Once it has had to refuse one it takes none before half of that is free again; where lines are
/// missing stands "N lines left out". Not locked: its owner does that.
class LineBacklog {
public:
    static constexpr qsizetype cMostBytes = qsizetype{16} * 1024 * 1024;

    explicit LineBacklog(qsizetype mostBytes = cMostBytes) : fMostBytes(mostBytes) {}

    /// Shares the memory of `pieces`.
    void add(const QStringList& pieces);

    /// The next line, whose memory counts on until `finished` is called.
    std::optional<QStringList> take();

    /// The line taken last is done with.
    void finished();

    /// Whether no line waits and the one taken last is done with.
    bool empty() const { return fLines.empty() && fTaken == 0 && fLeftOut == 0; }

private:
    struct Line {
        QStringList pieces;
        qsizetype bytes;
    };
    void sayWhatIsMissing();

    const qsizetype fMostBytes;
    std::deque<Line> fLines;
    qsizetype fWaiting = 0;
    qsizetype fTaken = 0;
    qint64 fLeftOut = 0;
};

} // namespace kelvo
