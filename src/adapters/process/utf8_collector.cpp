#include "adapters/process/utf8_collector.h"

#include <algorithm>
#include <cstring>
#include <new>

namespace kelvo {
namespace {

constexpr std::size_t cBufferSize = std::size_t{256} * 1024;
/// Blocks from this size on are always mapped by the C library, so that growing moves pages and
/// copies nothing; what is reserved and not written takes no memory.
constexpr qsizetype cMappedUnits = qsizetype{20} * 1024 * 1024;
constexpr qsizetype cSmallUnits = qsizetype{512} * 1024;

std::size_t sequenceLength(unsigned char lead) {
    if (lead >= 0xf0)
        return 4;
    if (lead >= 0xe0)
        return 3;
    return lead >= 0xc0 ? 2 : 1;
}

/// The bytes before a sequence at the end that more bytes may still complete. Cutting before a
/// lead byte is safe: no decoder joins it to what stands before it.
std::size_t wholeCharacters(const char* bytes, std::size_t size) {
    for (std::size_t back = 1; back <= std::min<std::size_t>(3, size); ++back) {
        const auto byte = static_cast<unsigned char>(bytes[size - back]);
        if ((byte & 0xc0) == 0x80)
            continue;
        return sequenceLength(byte) > back ? size - back : size;
    }
    return size;
}

} // namespace

Utf8Collector::Utf8Collector()
    : fDecoder(QStringConverter::Utf8,
               QStringConverter::Flag::Stateless | QStringConverter::Flag::ConvertInitialBom),
      fBytes(std::make_unique_for_overwrite<char[]>(cBufferSize)) {}

std::span<char> Utf8Collector::room() {
    return {fBytes.get() + fCarried, cBufferSize - fCarried};
}

void Utf8Collector::took(std::size_t size) {
    const std::size_t filled = fCarried + size;
    const std::size_t whole = wholeCharacters(fBytes.get(), filled);
    decode(whole);
    fCarried = filled - whole;
    std::memmove(fBytes.get(), fBytes.get() + whole, fCarried);
}

QString Utf8Collector::finish() {
    decode(fCarried);
    fCarried = 0;
    fText.truncate(fUsed);
    fText.squeeze();
    return std::move(fText);
}

void Utf8Collector::decode(std::size_t size) {
    if (size == 0 || fOverflowed)
        return;
    const auto length = static_cast<qsizetype>(size);
    if (!makeRoomFor(fDecoder.requiredSpace(length))) {
        fOverflowed = true;
        return;
    }
    QChar* const end =
        fDecoder.appendToBuffer(fText.data() + fUsed, QByteArrayView(fBytes.get(), length));
    fUsed = end - fText.constData();
}

bool Utf8Collector::makeRoomFor(qsizetype units) {
    const qsizetype needed = fUsed + units;
    if (needed <= fText.size())
        return true;
    qsizetype wanted = needed;
    if (needed > cSmallUnits)
        wanted = std::max(cMappedUnits, needed + needed / 2);
    try {
        fText.resize(wanted);
    } catch (const std::bad_alloc&) {
        return false;
    }
    return true;
}

} // namespace kelvo
