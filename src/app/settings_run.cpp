// The settings commands on this user's file.
#include "adapters/console/rotating_log_file.h"
#include "adapters/console/stream_console.h"
#include "adapters/process/qt_main_queue.h"
#include "adapters/settings/file_bundle.h"
#include "adapters/settings/plist_defaults.h"
#include "app/commands/settings_commands.h"
#include "app/places.h"
#include "settings/factory_defaults.h"
#include "settings/preferences.h"
#include "support/stored_value.h"

namespace kelvo {

CommandAnswer runSettingsCommand(const Profile& profile, const SettingsRequest& request) {
    // What goes wrong is in the answer.
    RotatingLogFile noLogFile;
    StreamConsole console(-1, -1, noLogFile);
    QtMainQueue mainQueue;
    const FileBundle bundle(resourceFolder());
    CommandAnswer answer;
    QVariant wanted;
    QString trouble;
    {
        PlistDefaults defaults(settingsFile(profile), DamagedFile::IsLeftAlone, isState, mainQueue,
                               console);
        if (!defaults.areKnown())
            return settingsUnknown(defaults.trouble());
        registerFactoryDefaults(bundle, defaults, console);
        answer = answerSettings(request, defaults);
        defaults.synchronize();
        wanted = defaults.object(request.key);
        trouble = defaults.trouble();
    }
    const bool changes = request.verb == SettingsVerb::Set || request.verb == SettingsVerb::Unset;
    if (!changes || answer.exitCode != 0)
        return answer;
    PlistDefaults again(settingsFile(profile), DamagedFile::IsLeftAlone, isState, mainQueue,
                        console);
    registerFactoryDefaults(bundle, again, console);
    if (again.areKnown() && sameStoredValue(again.object(request.key), wanted))
        return answer;
    const QString why = trouble.isEmpty() ? again.trouble() : trouble;
    return {cExitNotStored,
            {},
            QString(u"kelvo-mirror: the setting could not be stored" +
                    (why.isEmpty() ? QString() : QString(u". " + why)) + u'\n')};
}

} // namespace kelvo
