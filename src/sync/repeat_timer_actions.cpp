#include "sync/repeat_timer_actions.h"

#include "ports/console.h"
#include "support/text.h"

#include <QDateTime>

#include <utility>

namespace kelvo {
namespace {

constexpr double cRepeatInterval = 1.0;

} // namespace

RepeatingTimer* RepeatTimerActions::repeatTimer() {
    if (!std::exchange(fRepeatTimerMade, true))
        fRepeatTimer = std::make_unique<RepeatingTimer>(fMainQueue, cRepeatInterval,
                                                        [this] { repeatStuffToDo(); });
    return fRepeatTimer.get();
}

void RepeatTimerActions::setupRepeatTimer() {
    fConsole.log(insideLine(cViewControllerTypeName, u"setupRepeatTimer()", u".........."));
    repeatTimer();
}

void RepeatTimerActions::repeatStuffToDo() {
    fConsole.log(insideLine(cViewControllerTypeName, u"repeatStuffToDo()",
                            QString(u".......Timer Fired..." +
                                    QDateTime::currentDateTime().toString(Qt::ISODateWithMs))));
}

void RepeatTimerActions::ibSuspendTimer() {
    RepeatingTimer* timer = repeatTimer();
    if (!timer) {
        fConsole.log(QStringLiteral("......self.fRepeatTimer - NIL...."));
        return;
    }
    fConsole.log(QStringLiteral("......trying to SUSPEND/Pause...."));
    timer->suspend();
}

void RepeatTimerActions::ibResumeTimer() {
    RepeatingTimer* timer = repeatTimer();
    if (!timer) {
        fConsole.log(QStringLiteral("......self.fRepeatTimer - NIL...."));
        return;
    }
    fConsole.log(QStringLiteral("......trying to resume...."));
    timer->resume();
}

void RepeatTimerActions::ibKillTimer() {
    fRepeatTimerMade = true;
    fRepeatTimer.reset();
    fConsole.log(u".....self.fRepeatTimer = " + optionalText(std::nullopt) + u".....");
}

} // namespace kelvo
