#include "support/fatal.h"

#include <cstdio>

namespace kelvo {

void stopProgram(std::string_view message) noexcept {
    if (!message.empty())
        std::fprintf(stderr, "%.*s\n", static_cast<int>(message.size()), message.data());
#ifdef __aarch64__
    // The compiler's trap is a breakpoint there, and elsewhere an instruction that does not exist.
    asm volatile(".inst 0x00000000");
#endif
    __builtin_trap();
}

long long oneMore(long long count) noexcept {
    long long next = 0;
    if (__builtin_add_overflow(count, 1, &next))
        stopProgram();
    return next;
}

} // namespace kelvo
