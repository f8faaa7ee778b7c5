// SheetPresenter: alerts as message boxes that are modal to the main window.
#pragma once

#include "ports/alert_presenter.h"

#include <QPointer>

#include <map>

class QMessageBox;
class QWidget;

namespace kelvo {

class SheetPresenter final : public AlertPresenter {
public:
    explicit SheetPresenter(QWidget& mainWindow);
    ~SheetPresenter() override;

    bool hasWindow() const override { return !fMainWindow.isNull(); }
    SheetId beginSheet(const Alert& alert, std::function<void(ModalResponse)> handler) override;
    void endSheet(SheetId sheet) override;
    ModalResponse runModal(const Alert& alert) override;

private:
    QPointer<QWidget> fMainWindow;
    std::map<SheetId, QPointer<QMessageBox>> fOpenSheets;
    SheetId fLastSheet = 0;
};

} // namespace kelvo
