// The window is a module of its own, which is loaded only when a window is wanted.
#pragma once

#include <QString>

namespace kelvo {

/// The module's one function: runs the program with its window and returns the exit code. Takes
/// what main was given; called on the main thread, where no application object was made yet.
using ShowWindow = int(int argc, char** argv);
inline constexpr const char* cShowWindow = "kelvoMirrorShowWindow";

struct WindowModule {
    ShowWindow* show = nullptr; ///< null: there is no window to be had
    QString trouble = {};       ///< then why, a sentence without its full stop
};

/// Loads the module that lies beside the sentinel, and looks nowhere else. One that somebody could
/// have written who could not have written this program is left alone. It stays loaded.
WindowModule loadWindowModule();

} // namespace kelvo
