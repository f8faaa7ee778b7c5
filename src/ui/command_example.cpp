#include "ui/command_example.h"

#include "ports/console.h"
#include "ports/user_defaults.h"
#include "settings/preference_keys.h"
#include "support/text.h"
#include "sync/rsync_command.h"

namespace kelvo {

void CommandExample::ibUpdateTabViewItem() {
    constexpr QStringView operation = u"ibUpdateTabViewItem()";
    fConsole.print(insideLine(cViewControllerTypeName, operation));
    const auto tag = fDefaults.stringForKey(prefRsyncCommandOptionTag);
    if (!tag) {
        fConsole.print(
            insideLine(cViewControllerTypeName, operation,
                       u".......UNABLE to get pref value for key = [prefRsyncCommandOptionTag] "));
        return;
    }
    fConsole.print(u"current prefRsyncCommandOptionTag = " + *tag);
    const QString option = fCommand.getRsyncCommandOptionString();
    fConsole.print(u"current optionstring for tag[" + *tag + u"] = [" + option + u']');
    QString example = fDefaults.stringForKey(prefRsyncCommandString1)
                          .value_or(cMissingRsyncCommandString1.toString());
    example.replace(QStringLiteral("%@99"), option);
    fDefaults.setObject(prefRsyncCommandStringExample, example);
}

} // namespace kelvo
