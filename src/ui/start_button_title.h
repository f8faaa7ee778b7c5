// StartButtonTitle: the words on the start button.
#pragma once

namespace kelvo {

class Button;
class Console;
class DispatchQueue;
class UserDefaults;

/// Main thread only. The main queue must have ended before this is destroyed.
class StartButtonTitle {
public:
    /// Without a button the titles that follow a change stop the program; `update` passes it over.
    StartButtonTitle(Button* ibStartButton, UserDefaults& defaults, DispatchQueue& mainQueue,
                     Console& console)
        : ibStartButton(ibStartButton), fDefaults(defaults), fMainQueue(mainQueue),
          fConsole(console) {}

    /// The title of a program that has not been started yet.
    void showKindOfPass(bool usesSSH);

    /// The title after syncing was switched on or off; prints which.
    void showRunning(bool isRunning);

    /// The title for the button's own state, on the next turn of the main queue.
    void update();

private:
    Button& present() const;

    Button* const ibStartButton;
    UserDefaults& fDefaults;
    DispatchQueue& fMainQueue;
    Console& fConsole;
};

} // namespace kelvo
