#include "support/plain_line.h"

#include "support/text.h"

#include <algorithm>

namespace kelvo {
namespace {

constexpr qsizetype cWholeBytes = qsizetype{64} * 1024;
constexpr qsizetype cPartBytes = cWholeBytes / 2;

bool isControl(char16_t unit) {
    if (unit >= 0x20 && unit < 0x7f)
        return false;
    if (unit < 0x20)
        return unit != u'\n' && unit != u'\t';
    return unit < 0xa0 || unit == 0x200e || unit == 0x200f || unit == 0x061c ||
           (unit >= 0x2028 && unit <= 0x202e) || (unit >= 0x2066 && unit <= 0x2069);
}

QString spelledOut(char16_t unit) {
    return unit < 0x100 ? QStringLiteral("\\x%1").arg(uint(unit), 2, 16, QLatin1Char('0'))
                        : QStringLiteral("\\u%1").arg(uint(unit), 4, 16, QLatin1Char('0'));
}

/// A unit's share of the UTF-8 bytes; the two halves of a pair have two each.
qsizetype byteCount(char16_t unit) {
    if (unit < 0x80)
        return 1;
    return unit < 0x800 || QChar::isSurrogate(unit) ? 2 : 3;
}

qsizetype byteCount(QStringView text) {
    qsizetype sum = 0;
    for (qsizetype at = 0; at < text.size(); ++at) {
        const qsizetype ascii = asciiAtStart(text.sliced(at));
        sum += ascii;
        at += ascii;
        if (at < text.size())
            sum += byteCount(text[at].unicode());
    }
    return sum;
}

/// The first characters of `pieces` that fit into `bytes`.
QString start(const QStringList& pieces, qsizetype bytes) {
    QString kept;
    for (const QString& piece : pieces) {
        for (const QChar unit : piece) {
            bytes -= byteCount(unit.unicode());
            if (bytes < 0) {
                if (!kept.isEmpty() && kept.back().isHighSurrogate())
                    kept.chop(1);
                return kept;
            }
            kept += unit;
        }
    }
    return kept;
}

/// The last characters of `pieces` that fit into `bytes`.
QString ending(const QStringList& pieces, qsizetype bytes) {
    QString kept;
    for (auto piece = pieces.crbegin(); piece != pieces.crend() && bytes >= 0; ++piece) {
        for (auto unit = piece->crbegin(); unit != piece->crend(); ++unit) {
            bytes -= byteCount(unit->unicode());
            if (bytes < 0)
                break;
            kept += *unit;
        }
    }
    std::reverse(kept.begin(), kept.end());
    if (!kept.isEmpty() && kept.front().isLowSurrogate())
        kept.remove(0, 1);
    return kept;
}

} // namespace

QString withVisibleControls(QStringView text) {
    QString visible;
    visible.reserve(text.size());
    qsizetype done = 0;
    for (qsizetype at = 0; at < text.size(); ++at) {
        if (!isControl(text[at].unicode()))
            continue;
        visible += text.sliced(done, at - done);
        visible += spelledOut(text[at].unicode());
        done = at + 1;
    }
    return visible += text.sliced(done);
}

QString oneLine(QStringView text) {
    return withVisibleControls(text)
        .replace(u'\n', QStringLiteral("\\x0a"))
        .replace(u'\t', QStringLiteral("\\x09"));
}

QString shortenedLine(const QStringList& pieces) {
    qsizetype size = 0;
    for (const QString& piece : pieces)
        size += byteCount(piece);
    if (size <= cWholeBytes)
        return pieces.join(QString());
    const QString first = start(pieces, cPartBytes);
    const QString last = ending(pieces, cPartBytes);
    return first + u" … (" + QString::number(size - byteCount(first) - byteCount(last)) +
           u" bytes left out) … " + last;
}

QString logLine(const QStringList& pieces) {
    return withVisibleControls(shortenedLine(pieces))
        .replace(QStringLiteral("\n"), QStringLiteral("\n    | "));
}

} // namespace kelvo
