// Outlets: what lies in the front, with a window or without, for the main view's controller.
#pragma once

#include <functional>
#include <memory>

namespace kelvo {

class AlertPresenter;
class Application;
class ArrayController;
class Button;
class Control;
class MainView;
class OpenPanel;
class Pasteboard;
class PathControl;
class SheetOpener;
class StatusField;
class Terminal;

/// The references live as long as the front.
struct Outlets {
    Application& application;
    MainView& view;
    AlertPresenter& alertPresenter;
    SheetOpener& sheets;
    OpenPanel& openPanel;
    Terminal& terminal;
    Pasteboard& pasteboard;
    ArrayController& fArrayController; ///< what the main view's own search found
    Button& ibStartButton;
    const Control* ibRevealButton1 = nullptr;
    const Control* ibRevealButton2 = nullptr;
    std::weak_ptr<StatusField> ibStatusTextField = {};
    std::weak_ptr<PathControl> fNsPathControl1 = {};
};

} // namespace kelvo
