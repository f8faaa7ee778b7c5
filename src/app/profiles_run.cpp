// The profiles as this user's files tell of them.
#include "adapters/process/copy_client.h"
#include "adapters/settings/plist_codec.h"
#include "adapters/settings/plist_file.h"
#include "app/commands/passes.h"
#include "app/commands/profiles.h"
#include "app/places.h"
#include "settings/preference_keys.h"
#include "support/property_value.h"

#include <QFile>
#include <QFileInfo>

namespace kelvo {
namespace {

bool isRunning(const Profile& profile) {
    return CopyClient::placeIsTaken(QFile::encodeName(copyFolder(profile)).toStdString());
}

void readSettings(ProfileState& state) {
    const PlistFile::Contents found = PlistFile(settingsFile(state.profile)).read();
    if (found.state == PlistFile::Contents::State::Missing)
        return;
    const DecodedPlist list = decodePlist(found.bytes);
    const QString fault =
        found.state == PlistFile::Contents::State::Read ? list.fault : found.fault;
    if (!fault.isEmpty())
        state.fault = u"The settings file cannot be read: " + fault;
    const QVariantMap settings = list.root.value_or(QVariantMap());
    const QVariant withSsh = settings.value(prefRsyncWithSSH.toString());
    if (!withSsh.isValid() || boolValue(withSsh))
        state.mac =
            stringValue(settings.value(prefRemoteBonjourName.toString())).value_or(QString());
}

void readRecord(ProfileState& state) {
    const Standing standing = recordedStanding(state.profile);
    if (!standing.fault.isEmpty() && state.fault.isEmpty())
        state.fault = u"The record of passes cannot be read: " + standing.fault;
    if (standing.lastSuccess)
        state.lastSuccess = standing.lastSuccess->began;
    if (standing.last && isTrouble(standing.last->cause))
        state.trouble = standing.last->cause;
}

ProfileState stateOf(const Profile& profile) {
    ProfileState state{.profile = profile, .isRunning = isRunning(profile)};
    readSettings(state);
    readRecord(state);
    return state;
}

} // namespace

std::vector<ProfileState> profilesThere() {
    std::vector<ProfileState> states;
    const ProfileState unnamed = stateOf({});
    if (unnamed.isRunning || QFileInfo::exists(settingsFile({})) ||
        QFileInfo::exists(passesFile({})))
        states.push_back(unnamed);
    for (const QString& name : profileNames())
        states.push_back(stateOf({.name = name}));
    return states;
}

bool isThere(const Profile& profile) {
    return !profile.isNamed() || profileNames().contains(profile.name);
}

CommandAnswer runProfilesCommand(bool json) {
    return {0, profilesText(profilesThere(), json), {}};
}

} // namespace kelvo
