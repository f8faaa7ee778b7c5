// CommandExample: the template with its option filled in, for people to look at.
#pragma once

#include "support/subscription.h"

#include <QString>

#include <atomic>
#include <optional>

namespace kelvo {

class Console;
class DispatchQueue;
class RsyncCommand;
class UserDefaults;

/// `command` with the option of `optionTag` in place of each %@99; nothing for a tag that does not
/// exist.
std::optional<QString> exampleOf(QString command, qint64 optionTag);

/// Main thread only; settings may change on any thread. The main queue must have ended before the
/// example goes: what waits there belongs to it.
class CommandExample {
public:
    CommandExample(UserDefaults& defaults, DispatchQueue& mainQueue, const RsyncCommand& command,
                   Console& console)
        : fDefaults(defaults), fMainQueue(mainQueue), fCommand(command), fConsole(console) {}

    /// Stores the example; without an option tag in the settings it only says so.
    void ibUpdateTabViewItem();

    /// From now on the example is stored anew a moment after the template has changed, once for
    /// changes that follow each other closely; nothing is printed. Called once.
    void followTemplate();

private:
    QString storedTemplate() const;
    void update();

    UserDefaults& fDefaults;
    DispatchQueue& fMainQueue;
    const RsyncCommand& fCommand;
    Console& fConsole;
    Subscription fTemplate;
    std::atomic<bool> fTold = false; ///< an update is on its way
};

} // namespace kelvo
