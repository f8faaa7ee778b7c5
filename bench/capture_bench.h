// How fast and how lean the shell runner captures a flood, against a plain popen loop.
#pragma once

#include <cstdint>

namespace kelvo {

struct CaptureMeasure {
    /// Best time of some runs, in seconds.
    double runnerSeconds = 0.0;
    double plainSeconds = 0.0;
    /// runnerSeconds / plainSeconds.
    double ratio = 0.0;
    /// Growth of the highest resident size over the first run, per byte of output.
    double peakPerByte = 0.0;
    /// Whether the runner's text had the length of the output.
    bool complete = false;
};

/// Captures `mebibytes` MiB of text lines, a few times each way. Call it early in a process of its
/// own: the highest resident size can only grow.
CaptureMeasure measureCapture(std::int64_t mebibytes);

} // namespace kelvo
