#include "app/pass_recording.h"

#include "app/places.h"

#include <chrono>

namespace kelvo {
namespace {

PassClock clockOfTheMachine() {
    return {[] { return QDateTime::currentDateTimeUtc(); },
            [] {
                const auto now = std::chrono::steady_clock::now().time_since_epoch();
                return std::chrono::duration<double>(now).count();
            }};
}

} // namespace

PassRecording::PassRecording(CommandRunner& commands, DispatchQueue& mainQueue, Console& console,
                             const std::function<void(const PassRecord&)>& ended)
    : store(passesFile(), mainQueue, console), journal(clockOfTheMachine(),
                                                       [this, ended](const PassRecord& record) {
                                                           store.append(record);
                                                           if (ended)
                                                               ended(record);
                                                       }),
      shell(commands, journal) {}

} // namespace kelvo
