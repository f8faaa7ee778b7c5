#include "adapters/console/headless_outlets.h"

#include "adapters/console/line_priority.h"
#include "ports/console.h"
#include "ports/dispatch_queue.h"
#include "support/text.h"

#include <utility>

namespace kelvo {
namespace {

QString onOneLine(QString text) {
    return text.replace(QStringLiteral("\n"), QStringLiteral("\\n"));
}

} // namespace

void HeadlessView::showNetworkStatus(const QString& text) {
    if (!text.isEmpty())
        fConsole.print(u"network: " + text);
}

void HeadlessView::showWork(const WorkState& work) {
    const QString progress = progressLine(work);
    if (progress != std::exchange(fProgress, progress) && !progress.isEmpty())
        fConsole.print(u"progress: " + progress);
    if (work.health.text != std::exchange(fHealth, work.health.text))
        fConsole.print(u"health: " + work.health.text);
    if (fShown)
        fShown(work);
}

Subscription HeadlessView::observeAttention(std::function<void(Attention)> changed) {
    changed(Attention::Lines);
    return {};
}

bool HeadlessView::presentSheet(QStringView identifier) {
    fConsole.print(u"There is no window to show the sheet " + identifier + u" on.");
    return identifier == cBonjourVCstoryboardID;
}

void HeadlessButton::performClick() {
    fState = 1 - fState;
    fAction(this);
}

void HeadlessStatusField::setAttributedStringValue(const AttributedString& value) {
    fConsole.print(cStatusLine + colorName(value.foregroundColor) + u": " +
                   onOneLine(value.string));
}

void HeadlessStatusField::clear() {
    fConsole.print(cStatusLine + colorName(StatusColor::Black) + u": ");
}

SheetId HeadlessAlerts::beginSheet(const Alert& alert, std::function<void(ModalResponse)> handler) {
    const SheetId sheet = ++fLastSheet;
    fOpenSheets.emplace(sheet, std::move(handler));
    printAlert(alert);
    if (!alert.answersItself)
        answer(sheet, cAlertFirstButtonReturn);
    return sheet;
}

void HeadlessAlerts::endSheet(SheetId sheet) {
    answer(sheet, cModalResponseStop);
}

ModalResponse HeadlessAlerts::runModal(const Alert& alert) {
    printAlert(alert);
    return cAlertFirstButtonReturn;
}

void HeadlessAlerts::printAlert(const Alert& alert) {
    fConsole.print(cAlertLine + onOneLine(alert.messageText) + u" | " +
                   onOneLine(alert.informativeText));
}

void HeadlessAlerts::answer(SheetId sheet, ModalResponse response) {
    auto answered = fOpenSheets.extract(sheet);
    if (answered)
        fMainQueue.async([handler = std::move(answered.mapped()), response] { handler(response); });
}

std::optional<QString> HeadlessPathControl::url() const {
    return fUrl.isEmpty() ? std::nullopt : std::optional(fUrl);
}

} // namespace kelvo
