#include "adapters/console/terminal_dialogue.h"
#include "adapters/console/this_terminal.h"
#include "adapters/system/unique_fd.h"
#include "support/wait_in_loop.h"

#include <QFile>
#include <QTemporaryDir>

#include <gtest/gtest.h>

#include <fcntl.h>
#include <termios.h>
#include <unistd.h>

#include <cstdlib>

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
    /// What a person has got to see since the last call.
    QByteArray seen() const {
        QByteArray bytes(4096, '\0');
        const ssize_t count =
            ::read(master.get(), bytes.data(), static_cast<std::size_t>(bytes.size()));
        return count > 0 ? bytes.left(count) : QByteArray();
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
    EXPECT_EQ(seen(), "Account [x]: ");
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
    EXPECT_EQ(seen(), "a\\x1b[31m\\u202e\r\n");
    dialogue.ask(QStringLiteral("\a? "), keep());
    EXPECT_EQ(seen(), "\\x07? ");
}

TEST_F(TerminalDialogueTest, EndOfTheInput_IsNoAnswer) {
    TerminalDialogue dialogue(terminal.get(), terminal.get());
    last = QString();
    dialogue.ask(QStringLiteral("? "), keep());
    type("\x04");
    ASSERT_TRUE(waitInLoop([this] { return answers == 1; }));
    EXPECT_EQ(last, std::nullopt);
    EXPECT_EQ(seen(), "? \r\n");
}

TEST_F(TerminalDialogueTest, QuestionTakenBack_LeavesWhatIsTypedToOthers) {
    TerminalDialogue dialogue(terminal.get(), terminal.get());
    dialogue.ask(QStringLiteral("? "), keep());
    dialogue.takeBack();
    dialogue.takeBack();
    EXPECT_EQ(seen(), "? \r\n");
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

} // namespace
} // namespace kelvo
