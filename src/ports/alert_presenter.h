// AlertPresenter: shows alerts on the main window, or says them where there is no window.
#pragma once

#include "support/alert.h"

#include <functional>

namespace kelvo {

using SheetId = int;

/// Main thread only.
class AlertPresenter {
public:
    virtual ~AlertPresenter() = default;

    /// Whether there is a main window that a sheet can hang on.
    virtual bool hasWindow() const = 0;

    /// Shows `alert` on the main window and returns at once. `handler` is called exactly once,
    /// later on the main thread, with the answer, or with cModalResponseStop when `endSheet` came
    /// first; not at all when the presenter is destroyed before.
    virtual SheetId beginSheet(const Alert& alert, std::function<void(ModalResponse)> handler) = 0;

    /// Takes the sheet away. One that is gone already, or never was, is no error.
    virtual void endSheet(SheetId sheet) = 0;

    /// Shows `alert` and blocks for its answer; closing it by any other means than its first button
    /// gives another answer than cAlertFirstButtonReturn.
    virtual ModalResponse runModal(const Alert& alert) = 0;
};

} // namespace kelvo
