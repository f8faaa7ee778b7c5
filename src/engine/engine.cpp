#include "engine/engine.h"

#include "ports/dispatch_queue.h"
#include "ports/file_manager.h"
#include "support/key_file.h"
#include "support/text.h"

#include <utility>

namespace kelvo {

Engine::Engine(const EngineParts& parts, const CycleView& view,
               std::function<void(KeyState)> showKeyState,
               const std::function<void(const HostAnswer&)>& hostAnswered)
    : sharing({.defaults = parts.defaults,
               .commands = parts.commands,
               .connection = parts.connection,
               .console = parts.console,
               .keyPath = expandingTilde(cPrivateKeyFile, parts.files.homeDirectory()),
               .clock = parts.clock}),
      passes(
          parts.commands, parts.clock, parts.wholePull,
          [this, passEnded = parts.passEnded](const PassRecord& record) {
              sharing.ended(record);
              passEnded(record);
          },
          [this](PassStep step, const Command& command) { return sharing.run(step, command); }),
      rsyncCommand(parts.defaults, parts.console), samplePath(parts.defaults, parts.mainQueue),
      hostValidation(
          {.defaults = parts.defaults,
           .commands = parts.commands,
           .files = parts.files,
           .console = parts.console,
           .answered =
               [this, &mainQueue = parts.mainQueue, hostAnswered](
                   const QString& target, const HostVerdict& verdict, const CommandResult& result) {
                   keyState.answered(target, verdict);
                   const auto answer = answerOfCheck(target, verdict, result);
                   if (answer && hostAnswered)
                       mainQueue.async([hostAnswered, answer] { hostAnswered(*answer); });
               }}),
      keyState({.defaults = parts.defaults,
                .files = parts.files,
                .mainQueue = parts.mainQueue,
                .bgQueue = parts.bgQueue,
                .validate =
                    [this](qint64 timeout) {
                        (void)hostValidation.validateRemoteHostWithWhoami(timeout);
                    },
                .show = std::move(showKeyState)}),
      syncCycle({.defaults = parts.defaults,
                 .mainQueue = parts.mainQueue,
                 .bgQueue = parts.bgQueue,
                 .passes = passes,
                 .files = parts.files,
                 .console = parts.console,
                 .rsyncCommand = rsyncCommand,
                 .validateRemoteHost =
                     [this](qint64 timeout, const RunCommand& run) {
                         return hostValidation.validateRemoteHostWithWhoami(timeout, run);
                     },
                 .view = view,
                 .seconds = parts.clock.seconds}) {}

} // namespace kelvo
