#include "app/start/app_delegate.h"

#include "app/start/interface_registry.h"
#include "ports/bundle.h"
#include "ports/console.h"
#include "ports/log_file.h"
#include "settings/factory_defaults.h"
#include "support/fatal.h"
#include "support/text.h"
#include "ui/kelvo_status_menu_handler.h"
#include "ui/main_window_controller.h"
#include "ui/template_setting.h"

#include <utility>

namespace kelvo {
namespace {

constexpr QStringView cTypeName = u"Kelvo_Mirror.AppDelegate";
constexpr unsigned long cMostRelaunches = 4;
constexpr double cRelaunchInterval = 30.0;

/// Said for either controller.
constexpr std::string_view cWrongController =
    "Unable to instantiate NSWindowController[] in Main.storyboard!";

QString optionalDescription(const InterfaceController* controller) {
    return controller ? QString(u"Optional(" + controller->description() + u')')
                      : QStringLiteral("nil");
}

} // namespace

AppDelegate::AppDelegate(AppDelegateParts parts) : fParts(std::move(parts)) {
    printInside(u"init()");
    doBasicStartUpStuff();
    registerFactoryDefaults(fParts.mainBundle, fParts.defaults, fParts.console);
    TemplateSetting(fParts.defaults).takeOver();
}

AppDelegate::~AppDelegate() {
    printInside(u"deinit");
}

void AppDelegate::doBasicStartUpStuff() {
    constexpr QStringView operation = u"doBasicStartUpStuff()";
    printInside(operation);
    const QString logFile = fParts.logger.defaultLogFileWithinSubdirectory(fParts.logSubdirectory);
    if (!fParts.logger.setLogFile(logFile))
        fParts.console.log(u"Cannot write the log file " + logFile);
    fParts.console.log(insideLine(
        cTypeName, operation,
        QString(u"...Trying to Launch -> NSRunningApplication: " + fParts.runningApplication)));
    fParts.checkForDuplicateRunningInstances();
    fParts.logCurrentSystemInfo();
    fParts.console.log(insideLine(cTypeName, operation, u"...Done..."));
}

// -- launching and ending

void AppDelegate::applicationWillFinishLaunching() {
    constexpr QStringView operation = u"applicationWillFinishLaunching(_:)";
    printInside(operation);
    ibActionFromDelegate(nullptr);

    KelvoStatusMenuHandler& handler = myStatusMenuHandler();
    printInside(operation,
                QString(u".......created self.myStatusMenuHandler = " + handler.description()));

    MainWindowController& window = fWindowController();
    printInside(u"fWindowController", QString(u".......controller = " + window.description()));
    printInside(u"fWindowController", optionalDescription(window.contentViewController()));
    MainViewController& mainView = fViewController();
    window.setContentViewController(mainView);
    handler.setWindowController(&window);
    handler.setMainVC(&mainView);

    const auto information = fParts.mainBundle.propertyList(QStringLiteral("Info"));
    const QVariant isAgent =
        information ? information->value(QStringLiteral("LSUIElement")) : QVariant();
    if (isAgent.typeId() == QMetaType::Bool)
        printInside(operation, isAgent.toBool() ? u".......LSUIElement = TRUE..."
                                                : u".......LSUIElement = FALSE...");

    window.showWindow();
    printInside(operation, QString(u"..........self.myStatusMenuHandler?.fMainVC = " +
                                   optionalDescription(handler.fMainVC())));
    ibSetupStatusItemStuff(nullptr);
}

bool AppDelegate::applicationShouldTerminateAfterLastWindowClosed() {
    printInside(u"applicationShouldTerminateAfterLastWindowClosed(_:)");
    return false;
}

// -- actions

void AppDelegate::ibActionFromDelegate(Control*) {
    printInside(u"ibActionFromDelegate(_:)", u".......Setting UP watchdog...");
    fParts.autoRelaunchUnless(cMostRelaunches, cRelaunchInterval,
                              [](unsigned long, double) { return false; });
}

void AppDelegate::ibSetupStatusItemStuff(Control*) {
    printInside(u"ibSetupStatusItemStuff(_:)", u"..........");
    myStatusMenuHandler().setupStatusMenuStuff();
}

void AppDelegate::ibRemoveStatusItemStuff(Control*) {
    printInside(u"ibRemoveStatusItemStuff(_:)", u"..........");
    myStatusMenuHandler().removeStatusMenuStuff();
}

void AppDelegate::ibQuitAndRelaunch(Control*) {
    printInside(u"ibQuitAndRelaunch(_:)", u"..........");
    myStatusMenuHandler().removeStatusMenuStuff();
}

bool AppDelegate::statusItemIsSetUp() const {
    return fLazyStatusMenuHandler && fLazyStatusMenuHandler->isSetUp();
}

// -- what is made on first use

MainWindowController& AppDelegate::fWindowController() {
    if (!fLazyWindowController) {
        fLazyWindowController =
            fParts.storyboard.instantiate<MainWindowController>(cMyWindowControllerID);
        if (!fLazyWindowController)
            stopProgram(cWrongController);
    }
    return *fLazyWindowController;
}

MainViewController& AppDelegate::fViewController() {
    if (!fLazyViewController) {
        fLazyViewController =
            fParts.storyboard.instantiate<MainViewController>(cMyViewControllerID);
        if (!fLazyViewController)
            stopProgram(cWrongController);
    }
    return *fLazyViewController;
}

KelvoStatusMenuHandler& AppDelegate::myStatusMenuHandler() {
    if (!fLazyStatusMenuHandler) {
        fLazyStatusMenuHandler = fParts.makeStatusMenuHandler();
        printInside(u"myStatusMenuHandler",
                    QString(u".......created handler = " + fLazyStatusMenuHandler->description()));
    }
    return *fLazyStatusMenuHandler;
}

void AppDelegate::printInside(QStringView operation, QStringView detail) const {
    fParts.console.print(insideLine(cTypeName, operation, detail));
}

} // namespace kelvo
