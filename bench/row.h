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
    std::string measured; ///< both sides and the spread of a ratio, or how often it was repeated
};

/// The same thing done by us and by what we are measured against, in turns: what disturbs one
/// disturbs the other.
struct Rounds {
    std::vector<double> ours;
    std::vector<double> theirs;
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
Row linesRow();
Row headlessRow();
Row onceRow();
Row filesRow();
Row manyFilesRow();
Row sharingRow(); ///< this and the two below only on the near host of the lab
Row manySharingRow();
Row firstPullRow();
Row recordRow();
Row progressRow();
Row activityRow(); ///< needs a QApplication

/// The middle one of `values`, which must not be empty.
double median(std::vector<double> values);

/// "12.3 / 11.9 ms", for two times in seconds.
std::string sideBySide(double ours, double theirs);

/// The middle one of the ratios of all rounds, of which there is at least one. `sides` says what
/// was measured, and the two ratios between which the middle half lies are added to it.
Figure ratioOf(const Rounds& rounds, const std::string& what, double goal,
               const std::string& sides);

/// The same of times in seconds.
Figure ratioOfTimes(const Rounds& rounds, const std::string& what, double goal);

} // namespace kelvo::bench
