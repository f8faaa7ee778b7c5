#include "ui/login_item_setting.h"

#include "ports/login_item.h"
#include "ui/words.h"

namespace kelvo {
namespace {

QString troubleOf(const LoginItemOutcome& outcome) {
    switch (outcome.kind) {
    case LoginItemOutcome::Done:
        break;
    case LoginItemOutcome::SomebodyElses:
        return Words::tr("%1 was not written by Kelvo Mirror and is left alone. Move it away "
                         "to switch this on here.")
            .arg(outcome.path);
    case LoginItemOutcome::Failed:
        return Words::tr("%1 cannot be changed: %2")
            .arg(outcome.path, Words::shown(outcome.reason));
    }
    return {};
}

LoginItemSetting::Shown shown(const LoginItem::State& state) {
    return {state.isOn, state.outcome.kind != LoginItemOutcome::SomebodyElses,
            troubleOf(state.outcome)};
}

} // namespace

LoginItemSetting::Shown LoginItemSetting::look() const {
    return shown(fItem.state());
}

LoginItemSetting::Shown LoginItemSetting::choose(bool on) {
    const LoginItemOutcome outcome = fItem.setOn(on);
    Shown now = look();
    if (!outcome)
        now.trouble = troubleOf(outcome);
    return now;
}

} // namespace kelvo
