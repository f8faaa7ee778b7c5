#include "adapters/process/utf8_collector.h"

#include <QByteArrayView>
#include <QStringDecoder>

#include <algorithm>
#include <vector>

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

QStringDecoder decoder() {
    return QStringDecoder(QStringConverter::Utf8, QStringConverter::Flag::Stateless |
                                                      QStringConverter::Flag::ConvertInitialBom);
}

/// In one piece of memory: a second of that size would be much of what the end of a long output
/// costs.
QString joined(QByteArrayView head, const QString& note, QByteArrayView tail) {
    QStringDecoder utf8 = decoder();
    QString text;
    text.resize(utf8.requiredSpace(head.size()) + note.size() + utf8.requiredSpace(tail.size()));
    QChar* end = utf8.appendToBuffer(text.data(), head);
    end = std::copy(note.begin(), note.end(), end);
    text.truncate(utf8.appendToBuffer(end, tail) - text.constData());
    return text;
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
        return {decoder()(QByteArrayView(begin, static_cast<qsizetype>(fTotal))), 0};
    // As std::rotate does, many bytes at a time.
    const std::vector<char> newest(begin + fHalf, begin + fAt);
    std::copy(begin + fAt, begin + fKept, begin + fHalf);
    std::copy(newest.begin(), newest.end(), begin + (fKept - newest.size()));
    const QByteArrayView head = withWholeEnd({begin, static_cast<qsizetype>(fHalf)});
    const QByteArrayView tail =
        withWholeBegin({begin + fHalf, static_cast<qsizetype>(fKept - fHalf)});
    const qint64 leftOut = fTotal - head.size() - tail.size();
    const QString note = u"\n… " + QString::number(leftOut) + u" bytes left out …\n";
    return {joined(head, note, tail), leftOut};
}

} // namespace kelvo
