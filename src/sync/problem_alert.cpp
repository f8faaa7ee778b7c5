#include "sync/problem_alert.h"

#include "ports/console.h"
#include "ports/control.h"
#include "ports/dispatch_queue.h"
#include "support/fatal.h"
#include "sync/sync_cycle.h"

namespace kelvo {
namespace {

QString alertTextFor(const HostVerdict& verdict) {
    if (verdict == HostVerdict::CheckSshKeys)
        return QStringLiteral(
            "Missing ssh keys -\nPlease generate ssh keys\n and \n try again...\n");
    return u"Please make sure remote host is on this network\nor\nPlease check username...\n\n" +
           verdict.text() + u'\n';
}

} // namespace

void ProblemAlert::raise(const HostVerdict& verdict) {
    fParts.mainQueue.asyncAfter(0.01, [this] {
        fOffByItself = setSyncing(false);
        fParts.view.updateStatusMessage(std::nullopt, StatusColor::Black, true);
    });
    fParts.mainQueue.asyncAfter(0.1, [this, text = alertTextFor(verdict)] {
        fAsks = true;
        fNobodyAnswered = false;
        fParts.view.showProblemWithBonjourClosure(
            QStringLiteral("Unable to Reach Remote Host"), text,
            [this](ModalResponse response) { answer(response); });
    });
}

void ProblemAlert::answer(ModalResponse response) {
    fParts.console.log(u"response = " + QString::number(response));
    if (!fAsks)
        return;
    fParts.answered();
    if (response == cModalResponseStop) {
        fNobodyAnswered = true;
        return;
    }
    fAsks = false;
    if (response == cAlertFirstButtonReturn) {
        fParts.mainQueue.asyncAfter(0.1, [this, byItself = fNobodyAnswered] {
            if (!byItself || fOffByItself)
                setSyncing(true);
        });
    } else if (response == cAlertSecondButtonReturn) {
        setSyncing(false);
        fParts.view.updateStatusMessage(
            QStringLiteral("oops - something went wrong - check settings and hardware "
                           "connections - then try again..."),
            StatusColor::Red, true);
    }
}

/// A click turns the button over; one that stands right already is left alone. Returns whether
/// there was a click.
bool ProblemAlert::setSyncing(bool on) {
    Button* const button = fParts.view.ibStartButton;
    if (!button)
        stopProgram("the start button is not there");
    if ((button->state() == 1) == on)
        return false;
    button->performClick();
    return true;
}

} // namespace kelvo
