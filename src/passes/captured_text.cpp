#include "passes/captured_text.h"

#include "support/text.h"

#include <algorithm>
#include <limits>

namespace kelvo {
namespace {

struct Cut {
    qsizetype length; ///< UTF-16 units
    qint64 bytes;     ///< of UTF-8
};

bool isPair(QStringView text, qsizetype at) {
    return at + 1 < text.size() && text[at].isHighSurrogate() && text[at + 1].isLowSurrogate();
}

int bytesOf(QStringView text, qsizetype at) {
    const char16_t unit = text[at].unicode();
    if (unit < 0x80)
        return 1;
    if (unit < 0x800)
        return 2;
    return isPair(text, at) ? 4 : 3;
}

/// How many signs at the beginning are of one byte each, at most `most`.
qsizetype plainSigns(QStringView text, qint64 most) {
    return asciiAtStart(text.first(std::min<qint64>(text.size(), most)));
}

/// As many whole characters from the beginning as `most` bytes hold.
Cut beginning(QStringView text, qint64 most) {
    Cut cut{0, 0};
    while (cut.length < text.size()) {
        const qsizetype plain = plainSigns(text.sliced(cut.length), most - cut.bytes);
        cut.length += plain;
        cut.bytes += plain;
        if (cut.length == text.size())
            break;
        const int bytes = bytesOf(text, cut.length);
        if (cut.bytes + bytes > most)
            break;
        cut.length += isPair(text, cut.length) ? 2 : 1;
        cut.bytes += bytes;
    }
    return cut;
}

qint64 bytesOf(QStringView text) {
    return beginning(text, std::numeric_limits<qint64>::max()).bytes;
}

/// The same as `beginning`, from the end.
Cut ending(QStringView text, qint64 most) {
    Cut cut{0, 0};
    while (cut.length < text.size()) {
        qsizetype at = text.size() - cut.length - 1;
        if (at > 0 && isPair(text, at - 1))
            --at;
        const int bytes = bytesOf(text, at);
        if (cut.bytes + bytes > most)
            break;
        cut.length = text.size() - at;
        cut.bytes += bytes;
    }
    return cut;
}

CapturedText cutToEnds(QStringView text) {
    const Cut whole = beginning(text, 2 * cKeptText);
    if (whole.length == text.size())
        return {text.toString(), {}, 0};
    const Cut head = beginning(text, cKeptText);
    const Cut tail = ending(text, cKeptText);
    const QStringView middle = text.sliced(head.length, text.size() - head.length - tail.length);
    return {text.first(head.length).toString(), text.last(tail.length).toString(), bytesOf(middle)};
}

} // namespace

CapturedText capturedText(QStringView output, QStringView errors) {
    if (errors.isEmpty())
        return cutToEnds(output);
    CapturedText kept = cutToEnds(output);
    if (kept.leftOut == 0)
        return cutToEnds(QString(kept.head + errors));
    const QString end = kept.tail + errors;
    const Cut tail = ending(end, cKeptText);
    kept.leftOut += bytesOf(end) - tail.bytes;
    kept.tail = end.last(tail.length);
    return kept;
}

QStringList linesOf(const CapturedText& text) {
    QStringList lines;
    for (const QString& part : {text.head, text.tail}) {
        for (const QStringView line : QStringView(part).split(u'\n')) {
            for (const QStringView piece : line.split(u'\r')) {
                if (QString trimmed = trimmedText(piece); !trimmed.isEmpty())
                    lines.append(std::move(trimmed));
            }
        }
    }
    return lines;
}

} // namespace kelvo
