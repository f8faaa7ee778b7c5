#include "ui/close_policy.h"

namespace kelvo {

std::optional<Alert> ClosePolicy::noteBeforeClosing(bool trayReachable) {
    if (trayReachable || fQuitting || fSaid)
        return std::nullopt;
    fSaid = true;
    return Alert{QStringLiteral("Kelvo Mirror keeps running"),
                 QStringLiteral("There is no tray icon to bring the window back with. To see the "
                                "window again, start Kelvo Mirror once more. To end the program, "
                                "choose Quit from the File menu instead."),
                 AlertStyle::Informational,
                 {QStringLiteral("Close Window"), QStringLiteral("Keep Open")},
                 false};
}

CloseResult ClosePolicy::result(std::optional<ModalResponse> answer) const {
    if (fQuitting)
        return CloseResult::Accept;
    return answer.value_or(cAlertFirstButtonReturn) == cAlertFirstButtonReturn
               ? CloseResult::Hide
               : CloseResult::KeepOpen;
}

} // namespace kelvo
