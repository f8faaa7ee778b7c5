// Utf8Collector: UTF-8 bytes that arrive in pieces become one text; of many, the first and the
// last.
#pragma once

#include <QString>

#include <cstddef>
#include <memory>
#include <span>

namespace kelvo {

/// One thread at a time. Takes no more memory than what is kept, however many bytes come; pages are
/// touched only as they are filled.
class Utf8Collector {
public:
    /// Up to `kept` bytes are kept whole; of more, the first and the last half of that. At least 2.
    explicit Utf8Collector(std::size_t kept);

    /// Where the next bytes may be written; never empty. Holds until the next call.
    std::span<char> room();

    /// The first `size` bytes of `room()` are the next bytes of the text.
    void took(std::size_t size);

    /// The bytes taken so far.
    qint64 total() const { return fTotal; }

    struct Collected {
        QString text;
        qint64 leftOut = 0; ///< bytes
    };

    /// The text, once: each byte that belongs to no character is U+FFFD, a zero byte is U+0000, a
    /// byte order mark stays. In place of what is left out, which begins and ends between
    /// characters, stands the line "… N bytes left out …".
    Collected finish();

private:
    const std::size_t fKept;
    const std::size_t fHalf;
    const std::unique_ptr<char[]> fBytes; ///< the second half is written over in circles
    std::size_t fAt = 0;
    qint64 fTotal = 0;
};

} // namespace kelvo
