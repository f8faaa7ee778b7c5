// Front: the face of the program, with a window or without.
#pragma once

#include <functional>
#include <memory>

namespace kelvo {

class AlertPresenter;
class Button;
class Console;
class Control;
class DispatchQueue;
class StatusField;
class UserDefaults;

/// Main thread only. What it hands out lives as long as the front.
class Front {
public:
    virtual ~Front() = default;
    virtual Button& ibStartButton() = 0;
    virtual std::weak_ptr<StatusField> ibStatusTextField() = 0;
    virtual AlertPresenter& alertPresenter() = 0;
    virtual void show() = 0;
};

/// `startAction` receives the start button after each click.
using StartAction = std::function<void(Control*)>;

/// Everything is one line on standard output.
std::unique_ptr<Front> makeHeadlessFront(Console& console, DispatchQueue& mainQueue,
                                         StartAction startAction);

/// The main window; needs a QApplication.
std::unique_ptr<Front> makeWindowFront(UserDefaults& defaults, DispatchQueue& mainQueue,
                                       StartAction startAction);

} // namespace kelvo
