// Modules of ours: libraries that are loaded only when what they hold is wanted.
#pragma once

#include <QString>

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
    QString detail = {}; ///< with a fault: the file where it is unsafe, else what the system says
};

/// Loads the module `file` that lies beside the sentinel, and looks nowhere else, and finds its
/// one `function`. It stays loaded; once more costs next to nothing. Main thread.
OwnModule loadOwnModule(const char* file, const char* function);

/// Gives back to the system what only the start of a module needed that runs in the program's
/// place: free memory, and what was read of the program's own file, which is read anew should it be
/// needed once more. Main thread.
void giveBackStart();

} // namespace kelvo
