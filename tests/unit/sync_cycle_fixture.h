// SyncCycleTest: the cycle in a pretend world.
#pragma once

#include "fakes/fake_file_manager.h"
#include "fakes/fake_front.h"
#include "fakes/memory_defaults.h"
#include "fakes/memory_whole_pull.h"
#include "fakes/recording_console.h"
#include "fakes/scripted_shell.h"
#include "fakes/virtual_queues.h"
#include "passes/running_pass.h"
#include "settings/preference_keys.h"
#include "sync/rsync_command.h"
#include "sync/sync_cycle.h"
#include "ui/alerts.h"
#include "ui/status_line.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <deque>
#include <memory>
#include <vector>

namespace kelvo {

inline const QString cTrying = QStringLiteral("Trying to rsync From Destination to Source...");
inline const QString cResting = QStringLiteral("Resting a bit ...");
inline const QString cMovieRules = QStringLiteral("-f '+ */'");

struct ScriptedValidator {
    HostVerdict validate(qint64 timeout) {
        timeouts.push_back(timeout);
        if (whileAsked)
            whileAsked();
        if (verdicts.empty())
            return HostVerdict::fromText(usual);
        const QString verdict = verdicts.front();
        verdicts.pop_front();
        return HostVerdict::fromText(verdict);
    }

    QString usual = QStringLiteral("valid");
    std::deque<QString> verdicts; ///< the next answers, before the usual one
    std::vector<qint64> timeouts;
    std::function<void()> whileAsked;
};

/// The cycle with everything around it pretended, on virtual time.
class SyncCycleTest : public ::testing::Test {
protected:
    SyncCycleTest() {
        defaults.setObject(prefRsyncCommandOptionTag, 100);
        defaults.setObject(prefRsyncWithSSH, true);
        defaults.setObject(prefDelayBetweenScans, 30.0);
        defaults.setObject(prefRsyncCommandString1,
                           QStringLiteral("pull %@98 %@99 \"%@1\" \"%@2\""));
        defaults.setObject(prefPath1, QStringLiteral(" /Volumes/Cam\n"));
        defaults.setObject(prefPath2, QStringLiteral("/Incoming "));
        defaults.setObject(prefRemoteUsername, QStringLiteral("mediauser"));
        defaults.setObject(prefRemoteBonjourName, QStringLiteral("RemoteMac"));
        defaults.setObject(prefSampleRemoteFullPath, QStringLiteral(" mediauser@RemoteMac:Movies"));
        files.folders.insert(QStringLiteral("/Volumes/Cam"));
        button.action = [this](Control* sender) { cycle.ibStartRSyncProcess(sender); };
    }

    static QDateTime moment(double seconds) {
        return QDateTime(QDate(2026, 3, 1), QTime(12, 0), Qt::UTC)
            .addMSecs(static_cast<qint64>(seconds * 1000));
    }

    /// A file that comes into the destination now.
    void arrive(const char* name) {
        files.found.push_back({QByteArray("/Incoming/") + name, 7, moment(mainQueue.now())});
    }

    bool enabled() const { return defaults.boolForKey(prefEnableScanning); }
    bool scanning() const { return defaults.boolForKey(prefIsScanning); }

    /// Runs the waiting pass bodies and what they leave due on the main queue.
    void runBodies() {
        bgQueue.runAll();
        mainQueue.runDue();
    }

    /// The status texts so far, those still on their way included.
    QStringList statusTexts() {
        mainQueue.advance(0.1);
        QStringList texts;
        for (const AttributedString& message : field->shown)
            texts.append(message.string);
        return texts;
    }

    AttributedString lastStatus() {
        mainQueue.advance(0.1);
        return field->shown.empty() ? AttributedString() : field->shown.back();
    }

    /// Lets `count` remote passes fail, the first one started by the button.
    void failPasses(int count) {
        validator.usual = QStringLiteral("unknownerror");
        if (!enabled())
            button.performClick();
        for (int i = 0; i < count; ++i) {
            runBodies();
            if (i + 1 < count)
                mainQueue.advance(1.0 + 30.0);
        }
    }

    /// Lets `seconds` go by with passes that take no time; returns how many there were.
    std::size_t passesWithin(double seconds) {
        const std::size_t before = records.size();
        const double end = mainQueue.now() + seconds;
        while (mainQueue.now() < end) {
            runBodies();
            mainQueue.advance(std::min(0.5, end - mainQueue.now()));
        }
        runBodies();
        return records.size() - before;
    }

    bool logged(const QString& line) const { return console.logged().contains(line); }
    qsizetype timesLogged(const QString& line) const { return console.logged().count(line); }

    MemoryDefaults defaults;
    VirtualMainQueue mainQueue;
    ManualBackgroundQueue bgQueue;
    ScriptedShell shell;
    FakeFileManager files;
    RecordingConsole console;
    RsyncCommand rsyncCommand{defaults, console};
    ScriptedValidator validator;
    std::shared_ptr<FakeStatusField> field = std::make_shared<FakeStatusField>();
    StatusLine statusLine{defaults, mainQueue, field};
    FakeAlertPresenter presenter;
    Alerts alerts{mainQueue, console, presenter};
    FakeButton button;
    std::vector<PassRecord> records;
    RunningPasses passes{
        shell,
        {[this] { return moment(mainQueue.now()); }, [this] { return mainQueue.now(); }},
        memoryWholePull(),
        [this](const PassRecord& record) { records.push_back(record); }};
    SyncCycle cycle{
        {.defaults = defaults,
         .mainQueue = mainQueue,
         .bgQueue = bgQueue,
         .passes = passes,
         .files = files,
         .console = console,
         .rsyncCommand = rsyncCommand,
         .validateRemoteHost = [this](qint64 timeout,
                                      const RunCommand&) { return validator.validate(timeout); },
         .view = {.updateStatusMessage =
                      [this](std::optional<QString> mesg, StatusColor color, bool docenter) {
                          statusLine.updateStatusMessage(std::move(mesg), color, docenter);
                      },
                  .showProblemWithBonjourClosure =
                      [this](const QString& message, const QString& text,
                             AlertCompletion completion) {
                          alerts.showProblemWithBonjourClosure(message, text,
                                                               std::move(completion));
                      },
                  .ibStartButton = &button,
                  .stateChanged =
                      [this] {
                          ++changes;
                          told = cycle.state();
                      }},
         .seconds = [this] { return mainQueue.now(); }}};
    int changes = 0; ///< of the cycle's state, as told
    CycleState told; ///< the last time
};

} // namespace kelvo
