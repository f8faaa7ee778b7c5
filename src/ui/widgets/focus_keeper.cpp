#include "ui/widgets/focus_keeper.h"

namespace kelvo {
namespace {

QWidget* previousFocus(const QWidget& from) {
    QWidget* place = from.previousInFocusChain();
    while (place && place != &from && !(place->window() == from.window() && takesFocus(*place)))
        place = place->previousInFocusChain();
    return place == &from || place == from.window() ? nullptr : place;
}

} // namespace

bool takesFocus(const QWidget& widget) {
    return widget.isEnabled() && !widget.isWindow() && widget.isVisibleTo(widget.window()) &&
           (widget.focusPolicy() & Qt::TabFocus) == Qt::TabFocus && !widget.focusProxy();
}

QWidget* nextFocus(const QWidget& from) {
    QWidget* place = from.nextInFocusChain();
    while (place && place != &from && !(place->window() == from.window() && takesFocus(*place)))
        place = place->nextInFocusChain();
    return place == &from ? nullptr : place;
}

void FocusKeeper::keep(const std::function<void()>& change) {
    const QWidget* const held = fView.window()->focusWidget();
    if (fOwner && held != fKeeper)
        fOwner = fKeeper = nullptr;
    fChanging = true;
    change();
    fChanging = false;
    if (fOwner && takesFocus(*fOwner)) {
        fOwner->setFocus(Qt::OtherFocusReason);
        fOwner = fKeeper = nullptr;
    }
}

bool FocusKeeper::handOn() {
    QWidget* const loses = fView.window()->focusWidget();
    if (!fChanging || !loses)
        return false;
    QWidget* const takes = previousFocus(*loses);
    if (!takes)
        return false;
    if (!fOwner)
        fOwner = loses;
    fKeeper = takes;
    takes->setFocus(Qt::OtherFocusReason);
    return true;
}

} // namespace kelvo
