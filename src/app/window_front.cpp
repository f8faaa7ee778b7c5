// The front with the main window.
#include "app/front.h"
#include "app/main_window_controller.h"
#include "app/start/app_delegate.h"
#include "app/window_actions.h"
#include "ports/dispatch_queue.h"
#include "ports/status_menu.h"
#include "ui/close_policy.h"
#include "ui/observed_status_field.h"
#include "ui/view_controller.h"
#include "ui/widgets/activity_tab.h"
#include "ui/widgets/bonjour_sheet.h"
#include "ui/widgets/checklist_view.h"
#include "ui/widgets/icons.h"
#include "ui/widgets/main_window.h"
#include "ui/widgets/service_list.h"
#include "ui/widgets/settings_tab.h"
#include "ui/widgets/sheet_presenter.h"
#include "ui/widgets/status_field_view.h"
#include "ui/widgets/sync_tab.h"
#include "ui/widgets/widget_button.h"
#include "ui/widgets/widget_controls.h"
#include "ui/widgets/widget_main_view.h"
#include "ui/widgets/widget_open_panel.h"

#include <QClipboard>
#include <QGuiApplication>

namespace kelvo {
namespace {

class WindowFront final : public Front {
public:
    explicit WindowFront(const FrontParts& parts)
        : fParts(parts), fWindow(parts.defaults, parts.mainQueue), fView(fWindow),
          fApplication(fWindow, [this] { fClosePolicy.programQuits(); }),
          fStartButton(fWindow.ibStartButton(),
                       [this](Control* sender) { fController->ibStartRSyncProcess(sender); }),
          fRevealButton1(fWindow.button(QStringLiteral("ibRevealButton1"))),
          fRevealButton2(fWindow.button(QStringLiteral("ibRevealButton2"))),
          fStatusField(std::make_shared<ObservedStatusField>(
              std::make_shared<WidgetStatusField>(fWindow.ibStatusTextField()), parts.trouble)),
          fPathControl(std::make_shared<WidgetPathControl>(fWindow.fNsPathControl1())),
          fAlerts(fWindow),
          fSheets(fWindow, {parts.defaults, parts.mainQueue, parts.console, parts.browser}),
          fOpenPanel(fWindow), fFoundServices(fWindow.foundServices()),
          fWindowController(
              std::make_shared<MainWindowController>([this] { fWindow.bringToFront(); })) {
        // Drawing the icon takes a while; the window does not wait for it.
        parts.mainQueue.async([this] { fWindow.setWindowIcon(applicationIcon()); });
        fWindow.activityTab().setStore(parts.passes);
        fWindow.settingsTab().setLoginItem(parts.loginItem);
        fWindow.setMayClose([this] { return mayClose(); });
    }

    Application& application() override { return fApplication; }
    std::shared_ptr<WindowController> windowController() override { return fWindowController; }
    FrontOutlets outlets() override {
        return {
            .view = fView,
            .alertPresenter = fAlerts,
            .sheets = fSheets,
            .openPanel = fOpenPanel,
            .terminal = fParts.terminal,
            .pasteboard = fPasteboard,
            .fArrayController = fFoundServices,
            .ibStartButton = fStartButton,
            .ibRevealButton1 = &fRevealButton1,
            .ibRevealButton2 = &fRevealButton2,
            .ibStatusTextField = fStatusField,
            .fNsPathControl1 = fPathControl,
        };
    }

    void sendActionsTo(ViewController& controller, AppDelegate& delegate) override {
        fController = &controller;
        fDelegate = &delegate;
        fOnceButtons = sendWindowActions(fWindow, controller, fParts.workspace, fPathControl);
        fWindow.syncTab().checklist().setMend([this](Mend mend) { mendBy(mend); });
        fChecklist.emplace(Checklist::Parts{fParts.defaults, fParts.mainQueue, fParts.bgQueue,
                                            fParts.files, fParts.passes,
                                            [this](const std::vector<ChecklistLine>& lines) {
                                                fWindow.syncTab().checklist().setLines(lines);
                                            }});
        QObject::connect(&fWindow, &MainWindow::activated, &fWindow,
                         [this] { fChecklist->look(); });
        QObject::connect(&fWindow, &MainWindow::keyStateShown, &fWindow,
                         [this](KeyState state) { fChecklist->setKeyState(state); });
        addApplicationMenu(fWindow, controller, delegate, fParts.workspace, fParts.logFolder,
                           [this] { fApplication.terminate(); });
    }

private:
    void mendBy(Mend mend) {
        switch (mend) {
        case Mend::ShowRemoteTab:
            fWindow.showTab(QStringLiteral("remote"));
            break;
        case Mend::ChooseSource:
            fWindow.button(QStringLiteral("ibSelectFolder1Action")).click();
            break;
        case Mend::ChooseDestination:
            fWindow.button(QStringLiteral("ibSelectFolder2Action")).click();
            break;
        case Mend::CopyInstallCommand:
            QGuiApplication::clipboard()->setText(cInstallCommand.toString());
            break;
        }
    }

    bool mayClose() {
        std::optional<ModalResponse> answer;
        if (const auto note = fClosePolicy.noteBeforeClosing(fParts.statusMenu.isReachable()))
            answer = fAlerts.runModal(*note);
        const CloseResult result = fClosePolicy.result(answer);
        if (result == CloseResult::Hide && fDelegate &&
            fDelegate->applicationShouldTerminateAfterLastWindowClosed())
            fApplication.terminate();
        return result != CloseResult::KeepOpen;
    }

    const FrontParts fParts;
    ViewController* fController = nullptr;
    AppDelegate* fDelegate = nullptr;
    ClosePolicy fClosePolicy;
    std::optional<Checklist> fChecklist;
    MainWindow fWindow;
    WidgetMainView fView;
    WidgetApplication fApplication;
    WidgetButton fStartButton;
    WidgetControl fRevealButton1;
    WidgetControl fRevealButton2;
    std::shared_ptr<ObservedStatusField> fStatusField;
    std::shared_ptr<WidgetPathControl> fPathControl;
    SheetPresenter fAlerts;
    WidgetSheetOpener fSheets;
    WidgetOpenPanel fOpenPanel;
    WidgetPasteboard fPasteboard;
    ServiceList fFoundServices;
    OnceButtons fOnceButtons;
    std::shared_ptr<MainWindowController> fWindowController;
};

} // namespace

std::unique_ptr<Front> makeWindowFront(const FrontParts& parts) {
    return std::make_unique<WindowFront>(parts);
}

} // namespace kelvo
