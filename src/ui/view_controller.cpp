#include "ui/view_controller.h"

#include "ports/application.h"
#include "ports/bundle.h"
#include "ports/console.h"
#include "ports/dispatch_queue.h"
#include "ports/main_view.h"
#include "settings/preference_keys.h"
#include "settings/remote_account.h"
#include "support/notification_center.h"
#include "support/property_value.h"
#include "support/text.h"
#include "ui/main_window_controller.h"
#include "ui/setup_steps.h"

#include <utility>

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
    : fParts(parts), fAlertTap(parts.outlets.alertPresenter, parts.alertShown),
      fStatusLine(parts.engine.defaults, parts.engine.mainQueue, parts.outlets.ibStatusTextField,
                  parts.messageShown),
      fAlerts(parts.engine.mainQueue, parts.engine.console, fAlertTap),
      fEngine(
          parts.engine,
          {.updateStatusMessage =
               [this](std::optional<QString> mesg, StatusColor color, bool docenter) {
                   fStatusLine.updateStatusMessage(std::move(mesg), color, docenter);
               },
           .showProblemWithBonjourClosure =
               [this](const QString& message, const QString& text, AlertCompletion completion) {
                   fAlerts.showProblemWithBonjourClosure(message, text, std::move(completion));
               },
           .ibStartButton = parts.outlets.ibStartButton,
           .stateChanged = [this] { fWork.look(); }},
          [&view = parts.outlets.view](KeyState state) { view.showKeyState(state); },
          parts.outlets.hostAnswered),
      fWork({.defaults = parts.engine.defaults,
             .mainQueue = parts.engine.mainQueue,
             .passStore = parts.passStore,
             .passesUnderWay = [this] { return fEngine.passes.underWay(); },
             .cycleState = [this] { return fEngine.syncCycle.state(); },
             .clock = parts.engine.clock,
             .show =
                 [&view = parts.outlets.view, &menu = parts.statusMenu](const WorkState& work) {
                     view.showWork(work);
                     menu.showWork(work);
                 },
             .looked = parts.workLooked}),
      fRepeatTimer(parts.engine.mainQueue, parts.engine.console),
      fStartButtonTitle(parts.outlets.ibStartButton, parts.engine.defaults, parts.engine.mainQueue,
                        parts.engine.console),
      fCommandExample(parts.engine.defaults, parts.engine.mainQueue, fEngine.rsyncCommand,
                      parts.engine.console),
      fFolders({
          .defaults = parts.engine.defaults,
          .console = parts.engine.console,
          .openPanel = parts.outlets.openPanel,
          .workspace = parts.workspace,
          .files = parts.engine.files,
          .fNsPathControl1 = parts.outlets.fNsPathControl1,
      }),
      fRevealButtonWatchers({
          .defaults = parts.engine.defaults,
          .console = parts.engine.console,
          .files = parts.engine.files,
          .view = parts.outlets.view,
          .alerts = fAlerts,
          .workspace = parts.workspace,
          .ibRevealButton1 = parts.outlets.ibRevealButton1,
          .ibRevealButton2 = parts.outlets.ibRevealButton2,
      }),
      fNetwork({
          .notificationCenter = parts.notificationCenter,
          .mainQueue = parts.engine.mainQueue,
          .console = parts.engine.console,
          .browser = parts.dnssdBrowser,
          .makeKelvoSSID = parts.makeKelvoSSID,
          .showNetworkStatus =
              [&view = parts.outlets.view](const QString& text) { view.showNetworkStatus(text); },
      }),
      fBonjour({
          .mainQueue = parts.engine.mainQueue,
          .console = parts.engine.console,
          .browser = parts.dnssdBrowser,
          .presentSheet = parts.outlets.presentSheet,
          .fArrayController = parts.outlets.fArrayController,
      }),
      fTerminalNotice(fAlerts, parts.outlets.copyText),
      fTasks({
          .mainQueue = parts.engine.mainQueue,
          .bgQueue = parts.engine.bgQueue,
          .shell = parts.engine.commands,
          .show = [&view = parts.outlets.view](RemoteTaskKind kind) { view.showTask(kind); },
      }),
      fCommandFiles({
          .console = parts.engine.console,
          .files = parts.engine.files,
          .terminal = parts.outlets.terminal,
      }),
      fConnectionTest({
          .defaults = parts.engine.defaults,
          .files = parts.engine.files,
          .console = parts.engine.console,
          .mainQueue = parts.engine.mainQueue,
          .bgQueue = parts.engine.bgQueue,
          .shell = parts.engine.commands,
          .showAlert =
              [this](const QString& message, const QString& text, AlertCompletion completion) {
                  fAlerts.showAlertWithClosure(message, text, std::nullopt, std::move(completion));
              },
          .showBusy = [&view = parts.outlets.view](bool testing) { view.showTesting(testing); },
          .answered =
              [this](const QString& target, const CommandResult& result) {
                  if (const auto answer = answerOfTest(target, result))
                      hostTested(*answer);
              },
          .refused =
              [this](const QString& target, const QString& fault) {
                  hostTested(
                      {.target = target, .cause = PassCause::SettingsRefused, .lastLine = fault});
              },
      }),
      fProvisioning({
          .defaults = parts.engine.defaults,
          .files = parts.engine.files,
          .console = parts.engine.console,
          .mainQueue = parts.engine.mainQueue,
          .tasks = fTasks,
          .validate =
              [this](qint64 timeout, const RunCommand& run) {
                  (void)fEngine.hostValidation.validateRemoteHostWithWhoami(timeout, run);
              },
          .commandFiles = fCommandFiles,
          .workspace = parts.workspace,
          .scriptEnded = [this](TerminalOutcome outcome,
                                const QString& command) { scriptEnded(outcome, command); },
          .windowTitle =
              [](const RemoteAccount& account) {
                  return passwordTitle(account.user, account.host);
              },
          .keysChanged = [this] { fEngine.keyState.keysChanged(); },
      }),
      fKeyReplacement({
          .files = parts.engine.files,
          .mainQueue = parts.engine.mainQueue,
          .alerts = fAlertTap,
          .now = parts.engine.clock.now,
      }),
      fShare({
          .defaults = parts.engine.defaults,
          .console = parts.engine.console,
          .tasks = fTasks,
          .commands = parts.shareCommands,
          .commandFiles = fCommandFiles,
          .workspace = parts.workspace,
          .beep = [&view = parts.outlets.view] { view.beep(); },
          .noTerminal = [this](const QString& command) { fTerminalNotice.show(command); },
      }),
      myStatusMenuHandler(parts.statusMenu, parts.engine.console) {}

void ViewController::viewDidLoad() {
    UserDefaults& defaults = fParts.engine.defaults;
    DispatchQueue& mainQueue = fParts.engine.mainQueue;
    printInside(cViewDidLoad);
    mainQueue.asyncAfter(0.5, [this] { fRepeatTimer.setupRepeatTimer(); });

    myStatusMenuHandler.setupStatusMenuStuff();
    fParts.engine.console.print(u"self.ibRevealButton1 = " +
                                objectText(fParts.outlets.ibRevealButton1, u"NSButton"));
    fParts.engine.console.print(u"self.ibRevealButton2 = " +
                                objectText(fParts.outlets.ibRevealButton2, u"NSButton"));
    mainQueue.asyncAfter(1.0, [this] { fRevealButtonWatchers.install(); });

    defaults.setObject(prefIsScanning, false);
    defaults.setObject(prefEnableScanning, false);
    observe(prefRsyncCommandOptionTag);
    observe(prefEnableScanning);
    fCommandExample.followTemplate();

    startScanOnLaunch();
    mainQueue.asyncAfter(0.6, [this] {
        if (fParts.engine.defaults.boolForKey(prefHideOnLaunch))
            fParts.outlets.application.hide();
        else
            fParts.outlets.application.bringToFront();
    });
    mainQueue.asyncAfter(cWindowRetryDelay, [this] { handWindowControllerOver(); });

    mainQueue.asyncAfter(0.5, [this] {
        for (const QStringView key :
             {prefRemoteUsername, prefRemoteBonjourName, prefRemotePath, prefRsyncWithSSH})
            observe(key);
        fEngine.samplePath.updateSampleString();
        fStartButtonTitle.showKindOfPass(fParts.engine.defaults.boolForKey(prefRsyncWithSSH));
    });
    mainQueue.asyncAfter(0.6, [this] { readVersion(); });
    mainQueue.asyncAfter(1.0, [this] { fNetwork.setupNetworkChecker(); });
    fEngine.keyState.begin();
    fWork.begin();
    fObservations.push_back(fParts.outlets.view.observeAttention(
        [this](Attention attention) { fWork.setAttention(attention); }));
    fObservations.push_back(fParts.notificationCenter.observe(
        cQuitRelaunchNotification.toString(), [this](const Notification& notification) {
            handleQuitAndRelaunchNotification(notification);
        }));
}

QString ViewController::description() const {
    return u'<' + cViewControllerTypeName + u": 0x" +
           QString::number(reinterpret_cast<quintptr>(this), 16) + u'>';
}

/// Whether passes start by themselves is a setting: it is asked once it is known.
void ViewController::startScanOnLaunch() {
    const EngineParts& engine = fParts.engine;
    if (!engine.defaults.areKnown()) {
        engine.mainQueue.asyncAfter(1.0, [this] { startScanOnLaunch(); });
    } else if (engine.defaults.boolForKey(prefAutoStartScanOnLaunch) &&
               !engine.defaults.boolForKey(prefEnableScanning)) {
        const double delay = 1.0 + fParts.firstPassDelay;
        if (delay > 1.0)
            engine.console.log(QStringLiteral("The first pass begins in %1 s").arg(delay));
        engine.mainQueue.asyncAfter(delay, [this] {
            if (!fWasSwitchedOn && !fParts.engine.defaults.boolForKey(prefEnableScanning))
                clickStartButton();
        });
    }
}

void ViewController::handWindowControllerOver() {
    MainWindowController* controller = fParts.windowController();
    if (!controller) {
        fParts.engine.mainQueue.asyncAfter(cWindowRetryDelay,
                                           [this] { handWindowControllerOver(); });
        return;
    }
    printInside(cViewDidLoad, QString(u".......self.view.window?.windowController = " +
                                      objectText(controller, u"NSWindowController")));
    myStatusMenuHandler.setWindowController(controller);
}

void ViewController::readVersion() {
    const auto version = fParts.bundle.getFullVersionString(fParts.engine.console);
    if (!version)
        return;
    fParts.engine.console.print(u"Got version = " + *version);
    fParts.engine.defaults.setObject(prefVersionDisplayString, *version);
}

void ViewController::showActivity(std::optional<qint64> pass) {
    fParts.outlets.application.bringToFront();
    if (fParts.outlets.showActivity)
        fParts.outlets.showActivity(pass);
}

// -- the remote side

void ViewController::ibSetUpKey(Control*) {
    fKeyReplacement.askAndComplete(
        [this](const PairGuard& guard) { fProvisioning.ibGenerateSSHKeyStuff(guard); });
}

void ViewController::ibMakeNewKey(Control*) {
    fKeyReplacement.askAndReplace(
        [this](const PairGuard& guard) { fProvisioning.createNewPrivatePublicKeys(guard); });
}

void ViewController::ibMakeNewKeyOLD(Control*) {
    fKeyReplacement.askAndReplace(
        [this](const PairGuard& guard) { fProvisioning.createNewPrivatePublicKeysOLD(guard); });
}

/// Whatever happened in the terminal, only the remote Mac knows what came of it.
void ViewController::scriptEnded(TerminalOutcome outcome, const QString& command) {
    if (outcome == TerminalOutcome::NoWindow)
        fTerminalNotice.show(command);
    else
        fEngine.keyState.checkAgain();
}

/// What the test says of the key is as good as what a check says of it.
void ViewController::hostTested(const HostAnswer& answer) {
    if (const auto verdict = verdictOnTheKey(answer))
        fEngine.keyState.answered(answer.target, *verdict);
    if (fParts.outlets.hostAnswered)
        fParts.outlets.hostAnswered(answer);
}

// -- settings

void ViewController::observe(QStringView key) {
    fObservations.push_back(fParts.engine.defaults.observe(
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
    fParts.engine.console.print(u"New value => " + newValue);
    fParts.engine.mainQueue.asyncAfter(cReactionDelay, reactionTo(change));
}

std::function<void()> ViewController::reactionTo(const DefaultsChange& change) {
    if (change.key == prefEnableScanning)
        return [this, isRunning = boolValue(*change.newValue)] {
            fWasSwitchedOn |= isRunning;
            fStartButtonTitle.showRunning(isRunning);
        };
    if (change.key == prefRemoteUsername)
        return [this] { fEngine.samplePath.updateSampleString(); };
    if (change.key == prefRsyncWithSSH)
        return [this] { updateStartButton(); };
    return [this] { ibUpdateTabViewItem(); };
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

void ViewController::controlTextDidEndEditing(const std::shared_ptr<Control>& object) {
    constexpr QStringView operation = u"controlTextDidEndEditing(_:)";
    const auto field = std::dynamic_pointer_cast<TextField>(object);
    printInside(operation,
                QString(u".......obj.object   = " +
                        objectText(object.get(), field ? u"NSTextField" : u"NSControl")));
    printInside(operation, u".......obj.userInfo = nil");
    if (field)
        fParts.engine.mainQueue.asyncAfter(cReactionDelay,
                                           [field] { field->resignFirstResponder(); });
}

void ViewController::ibSetNoFirstResponder(Control*) {
    printInside(u"ibSetNoFirstResponder(_:)");
    fParts.engine.mainQueue.async([this] {
        if (fParts.outlets.view.hasWindow())
            fParts.outlets.view.makeNothingFirstResponder();
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
    fParts.quitAndRelaunch();
}

void ViewController::printInside(QStringView operation, QStringView detail) const {
    fParts.engine.console.print(insideLine(cViewControllerTypeName, operation, detail));
}

} // namespace kelvo
