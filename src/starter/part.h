// The parts of the program: one without a window, one with it. The starter loads the one that is
// wanted.
#pragma once

namespace kelvo {

/// A part's one function: does what the command line asks for and returns the exit code; called on
/// the main thread with what main was given. Where that is the other part's business, it has done
/// nothing and returns `cOtherPart`.
using RunPart = int(int argc, char** argv);
inline constexpr const char* cRunPart = "kelvoMirrorRun";
inline constexpr int cOtherPart = -1;

/// What the program ends with where a window is wanted and none can be opened.
inline constexpr int cExitNoWindow = 3;

} // namespace kelvo
