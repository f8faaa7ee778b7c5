// HeadlessStatusMenu: no icon, no menu, never reachable.
#pragma once

#include "ports/status_menu.h"

namespace kelvo {

class HeadlessStatusMenu final : public StatusMenu {
public:
    void setActions(StatusMenuActions) override {}
    void show(StatusMenuState) override {}
    void setStartTitle(const QString&) override {}
    void hide() override {}
    bool isReachable() const override { return false; }
};

} // namespace kelvo
