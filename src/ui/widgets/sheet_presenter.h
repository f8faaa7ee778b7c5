// SheetPresenter: alerts as message boxes that are modal to the main window.
#pragma once

#include "ports/alert_presenter.h"

#include <QPointer>

#include <functional>
#include <map>
#include <memory>

class QMessageBox;
class QWidget;

namespace kelvo {

class DesktopNotices;
class DispatchQueue;

/// An alert that answers itself says how many seconds are left; over a hidden or minimised window
/// it is a notice instead, and nobody but its maker answers it. No sheet takes the keyboard from
/// another program.
class SheetPresenter final : public AlertPresenter {
public:
    struct Parts {
        QWidget& mainWindow; ///< may go first
        DispatchQueue& mainQueue;
        DesktopNotices& notices;
        std::function<void()> showWhy; ///< what "Show" does on the notice
    };
    struct Answer {
        ModalResponse response;
        bool ticked;
    };

    explicit SheetPresenter(Parts parts);
    ~SheetPresenter() override;

    bool hasWindow() const override { return !fMainWindow.isNull(); }
    SheetId beginSheet(const Alert& alert, std::function<void(ModalResponse)> handler) override;
    void endSheet(SheetId sheet) override;
    ModalResponse runModal(const Alert& alert) override;

    /// As above, with a box named `tick` that can be ticked.
    Answer runModal(const Alert& alert, const QString& tick);

private:
    struct Sheet {
        QPointer<QMessageBox> box; ///< none for a notice
        std::function<void(ModalResponse)> handler;
    };
    bool isSeen() const;
    void answer(SheetId sheet, ModalResponse response);
    void countDown(SheetId sheet, const QString& text, int secondsLeft);

    QPointer<QWidget> fMainWindow;
    DispatchQueue& fMainQueue;
    DesktopNotices& fNotices;
    const std::function<void()> fShowWhy;
    std::map<SheetId, Sheet> fOpenSheets;
    SheetId fLastSheet = 0;
    std::shared_ptr<int> fAlive = std::make_shared<int>();
};

} // namespace kelvo
