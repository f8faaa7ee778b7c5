// Each line that names a cause by itself, and lines that come near it.
#include "passes/captured_text.h"
#include "passes/pass_cause.h"

#include <gtest/gtest.h>

namespace kelvo {
namespace {

using enum PassCause;

constexpr int cSaysNothing = 77; // an exit status that names no cause

PassCause causeOf(CommandRole role, int status, const char* text) {
    CommandRecord command;
    command.role = role;
    command.exitStatus = status;
    command.text = capturedText(QString::fromUtf8(text));
    return causeOf(command).cause;
}

PassCause pull(const char* text, int status = cSaysNothing) {
    return causeOf(CommandRole::Pull, status, text);
}

PassCause check(const char* text, int status = cSaysNothing) {
    return causeOf(CommandRole::HostCheck, status, text);
}

struct Said {
    const char* text;
    PassCause cause;
};

TEST(PassCauseRulesTest, WhatSshSays_MeansTheSameInCheckAndPull) {
    for (const auto& [text, cause] : {
             Said{"ssh: Could not resolve hostname mac: Name not known", HostNotFound},
             Said{"@  WARNING: REMOTE HOST IDENTIFICATION HAS CHANGED!  @", HostKeyChanged},
             Said{"Host key verification failed.", HostKeyUnknown},
             Said{"ssh: connect to host mac port 22: Connection refused", RemoteLoginOff},
             Said{"ssh: connect to host mac port 22: No route to host", HostAway},
             Said{"Connection timed out during banner exchange", HostAway},
             Said{"Connection to 10.0.0.1 port 22 timed out", HostAway},
             Said{"Warning: Identity file k not accessible: No such file", KeyMissing},
             Said{"no such identity: k: No such file", KeyMissing},
             Said{"ann@mac: Permission denied (publickey).", KeyRefused},
             Said{"Permission denied (publickey).", KeyRefused},
             Said{"Received disconnect: Too many authentication failures", KeyRefused},
         }) {
        EXPECT_EQ(check(text), cause) << text;
        EXPECT_EQ(pull(text), cause) << text;
        const QByteArray cried = QByteArray(text).toUpper();
        EXPECT_EQ(check(cried.constData()), cause) << cried.constData();
    }
    for (const char* text :
         {"WARNING: REMOTE HOST IDENTIFICATION HAS CHANGED!", "the host key verification failed",
          "connect to host mac port 22: Connection refused", "Connection to mac closed.",
          "Warning: Identity file k", "rsync: x: Permission denied (13)",
          "rsync: Too many authentication failures", "ann: Permission denied"}) {
        EXPECT_EQ(check(text), Unknown) << text;
        EXPECT_EQ(pull(text), Unknown) << text;
    }
}

TEST(PassCauseRulesTest, WhatRsyncSays_NamesTheCause) {
    for (const auto& [text, cause] : {
             Said{"rsync error: remote command not found (code 127)", RsyncMissingThere},
             Said{"rsync: on remote machine: --mkpath: unknown option", RsyncTooOldThere},
             Said{"rsync error: syntax or usage error (code 1) at main.c(1)", CommandNotUnderstood},
             Said{"rsync error: syntax error (code 1) at x [server=2.6.9]", RsyncTooOldThere},
             Said{"rsync error: syntax error (code 1), x [server=2.6.9]", RsyncTooOldThere},
             Said{"rsync error: protocol incompatibility (code 2) [sender=3]\n"
                  "protocol version mismatch -- is your shell clean?",
                  RsyncTooOldThere},
             Said{"protocol version mismatch -- is your shell clean?\n"
                  "rsync error: protocol incompatibility (code 2)",
                  LoginTalks},
             Said{"rsync error: protocol incompatibility (code 2)", RsyncTooOldThere},
             Said{"rsync: write failed: No space left on device (28)", DiskFull},
             Said{"rsync: write failed: Disk quota exceeded (122)", DiskFull},
             Said{"rsync: [sender] change_dir \"/x\" failed: No such file (2)", SourceMissing},
             Said{"rsync: change_dir \"/x\" failed: No such file (2)", SourceMissing},
             Said{"rsync: [sender] change_dir \"/x\" failed: Input error", SourceNotPermitted},
             Said{"rsync: change_dir \"/x\" failed: Input error", SourceNotPermitted},
             Said{"rsync: [sender] opendir \"/x\" failed: Permission denied", SourceNotPermitted},
             Said{"rsync: opendir \"/x\" failed: Operation not permitted", SourceNotPermitted},
             Said{"rsync: [receiver] x: Read-only file system (30)", DestinationUnusable},
             Said{"rsync: [receiver] x: Permission denied (13)", DestinationUnusable},
             Said{"rsync: [receiver] x: Operation not permitted (1)", DestinationUnusable},
             Said{"rsync: [receiver] mkdir \"/x\" failed", DestinationUnusable},
             Said{"rsync: [Receiver] change_dir \"/x\" failed", DestinationUnusable},
             Said{"rsync: [generator] x: Read-only file system (30)", DestinationUnusable},
             Said{"rsync: [generator] x: Permission denied (13)", DestinationUnusable},
             Said{"rsync: [generator] x: Operation not permitted (1)", DestinationUnusable},
             Said{"ERROR: destination must be a directory when copying", DestinationUnusable},
             Said{"rsync: connection unexpectedly closed (1 bytes received so far)", CutOff},
             Said{"rsync: connection unexpectedly closed (10 bytes received so far)", CutOff},
         }) {
        EXPECT_EQ(pull(text), cause) << text;
        EXPECT_EQ(check(text), Unknown) << text;
        EXPECT_EQ(pull(text, 0), Well) << text;
    }
    for (const char* text :
         {"rsync error: some files (code 23) at main.c(1) [server=3.1.0]",
          "a film of (code 1) at [server=3]", "rsync error: syntax error (code 1)",
          "No space left on device", "rsync: [sender] opendir \"/x\" failed: Input error",
          "rsync: [receiver] x: Input error", "rsync: [generator] mkdir \"/x\" failed",
          "rsync: connection unexpectedly closed (0 bytes received so far)",
          "connection unexpectedly closed (9 bytes received so far)"})
        EXPECT_EQ(pull(text), Unknown) << text;
}

TEST(PassCauseRulesTest, WeightierLine_GoesFirstWhereverItStands) {
    EXPECT_EQ(pull("rsync: [receiver] x: Permission denied (13)\n"
                   "rsync: write failed: No space left on device (28)\n"),
              DiskFull);
    EXPECT_EQ(pull("ssh: connect to host mac port 22: Connection refused\n"
                   "rsync: connection unexpectedly closed (9 bytes received so far)\n"),
              CutOff);
    EXPECT_EQ(check("Permission denied (publickey).\nHost key verification failed.\n"),
              HostKeyUnknown);
}

TEST(PassCauseRulesTest, CheckThatAnswered_IsAnotherUserOrALoginThatTalks) {
    EXPECT_EQ(check("someone\n", 0), WrongUser);
    EXPECT_EQ(check("welcome\nsomeone\n", 0), LoginTalks);
    EXPECT_EQ(check("", 0), Unknown);
    EXPECT_EQ(check("someone\n", 1), Unknown);
    EXPECT_EQ(check("ssh: not found\n", 127), ToolMissingHere);
    EXPECT_EQ(check("ssh: connect to host mac port 22: Connection refused\n", 255), RemoteLoginOff);
}

TEST(PassCauseRulesTest, CommandAfterArrivals_FailsByItsStatusAlone) {
    EXPECT_EQ(causeOf(CommandRole::AfterArrivals, 0, "Permission denied (x"), Well);
    EXPECT_EQ(causeOf(CommandRole::AfterArrivals, 1, ""), AfterFailed);
    EXPECT_EQ(causeOf(CommandRole::AfterArrivals, 24, ""), AfterFailed);
}

TEST(PassCauseRulesTest, LastLine_IsCutAt300AndBetweenCharacters) {
    const auto lastLine = [](const QString& line) {
        CommandRecord command;
        command.exitStatus = cSaysNothing;
        command.text = capturedText(line);
        return causeOf(command).lastLine;
    };
    const QString pair = QStringLiteral("\U0001F3AC");
    const QString whole = QString(298, u'x') + pair;
    EXPECT_EQ(lastLine(whole), whole);
    EXPECT_EQ(lastLine(whole + u'y'), whole);
    EXPECT_EQ(lastLine(QString(299, u'x') + pair), QString(299, u'x'));
    EXPECT_EQ(lastLine(QString(301, u'x')), QString(300, u'x'));
    const QString half = QString(299, u'x') + pair.first(1) + u"yz";
    EXPECT_EQ(lastLine(half), half.first(300)) << "no pair is cut here";
}

} // namespace
} // namespace kelvo
