// FakeTrayItem: an item that tests look at and choose entries in.
#pragma once

#include "ports/tray_item.h"

#include <optional>
#include <utility>

namespace kelvo {

class FakeTrayItem final : public TrayItem {
public:
    void setChoices(TrayChoices choices) override { fChoices = std::move(choices); }
    void setEntries(std::vector<TrayEntry> newEntries) override {
        entries = std::move(newEntries);
        ++changes;
    }
    void show(const TrayLook& look) override { visible = look; }
    void hide() override { visible.reset(); }

    void activate() { run(fChoices.activate); }
    void openMenu(int x, int y) {
        if (visible && fChoices.openMenu)
            fChoices.openMenu(x, y);
    }
    void tellMenuShown(bool shown) {
        if (fChoices.menuShown)
            run([this, shown] { fChoices.menuShown(shown); });
    }
    void choose(std::size_t at) {
        const TrayEntry& entry = entries.at(at);
        if (fChoices.choose && entry.isEnabled && entry.isVisible && !entry.isSeparator)
            run([this, at] { fChoices.choose(at); });
    }

    std::optional<TrayLook> visible; ///< nothing while hidden
    std::vector<TrayEntry> entries;
    int changes = 0; ///< calls of setEntries so far

private:
    void run(const std::function<void()>& choice) const {
        if (visible && choice)
            choice();
    }

    TrayChoices fChoices;
};

} // namespace kelvo
