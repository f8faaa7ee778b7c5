// What each button of the window does: the real window, the real controller, a pretend world.
#include "app/window/window_actions.h"
#include "fakes/view_controller_world.h"
#include "remote/remote_host_validation.h"
#include "remote/ssh_key_provisioning.h"
#include "settings/remote_account.h"
#include "ui/widgets/main_window.h"
#include "ui/widgets/path_control_view.h"
#include "ui/widgets/widget_button.h"
#include "ui/widgets/widget_controls.h"

#include <QPushButton>

#include <gtest/gtest.h>

namespace kelvo {
namespace {

const QString cLater = QStringLiteral("-- later");
const QString cKey = QStringLiteral("/Users/localuser/.ssh/id_kelvoRsync");
const QString cScript = QStringLiteral("/tmp/of me/tempshell.command");
const RemoteAccount cAccount{.user = QStringLiteral("ann"), .host = QStringLiteral("mac.local")};
const ShareTarget cShare{.host = cAccount.host, .user = cAccount.user, .remotePath = {}};
const GioShareCommands cShareCommands;

QString run(const QString& command) {
    return u"run " + command;
}
QString text(const char* latin1) {
    return QString::fromLatin1(latin1);
}

/// A window with its controller, set up, and everything that happens from then on.
struct World : ViewControllerWorld {
    World() {
        defaults.setObject(prefRemoteUsername, cAccount.user);
        defaults.setObject(prefRemoteBonjourName, cAccount.host);
        defaults.setObject(prefPath1, text("/source"));
        defaults.setObject(prefPath2, text("/destination"));
        defaults.setObject(prefSampleRemoteFullPath, text("ann@mac.local:Movies"));
        defaults.setObject(prefRsyncCommandString1, text("pull %@1 %@2"));
        defaults.setObject(prefDelayBetweenScans, 1000);
        files.folders = {text("/source"), text("/destination")};
        shell.answerTo(text("whoami"), text("ann"));
        openPanel.answer = {.ok = true, .paths = {text("/chosen")}};
        defaults.setObject(prefShowDiagnostics, true);
        load();
        mainWindow.showTab(QStringLiteral("remote")); // its buttons are made now
        sendWindowActions(mainWindow, controller, workspace,
                          std::make_shared<WidgetPathControl>(mainWindow.fNsPathControl1()),
                          onceButtons);
        mainWindow.showWork({.phase = WorkPhase::Running, .maySyncNow = true, .mayCancel = true});
    }

    /// Notes from now on what the world is asked for.
    void watch() {
        files.events = shell.events = terminal.events = workspace.events = {&events};
        harvest();
        events.clear();
    }

    void settle() {
        mainQueue.runDue();
        for (int turn = 0; turn < 3; ++turn) {
            bgQueue.runAll();
            mainQueue.advance(1.0);
        }
    }

    /// Adds what has come since the last time to where no order is kept.
    void harvest() {
        const auto changes = defaults.changes();
        for (; fChanges < changes.size(); ++fChanges) {
            const auto& [key, value] = changes[fChanges];
            if (key != prefStatusTextfieldString)
                events.append(u"set " + key + u" = " + value.toString());
        }
        for (; fSheets < sheets.size(); ++fSheets)
            events.append(u"sheet " + sheets[fSheets]);
        for (; fBrowsed < dnssdBrowser.browsed.size(); ++fBrowsed)
            events.append(u"browse " + dnssdBrowser.browsed[fBrowsed]);
        for (; fSearches < dnssdBrowser.searches.size(); ++fSearches)
            events.append(u"search " + dnssdBrowser.searches[fSearches].request.type);
        for (; fSigns < view.testSigns.size(); ++fSigns)
            events.append(view.testSigns[fSigns] ? text("sign") : text("no sign"));
        for (; fTasks < view.tasks.size(); ++fTasks)
            events.append(view.tasks[fTasks] == RemoteTaskKind::None ? text("no task")
                                                                     : text("task"));
        for (; fAlerts < presenter.alerts.size(); ++fAlerts)
            events.append(u"alert " + presenter.alerts[fAlerts].messageText);
        for (; fFocusDropped < view.focusDropped; ++fFocusDropped)
            events.append(text("focus dropped"));
        for (; fRelaunches < relaunches; ++fRelaunches)
            events.append(text("relaunch"));
        for (const qsizetype ticks = console.logged().filter(text("Timer Fired")).size();
             fTicks < ticks; ++fTicks)
            events.append(text("tick"));
        if (const QString shown = std::exchange(pathControl->shown, QString()); !shown.isEmpty())
            events.append(u"path " + shown);
        if (foundServices.content().has_value() != fList) {
            fList = !fList;
            events.append(fList ? text("list") : text("no list"));
        }
    }

    QStringList events;
    MainWindow mainWindow{defaults, mainQueue};
    OnceButtons onceButtons;

private:
    std::size_t fChanges = 0;
    qsizetype fSheets = 0;
    qsizetype fBrowsed = 0;
    std::size_t fSearches = 0;
    std::size_t fSigns = 0;
    std::size_t fAlerts = 0;
    std::size_t fTasks = 0;
    int fFocusDropped = 0;
    int fRelaunches = 0;
    qsizetype fTicks = 0;
    bool fList = false;
};

struct Row {
    const char* button;
    QStringList effects; ///< of the click, of the seconds after it and of `then`
    std::function<void(World&)> before = {};
    std::function<void(World&)> then = {};
};

void resumeTimer(World& world) {
    world.controller.ibResumeTimer(nullptr);
}
void startPass(World& world) {
    world.button.performClick();
}
void setFolder(World& world) {
    world.defaults.setObject(prefRemotePath, text("Clips"));
    world.mainQueue.advance(5);
    world.harvest();
    EXPECT_FALSE(world.events.contains(text("set prefSampleRemoteFullPath = ann@mac.local:Clips")))
        << "not before a person says so";
}
void runPass(World& world) {
    startPass(world);
    world.settle();
}

std::vector<Row> rows() {
    const QString open = run(cShareCommands.openShare(cShare));
    const QString list = run(cShareCommands.listVolumes(cShare));
    const QString pick = run(cShareCommands.pickVolume({}, cShare));
    const QString task = text("task");
    const QString noTask = text("no task");
    const QString busy = text("set prefIsScanning = true");
    const QString idle = text("set prefIsScanning = false");
    const QString on = text("set prefEnableScanning = 1");
    const QString generation = run(keyGenerationCommand(cKey));
    const auto ask = [](int seconds) {
        return run(whoamiCommand(seconds, cKey, cAccount.destination()));
    };
    const QString pull = text("run pull ann@mac.local:Movies/ /destination/");
    const QString movies =
        run(filledCommand(cMovieCommandTemplate.toString(),
                          {text("ann@mac.local:Movies"), text("/destination"), cKey}, u"")
                .value());
    const QString write = u"write " + cScript;
    return {
        {"ibSelectFolder1Action", {text("set prefPath1 = /chosen"), cLater}},
        {"ibSelectFolder2Action", {text("set prefPath2 = /chosen"), cLater}},
        {"ibRevealButton1", {text("openUrl file:///source"), cLater}},
        {"ibRevealButton2", {text("openFile /destination"), cLater}},
        {"ibSelectSourceByBonjor", {text("sheet BonjourVCstoryboardID"), cLater}},
        {"ibSelectDestByBonjor", {cLater}},
        {"ibSearchBonjour", {text("browse _smb"), cLater, text("list")}},
        {"ibShowBonjourListInfo",
         {text("no list"), cLater},
         [](World& world) { world.foundServices.setContent(DNSSD_Services()); }},
        {"ibTestNWBrowser", {text("search _smb._tcp"), cLater}},
        {"ibRevealInFinderAction",
         {text("openFile /Volumes/Macintosh%20HD-2/Users/support/Desktop/FolderOnRemoteServer"),
          cLater}},
        {"ibAction1", {text("path file:///source"), cLater}},
        {"ibOpenTempFolder", {text("openUrl file:///tmp/of%20me"), cLater}},
        {"ibGenerateSSHKeyStuff",
         {task, cLater, ask(2), generation, write, run(u"/bin/chmod 0755 2>&1 \"" + cScript + u'"'),
          u"terminal " + keyInstallationCommand(cKey, cAccount), noTask}},
        {"createNewPrivatePublicKeys", {task, cLater, generation, noTask}},
        {"createNewPrivatePublicKeysOLD",
         {task, cLater, write, u"mode 755 " + cScript,
          text("terminal /usr/bin/ssh-keygen -N \"\" -f \"/Users/localuser/.ssh/id_kelvoRsync\""),
          text("openUrl file:///tmp/of%20me"), noTask}},
        {"ibCancelCommand",
         {task, cLater, noTask},
         [](World& world) { world.controller.ibRevealSourcePathSMB(nullptr); }},
        {"checkKeyState", {cLater, ask(5)}},
        {"useSourceNow",
         {cLater, text("set prefSampleRemoteFullPath = ann@mac.local:Clips")},
         setFolder},
        {"syncUseSourceNow",
         {cLater, text("set prefSampleRemoteFullPath = ann@mac.local:Clips")},
         setFolder},
        {"ibTestShellCommand",
         {text("sign"), cLater,
          text("run ssh -i /Users/localuser/.ssh/id_kelvoRsync -o BatchMode=yes -o "
               "ConnectTimeout=5 ann@mac.local echo \"remoteisgood\" 2>&1"),
          text("no sign"), text("alert SUCCESS...")}},
        {"ibTestShellCommand111", {task, cLater, open, list, pick, noTask}},
        {"ibRevealSourcePathSMB", {task, cLater, open, list, noTask}},
        {"ibRevealSourcePathSMBdebug", {task, cLater, open, list, noTask}},
        {"ibRevealSourcePathSMBdebugOLD",
         {task, cLater, open, list, pick, text("openFile ./Users/ann"), noTask}},
        {"ibSetNoFirstResponder", {cLater, text("focus dropped")}},
        {"ibQuitAndRelaunch", {text("relaunch"), cLater}},
        {"ibSyncNow", {idle, cLater, ask(3), pull, movies, busy, idle}, runPass},
        {"ibCancelPass", {cLater, idle}, startPass},
        {"ibSuspendTimer", {cLater, text("tick")}, resumeTimer, resumeTimer},
        {"ibResumeTimer", {cLater, text("tick"), text("tick"), text("tick")}},
        {"ibKillTimer", {cLater}, resumeTimer, resumeTimer},
        {"ibRSyncOnce", {on, cLater, text("run pull /source/ /destination/"), busy, idle}},
        {"ibRSyncOnceBonjour", {on, cLater, ask(3), pull, movies, busy, idle}},
    };
}

TEST(ButtonEffectsTest, EveryButton_DoesWhatItIsFor) {
    QStringList tried;
    for (const Row& row : rows()) {
        tried.append(QString::fromLatin1(row.button));
        World world;
        if (row.before)
            row.before(world);
        world.watch();
        world.mainWindow.button(tried.last()).click();
        world.harvest();
        world.events.append(cLater);
        world.settle();
        world.harvest();
        if (row.then) {
            row.then(world);
            world.mainQueue.advance(1.0);
            world.harvest();
        }
        EXPECT_EQ(world.events, row.effects) << row.button;
    }
    QStringList sent = sentButtons();
    sent.sort();
    tried.sort();
    EXPECT_EQ(tried, sent) << "each button has its row";
}

} // namespace
} // namespace kelvo
