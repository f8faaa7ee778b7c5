// FakeStatusMenu and FakeTrayHost: a tray that tests look at and choose entries in.
#pragma once

#include "ports/status_menu.h"
#include "ports/tray_host.h"

#include <memory>
#include <optional>
#include <utility>
#include <vector>

namespace kelvo {

class FakeTrayHost final : public TrayHost {
public:
    TrayKind kind() const override { return fKind; }
    Subscription observe(std::function<void()> changed) override {
        auto observer = std::make_shared<Observer>(Observer{std::move(changed)});
        fObservers->push_back(observer);
        return Subscription([observers = std::weak_ptr(fObservers), observer] {
            observer->ended = true;
            if (const auto alive = observers.lock())
                std::erase(*alive, observer);
        });
    }

    /// A tray appears or goes.
    void setPresent(bool present) { setKind(present ? TrayKind::X11 : TrayKind::None); }
    void setKind(TrayKind kind) {
        if (std::exchange(fKind, kind) == kind)
            return;
        for (const auto& observer : std::vector(*fObservers)) {
            if (!observer->ended)
                observer->changed();
        }
    }

private:
    struct Observer {
        std::function<void()> changed;
        bool ended = false;
    };
    TrayKind fKind = TrayKind::None;
    std::shared_ptr<std::vector<std::shared_ptr<Observer>>> fObservers =
        std::make_shared<std::vector<std::shared_ptr<Observer>>>();
};

class FakeStatusMenu final : public StatusMenu {
public:
    explicit FakeStatusMenu(const TrayHost& trayHost) : fHost(trayHost) {}

    void setActions(StatusMenuActions newActions) override { fActions = std::move(newActions); }
    void show(StatusMenuState state) override {
        fState = state;
        shown.push_back(state);
    }
    void showWork(const WorkState& state) override { works.push_back(state); }
    void setStartTitle(const QString& title) override { startTitle = title; }
    void hide() override {
        fState.reset();
        ++hides;
    }
    bool isReachable() const override { return fState && fHost.isPresent(); }

    /// The state of the icon that a person sees; nothing without an icon.
    std::optional<StatusMenuState> visible() const { return isReachable() ? fState : std::nullopt; }

    /// A person chooses an entry; false when there is no icon to choose it from, or the entry is
    /// disabled.
    bool choose(std::function<void()> StatusMenuActions::*entry) {
        const WorkState work = works.empty() ? WorkState{} : works.back();
        if (!isReachable() || (entry == &StatusMenuActions::syncNow && !work.maySyncNow) ||
            (entry == &StatusMenuActions::cancelPass && !work.mayCancel))
            return false;
        if (const auto action = fActions.*entry)
            action();
        return true;
    }

    /// A person opens the menu or leaves it.
    void openMenu(bool open) {
        if (isReachable() && fActions.menuShown)
            fActions.menuShown(open);
    }

    std::vector<StatusMenuState> shown; ///< every call of show so far
    std::vector<WorkState> works;       ///< every state of work so far
    int hides = 0;
    QString startTitle;

private:
    const TrayHost& fHost;
    StatusMenuActions fActions;
    std::optional<StatusMenuState> fState;
};

} // namespace kelvo
