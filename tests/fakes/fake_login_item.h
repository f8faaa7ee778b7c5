// FakeLoginItem: an entry in memory that can be somebody else's or refuse to change.
#pragma once

#include "ports/login_item.h"

namespace kelvo {

class FakeLoginItem final : public LoginItem {
public:
    State state() const override {
        if (standing.kind == LoginItemOutcome::SomebodyElses)
            return {false, {standing.kind, path, {}}};
        return {isOn, {LoginItemOutcome::Done, path, {}}};
    }

    LoginItemOutcome setOn(bool on) override {
        if (!standing)
            return {standing.kind, path, standing.reason};
        isOn = on;
        return {LoginItemOutcome::Done, path, {}};
    }

    QString path = QStringLiteral("/config/autostart/entry.desktop");
    bool isOn = false;
    LoginItemOutcome standing; ///< what every change meets
};

} // namespace kelvo
