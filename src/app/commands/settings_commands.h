// The commands that read and change settings from a terminal.
#pragma once

#include <QString>
#include <QStringList>

#include <optional>
#include <variant>

namespace kelvo {

class UserDefaults;
struct Profile;

enum class SettingsVerb { Get, Set, Unset, List };

struct SettingsRequest {
    SettingsVerb verb = SettingsVerb::List;
    QString key;
    QString value;
};

/// What a command prints, and the program's exit code.
struct CommandAnswer {
    int exitCode = 0;
    QString output; ///< for standard output
    QString errors; ///< for standard error
};

inline constexpr int cExitNotSet = 1;
inline constexpr int cExitNotStored = 1;
inline constexpr int cExitBadSetting = 2;
inline constexpr int cExitSettingsUnknown = 5;

/// The request in `arguments` (the program's name first); a text when there is one that is not
/// complete or not alone; nothing when there is none. A value may begin with "-".
std::variant<std::monostate, SettingsRequest, QString>
settingsRequest(const QStringList& arguments);

/// Does what `request` says, for the keys of the preference table only; of those, the program's own
/// state can be printed but not changed. A value is checked against the type of its key before
/// anything is changed.
CommandAnswer answerSettings(const SettingsRequest& request, UserDefaults& defaults);

/// What any command answers that needs settings which are not known: `why`, a sentence without its
/// full stop.
CommandAnswer settingsUnknown(const QString& why);

/// The same on the settings file of the profile, the factory values beneath; needs an application
/// object. A file that cannot be used, or is damaged, stays as it is and is an error, and so is
/// what could not be written to it.
CommandAnswer runSettingsCommand(const Profile& profile, const SettingsRequest& request);

} // namespace kelvo
