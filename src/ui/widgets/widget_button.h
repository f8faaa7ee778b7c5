// WidgetButton: a checkable push button as the controllers know it; TitledButton: one for people.
#pragma once

#include "ports/control.h"

#include <QPushButton>

#include <functional>

namespace kelvo {

/// A push button that can be checked and whose title says what a press does. To a screen reader it
/// is a push button of that name; whether it is checked is in the name.
class TitledButton final : public QPushButton {
    Q_OBJECT
public:
    using QPushButton::QPushButton;
};

/// Both the button and what `action` uses outlive this. `action` receives this object after each
/// click, by a person or by the program.
class WidgetButton final : public Button {
public:
    WidgetButton(QPushButton& button, std::function<void(Control*)> action);
    ~WidgetButton() override;

    int state() const override { return fButton.isChecked() ? 1 : 0; }
    void performClick() override { fButton.click(); }
    void setTitle(const QString& title) override;

private:
    QPushButton& fButton;
    QMetaObject::Connection fClicked;
};

} // namespace kelvo
