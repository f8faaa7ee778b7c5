#include "adapters/desktop/terminal_window.h"
#include "adapters/process/qt_main_queue.h"
#include "adapters/process/thread_pool_queue.h"
#include "fakes/fake_file_manager.h"
#include "fakes/recording_console.h"
#include "fakes/virtual_queues.h"
#include "support/wait_in_loop.h"

#include <QAbstractEventDispatcher>
#include <QDir>
#include <QFile>
#include <QTemporaryDir>

#include <gtest/gtest.h>

#include <limits.h>
#include <signal.h>
#include <sys/stat.h>
#include <unistd.h>

#include <algorithm>
#include <filesystem>

namespace kelvo {
namespace {

/// Terminal programs that are small scripts: each runs what comes after its options, with the
/// keyboard of a file.
class TerminalWindowTest : public ::testing::Test {
protected:
    TerminalWindowTest() { files.temporary = {fFolder.filePath(QStringLiteral("t")), {}}; }
    void SetUp() override { ASSERT_TRUE(QDir().mkdir(files.temporary.path)); }

    QString at(const char* name) const { return fFolder.filePath(QString::fromUtf8(name)); }
    QByteArray content(const char* name) const {
        QFile file(at(name));
        return file.open(QFile::ReadOnly) ? file.readAll() : QByteArray();
    }

    /// A terminal program with this text; "$@" is its command line.
    TerminalProgram program(const QByteArray& name, const QByteArray& text,
                            std::vector<std::string> option = {"-e"}) {
        QFile file(at(name));
        EXPECT_TRUE(file.open(QFile::WriteOnly));
        file.write("#!/bin/sh\necho " + name + " >>'" + at("tried").toLocal8Bit() + "'\n" + text +
                   "\n");
        file.close();
        file.setPermissions(QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner);
        return {at(name).toStdString(), std::move(option)};
    }
    /// One that shows its window as a file.
    QByteArray window(const QByteArray& end = "") const {
        return "shift; \"$@\" >'" + at("seen").toLocal8Bit() + "' 2>&1 </dev/null" + end;
    }
    QString script(const QByteArray& text) {
        QFile file(at("a 'script'.command"));
        EXPECT_TRUE(file.open(QFile::WriteOnly));
        file.write(text + "\n");
        return file.fileName();
    }
    void open(const QString& path) {
        terminal->openCommandFile(path, QStringLiteral("shown"), title,
                                  [this](TerminalOutcome outcome) { outcomes.push_back(outcome); });
    }
    void use(std::vector<TerminalProgram> programs) {
        terminal = std::make_unique<TerminalWindow>(files, console, mainQueue, bgQueue,
                                                    std::move(programs));
    }
    bool comesTo(TerminalOutcome outcome) {
        return waitInLoop([this] { return !outcomes.empty(); }) && outcomes == std::vector{outcome};
    }
    bool nothingLeftBehind() const { return QDir(files.temporary.path).isEmpty(); }

    QTemporaryDir fFolder;
    FakeFileManager files;
    RecordingConsole console;
    QtMainQueue mainQueue;
    ThreadPoolQueue bgQueue;
    std::vector<TerminalOutcome> outcomes;
    QString title;
    std::unique_ptr<TerminalWindow> terminal;
};

TEST_F(TerminalWindowTest, Search_IsTheBackgroundQueues) {
    ManualBackgroundQueue waiting;
    TerminalWindow slow(files, console, mainQueue, waiting, {program("one", window())});
    slow.openCommandFile(script("true"), {}, {},
                         [this](TerminalOutcome outcome) { outcomes.push_back(outcome); });
    EXPECT_EQ(waiting.size(), 1U);
    EXPECT_EQ(content("tried"), "");
    waiting.runAll();
    EXPECT_TRUE(comesTo(TerminalOutcome::Ended));
}

TEST_F(TerminalWindowTest, Script_RunsAndItsEndIsTold) {
    use({program("one", window())});
    open(script("echo from the script"));
    EXPECT_TRUE(outcomes.empty()) << "never before the call has returned";
    EXPECT_TRUE(comesTo(TerminalOutcome::Ended));
    EXPECT_TRUE(waitInLoop([this] { return content("seen").endsWith("close this window."); }));
    EXPECT_EQ(content("seen"), "from the script\n\nDone. Press any key to close this window.");
    EXPECT_TRUE(nothingLeftBehind());
}

TEST_F(TerminalWindowTest, FailureOfTheScript_StandsInTheWindowAndIsAnEndToo) {
    use({program("one", window())});
    open(script("exit 7"));
    EXPECT_TRUE(comesTo(TerminalOutcome::Ended));
    EXPECT_TRUE(waitInLoop([this] { return content("seen").contains("Ended with code 7."); }));
}

TEST_F(TerminalWindowTest, EndIsTold_WhileTheWindowStillWaitsForItsKey) {
    ASSERT_EQ(::mkfifo(at("keyboard").toLocal8Bit().constData(), 0600), 0);
    use({program("one", "shift; \"$@\" >'" + at("seen").toLocal8Bit() + "' <>'" +
                            at("keyboard").toLocal8Bit() + "'; echo closed >'" +
                            at("closed").toLocal8Bit() + "'")});
    open(script("true"));
    EXPECT_TRUE(comesTo(TerminalOutcome::Ended));
    EXPECT_EQ(content("closed"), "");
    QFile keyboard(at("keyboard"));
    ASSERT_TRUE(keyboard.open(QFile::ReadWrite | QFile::Unbuffered));
    EXPECT_TRUE(waitInLoop([&] {
        keyboard.write("x");
        return content("closed") == "closed\n";
    }));
}

TEST_F(TerminalWindowTest, WindowThatIsClosed_IsAnEnd) {
    use({program("one", "shift; \"$@\" & echo $! >'" + at("pid").toLocal8Bit() + "'; wait")});
    open(script("echo up >'" + at("up").toLocal8Bit() + "'; exec sleep 600"));
    ASSERT_TRUE(waitInLoop(
        [this] { return content("pid").endsWith('\n') && content("up").endsWith('\n'); }));
    const pid_t pid = content("pid").trimmed().toInt();
    EXPECT_TRUE(outcomes.empty());
    // As a terminal does when its window goes: the whole session hears of it.
    const pid_t session = ::getsid(pid);
    ASSERT_GT(session, 1);
    ASSERT_NE(session, ::getsid(0)) << "a session of its own";
    EXPECT_EQ(::kill(-::getpgid(pid), SIGHUP), 0);
    EXPECT_TRUE(comesTo(TerminalOutcome::Ended));
}

TEST_F(TerminalWindowTest, ProgramThatReturnsAtOnce_IsFollowedToTheScriptsEnd) {
    use({program("one", window(" &"))});
    open(script("while [ -e \"$0\" ] && [ ! -e '" + at("go").toLocal8Bit() +
                "' ]; do sleep 0.02; done"));
    ASSERT_TRUE(waitInLoop([this] { return QFile::exists(at("tried")); }));
    EXPECT_FALSE(waitInLoop([this] { return !outcomes.empty(); }, 1));
    QFile go(at("go"));
    ASSERT_TRUE(go.open(QFile::WriteOnly));
    EXPECT_TRUE(comesTo(TerminalOutcome::Ended));
}

TEST_F(TerminalWindowTest, ProgramsThatAreMissingOrFail_AreFollowedByTheNext) {
    use({{"/nowhere/terminal", {}}, program("bad", "exit 1"), program("good", window())});
    open(script("true"));
    EXPECT_TRUE(comesTo(TerminalOutcome::Ended));
    EXPECT_EQ(content("tried"), "bad\ngood\n");
    EXPECT_EQ(console.logged(), QStringList{QString(at("bad") + u" could not open a window.")});
}

TEST_F(TerminalWindowTest, ProgramThatMayNotBeRun_IsNamedWithTheReason) {
    const TerminalProgram forbidden = program("forbidden", "exit 0");
    ASSERT_TRUE(QFile::setPermissions(at("forbidden"), QFile::ReadOwner));
    use({forbidden, program("next", window())});
    open(script("true"));
    ASSERT_TRUE(comesTo(TerminalOutcome::Ended));
    EXPECT_EQ(console.logged(),
              QStringList{QString(u"Cannot start " + at("forbidden") + u": Permission denied")});
}

TEST_F(TerminalWindowTest, KnownTerminals_AreTriedInTheirOrderEachWithItsOwnOption) {
    const QByteArray options = "x-terminal-emulator -e\n"
                               "gnome-terminal --\n"
                               "konsole -e\n"
                               "xfce4-terminal -x\n"
                               "mate-terminal -x\n"
                               "terminator -x\n"
                               "tilix -e\n"
                               "qterminal -e\n"
                               "kitty /bin/sh\n"
                               "alacritty -e\n"
                               "foot /bin/sh\n"
                               "urxvt -e\n"
                               "rxvt -e\n"
                               "xterm -e\n";
    ASSERT_TRUE(QDir().mkdir(at("bin")));
    for (const QByteArray& line : options.trimmed().split('\n'))
        program("bin/" + line.split(' ')[0],
                "echo \"${0##*/} $1\" >>'" + at("options").toLocal8Bit() + "'; exit 1");
    const QByteArray path = qgetenv("PATH");
    qputenv("PATH", QByteArray(at("bin").toLocal8Bit() + ":/usr/bin:/bin"));
    terminal = std::make_unique<TerminalWindow>(files, console, mainQueue, bgQueue);
    open(script("true"));
    EXPECT_TRUE(comesTo(TerminalOutcome::NoWindow));
    qputenv("PATH", path);
    EXPECT_EQ(content("options"), options);
}

TEST_F(TerminalWindowTest, AfterTheEnd_NothingTurnsInACircle) {
    use({program("one", window())});
    open(script("true"));
    ASSERT_TRUE(comesTo(TerminalOutcome::Ended));
    int turns = 0;
    const QMetaObject::Connection counting =
        QObject::connect(QAbstractEventDispatcher::instance(), &QAbstractEventDispatcher::awake,
                         [&turns] { ++turns; });
    EXPECT_FALSE(waitInLoop([&turns] { return turns > 1000; }, 1));
    QObject::disconnect(counting);
}

TEST_F(TerminalWindowTest, NoProgramAtAll_IsSaid) {
    use({{"/nowhere/terminal", {}}, program("bad", "exit 1")});
    open(script("true"));
    EXPECT_TRUE(comesTo(TerminalOutcome::NoWindow));
    EXPECT_EQ(console.logged().constLast(), u"No terminal program could open a window.");
    EXPECT_TRUE(nothingLeftBehind());
}

TEST_F(TerminalWindowTest, NoSafeFolder_IsSaid) {
    files.temporary = {{}, QStringLiteral("/tmp/k belongs to somebody else")};
    use({program("one", window())});
    open(script("true"));
    EXPECT_TRUE(comesTo(TerminalOutcome::NoWindow));
    EXPECT_EQ(console.logged(), QStringList{QStringLiteral("Cannot open a terminal window: /tmp/k "
                                                           "belongs to somebody else")});
    EXPECT_FALSE(QFile::exists(at("tried")));
}

TEST_F(TerminalWindowTest, PlaceOrPipeThatCannotBeMade_IsSaidInTheSystemsWords) {
    files.temporary.path = at("missing");
    use({program("one", window())});
    open(script("true"));
    EXPECT_TRUE(comesTo(TerminalOutcome::NoWindow));
    // With the place in it, there is no room for the pipe's name in a path.
    QString deep = at("deep");
    while (deep.size() < PATH_MAX - 20)
        deep += u'/' + QString(std::min<qsizetype>(200, PATH_MAX - 21 - deep.size()), u'd');
    ASSERT_EQ(deep.size(), PATH_MAX - 20);
    std::filesystem::create_directories(deep.toStdString());
    files.temporary.path = deep;
    outcomes.clear();
    open(script("true"));
    EXPECT_TRUE(comesTo(TerminalOutcome::NoWindow));
    EXPECT_TRUE(nothingLeftBehind());
    EXPECT_EQ(console.logged(),
              (QStringList{QStringLiteral("Cannot open a terminal window: temporary folder: No "
                                          "such file or directory"),
                           QStringLiteral("Cannot open a terminal window: pipe: File name too "
                                          "long")}));
    EXPECT_FALSE(QFile::exists(at("tried")));
    std::filesystem::remove_all(at("deep").toStdString());
}

TEST_F(TerminalWindowTest, NextWindowFromTheAnswer_IsFine) {
    use({program("one", window())});
    const QString path = script("true");
    int ended = 0;
    std::function<void(TerminalOutcome)> again = [&](TerminalOutcome) {
        if (++ended < 3)
            terminal->openCommandFile(path, QString(), QString(), again);
    };
    terminal->openCommandFile(path, QString(), QString(), again);
    EXPECT_TRUE(waitInLoop([&] { return ended == 3; }));
}

TEST_F(TerminalWindowTest, Title_IsTheWindowsAndStandsAboveTheScript) {
    title = QStringLiteral("Kelvo %s: \"$(x)\" ü");
    use({program("one", window())});
    open(script("echo from the script"));
    EXPECT_TRUE(comesTo(TerminalOutcome::Ended));
    EXPECT_TRUE(waitInLoop([this] { return content("seen").endsWith("close this window."); }));
    const QByteArray words = title.toUtf8();
    const QByteArray beginning("\033]0;" + words + "\a" + words + "\n\nfrom the script\n");
    EXPECT_TRUE(content("seen").startsWith(beginning)) << content("seen").constData();
}

TEST_F(TerminalWindowTest, AfterTheTerminalIsGone_NothingIsTold) {
    use({program("one", window())});
    open(script("sleep 0.1; echo ran on"));
    ASSERT_TRUE(waitInLoop([this] { return QFile::exists(at("seen")); }));
    terminal.reset();
    EXPECT_TRUE(nothingLeftBehind());
    EXPECT_TRUE(waitInLoop([this] { return content("seen").contains("Done."); }))
        << "the window lives on";
    EXPECT_TRUE(outcomes.empty());
}

} // namespace
} // namespace kelvo
