// ProblemAlerts: the alert that the sync cycle raises when it has given up.
#pragma once

#include "support/alert.h"

#include <functional>

namespace kelvo {

class ProblemAlerts {
public:
    virtual ~ProblemAlerts() = default;

    /// Shows the self-closing alert 0.1 s from now. `completion` runs on the main thread, more than
    /// once: with the user's answer if there is one, and always with cAlertFirstButtonReturn about
    /// 6.1 s after the alert appeared. Any thread; returns at once.
    virtual void showProblemWithBonjourClosure(const QString& message, const QString& text,
                                               std::function<void(ModalResponse)> completion) = 0;
};

} // namespace kelvo
