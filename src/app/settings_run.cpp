// The settings commands on this user's file.
#include "adapters/posix/rotating_log_file.h"
#include "adapters/posix/stream_console.h"
#include "adapters/qt/file_bundle.h"
#include "adapters/qt/plist_defaults.h"
#include "adapters/qt/qt_main_queue.h"
#include "app/factory_defaults.h"
#include "app/places.h"
#include "app/settings_commands.h"
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
        PlistDefaults defaults(settingsFile(), mainQueue, console);
        registerFactoryDefaults(bundle, defaults, console);
        answer = answerSettings(request, defaults);
        defaults.synchronize();
        wanted = defaults.object(request.key);
    }
    const bool changes = request.verb == SettingsVerb::Set || request.verb == SettingsVerb::Unset;
    if (!changes || answer.exitCode != 0)
        return answer;
    PlistDefaults again(settingsFile(), mainQueue, console);
    registerFactoryDefaults(bundle, again, console);
    if (!sameStoredValue(again.object(request.key), wanted))
        return {
            cExitNotStored, {}, QStringLiteral("kelvo-mirror: the setting could not be stored\n")};
    return answer;
}

} // namespace kelvo
