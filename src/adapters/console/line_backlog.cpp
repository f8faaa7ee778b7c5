#include "adapters/console/line_backlog.h"

#include <utility>

namespace kelvo {
namespace {

/// What a short line costs beside its text.
constexpr qsizetype cLineCost = 64;

qsizetype memoryOf(const QStringList& pieces) {
    qsizetype bytes = cLineCost;
    for (const QString& piece : pieces)
        bytes += piece.size() * static_cast<qsizetype>(sizeof(QChar)) + cLineCost;
    return bytes;
}

} // namespace

void LineBacklog::add(const QStringList& pieces) {
    if (fWaiting >= (fLeftOut > 0 ? fMostBytes / 2 : fMostBytes)) {
        ++fLeftOut;
        return;
    }
    sayWhatIsMissing();
    const qsizetype bytes = memoryOf(pieces);
    fLines.push_back({pieces, bytes});
    fWaiting += bytes;
}

std::optional<QStringList> LineBacklog::take() {
    if (fLines.empty())
        sayWhatIsMissing();
    if (fLines.empty())
        return std::nullopt;
    Line line = std::move(fLines.front());
    fLines.pop_front();
    fTaken = line.bytes;
    return std::move(line.pieces);
}

void LineBacklog::finished() {
    fWaiting -= std::exchange(fTaken, 0);
}

void LineBacklog::sayWhatIsMissing() {
    if (fLeftOut == 0)
        return;
    const QStringList note{QString::number(std::exchange(fLeftOut, 0)) +
                           QStringLiteral(" lines left out")};
    fLines.push_back({note, memoryOf(note)});
    fWaiting += fLines.back().bytes;
}

} // namespace kelvo
