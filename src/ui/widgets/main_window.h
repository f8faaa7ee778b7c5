// MainWindow: the start button, the status line, and where files come from and go to.
#pragma once

#include "support/subscription.h"

#include <QWidget>

#include <memory>
#include <vector>

class QPushButton;

namespace Ui {
class MainWindow;
}

namespace kelvo {

class DispatchQueue;
class StatusFieldView;
class UserDefaults;

/// Follows the settings it shows, whichever thread changes them. The main queue must have ended
/// before the window is destroyed.
class MainWindow final : public QWidget {
    Q_OBJECT
public:
    MainWindow(UserDefaults& defaults, DispatchQueue& mainQueue);
    ~MainWindow() override;

    QPushButton& ibStartButton();
    StatusFieldView& ibStatusTextField();

private:
    void showPlaces();

    UserDefaults& fDefaults;
    std::unique_ptr<Ui::MainWindow> fUi;
    std::vector<Subscription> fObservations;
};

} // namespace kelvo
