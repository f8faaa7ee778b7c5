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

#include <unistd.h>

namespace kelvo {

CommandAnswer runSettingsCommand(const SettingsRequest& request) {
    RotatingLogFile noLogFile;
    StreamConsole console(-1, STDERR_FILENO, noLogFile);
    QtMainQueue mainQueue;
    const FileBundle bundle(resourceFolder());
    CommandAnswer answer;
    QVariant wanted;
    {
        PlistDefaults defaults(settingsFile(), isState, mainQueue, console);
        registerFactoryDefaults(bundle, defaults, console);
        answer = answerSettings(request, defaults);
        defaults.synchronize();
        wanted = defaults.object(request.key);
    }
    const bool changes = request.verb == SettingsVerb::Set || request.verb == SettingsVerb::Unset;
    if (!changes || answer.exitCode != 0)
        return answer;
    PlistDefaults again(settingsFile(), isState, mainQueue, console);
    registerFactoryDefaults(bundle, again, console);
    if (!sameStoredValue(again.object(request.key), wanted))
        return {
            cExitNotStored, {}, QStringLiteral("kelvo-mirror: the setting could not be stored\n")};
    return answer;
}

} // namespace kelvo
