#include "ui/main_window_controller.h"

namespace kelvo {

QString MainWindowController::description() const {
    return QStringLiteral("<NSWindowController: 0x") +
           QString::number(reinterpret_cast<quintptr>(this), 16) + u'>';
}

void MainWindowController::setContentViewController(MainViewController& controller) {
    fContent = &controller;
    controller.viewDidLoad();
}

} // namespace kelvo
