// The front without a window.
#include "adapters/console/headless_desktop.h"
#include "adapters/console/headless_outlets.h"
#include "app/front.h"
#include "app/machine_parts.h"
#include "support/array_controller.h"
#include "ui/main_window_controller.h"
#include "ui/view_controller.h"

#include <QCoreApplication>

namespace kelvo {
namespace {

class HeadlessFront final : public Front {
public:
    HeadlessFront(MachineParts& machine, std::function<void(const WorkState&)> shown)
        : fStartButton([this](Control* sender) { fController->ibStartRSyncProcess(sender); }),
          fStatusField(std::make_shared<HeadlessStatusField>(machine.console)),
          fAlerts(machine.console, machine.mainQueue), fView(machine.console, std::move(shown)),
          fOpenPanel(machine.console), fTerminal(machine.console),
          fApplication([] { QCoreApplication::quit(); }) {}

    Application& application() override { return fApplication; }
    std::shared_ptr<MainWindowController> windowController() override { return fWindowController; }
    Outlets outlets() override {
        return {
            .application = fApplication,
            .view = fView,
            .alertPresenter = fAlerts,
            .presentSheet =
                [this](QStringView identifier) { return fView.presentSheet(identifier); },
            .openPanel = fOpenPanel,
            .terminal = fTerminal,
            .copyText = [](const QString&) {},
            .fArrayController = fFoundServices,
            .ibStartButton = &fStartButton,
            .ibRevealButton1 = nullptr,
            .ibRevealButton2 = nullptr,
            .ibStatusTextField = fStatusField,
            .fNsPathControl1 = fPathControl,
        };
    }
    void quit() override { fApplication.terminate(); }
    void sendActionsTo(ViewController& controller, AppDelegate&) override {
        fController = &controller;
    }

private:
    ViewController* fController = nullptr;
    HeadlessButton fStartButton;
    std::shared_ptr<HeadlessStatusField> fStatusField;
    HeadlessAlerts fAlerts;
    HeadlessView fView;
    HeadlessOpenPanel fOpenPanel;
    HeadlessTerminal fTerminal;
    ArrayController fFoundServices;
    HeadlessApplication fApplication;
    std::shared_ptr<HeadlessPathControl> fPathControl = std::make_shared<HeadlessPathControl>();
    std::shared_ptr<MainWindowController> fWindowController =
        std::make_shared<MainWindowController>([] {});
};

} // namespace

FrontKind headlessFront() {
    return {
        .hasWindow = false,
        .bus = lateBusParts(),
        .makeWorkspace = [](PassMachine&) -> std::unique_ptr<Workspace> {
            return std::make_unique<HeadlessWorkspace>();
        },
        .makeStatusMenu = [](DispatchQueue&, const Profile&) -> StatusMenuParts {
            return {.menu = std::make_shared<HeadlessStatusMenu>()};
        },
        .makeFront = [](MachineParts& machine, const std::function<void(const WorkState&)>& shown)
            -> std::unique_ptr<Front> { return std::make_unique<HeadlessFront>(machine, shown); },
    };
}

} // namespace kelvo
