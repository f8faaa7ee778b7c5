// WidgetButton: a checkable push button as the controllers know it.
#pragma once

#include "ports/control.h"

#include <QPushButton>

#include <functional>

namespace kelvo {

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
