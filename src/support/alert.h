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

enum class AlertStyle { Informational = 1, Critical = 2 };

struct Alert {
    QString messageText;
    QString informativeText;
    AlertStyle style = AlertStyle::Critical;
    QStringList buttons;        ///< in order; empty: the one default button
    bool answersItself = false; ///< its maker ends it after a while, answered or not

    bool operator==(const Alert&) const = default;
};

} // namespace kelvo
