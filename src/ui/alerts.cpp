#include "ui/alerts.h"

#include "ports/alert_presenter.h"
#include "ports/console.h"
#include "ports/dispatch_queue.h"
#include "support/fatal.h"
#include "support/text.h"
#include "ui/words.h"

#include <utility>

namespace kelvo {
namespace {

constexpr double cSheetDelay = 0.1;

void requireWindow(const AlertPresenter& presenter) {
    if (!presenter.hasWindow())
        stopProgram("An alert has no main window to be shown on.");
}

} // namespace

void Alerts::showAlertWithClosure(const QString& message, const std::optional<QString>& text,
                                  const std::optional<QList<ButtonDescription>>& buttons,
                                  AlertCompletion completion) {
    printEntry(u"showAlertWithClosure(message:text:buttons:completion:)");
    Alert alert{message, text.value_or(QString()), AlertStyle::Critical, {}, false};
    for (const ButtonDescription& button : buttons.value_or(QList<ButtonDescription>())) {
        if (const auto title = button.constFind(QStringLiteral("title")); title != button.cend())
            alert.buttons.append(*title);
    }
    fMainQueue.asyncAfter(cSheetDelay, [&presenter = fPresenter, alert = std::move(alert),
                                        completion = std::move(completion)] {
        requireWindow(presenter);
        presenter.beginSheet(alert, completion);
    });
}

bool Alerts::showChoices(const QString& message, const QString& text) {
    printEntry(u"showChoices(message:text:)");
    const Alert alert{message,
                      text,
                      AlertStyle::Informational,
                      {Words::tr("Open in Finder"), Words::tr("Show Enclosing")},
                      false};
    return fPresenter.runModal(alert) == cAlertFirstButtonReturn;
}

std::optional<Alert> Alerts::showProblemWithBonjourNew(const QString& message,
                                                       const QString& text) {
    printEntry(u"showProblemWithBonjourNew(message:text:)");
    return Alert{message,
                 text,
                 AlertStyle::Critical,
                 {Words::tr("Retry Again..."), Words::tr("Stop")},
                 true};
}

void Alerts::showProblemWithBonjourClosure(const QString& message, const QString& text,
                                           AlertCompletion completion) {
    printEntry(u"showProblemWithBonjourClosure(message:text:completion:)");
    fMainQueue.asyncAfter(cSheetDelay, [this, message, text, completion = std::move(completion)] {
        showProblem(message, text, completion);
    });
}

void Alerts::showProblem(const QString& message, const QString& text,
                         const AlertCompletion& completion) {
    const auto alert = showProblemWithBonjourNew(message, text);
    if (!alert)
        return;
    requireWindow(fPresenter);
    const SheetId sheet = fPresenter.beginSheet(*alert, completion);
    // Answered or not, the alert goes after its time and the answer "again" follows.
    fMainQueue.asyncAfter(cSelfAnswerSeconds, [this, sheet, completion] {
        if (fPresenter.hasWindow())
            fPresenter.endSheet(sheet);
        fMainQueue.asyncAfter(cSheetDelay, [completion] { completion(cAlertFirstButtonReturn); });
    });
}

void Alerts::printEntry(QStringView operation) {
    fConsole.print(insideLine(cViewControllerTypeName, operation));
}

} // namespace kelvo
