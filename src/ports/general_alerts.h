// GeneralAlerts: alerts with any text and any buttons.
#pragma once

#include "support/alert.h"

#include <QList>
#include <QMap>

#include <functional>
#include <optional>

namespace kelvo {

/// A button of the alert; only the entry "title" is read.
using ButtonDescription = QMap<QString, QString>;
using AlertCompletion = std::function<void(ModalResponse)>;

class GeneralAlerts {
public:
    virtual ~GeneralAlerts() = default;

    /// Shows a critical sheet 0.1 s from now; a description without "title" adds no button, no
    /// button at all leaves the default one. `completion` gets the answer on the main thread.
    /// Any thread; returns at once.
    virtual void showAlertWithClosure(const QString& message, const std::optional<QString>& text,
                                      const std::optional<QList<ButtonDescription>>& buttons,
                                      AlertCompletion completion) = 0;
};

} // namespace kelvo
