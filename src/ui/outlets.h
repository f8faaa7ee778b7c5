// Outlets: what lies in the front, with a window or without, for the main view's controller.
#pragma once

#include <QString>

#include <functional>
#include <memory>
#include <optional>

namespace kelvo {

class AlertPresenter;
class Application;
class ArrayController;
class Button;
class Control;
class MainView;
class OpenPanel;
class PathControl;
class StatusField;
class Terminal;
struct HostAnswer;

/// The references live as long as the front.
struct Outlets {
    Application& application;
    MainView& view;
    AlertPresenter& alertPresenter;
    /// Makes the sheet of this identifier afresh and shows it; returns at once, the sheet closes
    /// itself. False when there is no such sheet.
    std::function<bool(QStringView)> presentSheet;
    OpenPanel& openPanel;
    Terminal& terminal;
    std::function<void(const QString&)> copyText; ///< to the clipboard
    /// Brings the record of passes up, at this pass if it is still kept; may be empty.
    std::function<void(std::optional<qint64> pass)> showActivity = {};
    /// Receives what came of each check of the host and of each connection test; may be empty.
    std::function<void(const HostAnswer&)> hostAnswered = {};
    ArrayController& fArrayController; ///< what the main view's own search found
    Button* ibStartButton = nullptr;
    const Control* ibRevealButton1 = nullptr;
    const Control* ibRevealButton2 = nullptr;
    std::weak_ptr<StatusField> ibStatusTextField = {};
    std::weak_ptr<PathControl> fNsPathControl1 = {};
};

} // namespace kelvo
