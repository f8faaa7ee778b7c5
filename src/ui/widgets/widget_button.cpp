#include "ui/widgets/widget_button.h"

#include <utility>

namespace kelvo {

WidgetButton::WidgetButton(QPushButton& button, std::function<void(Control*)> action)
    : fButton(button),
      fClicked(QObject::connect(&button, &QPushButton::clicked,
                                [this, action = std::move(action)] { action(this); })) {}

WidgetButton::~WidgetButton() {
    QObject::disconnect(fClicked);
}

void WidgetButton::setTitle(const QString& title) {
    fButton.setText(title);
    fButton.setAccessibleName(title);
}

} // namespace kelvo
