// Utf8Collector: UTF-8 bytes that arrive in pieces become one text, without a second copy of it.
#pragma once

#include <QString>
#include <QStringDecoder>

#include <cstddef>
#include <memory>
#include <span>

namespace kelvo {

/// One thread at a time.
class Utf8Collector {
public:
    Utf8Collector();

    /// Where the next bytes may be written, at least 64 KiB. Holds until the next call.
    std::span<char> room();

    /// The first `size` bytes of `room()` are the next bytes of the text.
    void took(std::size_t size);

    /// Whether the memory did not suffice; what came after that point was left out.
    bool overflowed() const { return fOverflowed; }

    /// The whole text, once: each byte that belongs to no character is U+FFFD, a zero byte is
    /// U+0000, a byte order mark stays.
    QString finish();

private:
    void decode(std::size_t size);
    bool makeRoomFor(qsizetype units);

    QStringDecoder fDecoder;
    std::unique_ptr<char[]> fBytes;
    std::size_t fCarried = 0;
    QString fText;
    qsizetype fUsed = 0;
    bool fOverflowed = false;
};

} // namespace kelvo
