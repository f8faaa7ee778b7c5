// A pull that left nothing half, remembered in memory only.
#pragma once

#include "passes/running_pass.h"

#include <memory>

namespace kelvo {

/// Its copies remember the same.
inline WholePull memoryWholePull() {
    const auto command = std::make_shared<QString>();
    return {.last = [command] { return *command; },
            .keep = [command](const QString& kept) { *command = kept; }};
}

} // namespace kelvo
