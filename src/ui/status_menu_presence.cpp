#include "ui/status_menu_presence.h"

#include "ports/dispatch_queue.h"
#include "ports/user_defaults.h"
#include "settings/preference_keys.h"
#include "ui/main_window_controller.h"
#include "ui/words.h"

#include <algorithm>
#include <utility>

namespace kelvo {

StatusMenuState statusMenuState(bool enabled, bool scanning, bool trouble) {
    if (trouble)
        return StatusMenuState::Trouble;
    if (scanning)
        return StatusMenuState::Running;
    return enabled ? StatusMenuState::Resting : StatusMenuState::Off;
}

StatusMenuPresence::StatusMenuPresence(StatusMenu& menu, UserDefaults& defaults,
                                       DispatchQueue& mainQueue, std::function<void()> quit)
    : fMenu(menu), fDefaults(defaults), fMainQueue(mainQueue), fQuit(std::move(quit)) {
    connectActions();
    for (const QStringView key : {prefEnableScanning, prefIsScanning})
        fObservations.push_back(
            defaults.observe(key, [this](const DefaultsChange&) { refreshLater(); }));
    fObservations.push_back(defaults.observe(prefPath2, [this](const DefaultsChange&) {
        fMainQueue.async([this] { connectActions(); });
    }));
}

StatusMenuPresence::~StatusMenuPresence() {
    fObservations.clear();
    fMenu.setActions({});
    fMenu.hide();
}

void StatusMenuPresence::show(const StatusMenuTargets& targets) {
    if (std::ranges::find(fTargets, &targets) == fTargets.end())
        fTargets.push_back(&targets);
    fIsWanted = true;
    refresh();
}

void StatusMenuPresence::remove(const StatusMenuTargets& targets) {
    if (std::ranges::find(fTargets, &targets) == fTargets.end())
        return;
    fIsWanted = false;
    refresh();
}

void StatusMenuPresence::forget(const StatusMenuTargets& targets) {
    std::erase(fTargets, &targets);
    fIsWanted = fIsWanted && !fTargets.empty();
    refresh();
}

void StatusMenuPresence::showWork(const WorkState& work) {
    fTrouble = work.health.sign == HealthSign::Trouble;
    fMenu.showWork(work);
    refresh();
}

void StatusMenuPresence::connectActions() {
    const auto onMainView = [this](void (MainViewController::*action)()) {
        return [this, action] {
            if (auto* mainView = firstTarget(&StatusMenuTargets::fMainVC))
                (mainView->*action)();
        };
    };
    fMenu.setActions({
        .showWindow =
            [this] {
                if (auto* window = firstTarget(&StatusMenuTargets::fWindowController))
                    window->showWindow();
            },
        .startOrStop = onMainView(&MainViewController::clickStartButton),
        .syncNow = onMainView(&MainViewController::syncNow),
        .cancelPass = onMainView(&MainViewController::cancelPass),
        .showActivity =
            [this] {
                if (auto* mainView = firstTarget(&StatusMenuTargets::fMainVC))
                    mainView->showActivity({});
            },
        .revealFolder = fDefaults.stringForKey(prefPath2).value_or(QString()).isEmpty()
                            ? std::function<void()>()
                            : onMainView(&MainViewController::revealFolder),
        .quitAndRelaunch = onMainView(&MainViewController::quitAndRelaunch),
        .quit = fQuit,
        .menuShown =
            [this](bool shown) {
                if (auto* mainView = firstTarget(&StatusMenuTargets::fMainVC))
                    mainView->menuShown(shown);
            },
    });
}

void StatusMenuPresence::refreshLater() {
    fMainQueue.async([this] { refresh(); });
}

void StatusMenuPresence::refresh() {
    if (!fIsWanted) {
        if (std::exchange(fShown, std::nullopt))
            fMenu.hide();
        return;
    }
    const bool enabled = fDefaults.boolForKey(prefEnableScanning);
    if (std::exchange(fTitleIsStop, enabled) != enabled)
        fMenu.setStartTitle(enabled ? Words::tr("Stop Syncing") : Words::tr("Start Syncing"));
    const StatusMenuState state =
        statusMenuState(enabled, fDefaults.boolForKey(prefIsScanning), fTrouble);
    if (std::exchange(fShown, state) != state)
        fMenu.show(state);
}

template <typename Target>
Target* StatusMenuPresence::firstTarget(Target* StatusMenuTargets::*member) const {
    const auto found = std::ranges::find_if(
        fTargets, [member](const StatusMenuTargets* targets) { return targets->*member; });
    return found == fTargets.end() ? nullptr : (*found)->*member;
}

} // namespace kelvo
