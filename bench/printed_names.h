// Names that a command prints one at a time, as rsync does where files arrive.
#pragma once

#include "bench/row.h"

#include <QString>

namespace kelvo::bench {

inline constexpr int cNames = 200000;

/// A command that prints `count` names, each by a call of its own.
inline QString printingNames(int count) {
    return QStringLiteral("awk 'BEGIN { for (i = 0; i < %1; i++) { print \"Movies/some folder/clip "
                          "number \" i \".mov\"; fflush() } }'")
        .arg(count);
}

/// What a pass with cNames of them costs the program that people run.
std::optional<std::vector<Figure>> measureNamesOfAPass();

} // namespace kelvo::bench
