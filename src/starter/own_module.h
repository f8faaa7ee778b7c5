// Modules of ours: libraries that are loaded only when what they hold is wanted.
#pragma once

#include <climits>

namespace kelvo {

struct OwnModule {
    enum class Fault {
        None,
        Missing,
        Unsafe,     ///< somebody could have written it who could not have written this program
        Unloadable, ///< it, or a library that it needs, is no good
    };
    void* function = nullptr; ///< null where there is a fault
    Fault fault = Fault::None;
    char detail[PATH_MAX] = {}; ///< with a fault: the unsafe file, or what the system says
};

/// Loads the module `file` that lies beside the sentinel, and looks nowhere else, and finds its
/// one `function`. It stays loaded; once more costs next to nothing. Main thread.
OwnModule loadOwnModule(const char* file, const char* function);

} // namespace kelvo
