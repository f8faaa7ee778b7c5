// CommandExample: the template with its option filled in, for people to look at.
#pragma once

#include <QStringView>

namespace kelvo {

class Console;
class RsyncCommand;
class UserDefaults;

/// Main thread only.
class CommandExample {
public:
    CommandExample(UserDefaults& defaults, const RsyncCommand& command, Console& console)
        : fDefaults(defaults), fCommand(command), fConsole(console) {}

    /// Stores the example; without an option tag in the settings it only says so.
    void ibUpdateTabViewItem();

private:
    UserDefaults& fDefaults;
    const RsyncCommand& fCommand;
    Console& fConsole;
};

} // namespace kelvo
