// PassListener: told by the sync cycle where each pass begins and ends.
#pragma once

#include "support/pass_record.h"

#include <QString>

namespace kelvo {

/// All three are called on the thread that runs the pass, in this order, and return at once.
/// Several passes may run at the same time, each on a thread of its own.
class PassListener {
public:
    virtual ~PassListener() = default;

    virtual void passBegan(PassKind kind) = 0;

    /// Remote passes only: the verdict of the host check, empty when nobody could be asked.
    virtual void hostJudged(const QString& verdict) = 0;

    /// The pass has run its last command on this thread.
    virtual void passEnded() = 0;
};

} // namespace kelvo
