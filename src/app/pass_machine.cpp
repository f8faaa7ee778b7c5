#include "app/pass_machine.h"

#include "app/places.h"
#include "settings/preferences.h"

#include <chrono>
#include <utility>

namespace kelvo {

PassMachine::PassMachine(int output, int errors, DamagedFile damagedSettings, Profile ofProfile)
    : profile(std::move(ofProfile)), console(output, errors, logFile),
      defaults(settingsFile(profile), damagedSettings, isState, mainQueue, console), files(profile),
      bundle(resourceFolder()), commands(console), passes(passesFile(profile), mainQueue, console),
      wholePull(wholePullFile(profile), files) {}

EngineParts PassMachine::engineParts(UserDefaults& settings,
                                     std::function<void(const PassRecord&)> ended) {
    return {
        .defaults = settings,
        .mainQueue = mainQueue,
        .bgQueue = bgQueue,
        .commands = commands,
        .connection = connection,
        .files = files,
        .console = console,
        .clock = {.now = [] { return QDateTime::currentDateTimeUtc(); },
                  .seconds =
                      [] {
                          const auto now = std::chrono::steady_clock::now().time_since_epoch();
                          return std::chrono::duration<double>(now).count();
                      }},
        .wholePull = {.last = [this] { return wholePull.last(); },
                      .keep = [this](const QString& command) { wholePull.keep(command); }},
        .passEnded =
            [this, ended = std::move(ended)](const PassRecord& record) {
                passes.append(record);
                if (ended)
                    ended(record);
            },
    };
}

void PassMachine::end() {
    mainQueue.stop();
    commands.endAll();
    bgQueue.stopAndWait();
}

} // namespace kelvo
