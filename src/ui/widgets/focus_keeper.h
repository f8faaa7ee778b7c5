// FocusKeeper: no change that the program makes takes the keyboard focus away.
#pragma once

#include <QPointer>
#include <QWidget>

#include <functional>

namespace kelvo {

/// Whether the Tab key can bring the focus to `widget`.
bool takesFocus(const QWidget& widget);

/// The nearest widget after `from` in the order of the Tab key that takes the focus; null when no
/// other does.
QWidget* nextFocus(const QWidget& from);

/// A member of a widget that changes what lies in it, and whose focusNextPrevChild() is
/// `fFocus.handOn() || …`. Main thread only.
class FocusKeeper {
public:
    explicit FocusKeeper(QWidget& view) : fView(view) {}

    /// Runs `change`. What loses the focus by being hidden or disabled hands it to the nearest
    /// widget before it in the order of the Tab key, else to one behind it. It has the focus again
    /// after the first change that lets it, unless the person has moved on.
    void keep(const std::function<void()>& change);

    /// Hands the focus on as promised. False outside of a change, or when nobody takes it.
    bool handOn();

private:
    QWidget& fView;
    bool fChanging = false;
    QPointer<QWidget> fOwner;  ///< had the focus before it was hidden or disabled
    QPointer<QWidget> fKeeper; ///< has it meanwhile
};

} // namespace kelvo
