#include "ui/widgets/sheet_presenter.h"

#include "ports/desktop_notices.h"
#include "ports/dispatch_queue.h"
#include "ui/words.h"

#include <QCheckBox>
#include <QMessageBox>
#include <QPushButton>

#include <utility>

namespace kelvo {
namespace {

constexpr const char* cPlace = "place"; // a button's place in the alert, as a property

/// The same in the person's language; the program's lower parts ask in English.
Alert shown(Alert alert) {
    alert.messageText = Words::shown(alert.messageText);
    alert.informativeText = Words::shown(alert.informativeText);
    return alert;
}

std::unique_ptr<QMessageBox> makeBox(const Alert& alert, QWidget* parent) {
    auto box = std::make_unique<QMessageBox>(parent);
    box->setObjectName(QStringLiteral("alert"));
    box->setIcon(alert.style == AlertStyle::Critical ? QMessageBox::Critical
                                                     : QMessageBox::Information);
    box->setWindowTitle(alert.messageText);
    box->setTextFormat(Qt::PlainText);
    box->setText(alert.messageText);
    box->setInformativeText(alert.informativeText);
    for (int place = 0; place < alert.buttons.size(); ++place) {
        QPushButton* button = box->addButton(
            alert.buttons[place], place == 0 ? QMessageBox::AcceptRole : QMessageBox::RejectRole);
        button->setProperty(cPlace, place);
        if (place == alert.defaultButton)
            box->setDefaultButton(button);
        if (place > 0)
            box->setEscapeButton(button);
    }
    if (alert.buttons.isEmpty())
        box->setStandardButtons(QMessageBox::Ok);
    return box;
}

ModalResponse responseOf(const QMessageBox& box) {
    const auto* clicked = box.clickedButton();
    return clicked ? cAlertFirstButtonReturn + clicked->property(cPlace).toInt()
                   : cModalResponseStop;
}

} // namespace

SheetPresenter::SheetPresenter(Parts parts)
    : fMainWindow(&parts.mainWindow), fMainQueue(parts.mainQueue), fNotices(parts.notices),
      fShowWhy(std::move(parts.showWhy)) {}

SheetPresenter::~SheetPresenter() {
    for (const auto& [number, sheet] : fOpenSheets) {
        if (sheet.box) {
            sheet.box->disconnect();
            delete sheet.box;
        }
    }
}

SheetId SheetPresenter::beginSheet(const Alert& said, std::function<void(ModalResponse)> handler) {
    const Alert alert = shown(said);
    const SheetId sheet = ++fLastSheet;
    Sheet& open = fOpenSheets[sheet];
    open.handler = std::move(handler);
    if (alert.answersItself && !isSeen()) {
        fNotices.showNotice({.title = alert.messageText,
                             .text = alert.informativeText.trimmed(),
                             .urgent = true,
                             .show = fShowWhy});
        return sheet;
    }
    QMessageBox* box = makeBox(alert, fMainWindow).release();
    open.box = box;
    box->setAttribute(Qt::WA_DeleteOnClose);
    box->setAttribute(Qt::WA_ShowWithoutActivating, !fMainWindow->isActiveWindow());
    box->setWindowModality(Qt::WindowModal);
    QObject::connect(box, &QMessageBox::finished, box,
                     [this, sheet, box] { answer(sheet, responseOf(*box)); });
    if (alert.answersItself)
        countDown(sheet, alert.informativeText, cSelfAnswerSeconds);
    box->show();
    return sheet;
}

void SheetPresenter::endSheet(SheetId sheet) {
    const auto found = fOpenSheets.find(sheet);
    if (found == fOpenSheets.end())
        return;
    if (found->second.box)
        found->second.box->done(cModalResponseStop);
    else
        answer(sheet, cModalResponseStop);
}

ModalResponse SheetPresenter::runModal(const Alert& alert) {
    return runModal(alert, {}).response;
}

SheetPresenter::Answer SheetPresenter::runModal(const Alert& alert, const QString& tick) {
    const auto box = makeBox(shown(alert), fMainWindow);
    box->setWindowModality(Qt::ApplicationModal);
    if (!tick.isEmpty())
        box->setCheckBox(new QCheckBox(tick));
    box->exec();
    return {responseOf(*box), box->checkBox() && box->checkBox()->isChecked()};
}

bool SheetPresenter::isSeen() const {
    return fMainWindow && fMainWindow->isVisible() && !fMainWindow->isMinimized();
}

void SheetPresenter::answer(SheetId sheet, ModalResponse response) {
    const auto answered = fOpenSheets.extract(sheet);
    if (answered && answered.mapped().handler)
        answered.mapped().handler(response);
}

void SheetPresenter::countDown(SheetId sheet, const QString& text, int secondsLeft) {
    const auto found = fOpenSheets.find(sheet);
    if (secondsLeft == 0 || found == fOpenSheets.end() || !found->second.box)
        return;
    found->second.box->setInformativeText(QString(
        text + u'\n' + QObject::tr("Without an answer, it tries again in %1 s.").arg(secondsLeft)));
    fMainQueue.asyncAfter(1.0, [this, sheet, text, secondsLeft, alive = std::weak_ptr(fAlive)] {
        if (!alive.expired())
            countDown(sheet, text, secondsLeft - 1);
    });
}

} // namespace kelvo
