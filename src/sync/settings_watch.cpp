#include "sync/settings_watch.h"

#include "ports/dispatch_queue.h"
#include "ports/user_defaults.h"
#include "settings/preference_keys.h"

#include <array>
#include <utility>

namespace kelvo {
namespace {

constexpr double cPatience = 0.5; // seconds

constexpr std::array cNeeded = {prefRsyncWithSSH,
                                prefPath1,
                                prefPath2,
                                prefSampleRemoteFullPath,
                                prefRemoteUsername,
                                prefRemoteBonjourName,
                                prefRsyncCommandString1,
                                prefRsyncCommandOptionTag};

} // namespace

SettingsWatch::SettingsWatch(UserDefaults& defaults, DispatchQueue& mainQueue,
                             std::function<void()> changed)
    : fDefaults(defaults), fMainQueue(mainQueue), fChanged(std::move(changed)) {}

void SettingsWatch::begin() {
    for (const QStringView key : cNeeded)
        fWatched.push_back(fDefaults.observe(key, [this](const DefaultsChange&) {
            if (fTold.exchange(true))
                return;
            fMainQueue.asyncAfter(cPatience, [this] {
                fTold = false;
                if (watches())
                    fChanged();
            });
        }));
}

} // namespace kelvo
