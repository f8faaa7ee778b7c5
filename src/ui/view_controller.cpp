#include "ui/view_controller.h"

#include "ports/application.h"
#include "ports/bundle.h"
#include "ports/console.h"
#include "ports/dispatch_queue.h"
#include "ports/main_view.h"
#include "ports/notification_center.h"
#include "ports/notification_text.h"
#include "ports/relaunch_guard.h"
#include "settings/preference_keys.h"
#include "support/property_value.h"
#include "support/text.h"

namespace kelvo {
namespace {

constexpr double cReactionDelay = 0.1;
constexpr double cWindowRetryDelay = 0.1;
constexpr QStringView cViewDidLoad = u"viewDidLoad()";
constexpr QStringView cQuitRelaunchNotification = u"QuitRelaunchNotification";

/// How a stored value reads in a diagnostic line.
QString valueText(const QVariant& value) {
    return stringValue(value).value_or(QString(u'(' + QLatin1StringView(value.typeName()) + u')'));
}

/// How something that may not be there reads in a diagnostic line.
QString objectText(const void* object, QStringView type) {
    if (!object)
        return QStringLiteral("nil");
    return u"Optional(<" + type + u": 0x" +
           QString::number(reinterpret_cast<quintptr>(object), 16) + u">)";
}

} // namespace

ViewController::ViewController(const ViewControllerParts& parts)
    : fParts(parts), fStatusLine(parts.defaults, parts.mainQueue, parts.ibStatusTextField),
      fAlerts(parts.mainQueue, parts.console, parts.alertPresenter),
      fRsyncCommand(parts.defaults, parts.console), fSamplePath(parts.defaults, parts.mainQueue),
      fHostValidation(parts.defaults, parts.shell, parts.files, parts.console),
      fKeyState({
          .defaults = parts.defaults,
          .files = parts.files,
          .mainQueue = parts.mainQueue,
          .bgQueue = parts.bgQueue,
          .validator = fHostValidation,
          .show = [&view = parts.view](KeyState state) { view.showKeyState(state); },
      }),
      fSyncCycle({
          .defaults = parts.defaults,
          .mainQueue = parts.mainQueue,
          .bgQueue = parts.bgQueue,
          .shell = parts.shell,
          .files = parts.files,
          .console = parts.console,
          .rsyncCommand = fRsyncCommand,
          .hostValidator = fKeyState,
          .statusMessages = fStatusLine,
          .problemAlerts = fAlerts,
          .ibStartButton = parts.ibStartButton,
          .passListener = parts.passListener,
      }),
      fRepeatTimer(parts.mainQueue, parts.console),
      fStartButtonTitle(parts.ibStartButton, parts.defaults, parts.mainQueue, parts.console),
      fCommandExample(parts.defaults, fRsyncCommand, parts.console),
      fFolders({
          .defaults = parts.defaults,
          .console = parts.console,
          .openPanel = parts.openPanel,
          .workspace = parts.workspace,
          .files = parts.files,
          .fNsPathControl1 = parts.fNsPathControl1,
      }),
      fRevealButtonWatchers({
          .defaults = parts.defaults,
          .console = parts.console,
          .files = parts.files,
          .view = parts.view,
          .alerts = fAlerts,
          .workspace = parts.workspace,
          .ibRevealButton1 = parts.ibRevealButton1,
          .ibRevealButton2 = parts.ibRevealButton2,
      }),
      fNetwork({
          .notificationCenter = parts.notificationCenter,
          .mainQueue = parts.mainQueue,
          .console = parts.console,
          .browser = parts.dnssdBrowser,
          .makeKelvoSSID = parts.makeKelvoSSID,
          .showNetworkStatus =
              [&view = parts.view](const QString& text) { view.showNetworkStatus(text); },
      }),
      fBonjour({
          .mainQueue = parts.mainQueue,
          .console = parts.console,
          .browser = parts.dnssdBrowser,
          .sheets = parts.sheets,
          .fArrayController = parts.fArrayController,
      }),
      fTerminalNotice(fAlerts, parts.pasteboard), fCommandFiles({
                                                      .console = parts.console,
                                                      .files = parts.files,
                                                      .shell = parts.shell,
                                                      .terminal = parts.terminal,
                                                  }),
      fConnectionTest({
          .defaults = parts.defaults,
          .files = parts.files,
          .console = parts.console,
          .mainQueue = parts.mainQueue,
          .bgQueue = parts.bgQueue,
          .shell = parts.shell,
          .alerts = fAlerts,
          .commands = parts.shareCommands,
          .showBusy = [&view = parts.view](bool testing) { view.showTesting(testing); },
      }),
      fProvisioning({
          .defaults = parts.defaults,
          .files = parts.files,
          .console = parts.console,
          .shell = parts.shell,
          .validator = fKeyState,
          .commandFiles = fCommandFiles,
          .workspace = parts.workspace,
          .scriptEnded = [this](TerminalOutcome outcome,
                                const QString& command) { scriptEnded(outcome, command); },
          .keysChanged = [this] { fKeyState.keysChanged(); },
      }),
      fShare({
          .defaults = parts.defaults,
          .console = parts.console,
          .mainQueue = parts.mainQueue,
          .shell = parts.shell,
          .commands = parts.shareCommands,
          .commandFiles = fCommandFiles,
          .workspace = parts.workspace,
          .beep = [&view = parts.view] { view.beep(); },
          .noTerminal = [this](const QString& command) { fTerminalNotice.show(command); },
      }),
      myStatusMenuHandler(parts.statusMenu, parts.console),
      fUsesSSH(parts.defaults.boolForKey(prefRsyncWithSSH)) {}

void ViewController::viewDidLoad() {
    UserDefaults& defaults = fParts.defaults;
    DispatchQueue& mainQueue = fParts.mainQueue;
    printInside(cViewDidLoad);
    mainQueue.asyncAfter(0.5, [this] { fRepeatTimer.setupRepeatTimer(); });

    myStatusMenuHandler.setupStatusMenuStuff();
    fParts.console.print(u"self.ibRevealButton1 = " +
                         objectText(fParts.ibRevealButton1, u"NSButton"));
    fParts.console.print(u"self.ibRevealButton2 = " +
                         objectText(fParts.ibRevealButton2, u"NSButton"));
    mainQueue.asyncAfter(1.0, [this] { fRevealButtonWatchers.install(); });

    defaults.setObject(prefIsScanning, false);
    defaults.setObject(prefEnableScanning, false);
    observe(prefRsyncCommandOptionTag);
    observe(prefEnableScanning);

    if (defaults.boolForKey(prefAutoStartScanOnLaunch))
        mainQueue.asyncAfter(1.0, [this] { fParts.ibStartButton.performClick(); });
    mainQueue.asyncAfter(0.6, [this] {
        if (fParts.defaults.boolForKey(prefHideOnLaunch))
            fParts.application.hide();
        else
            fParts.application.bringToFront();
    });
    mainQueue.asyncAfter(cWindowRetryDelay, [this] { handWindowControllerOver(); });

    mainQueue.asyncAfter(0.5, [this] {
        for (const QStringView key :
             {prefRemoteUsername, prefRemoteBonjourName, prefRemotePath, prefRsyncWithSSH})
            observe(key);
        fSamplePath.updateSampleString();
        setUsesSSH(fParts.defaults.boolForKey(prefRsyncWithSSH));
    });
    mainQueue.asyncAfter(0.6, [this] { readVersion(); });
    mainQueue.asyncAfter(1.0, [this] { fNetwork.setupNetworkChecker(); });
    fKeyState.begin();
    fObservations.push_back(fParts.notificationCenter.observe(
        cQuitRelaunchNotification.toString(), [this](const Notification& notification) {
            handleQuitAndRelaunchNotification(notification);
        }));
}

QString ViewController::description() const {
    return u'<' + cViewControllerTypeName + u": 0x" +
           QString::number(reinterpret_cast<quintptr>(this), 16) + u'>';
}

void ViewController::handWindowControllerOver() {
    StatusMenuWindow* controller = fParts.windowController();
    if (!controller) {
        fParts.mainQueue.asyncAfter(cWindowRetryDelay, [this] { handWindowControllerOver(); });
        return;
    }
    printInside(cViewDidLoad, QString(u".......self.view.window?.windowController = " +
                                      objectText(controller, u"NSWindowController")));
    myStatusMenuHandler.setWindowController(controller);
}

void ViewController::readVersion() {
    const auto version = fParts.bundle.getFullVersionString(fParts.console);
    if (!version)
        return;
    fParts.console.print(u"Got version = " + *version);
    fParts.defaults.setObject(prefVersionDisplayString, *version);
}

// -- the remote side

/// Whatever happened in the terminal, only the remote Mac knows what came of it.
void ViewController::scriptEnded(TerminalOutcome outcome, const QString& command) {
    if (outcome == TerminalOutcome::NoWindow)
        fTerminalNotice.show(command);
    else
        fKeyState.checkAgain();
}

// -- settings

void ViewController::observe(QStringView key) {
    fObservations.push_back(fParts.defaults.observe(
        key, [this](const DefaultsChange& change) { observeValue(change); }));
}

void ViewController::observeValue(const DefaultsChange& change) {
    constexpr QStringView operation = u"observeValue(forKeyPath:of:change:context:)";
    const QString newValue = change.newValue ? valueText(*change.newValue) : QString();
    printInside(operation, QString(u".......keypath = " + change.key + u" change = [" +
                                   (change.newValue ? u"new: " + newValue : QString(u':')) + u']'));
    if (change.key == prefRemoteBonjourName || change.key == prefRemotePath)
        return;
    if (!change.newValue) {
        printInside(operation, u".......UNABLE to get the new value????");
        return;
    }
    fParts.console.print(u"New value => " + newValue);
    fParts.mainQueue.asyncAfter(cReactionDelay, reactionTo(change));
}

std::function<void()> ViewController::reactionTo(const DefaultsChange& change) {
    if (change.key == prefEnableScanning)
        return [this, isRunning = boolValue(*change.newValue)] {
            fStartButtonTitle.showRunning(isRunning);
        };
    if (change.key == prefRemoteUsername)
        return [this] { fSamplePath.updateSampleString(); };
    if (change.key == prefRsyncWithSSH)
        return [this] { updateStartButton(); };
    return [this] { ibUpdateTabViewItem(); };
}

void ViewController::setUsesSSH(bool usesSSH) {
    fUsesSSH = usesSSH;
    fStartButtonTitle.showKindOfPass(usesSSH);
}

// -- tabs and focus

void ViewController::tabViewWillSelect(const std::optional<TabViewItem>& tabViewItem) {
    constexpr QStringView operation = u"tabView(_:willSelect:)";
    const auto label = tabViewItem ? std::optional(tabViewItem->label) : std::nullopt;
    const auto identifier = tabViewItem ? tabViewItem->identifier : std::nullopt;
    printInside(operation,
                QString(u".......tabViewItem = " +
                        (label ? QString(u"Optional(<NSTabViewItem: " + quotedText(*label) + u">)")
                               : QStringLiteral("nil"))));
    printInside(operation, QString(u".......tabViewItem.label = " + optionalText(label)));
    printInside(operation, QString(u".......identifier = " + optionalText(identifier)));
    if (identifier == u"prefs")
        ibUpdateTabViewItem();
}

void ViewController::controlTextDidEndEditing(const TextEditingNotification& obj) {
    constexpr QStringView operation = u"controlTextDidEndEditing(_:)";
    const auto field = std::dynamic_pointer_cast<TextField>(obj.object);
    printInside(operation,
                QString(u".......obj.object   = " +
                        objectText(obj.object.get(), field ? u"NSTextField" : u"NSControl")));
    printInside(operation, QString(u".......obj.userInfo = " + userInfoText(obj.userInfo)));
    if (field)
        fParts.mainQueue.asyncAfter(cReactionDelay, [field] { field->resignFirstResponder(); });
}

void ViewController::ibSetNoFirstResponder(Control*) {
    printInside(u"ibSetNoFirstResponder(_:)");
    fParts.mainQueue.async([this] {
        if (fParts.view.hasWindow())
            fParts.view.makeNothingFirstResponder();
    });
}

// -- quit and relaunch

void ViewController::handleQuitAndRelaunchNotification(const Notification& notification) {
    printInside(u"handleQuitAndRelaunchNotification(_:)",
                QString(u".......notification = " + notificationText(notification)));
    ibQuitAndRelaunch(nullptr);
}

void ViewController::ibQuitAndRelaunch(Control*) {
    printInside(u"ibQuitAndRelaunch(_:)");
    fParts.watchdog.quitAndRelaunch();
}

void ViewController::printInside(QStringView operation, QStringView detail) const {
    fParts.console.print(insideLine(cViewControllerTypeName, operation, detail));
}

} // namespace kelvo
