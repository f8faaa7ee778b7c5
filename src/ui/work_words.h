// What people read of the work: how far a pass is, when the next one comes. Each text is a whole
// sentence or figure, so that it can be put into another language.
#pragma once

#include "support/pass_progress.h"
#include "support/pass_record.h"
#include "support/work_state.h"

#include <QString>

#include <optional>
#include <vector>

namespace kelvo {

struct PassUnderWay;

/// The time left in steps that a person can follow: "a few seconds", "about 20 s", "about 4 min",
/// "about 1 h 20 min". It falls at once; it rises only when the estimate is clearly above the step.
class TimeLeftWords {
public:
    /// The next estimate of the same pass; without one the text is empty.
    QString text(std::optional<double> seconds);

private:
    std::optional<int> fShown; ///< in seconds
};

/// "Asking the Mac"; empty while no command runs.
QString stepText(PassStep step, PassKind kind);

/// "file 7 of 15" while a file is being received; "15 files" without a number to come.
QString countText(const PassProgress& progress);

/// "18.2 of 37.6 GB", "18.2 GB"; empty when nothing is known.
QString amountText(const PassProgress& progress);

/// "92.0 MB/s".
QString speedText(const PassProgress& progress);

/// Fills in what is known of the pass: step, file, figures and share.
void describeProgress(WorkState& work, const PassUnderWay& pass, TimeLeftWords& timeLeft);

/// "Next pass in 23 s", beyond two minutes "Next pass in 4 min".
QString nextPassText(double seconds);

/// How long from now that text stays true, in seconds.
double nextPassHolds(double seconds);

/// What the headline says beyond the texts of the work.
struct HeadlineFacts {
    QString matter = {}; ///< what a waiting pass lacks, or the first sentence of the trouble
    PassStep step = PassStep::Begun;
    PassKind kind = PassKind::Remote;
    std::optional<double> nextPass = {}; ///< seconds, where that may be said
};

/// The one line of a tray: the progress, what is the matter, or when the next pass comes.
QString headlineText(const WorkState& work, const HeadlineFacts& facts);

/// "A, B and one more", by name alone, each name on one line and at most 60 characters long.
QString arrivalsText(const std::vector<Arrival>& arrivals);

} // namespace kelvo
