// What every fuzz target needs: a way to say what must hold, and texts cut out of the input.
#pragma once

#include <QString>

#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <string_view>

namespace kelvo {

/// Ends the run, so that the fuzzer keeps the input, when `condition` does not hold.
inline void require(bool condition) {
    if (!condition)
        std::abort();
}

inline std::string_view inputText(const std::uint8_t* data, std::size_t size) {
    return size == 0 ? std::string_view()
                     : std::string_view(reinterpret_cast<const char*>(data), size);
}

/// The next text of `rest`, up to `end` or to the end of all.
inline std::string_view nextText(std::string_view& rest, char end = '\0') {
    const std::size_t length = rest.find(end);
    const std::string_view text = rest.substr(0, length);
    rest.remove_prefix(length == std::string_view::npos ? rest.size() : length + 1);
    return text;
}

/// As the program reads bytes of others: broken UTF-8 becomes U+FFFD.
inline QString asText(std::string_view bytes) {
    return QString::fromUtf8(bytes.data(), static_cast<qsizetype>(bytes.size()));
}

} // namespace kelvo
