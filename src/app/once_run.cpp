// One pass with the real adapters and the cycle itself.
#include "adapters/console/headless_outlets.h"
#include "adapters/console/rotating_log_file.h"
#include "adapters/console/stream_console.h"
#include "adapters/process/posix_shell_runner.h"
#include "adapters/process/qt_main_queue.h"
#include "adapters/process/signal_pipe.h"
#include "adapters/process/thread_pool_queue.h"
#include "adapters/settings/file_bundle.h"
#include "adapters/settings/plist_defaults.h"
#include "adapters/system/local_file_manager.h"
#include "app/commands/once.h"
#include "app/pass_recording.h"
#include "app/places.h"
#include "ports/problem_alerts.h"
#include "ports/status_messages.h"
#include "remote/remote_host_validation.h"
#include "settings/factory_defaults.h"
#include "settings/overlay_defaults.h"
#include "settings/preference_keys.h"
#include "sync/rsync_command.h"
#include "sync/sample_path.h"
#include "sync/sync_cycle.h"

#include <QCoreApplication>

#include <csignal>

namespace kelvo {
namespace {

/// Nobody looks at a status line or answers an alert here: the outcome says it all.
class Silence final : public StatusMessages, public ProblemAlerts {
public:
    void updateStatusMessage(std::optional<QString>, StatusColor, bool) override {}
    void showProblemWithBonjourClosure(const QString&, const QString&,
                                       std::function<void(ModalResponse)>) override {}
};

/// The parts of one pass, each after those it works with.
class OncePass {
public:
    OncePass() {
        registerFactoryDefaults(fBundle, fStored, fConsole);
        fSettings.setObject(prefEnableScanning, true);
        fSettings.setObject(prefIsScanning, false);
        for (const int signal : {SIGTERM, SIGINT})
            fSignalled.push_back(fSignals.catchSignal(signal, [] { QCoreApplication::quit(); }));
    }

    ~OncePass() { end(); }

    /// The record of the pass.
    PassRecord run() {
        // A tag that does not exist would end the program.
        if (!optionStringForTag(fSettings.integerForKey(prefRsyncCommandOptionTag)))
            return withoutPass(PassCause::SettingsMissing);
        fSamplePath.updateSampleString();
        fMainQueue.async([this] {
            if (fSettings.boolForKey(prefRsyncWithSSH))
                fCycle.doSyncOnceBonjour();
            else
                fCycle.doSyncOnce();
        });
        QCoreApplication::exec();
        end();
        const std::lock_guard lock(fMutex);
        return fRecord.value_or(withoutPass(PassCause::Interrupted));
    }

private:
    void ended(const PassRecord& record) {
        const std::lock_guard lock(fMutex);
        fRecord = record;
        fMainQueue.async([] { QCoreApplication::quit(); });
    }

    void end() {
        fMainQueue.stop();
        fShell.endAll();
        fBgQueue.stopAndWait();
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
    RotatingLogFile fNoLogFile;
    StreamConsole fConsole{-1, -1, fNoLogFile};
    QtMainQueue fMainQueue;
    SignalPipe fSignals;
    std::vector<Subscription> fSignalled;
    PlistDefaults fStored{settingsFile(), fMainQueue, fConsole};
    OverlayDefaults fSettings{fStored};
    LocalFileManager fFiles;
    FileBundle fBundle{resourceFolder()};
    PosixShellRunner fShell{fConsole};
    ThreadPoolQueue fBgQueue;
    PassRecording fPasses{fShell, fMainQueue, fConsole,
                          [this](const PassRecord& record) { ended(record); }};
    RsyncCommand fRsyncCommand{fSettings, fConsole};
    SamplePath fSamplePath{fSettings, fMainQueue};
    RemoteHostValidation fHostValidation{fSettings, fPasses.shell, fFiles, fConsole};
    Silence fSilence;
    HeadlessButton fStartButton{[](Control*) {}};
    SyncCycle fCycle{{fSettings, fMainQueue, fBgQueue, fPasses.shell, fFiles, fConsole,
                      fRsyncCommand, fHostValidation, fSilence, fSilence, fStartButton,
                      &fPasses.journal}};
};

} // namespace

CommandAnswer runOnce(bool json) {
    return outcomeOf(OncePass().run(), json);
}

} // namespace kelvo
