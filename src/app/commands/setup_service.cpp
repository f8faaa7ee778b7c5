#include "app/commands/setup_service.h"

#include "ports/command_runner.h"
#include "ports/dispatch_queue.h"
#include "support/plain_line.h"
#include "support/text.h"

#include <memory>
#include <utility>

namespace kelvo {
namespace {

constexpr double cLook = 10;   // seconds
constexpr double cChange = 60; // the old program's end and the new one's start among it

const QString cLookCommand =
    QStringLiteral("systemctl --user show-environment >/dev/null 2>&1 && "
                   "systemctl --user cat %1.service >/dev/null 2>&1 || exit 1; "
                   "loginctl show-user \"$(id -u)\" --property=Linger --value 2>/dev/null || true");
const QString cEnableCommand = QStringLiteral("systemctl --user enable %1.service 2>&1 && "
                                              "systemctl --user restart %1.service 2>&1");
const QString cActiveCommand = QStringLiteral("systemctl --user is-active %1.service 2>&1");
const QString cLingerCommand = QStringLiteral("loginctl enable-linger 2>&1");

QString lastLine(const QString& output) {
    const QString text = trimmedText(output);
    return oneLine(text.sliced(text.lastIndexOf(u'\n') + 1));
}

} // namespace

void SetupService::look(std::function<void(const ServiceFacts&)> done) {
    const auto facts = std::make_shared<ServiceFacts>();
    background(
        fParts.bgQueue, fParts.mainQueue, 0.0,
        [this, facts] {
            const CommandResult said = fParts.commands.run(
                {.text = cLookCommand.arg(fParts.unit), .seconds = cLook, .bounds = cShortAnswer});
            facts->canBeEnabled = said.exitStatus == 0;
            facts->lingers = trimmedText(said.output) == u"yes";
        },
        [facts, done = std::move(done)] { done(*facts); });
}

void SetupService::enable(bool linger, Done done) {
    struct Came {
        bool well = false;
        QString text;
    };
    const auto came = std::make_shared<Came>();
    background(
        fParts.bgQueue, fParts.mainQueue, 0.0,
        [this, linger, came] {
            const auto run = [this](const QString& command) {
                return fParts.commands.run(
                    {.text = command, .seconds = cChange, .bounds = cShortAnswer});
            };
            const CommandResult enabled = run(cEnableCommand.arg(fParts.unit));
            came->well = enabled.exitStatus == 0;
            if (!came->well) {
                came->text = QStringLiteral("The service could not be enabled. The last line was: "
                                            "%1")
                                 .arg(lastLine(enabled.output));
                return;
            }
            came->text = trimmedText(run(cActiveCommand.arg(fParts.unit)).output) == u"active"
                             ? QStringLiteral("The service %1 is enabled and runs.")
                             : QStringLiteral("The service %1 is enabled, but does not run now: "
                                              "perhaps another copy does. See systemctl --user "
                                              "status %1");
            came->text = came->text.arg(fParts.unit);
            if (!linger)
                return;
            const CommandResult lingers = run(cLingerCommand);
            came->well = lingers.exitStatus == 0;
            came->text +=
                came->well
                    ? QStringLiteral(" It will run from the start of the machine on.")
                    : QStringLiteral(" Lingering could not be switched on, so it runs only while "
                                     "you are logged in. Who may act as root can do it: sudo "
                                     "loginctl enable-linger $USER. The last line was: %1")
                          .arg(lastLine(lingers.output));
        },
        [came, done = std::move(done)] { done(came->well, came->text); });
}

} // namespace kelvo
