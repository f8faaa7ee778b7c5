#include "adapters/posix/utf8_text.h"

#include <algorithm>
#include <utility>

namespace kelvo {

void Utf8Text::append(const char* bytes, qsizetype count) {
    const qsizetype needed = fLength + fDecoder.requiredSpace(count);
    if (needed > fText.capacity())
        fText.reserve(std::max(needed, fLength + fLength / 4));
    fText.resize(needed); // within the capacity: no copy
    QChar* const begin = fText.data();
    QChar* const end = fDecoder.appendToBuffer(begin + fLength, QByteArrayView(bytes, count));
    fLength = end - begin;
}

QString Utf8Text::take() {
    // A cut sequence at the very end has no more bytes to come; a line end makes the decoder say
    // so.
    const qsizetype before = fLength;
    append("\n", 1);
    fLength = std::max(before, fLength - 1);
    fText.resize(fLength);
    return std::exchange(fText, {});
}

} // namespace kelvo
