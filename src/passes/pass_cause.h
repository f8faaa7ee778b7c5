// Why a pass went the way it did, named from exit statuses and texts.
#pragma once

#include "support/pass_record.h"

#include <QString>

namespace kelvo {

struct NamedCause {
    PassCause cause = PassCause::Well;
    QString lastLine; ///< the last line of the text that decided; at most 300 characters
};

/// What `command` says about itself; a check is judged only after the cycle did not find it valid.
/// For a check that answered `lastLine` is the answer.
NamedCause causeOf(const CommandRecord& command);

/// What the whole of `pass` comes to: that of the host check when it failed, else of the first
/// command after it that is not well: a pull goes before what is run once files have arrived. The
/// built-in movie command may be refused by an old rsync when the pull before it has brought every
/// movie. Reads everything but `cause` and `lastLine`.
NamedCause causeOf(const PassRecord& pass);

} // namespace kelvo
