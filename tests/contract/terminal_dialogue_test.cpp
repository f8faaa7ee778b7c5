#include "adapters/console/terminal_dialogue.h"
#include "adapters/console/this_terminal.h"
#include "adapters/system/unique_fd.h"
#include "support/descendants.h"
#include "support/wait_in_loop.h"

#include <QFile>
#include <QTemporaryDir>

#include <gtest/gtest.h>

#include <fcntl.h>
#include <poll.h>
#include <termios.h>
#include <unistd.h>

#include <algorithm>
#include <chrono>
#include <cstdlib>
#include <memory>

namespace kelvo {
namespace {

class TerminalDialogueTest : public ::testing::Test {
protected:
    void SetUp() override {
        ASSERT_EQ(::grantpt(master.get()), 0);
        ASSERT_EQ(::unlockpt(master.get()), 0);
        terminal = UniqueFd(::open(::ptsname(master.get()), O_RDWR | O_NOCTTY | O_CLOEXEC));
        ASSERT_GE(terminal.get(), 0);
        termios settings{};
        ASSERT_EQ(::tcgetattr(terminal.get(), &settings), 0);
        settings.c_lflag &= ~static_cast<tcflag_t>(ECHO);
        ASSERT_EQ(::tcsetattr(terminal.get(), TCSANOW, &settings), 0);
    }
    void type(const QByteArray& text) const {
        ASSERT_EQ(::write(master.get(), text.constData(), static_cast<std::size_t>(text.size())),
                  text.size());
    }
    /// What a person has got to see since the last call. Waits while it is less than `expected`:
    /// the system hands on what was written in its own time.
    QByteArray seen(QByteArrayView expected) const {
        QByteArray all;
        pollfd more{master.get(), POLLIN, 0};
        while (all.size() < expected.size() && ::poll(&more, 1, 5'000) == 1) {
            QByteArray bytes(4096, '\0');
            const ssize_t count =
                ::read(master.get(), bytes.data(), static_cast<std::size_t>(bytes.size()));
            if (count <= 0)
                break;
            all += bytes.left(count);
        }
        return all;
    }
    Dialogue::Answered keep() {
        return [this](const std::optional<QString>& answer) {
            ++answers;
            last = answer;
        };
    }

    UniqueFd master{::posix_openpt(O_RDWR | O_NOCTTY | O_NONBLOCK | O_CLOEXEC)};
    UniqueFd terminal;
    int answers = 0;
    std::optional<QString> last;
};

TEST_F(TerminalDialogueTest, Answer_IsOneLineAndComesLater) {
    TerminalDialogue dialogue(terminal.get(), terminal.get());
    ASSERT_TRUE(dialogue.canAnswer());
    dialogue.ask(QStringLiteral("Account [x]: "), keep());
    EXPECT_EQ(seen("Account [x]: "), "Account [x]: ");
    type("Ann O'Hara \xc3\xa9\nsecond\n");
    EXPECT_EQ(answers, 0);
    ASSERT_TRUE(waitInLoop([this] { return answers == 1; }));
    EXPECT_EQ(last, QStringLiteral("Ann O'Hara é"));
    dialogue.ask(QStringLiteral("? "), keep());
    ASSERT_TRUE(waitInLoop([this] { return answers == 2; }));
    EXPECT_EQ(last, QStringLiteral("second")) << "what was typed ahead is not lost";
}

TEST_F(TerminalDialogueTest, WhatIsSaid_HasItsControlsSpelledOut) {
    TerminalDialogue dialogue(terminal.get(), terminal.get());
    dialogue.say(QStringLiteral("a\x1b[31m\u202e"));
    EXPECT_EQ(seen("a\\x1b[31m\\u202e\r\n"), "a\\x1b[31m\\u202e\r\n");
    dialogue.ask(QStringLiteral("\a? "), keep());
    EXPECT_EQ(seen("\\x07? "), "\\x07? ");
}

TEST_F(TerminalDialogueTest, EndOfTheInput_IsNoAnswer) {
    TerminalDialogue dialogue(terminal.get(), terminal.get());
    last = QString();
    QByteArray seenByThen;
    dialogue.ask(QStringLiteral("? "), [&](const std::optional<QString>& answer) {
        seenByThen = seen("? \r\n");
        keep()(answer);
    });
    type("\x04");
    ASSERT_TRUE(waitInLoop([this] { return answers == 1; }));
    EXPECT_EQ(last, std::nullopt);
    EXPECT_EQ(seenByThen, "? \r\n") << "what is said next begins on a line of its own";
}

TEST_F(TerminalDialogueTest, QuestionTakenBack_LeavesWhatIsTypedToOthers) {
    TerminalDialogue dialogue(terminal.get(), terminal.get());
    dialogue.ask(QStringLiteral("? "), keep());
    dialogue.takeBack();
    dialogue.takeBack();
    EXPECT_EQ(seen("? \r\n"), "? \r\n");
    type("secret\n");
    EXPECT_FALSE(waitInLoop([this] { return answers > 0; }, 1));
    QByteArray bytes(64, '\0');
    EXPECT_EQ(::read(terminal.get(), bytes.data(), 64), 7) << "it is still there";
}

TEST_F(TerminalDialogueTest, WithoutATerminalOnBothSides_NobodyCanAnswer) {
    const UniqueFd nowhere(::open("/dev/null", O_RDWR | O_CLOEXEC));
    EXPECT_FALSE(TerminalDialogue(nowhere.get(), terminal.get()).canAnswer());
    EXPECT_FALSE(TerminalDialogue(terminal.get(), nowhere.get()).canAnswer());
}

class ThisTerminalTest : public ::testing::Test {
protected:
    QString script(const QByteArray& text) const {
        QString path = folder.filePath(QStringLiteral("it's a \"script\""));
        QFile file(path);
        EXPECT_TRUE(file.open(QIODevice::WriteOnly));
        file.write(text);
        return path;
    }
    void run(ThisTerminal& terminal, const QByteArray& text) {
        terminal.openCommandFile(script(text), {}, {}, [this](TerminalOutcome outcome) {
            ++ends;
            last = outcome;
        });
    }
    const QTemporaryDir folder;
    int ends = 0;
    std::optional<TerminalOutcome> last;
};

TEST_F(ThisTerminalTest, Script_RunsWithOurStreamsAndItsEndIsToldLater) {
    ThisTerminal terminal;
    const QByteArray mark = folder.filePath(QStringLiteral("mark")).toLocal8Bit();
    run(terminal,
        "readlink /proc/$$/fd/0 >'" + mark + "'; ps -o pgid= $$ >>'" + mark + "'; exit 3\n");
    EXPECT_TRUE(terminal.isBusy());
    EXPECT_EQ(ends, 0);
    ASSERT_TRUE(waitInLoop([this] { return ends == 1; }));
    EXPECT_EQ(last, TerminalOutcome::Ended);
    EXPECT_FALSE(terminal.isBusy());
    QFile file(QString::fromLocal8Bit(mark));
    ASSERT_TRUE(file.open(QIODevice::ReadOnly));
    EXPECT_EQ(file.readLine().trimmed(),
              QFile::symLinkTarget(QStringLiteral("/proc/self/fd/0")).toLocal8Bit());
    EXPECT_EQ(file.readLine().trimmed().toInt(), ::getpgrp()) << "Ctrl+C reaches it";
    run(terminal, "true\n");
    EXPECT_TRUE(waitInLoop([this] { return ends == 2; })) << "and once more";
}

TEST_F(ThisTerminalTest, SecondScriptAtATime_IsNotBegun) {
    ThisTerminal terminal;
    run(terminal, "exec sleep 100\n");
    std::optional<TerminalOutcome> second;
    terminal.openCommandFile(QStringLiteral("/dev/null"), {}, {},
                             [&](TerminalOutcome outcome) { second = outcome; });
    ASSERT_TRUE(waitInLoop([&] { return second.has_value(); }));
    EXPECT_EQ(second, TerminalOutcome::NoWindow);
    EXPECT_EQ(ends, 0);
}

TEST_F(ThisTerminalTest, ScriptThatStillRuns_IsEndedAndReapedAndNotWaitedForAnyLonger) {
    using Clock = std::chrono::steady_clock;
    // On a machine with much to do one attempt may take its time, hardly each of them.
    const std::size_t before = descendants().size(); // of cases before this one
    auto shortest = Clock::duration::max();
    for (int attempt = 0; attempt < 10 && shortest > std::chrono::seconds(1); ++attempt) {
        auto terminal = std::make_unique<ThisTerminal>();
        run(*terminal, "exec sleep 100\n");
        const auto begin = Clock::now();
        terminal.reset();
        shortest = std::min(shortest, Clock::now() - begin);
        EXPECT_EQ(descendants().size(), before);
    }
    EXPECT_LT(shortest, std::chrono::seconds(1));
    EXPECT_EQ(ends, 0) << "nobody is there to be told";
}

} // namespace
} // namespace kelvo
