// Control, Button and TextField: what an action knows of the control that sent it.
#pragma once

#include <QString>

#include <functional>
#include <utility>

namespace kelvo {

/// Anything a user can act on. Main thread only.
class Control {
public:
    virtual ~Control() = default;
};

/// A two-state button: 0 is off, 1 is on. Main thread only.
class Button : public Control {
public:
    virtual int state() const = 0;

    /// Turns the state over and sends the button's action, as a click by the user does.
    virtual void performClick() = 0;

    virtual void setTitle(const QString& title) = 0;
};

/// A field that text is typed into. Main thread only.
class TextField final : public Control {
public:
    /// `resign` gives the keyboard focus up, if the field has it; nothing for one that is gone.
    explicit TextField(std::function<void()> resign) : fResign(std::move(resign)) {}

    void resignFirstResponder() { fResign(); }

private:
    const std::function<void()> fResign;
};

} // namespace kelvo
