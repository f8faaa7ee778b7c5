#include "ui/view_controller.h"

#include "ports/console.h"
#include "ports/control.h"
#include "ports/dispatch_queue.h"
#include "support/preference_keys.h"
#include "support/property_value.h"
#include "support/text.h"

namespace kelvo {
namespace {

constexpr double cReactionDelay = 0.1;

/// How a stored value reads in a diagnostic line.
QString valueText(const QVariant& value) {
    return stringValue(value).value_or(QString(u'(' + QLatin1StringView(value.typeName()) + u')'));
}

} // namespace

ViewController::ViewController(const ViewControllerParts& parts)
    : fParts(parts), fStatusLine(parts.defaults, parts.mainQueue, parts.ibStatusTextField),
      fAlerts(parts.mainQueue, parts.console, parts.alertPresenter),
      fRsyncCommand(parts.defaults, parts.console), fSamplePath(parts.defaults, parts.mainQueue),
      fHostValidation(parts.defaults, parts.shell, parts.files, parts.console),
      fSyncCycle({parts.defaults, parts.mainQueue, parts.bgQueue, parts.shell, parts.files,
                  parts.console, fRsyncCommand, fHostValidation, fStatusLine, fAlerts,
                  parts.ibStartButton}),
      fRepeatTimer(parts.mainQueue, parts.console),
      fUsesSSH(parts.defaults.boolForKey(prefRsyncWithSSH)) {}

void ViewController::viewDidLoad() {
    printInside(u"viewDidLoad()");
    DispatchQueue& mainQueue = fParts.mainQueue;
    mainQueue.asyncAfter(0.5, [this] { fRepeatTimer.setupRepeatTimer(); });

    fParts.defaults.setObject(prefIsScanning, false);
    fParts.defaults.setObject(prefEnableScanning, false);
    observe(prefRsyncCommandOptionTag);
    observe(prefEnableScanning);

    if (fParts.defaults.boolForKey(prefAutoStartScanOnLaunch))
        mainQueue.asyncAfter(1.0, [this] { fParts.ibStartButton.performClick(); });

    mainQueue.asyncAfter(0.5, [this] {
        for (const QStringView key :
             {prefRemoteUsername, prefRemoteBonjourName, prefRemotePath, prefRsyncWithSSH})
            observe(key);
        fSamplePath.updateSampleString();
        setUsesSSH(fParts.defaults.boolForKey(prefRsyncWithSSH));
    });
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
        return [this, isRunning = boolValue(*change.newValue)] { showRunning(isRunning); };
    if (change.key == prefRemoteUsername)
        return [this] { fSamplePath.updateSampleString(); };
    if (change.key == prefRsyncWithSSH)
        return [this] { updateStartButton(); };
    return [this] { ibUpdateTabViewItem(); };
}

// -- the start button's title

void ViewController::showRunning(bool isRunning) {
    fParts.console.print(isRunning ? QStringLiteral("state is now IS RUNNING")
                                   : QStringLiteral("state is now OFF"));
    const bool withSSH = fParts.defaults.boolForKey(prefRsyncWithSSH);
    if (isRunning)
        fParts.ibStartButton.setTitle(withSSH ? QStringLiteral("click to stop bonjour rsync")
                                              : QStringLiteral("click to stop rsync"));
    else
        fParts.ibStartButton.setTitle(withSSH
                                          ? QStringLiteral("click to restart rsync using bonjour")
                                          : QStringLiteral("click to restart rsync"));
}

void ViewController::updateStartButton() {
    fParts.mainQueue.async([this] {
        const bool withSSH = fParts.defaults.boolForKey(prefRsyncWithSSH);
        if (fParts.ibStartButton.state() == 1)
            fParts.ibStartButton.setTitle(withSSH ? QStringLiteral("click to stop bonjour rsync")
                                                  : QStringLiteral("click to stop rsync"));
        else
            fParts.ibStartButton.setTitle(withSSH
                                              ? QStringLiteral("click to start rsync using bonjour")
                                              : QStringLiteral("click to start rsync"));
    });
}

void ViewController::setUsesSSH(bool usesSSH) {
    fUsesSSH = usesSSH;
    fParts.ibStartButton.setTitle(usesSSH ? QStringLiteral("Start rsync with bonjour")
                                          : QStringLiteral("Start rsync with afp path"));
}

// -- the example command

void ViewController::ibUpdateTabViewItem() {
    constexpr QStringView operation = u"ibUpdateTabViewItem()";
    printInside(operation);
    const auto tag = fParts.defaults.stringForKey(prefRsyncCommandOptionTag);
    if (!tag) {
        printInside(operation,
                    u".......UNABLE to get pref value for key = [prefRsyncCommandOptionTag] ");
        return;
    }
    fParts.console.print(u"current prefRsyncCommandOptionTag = " + *tag);
    const QString option = fRsyncCommand.getRsyncCommandOptionString();
    fParts.console.print(u"current optionstring for tag[" + *tag + u"] = [" + option + u']');
    QString example = fParts.defaults.stringForKey(prefRsyncCommandString1)
                          .value_or(cMissingRsyncCommandString1.toString());
    example.replace(QStringLiteral("%@99"), option);
    fParts.defaults.setObject(prefRsyncCommandStringExample, example);
}

void ViewController::printInside(QStringView operation, QStringView detail) const {
    fParts.console.print(insideLine(cViewControllerTypeName, operation, detail));
}

} // namespace kelvo
