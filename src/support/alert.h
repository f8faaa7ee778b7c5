// Alert: what a message box says, apart from how it is shown.
#pragma once

#include <QString>
#include <QStringList>

namespace kelvo {

/// The answer of an alert: the button's place counted from cAlertFirstButtonReturn, or
/// cModalResponseStop when the program itself took the alert away.
using ModalResponse = int;
inline constexpr ModalResponse cAlertFirstButtonReturn = 1000;
inline constexpr ModalResponse cAlertSecondButtonReturn = 1001;
inline constexpr ModalResponse cModalResponseStop = -1000;

/// How long an alert that answers itself waits for a person, in seconds.
inline constexpr int cSelfAnswerSeconds = 6;

enum class AlertStyle { Informational = 1, Critical = 2 };

struct Alert {
    QString messageText;
    QString informativeText;
    AlertStyle style = AlertStyle::Critical;
    QStringList buttons = {}; ///< in order; empty: the one default button
    /// Its maker ends it after cSelfAnswerSeconds, answered or not, and goes on as if the first
    /// button had been chosen.
    bool answersItself = false;
    /// The place of the button that Return presses. The last of several is the one that Escape
    /// does.
    int defaultButton = 0;

    bool operator==(const Alert&) const = default;
};

} // namespace kelvo
