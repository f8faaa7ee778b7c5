// What the sentinel says and reads, without the memory that streams cost.
#pragma once

#include <cstddef>
#include <initializer_list>

namespace kelvo::sentinel {

/// One line to standard error: "watchdog: ", the pieces, a line end.
void say(std::initializer_list<const char*> pieces);

/// A buffer that keeps its memory from one use to the next.
struct Bytes {
    char* data = nullptr;
    std::size_t size = 0;
    std::size_t room = 0;
};

/// Reads the file `name` in `folder` (a descriptor, or AT_FDCWD) to its end; a NUL follows the last
/// byte. Returns false, with errno set, when that fails.
bool readWhole(int folder, const char* name, Bytes& bytes);

/// The decimal text of `number`, for as long as the buffer lives.
struct Decimal {
    explicit Decimal(unsigned long number);
    char text[24];
};

} // namespace kelvo::sentinel
