#include "engine/host_answer.h"

#include <gtest/gtest.h>

namespace kelvo {
namespace {

using enum PassCause;

const QString cTarget = QStringLiteral("ann@mac.local");

CommandResult ended(std::optional<int> status, const char* output, const char* errors = "") {
    return {.output = QString::fromUtf8(output),
            .errors = QString::fromUtf8(errors),
            .exitStatus = status};
}

PassCause causeOfTest(int status, const char* output, const char* errors = "") {
    return answerOfTest(cTarget, ended(status, output, errors)).value().cause;
}

TEST(HostAnswerTest, TestThatSaysItsWord_IsWell) {
    EXPECT_EQ(answerOfTest(cTarget, ended(0, "remoteisgood\n")),
              (HostAnswer{.target = cTarget, .cause = Well, .saidSuccess = true}));
}

TEST(HostAnswerTest, EveryOtherTest_HasItsTrueCause) {
    EXPECT_EQ(causeOfTest(255, "ssh: connect to host mac.local port 22: Connection refused"),
              RemoteLoginOff);
    EXPECT_EQ(causeOfTest(255, "ssh: connect to host mac.local port 22: No route to host"),
              HostAway);
    EXPECT_EQ(causeOfTest(255, "ssh: Could not resolve hostname mac.local: Name or service"),
              HostNotFound);
    EXPECT_EQ(causeOfTest(255, "ann@mac.local: Permission denied (publickey)."), KeyRefused);
    EXPECT_EQ(causeOfTest(255, "Host key verification failed."), HostKeyUnknown);
    EXPECT_EQ(causeOfTest(0, "Welcome!\nremoteisgood\n"), LoginTalks);
    EXPECT_EQ(causeOfTest(0, "Warning: Identity file /k not accessible: No such file.\n"
                             "remoteisgood\n"),
              KeyMissing);
    EXPECT_EQ(causeOfTest(124, ""), HostAway) << "a silent host";
    EXPECT_EQ(causeOfTest(127, "", "/bin/sh: 1: ssh: not found"), ToolMissingHere);
}

TEST(HostAnswerTest, ShellThatRefusesTheCommand_IsNoSuccess) {
    const auto answer =
        answerOfTest(cTarget, ended(2, "", "/bin/sh: 1: Syntax error: word unexpected\n"));
    EXPECT_EQ(answer, (HostAnswer{.target = cTarget,
                                  .cause = Unknown,
                                  .lastLine = QStringLiteral("/bin/sh: 1: Syntax error: word "
                                                             "unexpected"),
                                  .saidSuccess = true}));
    EXPECT_EQ(causeOfTest(0, ""), Unknown) << "nor is silence";
    EXPECT_EQ(causeOfTest(1, "remoteisgood\n"), Unknown);
    const auto other = answerOfTest(cTarget, ended(0, "This account is not available.\n"));
    EXPECT_EQ(other->cause, Unknown) << "somebody else's word";
    EXPECT_EQ(other->lastLine, u"This account is not available.");
}

TEST(HostAnswerTest, FaultThatTheTestNames_IsNotSaidToBeSuccess) {
    EXPECT_FALSE(
        answerOfTest(cTarget, ended(255, "ssh: Could not resolve hostname x"))->saidSuccess);
    EXPECT_TRUE(answerOfTest(cTarget, ended(255, "x: Permission denied (a)."))->saidSuccess);
}

TEST(HostAnswerTest, QuestionThatWasGivenUp_IsNoAnswer) {
    EXPECT_EQ(answerOfTest(cTarget, ended({}, "remoteisgood")), std::nullopt);
    EXPECT_EQ(answerOfCheck(cTarget, HostVerdict::Valid, ended({}, "ann")), std::nullopt);
    EXPECT_EQ(answerOfCheck(cTarget, HostVerdict::NotAsked, ended(0, "")), std::nullopt);
}

TEST(HostAnswerTest, Check_IsNamedAsInTheRecord) {
    EXPECT_EQ(answerOfCheck(cTarget, HostVerdict::Valid, ended(0, "ann\n")),
              (HostAnswer{.target = cTarget, .cause = Well}));
    EXPECT_EQ(
        answerOfCheck(cTarget, HostVerdict::UnknownError, ended(0, "bob\n")),
        (HostAnswer{.target = cTarget, .cause = WrongUser, .lastLine = QStringLiteral("bob")}));
    EXPECT_EQ(answerOfCheck(cTarget, HostVerdict::UnknownError,
                            ended(255, "ann@mac.local: Permission denied (publickey)."))
                  ->cause,
              KeyRefused);
}

TEST(HostAnswerTest, Key_HearsOnlyWhatConcernsIt) {
    const auto verdict = [](PassCause cause) {
        return verdictOnTheKey({.target = cTarget, .cause = cause});
    };
    EXPECT_EQ(verdict(Well), HostVerdict(HostVerdict::Valid));
    for (const PassCause cause : {HostNotFound, HostAway})
        EXPECT_EQ(verdict(cause), HostVerdict(HostVerdict::CheckRemoteHost));
    for (const PassCause cause : {KeyRefused, HostKeyUnknown, HostKeyChanged})
        EXPECT_EQ(verdict(cause), HostVerdict(HostVerdict::CheckUsername));
    EXPECT_EQ(verdict(KeyMissing), HostVerdict(HostVerdict::CheckSshKeys));
    for (const PassCause cause : {RemoteLoginOff, LoginTalks, Unknown, ToolMissingHere})
        EXPECT_EQ(verdict(cause), std::nullopt);
}

} // namespace
} // namespace kelvo
