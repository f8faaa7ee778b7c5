// Whether this build is under a sanitizer, which changes memory, threads and faults.
#pragma once

namespace kelvo {

#if defined(__SANITIZE_ADDRESS__) || defined(__SANITIZE_THREAD__)
inline constexpr bool cSanitized = true;
#else
inline constexpr bool cSanitized = false;
#endif

} // namespace kelvo
