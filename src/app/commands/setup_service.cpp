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

constexpr QStringView cLookCommand =
    u"systemctl --user show-environment >/dev/null 2>&1 && "
    u"systemctl --user cat kelvo-mirror.service >/dev/null 2>&1 || exit 1; "
    u"loginctl show-user \"$(id -u)\" --property=Linger --value 2>/dev/null || true";
constexpr QStringView cEnableCommand = u"systemctl --user enable kelvo-mirror.service 2>&1 && "
                                       u"systemctl --user restart kelvo-mirror.service 2>&1";
constexpr QStringView cActiveCommand = u"systemctl --user is-active kelvo-mirror.service 2>&1";
constexpr QStringView cLingerCommand = u"loginctl enable-linger 2>&1";

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
                {.text = cLookCommand.toString(), .seconds = cLook, .bounds = cShortAnswer});
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
            const auto run = [this](QStringView command) {
                return fParts.commands.run(
                    {.text = command.toString(), .seconds = cChange, .bounds = cShortAnswer});
            };
            const CommandResult enabled = run(cEnableCommand);
            came->well = enabled.exitStatus == 0;
            if (!came->well) {
                came->text = QStringLiteral("The service could not be enabled. The last line was: "
                                            "%1")
                                 .arg(lastLine(enabled.output));
                return;
            }
            came->text = trimmedText(run(cActiveCommand).output) == u"active"
                             ? QStringLiteral("The service kelvo-mirror is enabled and runs.")
                             : QStringLiteral("The service kelvo-mirror is enabled, but does not "
                                              "run now: perhaps another copy does. See systemctl "
                                              "--user status kelvo-mirror");
            if (!linger)
                return;
            const CommandResult lingers = run(cLingerCommand);
            came->well = lingers.exitStatus == 0;
            came->text +=
                came->well
                    ? QStringLiteral(" It will run from the start of the machine on.")
                    : QStringLiteral(" Lingering could not be switched on, so it runs only while "
                                     "you are logged in. The last line was: %1")
                          .arg(lastLine(lingers.output));
        },
        [came, done = std::move(done)] { done(came->well, came->text); });
}

} // namespace kelvo
