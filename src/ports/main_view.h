// MainView: the content of the main window, as its controller sees it.
#pragma once

#include "support/key_state.h"
#include "support/remote_task_kind.h"
#include "support/subscription.h"
#include "support/work_state.h"

#include <QString>

#include <functional>

namespace kelvo {

class Control;

/// Who follows the work in a view.
enum class Attention {
    Unseen, ///< nobody: the window is hidden or minimised
    Lines,  ///< a reader of lines: what has changed, never the time that passes
    Seen,   ///< a person who may look at it
};

/// Main thread only.
class MainView {
public:
    virtual ~MainView() = default;

    /// Whether the view lies in a window.
    virtual bool hasWindow() const = 0;

    /// Takes the keyboard focus away from whatever has it.
    virtual void makeNothingFirstResponder() = 0;

    /// Shows `text` as the network line; an empty one leaves the line empty.
    virtual void showNetworkStatus(const QString& text) = 0;

    /// Shows whether the connection test is running.
    virtual void showTesting(bool testing) = 0;

    /// Shows what a person has set going on the remote side.
    virtual void showTask(RemoteTaskKind kind) = 0;

    /// Shows what is known of the program's key.
    virtual void showKeyState(KeyState state) = 0;

    /// Shows what the program is doing and how it is. Called at most 10 times a second, and only
    /// when something has changed.
    virtual void showWork(const WorkState& work) = 0;

    /// Calls `changed` now and at each change from now on, on the main thread. Once the
    /// subscription is gone no new call begins.
    virtual Subscription observeAttention(std::function<void(Attention)> changed) = 0;

    /// Plays the alert sound.
    virtual void beep() = 0;

    /// Calls `handler` at each press of the right mouse button in the program's windows, on the
    /// main thread: true when it lies inside `view`. The press goes on to whatever it was meant
    /// for. Once the subscription is gone no new call begins. A view that is gone hears nothing.
    virtual Subscription monitorRightMouseDown(const Control& view,
                                               std::function<void(bool inside)> handler) = 0;
};

} // namespace kelvo
