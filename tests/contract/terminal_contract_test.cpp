// The contract of Terminal on the fake, on windows (of a terminal program that is a small script)
// and where there is no desktop. That a window waits for its key and outlives the program is seen
// only with the real one: terminal_window_test.
#include "adapters/console/headless_desktop.h"
#include "adapters/desktop/terminal_window.h"
#include "adapters/process/qt_main_queue.h"
#include "adapters/process/thread_pool_queue.h"
#include "fakes/fake_file_manager.h"
#include "fakes/fake_remote_side.h"
#include "fakes/recording_console.h"
#include "support/wait_in_loop.h"

#include <QDir>
#include <QFile>
#include <QTemporaryDir>

#include <gtest/gtest.h>

namespace kelvo {
namespace {

struct FakeWorld {
    static constexpr bool cOpensWindows = true;

    QString script() const { return QStringLiteral("/tmp/of me/x.command"); }
    /// The script comes to its end, if it has not by itself.
    void endScript() {
        if (terminal)
            terminal->windows.back().ended(TerminalOutcome::Ended);
    }
    bool becomes(const std::function<bool()>& condition, int = 0) { return condition(); }

    std::unique_ptr<FakeTerminal> terminal = std::make_unique<FakeTerminal>();
};

struct WindowWorld {
    static constexpr bool cOpensWindows = true;

    WindowWorld() {
        files.temporary = {at("t"), {}};
        QDir().mkdir(at("t"));
        put("program", "#!/bin/sh\nshift\n\"$@\" >/dev/null 2>&1 </dev/null\n");
        // It ends with the folder, too: no case leaves it behind.
        put("script", "while [ -e \"$0\" ] && [ ! -e '" + at("go").toLocal8Bit() +
                          "' ]; do sleep 0.02; done\n");
        terminal = std::make_unique<TerminalWindow>(
            files, console, mainQueue, bgQueue,
            std::vector<TerminalProgram>{{at("program").toStdString(), {"-e"}}});
    }
    ~WindowWorld() { endScript(); }

    QString at(const char* name) const { return folder.filePath(QString::fromUtf8(name)); }
    void put(const char* name, const QByteArray& text) const {
        QFile file(at(name));
        EXPECT_TRUE(file.open(QFile::WriteOnly));
        file.write(text);
        file.setPermissions(QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner);
    }
    QString script() const { return at("script"); }
    void endScript() const { put("go", ""); }
    bool becomes(const std::function<bool()>& condition, int seconds = 20) {
        return waitInLoop(condition, seconds);
    }

    QTemporaryDir folder;
    FakeFileManager files;
    RecordingConsole console;
    QtMainQueue mainQueue;
    ThreadPoolQueue bgQueue;
    std::unique_ptr<TerminalWindow> terminal;
};

struct HeadlessWorld {
    static constexpr bool cOpensWindows = false;

    QString script() const { return QStringLiteral("/tmp/x.command"); }
    void endScript() {}
    bool becomes(const std::function<bool()>& condition, int = 0) { return condition(); }

    RecordingConsole console;
    std::unique_ptr<HeadlessTerminal> terminal = std::make_unique<HeadlessTerminal>(console);
};

template <typename World>
class TerminalContractTest : public ::testing::Test {
protected:
    void open() {
        world.terminal->openCommandFile(
            world.script(), QStringLiteral("ssh-copy-id x"), QStringLiteral("A title"),
            [this](TerminalOutcome outcome) { outcomes.push_back(outcome); });
    }

    std::vector<TerminalOutcome> outcomes;
    World world;
};

using Worlds = ::testing::Types<FakeWorld, WindowWorld, HeadlessWorld>;
TYPED_TEST_SUITE(TerminalContractTest, Worlds);

TYPED_TEST(TerminalContractTest, EndOfTheScript_IsToldOnceAndLater) {
    this->open();
    EXPECT_TRUE(this->outcomes.empty()) << "never before the call has returned";
    this->world.endScript();
    if constexpr (TypeParam::cOpensWindows) {
        EXPECT_TRUE(this->world.becomes([this] { return !this->outcomes.empty(); }));
        EXPECT_EQ(this->outcomes, std::vector{TerminalOutcome::Ended});
    } else {
        EXPECT_TRUE(this->outcomes.empty()) << "nobody runs it";
        EXPECT_EQ(this->world.console.printed(),
                  QStringList{QStringLiteral("terminal: ssh-copy-id x")});
    }
}

TYPED_TEST(TerminalContractTest, RunningScript_IsNotYetToldOf) {
    this->open();
    EXPECT_FALSE(this->world.becomes([this] { return !this->outcomes.empty(); }, 1));
}

TYPED_TEST(TerminalContractTest, AfterTheTerminalIsGone_NothingIsTold) {
    this->open();
    this->world.terminal.reset();
    this->world.endScript();
    EXPECT_FALSE(this->world.becomes([this] { return !this->outcomes.empty(); }, 1));
}

} // namespace
} // namespace kelvo
