#include "support/system_error_text.h"

#include <string.h>

#include <cstring>

namespace kelvo {

QString systemErrorText(int error) {
#ifdef __GLIBC__
    if (const char* text = ::strerrordesc_np(error))
        return QString::fromLatin1(text);
#endif
    // The library keeps the text of an unknown number in a buffer for each thread.
    return QString::fromLocal8Bit(std::strerror(error)); // NOLINT(concurrency-mt-unsafe)
}

} // namespace kelvo
