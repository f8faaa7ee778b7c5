// One pass with the real adapters and the engine itself.
#include "adapters/console/headless_outlets.h"
#include "adapters/console/terminal_line.h"
#include "app/commands/once.h"
#include "app/pass_machine.h"
#include "settings/factory_defaults.h"
#include "settings/overlay_defaults.h"
#include "settings/preference_keys.h"
#include "support/plain_line.h"
#include "ui/template_setting.h"
#include "ui/work_words.h"

#include <QCoreApplication>

#include <unistd.h>

#include <csignal>

namespace kelvo {
namespace {

constexpr double cProgressPace = 0.5; // seconds
/// The shell's and rsync's own start, which take both processors, lie behind by then.
constexpr double cUntilRsyncRuns = 0.02; // seconds

/// The parts of one pass, each after those it works with.
class OncePass {
public:
    explicit OncePass(const Profile& profile)
        : fMachine(-1, -1, DamagedFile::IsLeftAlone, profile) {
        fMachine.commands.adoptWhatIsLeft();
        // Before, it would be in the way of the command's start.
        fMachine.commands.whenTheFirstRuns([this] {
            fMachine.mainQueue.asyncAfter(cUntilRsyncRuns, [this] { fMachine.passes.getReady(); });
        });
        registerFactoryDefaults(fMachine.bundle, fMachine.defaults, fMachine.console);
        TemplateSetting(fSettings).takeOver();
        fSettings.setObject(prefEnableScanning, true);
        fSettings.setObject(prefIsScanning, false);
        for (const int signal : {SIGTERM, SIGINT})
            fSignalled.push_back(
                fMachine.signals.catchSignal(signal, [] { QCoreApplication::quit(); }));
    }

    ~OncePass() { fMachine.end(); }

    /// Why no pass may be run; empty when one may.
    QString unknownSettings() {
        return fMachine.defaults.areKnown() ? QString() : fMachine.defaults.trouble();
    }

    /// The record of the pass. Tells on standard error how far it is, if that is a terminal and
    /// `progress` is wished for.
    PassRecord run(bool progress) {
        // A tag that does not exist would end the program.
        if (!optionStringForTag(fSettings.integerForKey(prefRsyncCommandOptionTag)))
            return withoutPass(PassCause::SettingsMissing);
        fEngine.samplePath.updateSampleString();
        fMachine.mainQueue.async([this] {
            if (fSettings.boolForKey(prefRsyncWithSSH))
                fEngine.syncCycle.doSyncOnceBonjour();
            else
                fEngine.syncCycle.doSyncOnce();
        });
        if (progress && ::isatty(STDERR_FILENO) == 1) {
            fProgress.emplace(STDERR_FILENO);
            showProgress();
        }
        QCoreApplication::exec();
        fProgress.reset();
        fMachine.end();
        fUnrecorded = fMachine.passes.finish();
        const std::lock_guard lock(fMutex);
        return fRecord.value_or(withoutPass(PassCause::Interrupted));
    }

    /// Why the record does not hold the pass that was run; empty when it does.
    QString unrecorded() const { return fUnrecorded; }

private:
    void showProgress() {
        WorkState work;
        if (const auto passes = fEngine.passes.underWay(); !passes.empty())
            describeProgress(work, passes.front(), fTimeLeft);
        fProgress->show(progressLine(work));
        fMachine.mainQueue.asyncAfter(cProgressPace, [this] {
            if (fProgress)
                showProgress();
        });
    }

    void ended(const PassRecord& record) {
        const std::lock_guard lock(fMutex);
        fRecord = record;
        fMachine.mainQueue.async([] { QCoreApplication::quit(); });
    }

    /// What is told when no pass could be begun or ended.
    static PassRecord withoutPass(PassCause cause) {
        PassRecord record;
        record.began = QDateTime::currentDateTimeUtc();
        record.cause = cause;
        return record;
    }

    std::mutex fMutex;
    std::optional<PassRecord> fRecord;
    QString fUnrecorded;
    std::optional<TerminalLine> fProgress;
    TimeLeftWords fTimeLeft;
    PassMachine fMachine;
    std::vector<Subscription> fSignalled;
    OverlayDefaults fSettings{fMachine.defaults};
    HeadlessButton fStartButton{[](Control*) {}};
    // Nobody looks at a status line or answers an alert here: the outcome says it all.
    Engine fEngine{
        fMachine.engineParts(fSettings, [this](const PassRecord& record) { ended(record); }),
        {.updateStatusMessage = [](const std::optional<QString>&, StatusColor, bool) {},
         .showProblemWithBonjourClosure = [](const QString&, const QString&,
                                             const std::function<void(ModalResponse)>&) {},
         .ibStartButton = &fStartButton},
        [](KeyState) {}};
};

} // namespace

CommandAnswer runOnce(const Profile& profile, bool json) {
    OncePass pass(profile);
    if (const QString unknown = pass.unknownSettings(); !unknown.isEmpty())
        return settingsUnknown(unknown);
    CommandAnswer answer = outcomeOf(pass.run(!json), json);
    if (const QString reason = pass.unrecorded(); !reason.isEmpty())
        answer.errors = u"kelvo-mirror: the record of passes does not hold this pass: " +
                        oneLine(reason) + u'\n';
    return answer;
}

} // namespace kelvo
