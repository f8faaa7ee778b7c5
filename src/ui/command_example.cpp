#include "ui/command_example.h"

#include "ports/console.h"
#include "ports/dispatch_queue.h"
#include "ports/user_defaults.h"
#include "settings/preference_keys.h"
#include "support/text.h"
#include "sync/rsync_command.h"

namespace kelvo {
namespace {

constexpr double cPatience = 0.1; // seconds
const QString cOption = QStringLiteral("%@99");

} // namespace

std::optional<QString> exampleOf(QString command, qint64 optionTag) {
    const auto option = optionStringForTag(optionTag);
    if (!option)
        return std::nullopt;
    return command.replace(cOption, option->toString());
}

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
    fDefaults.setObject(prefRsyncCommandStringExample, storedTemplate().replace(cOption, option));
}

void CommandExample::followTemplate() {
    fTemplate = fDefaults.observe(prefRsyncCommandString1, [this](const DefaultsChange&) {
        if (fTold.exchange(true))
            return;
        fMainQueue.asyncAfter(cPatience, [this] {
            fTold = false;
            update();
        });
    });
}

/// Without a tag, or with one that does not exist, the example stays as it is: the action is what
/// says so.
void CommandExample::update() {
    if (const auto example =
            exampleOf(storedTemplate(), fDefaults.integerForKey(prefRsyncCommandOptionTag)))
        fDefaults.setObject(prefRsyncCommandStringExample, *example);
}

QString CommandExample::storedTemplate() const {
    return fDefaults.stringForKey(prefRsyncCommandString1)
        .value_or(cMissingRsyncCommandString1.toString());
}

} // namespace kelvo
