#include "ui/widgets/widget_button.h"

#include "ui/words.h"

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
    const QString words = Words::shown(title);
    fButton.setText(words);
    fButton.setAccessibleName(words);
}

} // namespace kelvo
