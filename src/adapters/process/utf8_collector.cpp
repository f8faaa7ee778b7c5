#include "adapters/process/utf8_collector.h"

#include <QByteArrayView>
#include <QStringDecoder>

#include <algorithm>

namespace kelvo {
namespace {

constexpr qsizetype cLongestSequence = 4;

bool continues(char byte) {
    return (static_cast<unsigned char>(byte) & 0xc0) == 0x80;
}

qsizetype sequenceLength(char lead) {
    const auto byte = static_cast<unsigned char>(lead);
    if (byte >= 0xf0)
        return 4;
    if (byte >= 0xe0)
        return 3;
    return byte >= 0xc0 ? 2 : 1;
}

/// Without the begin of a character that goes on behind the end.
QByteArrayView withWholeEnd(QByteArrayView bytes) {
    for (qsizetype back = 1; back < cLongestSequence && back <= bytes.size(); ++back) {
        const char byte = bytes[bytes.size() - back];
        if (!continues(byte))
            return sequenceLength(byte) > back ? bytes.chopped(back) : bytes;
    }
    return bytes;
}

/// Without the rest of a character that began before.
QByteArrayView withWholeBegin(QByteArrayView bytes) {
    for (qsizetype cut = 1; cut < cLongestSequence && !bytes.empty() && continues(bytes[0]); ++cut)
        bytes = bytes.sliced(1);
    return bytes;
}

QString textOf(QByteArrayView bytes) {
    QStringDecoder decoder(QStringConverter::Utf8, QStringConverter::Flag::Stateless |
                                                       QStringConverter::Flag::ConvertInitialBom);
    return decoder(bytes);
}

} // namespace

Utf8Collector::Utf8Collector(std::size_t kept)
    : fKept(kept), fHalf(kept / 2), fBytes(std::make_unique_for_overwrite<char[]>(kept)) {}

std::span<char> Utf8Collector::room() {
    return {fBytes.get() + fAt, fKept - fAt};
}

void Utf8Collector::took(std::size_t size) {
    fTotal += static_cast<qint64>(size);
    fAt += size;
    if (fAt == fKept)
        fAt = fHalf;
}

Utf8Collector::Collected Utf8Collector::finish() {
    char* const begin = fBytes.get();
    if (fTotal <= static_cast<qint64>(fKept))
        return {textOf({begin, static_cast<qsizetype>(fTotal)}), 0};
    std::rotate(begin + fHalf, begin + fAt, begin + fKept);
    const QByteArrayView head = withWholeEnd({begin, static_cast<qsizetype>(fHalf)});
    const QByteArrayView tail =
        withWholeBegin({begin + fHalf, static_cast<qsizetype>(fKept - fHalf)});
    const qint64 leftOut = fTotal - head.size() - tail.size();
    QString text = textOf(head);
    text += u"\n… " + QString::number(leftOut) + u" bytes left out …\n";
    text += textOf(tail);
    return {text, leftOut};
}

} // namespace kelvo
