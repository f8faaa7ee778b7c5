#include "support/system_error_text.h"

#include <cstring>

namespace kelvo {

QString systemErrorText(int error) {
    // The library keeps the text of an unknown number in a buffer for each thread.
    return QString::fromLocal8Bit(std::strerror(error)); // NOLINT(concurrency-mt-unsafe)
}

} // namespace kelvo
