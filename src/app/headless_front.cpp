// The front without a window.
#include "adapters/console/headless_desktop.h"
#include "adapters/console/headless_outlets.h"
#include "app/front.h"
#include "app/main_window_controller.h"
#include "ui/observed_status_field.h"
#include "ui/view_controller.h"

#include <QCoreApplication>

namespace kelvo {
namespace {

class HeadlessFront final : public Front {
public:
    explicit HeadlessFront(const FrontParts& parts)
        : fStartButton([this](Control* sender) { fController->ibStartRSyncProcess(sender); }),
          fStatusField(std::make_shared<ObservedStatusField>(
              std::make_shared<HeadlessStatusField>(parts.console), parts.trouble)),
          fAlerts(parts.console, parts.mainQueue), fView(parts.console), fSheets(parts.console),
          fOpenPanel(parts.console), fTerminal(parts.console),
          fApplication([] { QCoreApplication::quit(); }) {}

    Application& application() override { return fApplication; }
    std::shared_ptr<WindowController> windowController() override { return fWindowController; }
    FrontOutlets outlets() override {
        return {
            .view = fView,
            .alertPresenter = fAlerts,
            .sheets = fSheets,
            .openPanel = fOpenPanel,
            .terminal = fTerminal,
            .pasteboard = fPasteboard,
            .fArrayController = fFoundServices,
            .ibStartButton = fStartButton,
            .ibRevealButton1 = nullptr,
            .ibRevealButton2 = nullptr,
            .ibStatusTextField = fStatusField,
            .fNsPathControl1 = fPathControl,
        };
    }
    void sendActionsTo(ViewController& controller, AppDelegate&) override {
        fController = &controller;
    }

private:
    ViewController* fController = nullptr;
    HeadlessButton fStartButton;
    std::shared_ptr<ObservedStatusField> fStatusField;
    HeadlessAlerts fAlerts;
    HeadlessView fView;
    HeadlessSheetOpener fSheets;
    HeadlessOpenPanel fOpenPanel;
    HeadlessTerminal fTerminal;
    HeadlessPasteboard fPasteboard;
    HeadlessArrayController fFoundServices;
    HeadlessApplication fApplication;
    std::shared_ptr<HeadlessPathControl> fPathControl = std::make_shared<HeadlessPathControl>();
    std::shared_ptr<MainWindowController> fWindowController =
        std::make_shared<MainWindowController>([] {});
};

} // namespace

std::unique_ptr<Front> makeHeadlessFront(const FrontParts& parts) {
    return std::make_unique<HeadlessFront>(parts);
}

} // namespace kelvo
