#include "support/fatal.h"

#include <cstdio>

namespace kelvo {

void stopProgram(std::string_view message) noexcept {
    if (!message.empty())
        std::fprintf(stderr, "%.*s\n", static_cast<int>(message.size()), message.data());
    __builtin_trap();
}

} // namespace kelvo
