// For libraries to preload: the C library's operation that one of ours lies over.
#pragma once

#include <dlfcn.h>

namespace kelvo {

template <typename Operation>
Operation* beneath(const char* name) {
    return reinterpret_cast<Operation*>(::dlsym(RTLD_NEXT, name));
}

} // namespace kelvo
