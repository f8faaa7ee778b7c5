// ConnectionCheck: asks the remote Mac for an answer over ssh and shows the outcome.
#pragma once

#include "support/alert.h"

#include <QString>

#include <functional>
#include <optional>

namespace kelvo {

class BackgroundQueue;
class Console;
class DispatchQueue;
class FileManager;
class CommandRunner;
class UserDefaults;
struct CommandResult;

/// What a host that lets the program in prints in the test.
inline constexpr QStringView cGoodAnswer = u"remoteisgood";

/// Fills the numbered placeholders of `text` from the settings, each escaped for the quotes around
/// it so that it stays in its word; blanks behind the host stay as they are. `text` itself when no
/// host is set; nothing when `text` puts a value where it cannot be kept in one word. `home` is the
/// user's home folder. Writes its lines to `console`.
std::optional<QString> fillInSshParams(const QString& text, const UserDefaults& defaults,
                                       const QString& home, Console& console);

/// What is wrong according to the output of the test; empty when neither of the two known faults
/// is named there, which counts as success.
QString connectionFault(const QString& output);

/// What the test works with; the references outlive it.
struct ConnectionCheckParts {
    const UserDefaults& defaults;
    const FileManager& files;
    Console& console;
    DispatchQueue& mainQueue;
    BackgroundQueue& bgQueue;
    CommandRunner& shell;
    /// Shows an alert with a title, a text and one button a little later; returns at once.
    std::function<void(const QString&, const QString&, std::function<void(ModalResponse)>)>
        showAlert;
    /// Receives true when a test begins and false as soon as the first of several has ended, on the
    /// main thread.
    std::function<void(bool)> showBusy;
    /// Hears the whole end of each test before its alert, on the main thread; `target` is user@host
    /// as it was when the test began. May be empty.
    std::function<void(const QString& target, const CommandResult&)> answered = {};
    /// The same of a user or host that cannot stand in a command. May be empty.
    std::function<void(const QString& target, const QString& fault)> refused = {};
};

/// Main thread only. Both queues must have ended before this is destroyed.
class ConnectionCheck {
public:
    explicit ConnectionCheck(ConnectionCheckParts parts);

    /// The test, under the name of its button.
    void ibTestShellCommand();

    /// The test: ssh runs in the background, the outcome is an alert. Tests run side by side; each
    /// has its own alert. A user or host that cannot stand in a command has that alert at once.
    void ibTestShellCommand222();

private:
    void finish(const QString& target, const CommandResult& result);
    void showFault(const QString& fault);
    void show(const QString& title, const QString& text);
    QString faultOfAccount() const;
    QString target() const;
    QString filledIn(const QString& text) const;

    const ConnectionCheckParts fParts;
};

} // namespace kelvo
