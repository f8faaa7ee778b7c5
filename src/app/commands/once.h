// One pass for scripts: runs it with the stored settings and tells how it went.
#pragma once

#include "app/commands/settings_commands.h"
#include "support/pass_record.h"
#include "support/profile.h"
#include "ui/pass_words.h"

namespace kelvo {

/// What the program ends with after a pass of this outcome.
int exitCodeFor(CauseGroup group);

/// The outcome as lines for people, or as one JSON object on one line.
CommandAnswer outcomeOf(const PassRecord& pass, bool json);

/// Runs one pass of the kind that is set. A running copy notices nothing of it: flags and status
/// stay in this process. SIGTERM and SIGINT end the pass with its commands. Needs an application
/// object.
CommandAnswer runOnce(const Profile& profile, bool json);

} // namespace kelvo
