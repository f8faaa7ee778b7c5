#include "ui/widgets/sheet_presenter.h"

#include <QMessageBox>
#include <QPushButton>

#include <memory>

namespace kelvo {
namespace {

constexpr const char* cPlace = "place"; // a button's place in the alert, as a property

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
        if (place == 0)
            box->setDefaultButton(button);
        else
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

SheetPresenter::SheetPresenter(QWidget& mainWindow) : fMainWindow(&mainWindow) {}

SheetPresenter::~SheetPresenter() {
    for (const auto& [sheet, box] : fOpenSheets) {
        if (box) {
            box->disconnect();
            delete box;
        }
    }
}

SheetId SheetPresenter::beginSheet(const Alert& alert, std::function<void(ModalResponse)> handler) {
    const SheetId sheet = ++fLastSheet;
    QMessageBox* box = makeBox(alert, fMainWindow).release();
    box->setAttribute(Qt::WA_DeleteOnClose);
    box->setWindowModality(Qt::WindowModal);
    fOpenSheets.emplace(sheet, box);
    QObject::connect(box, &QMessageBox::finished, box,
                     [this, sheet, box, handler = std::move(handler)] {
                         if (fOpenSheets.erase(sheet) > 0 && handler)
                             handler(responseOf(*box));
                     });
    box->show();
    return sheet;
}

void SheetPresenter::endSheet(SheetId sheet) {
    const auto found = fOpenSheets.find(sheet);
    if (found != fOpenSheets.end() && found->second)
        found->second->done(cModalResponseStop);
}

ModalResponse SheetPresenter::runModal(const Alert& alert) {
    const auto box = makeBox(alert, fMainWindow);
    box->setWindowModality(Qt::ApplicationModal);
    box->exec();
    return responseOf(*box);
}

} // namespace kelvo
