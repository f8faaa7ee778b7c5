// Row: one line of the table that the measurements print.
#pragma once

#include <functional>
#include <optional>
#include <string>
#include <vector>

namespace kelvo::bench {

struct Figure {
    std::string what;     ///< the figure, in words
    double value = 0;     ///< as measured
    double goal = 0;      ///< the most it may be
    std::string unit;     ///< "x" for a ratio
    std::string measured; ///< both sides of a ratio, or how often it was repeated
};

struct Row {
    std::string name; ///< chooses the row on the command line
    /// Measures; nothing when it cannot be done here, and why went to standard error.
    std::function<std::optional<std::vector<Figure>>()> measure;
};

Row settingsRow();
Row templateRow();
Row captureRow();
Row stallRow();
Row floodRow();
Row restRow();
Row passRow();
Row relaunchRow();
Row sentinelRow();
Row filterRow();
Row snapshotRow();
Row startRow();
Row memoryRow();
Row idleRow();
Row recordRow();
Row progressRow();
Row activityRow(); ///< needs a QApplication

/// The middle one of `values`, which must not be empty.
double median(std::vector<double> values);

/// "12.3 / 11.9 ms", for two times in seconds.
std::string sideBySide(double ours, double theirs);

} // namespace kelvo::bench
