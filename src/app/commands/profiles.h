// Profiles on the command line: which one is meant, and which ones there are.
#pragma once

#include "app/commands/settings_commands.h"
#include "support/profile.h"

#include <vector>

namespace kelvo {

struct TakenProfile {
    Profile profile = {};
    QString problem = {}; ///< what is wrong with the option; empty when nothing is
};

/// Takes "--profile NAME" (or "--profile=NAME") out of `arguments`, the program's name first. It
/// stands first, or anywhere where no setting is read or changed: a value may be called so.
TakenProfile takeProfile(QStringList& arguments);

/// `states` in the order given: a line each, or a JSON object on a line of its own.
QString profilesText(const std::vector<ProfileState>& states, bool json);

/// What is known of the profiles of this user, and of the program without one where that has been
/// used; that one comes first. Each costs a look at its settings, its lock and its record. Nothing
/// is written, and no copy needs to run. Any thread.
std::vector<ProfileState> profilesThere();

/// Whether this user has that profile; the program without one is always there.
bool isThere(const Profile& profile);

/// Prints them. Needs an application object.
CommandAnswer runProfilesCommand(bool json);

} // namespace kelvo
