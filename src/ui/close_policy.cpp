#include "ui/close_policy.h"

#include "ports/user_defaults.h"
#include "settings/preference_keys.h"
#include "ui/words.h"

namespace kelvo {

std::optional<Alert> ClosePolicy::noteBeforeClosing(bool trayReachable) {
    if (trayReachable || fQuitting || fSaid)
        return std::nullopt;
    fSaid = true;
    return Alert{Words::tr("Kelvo Mirror keeps running"),
                 Words::tr("There is no tray icon to bring the window back with. To see the "
                           "window again, start Kelvo Mirror once more. To end the program, "
                           "choose Quit from the File menu instead."),
                 AlertStyle::Informational,
                 {Words::tr("Close Window"), Words::tr("Keep Open")},
                 false};
}

std::optional<Notice> ClosePolicy::noticeAtHiding(bool trayReachable,
                                                  UserDefaults& defaults) const {
    if (!trayReachable || fQuitting || defaults.boolForKey(prefClosedToTray))
        return std::nullopt;
    defaults.setObject(prefClosedToTray, true);
    return Notice{.title = Words::tr("Kelvo Mirror keeps running"),
                  .text = Words::tr("Its icon in the tray brings the window back; the icon's "
                                    "menu ends the program.")};
}

CloseResult ClosePolicy::result(std::optional<ModalResponse> answer) const {
    if (fQuitting)
        return CloseResult::Accept;
    return answer.value_or(cAlertFirstButtonReturn) == cAlertFirstButtonReturn
               ? CloseResult::Hide
               : CloseResult::KeepOpen;
}

std::optional<Alert> ClosePolicy::questionBeforeQuitting(const WorkState& work,
                                                         bool withoutAsking) const {
    const bool copies = (work.phase == WorkPhase::Running || work.phase == WorkPhase::Finishing) &&
                        !work.file.isEmpty();
    if (fQuitting || withoutAsking || !copies)
        return std::nullopt;
    QString what = work.file;
    if (work.share)
        what = Words::listed({what, Words::percent(*work.share)});
    return Alert{Words::tr("Quit while movies are being copied?"),
                 Words::tr("The pass that runs will be ended: %1. The next start goes on from "
                           "there.")
                     .arg(what),
                 AlertStyle::Informational,
                 {Words::tr("Quit"), Words::tr("Keep Running")},
                 false};
}

} // namespace kelvo
