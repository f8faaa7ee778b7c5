// The set-up from a terminal, on this machine.
#pragma once

#include "app/commands/setup_request.h"
#include "support/profile.h"

namespace kelvo {

/// Asks what is open of `profile` and does what was agreed; what people read on the way goes to
/// standard output. A running copy takes the settings up as those of another program. SIGTERM,
/// SIGHUP and SIGINT end it; as long as nothing was stored, everything is as it was then. Needs an
/// application object.
CommandAnswer runSetup(const Profile& profile, const SetupRequest& request);

} // namespace kelvo
