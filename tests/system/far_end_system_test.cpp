// One remote pass of the built program against rsyncs of another age and a login that talks.
#include "support/program_profile.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>

#include <gtest/gtest.h>

#include <chrono>
#include <thread>

namespace kelvo {
namespace {

/// With a stand-in for ssh in its place, in a mount namespace of the program's own.
class FarEndSystemTest : public ::testing::Test, public ProgramProfile {
protected:
    void SetUp() override {
        if (runToEnd(QStringLiteral("unshare"), {QStringLiteral("-rm"), QStringLiteral("true")})
                .code != 0)
            GTEST_SKIP() << "no mount namespace for this user";
        write(path(QStringLiteral("Movies/one.mov")), "movie");
        write(path(QStringLiteral("Incoming/kept.txt")), "mine");
        write(path(QStringLiteral("home/.ssh/id_kelvoRsync")), "no key");
        // What changes 20 ms before a pass counts as its arrival.
        std::this_thread::sleep_for(std::chrono::milliseconds(100));
    }

    /// One pass with `rsyncTemplate`; the login prints `says` before rsync speaks, the rsync over
    /// there takes `options` too.
    QJsonObject passAgainst(const QByteArray& says, const QByteArray& options,
                            const QString& rsyncTemplate) const {
        const QString ssh = path(QStringLiteral("ssh"));
        write(ssh, "#!/bin/sh\nwhile [ \"${1#-}\" != \"$1\" ]; do shift 2; done\nshift\n"
                   "whoami() { echo ann; }\nrsync() { printf '" +
                       says + "'; /usr/bin/rsync " + options + " \"$@\"; }\neval \"$*\"\n");
        QFile::setPermissions(ssh, QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner);
        QVariantMap profile = plainProfile();
        profile[QStringLiteral("prefRsyncWithSSH")] = true;
        profile[QStringLiteral("prefRemoteUsername")] = QStringLiteral("ann");
        profile[QStringLiteral("prefRemoteBonjourName")] = QStringLiteral("Mac.local");
        profile[QStringLiteral("prefRemotePath")] = path(QStringLiteral("Movies"));
        profile[QStringLiteral("prefRsyncCommandString1")] = rsyncTemplate;
        write(settingsFile(), plistText(profile));
        const QString place = QStringLiteral("mount --bind \"$1\" /usr/bin/ssh && "
                                             "exec \"$0\" --once --json");
        const Ended ended =
            runToEnd(QStringLiteral("unshare"),
                     {QStringLiteral("-rm"), QStringLiteral("sh"), QStringLiteral("-c"), place,
                      QStringLiteral(KELVO_PROGRAM), ssh});
        EXPECT_EQ(ended.errors, "");
        return QJsonDocument::fromJson(ended.output).object();
    }

    static void expectPass(const QJsonObject& pass, const QString& cause, int files, int exitCode) {
        const std::string text = QJsonDocument(pass).toJson().toStdString();
        EXPECT_EQ(pass.value(u"cause"), cause) << text;
        EXPECT_EQ(pass.value(u"files"), files) << text;
        EXPECT_EQ(pass.value(u"exitCode"), exitCode) << text;
        EXPECT_EQ(pass.value(u"arrivals").toArray().size(), files) << text;
    }

    const QString fWhole = QStringLiteral("/usr/bin/rsync %@98 -rtv \"%@1\" \"%@2\"");
};

TEST_F(FarEndSystemTest, LoginThatTalksBeforeRsync_IsNamed) {
    expectPass(passAgainst("Welcome to the projection room\\n", "", fWhole),
               QStringLiteral("login-talks"), 0, 12);
}

TEST_F(FarEndSystemTest, TemplateForANewerRsync_IsNamedAndBringsNothing) {
    expectPass(passAgainst("", "--protocol=28",
                           QStringLiteral("/usr/bin/rsync %@98 -rtvm \"%@1\" \"%@2\"")),
               QStringLiteral("rsync-too-old-there"), 0, 13);
}

TEST_F(FarEndSystemTest, RefusedMovieCommandBehindAWholePull_IsWell) {
    expectPass(passAgainst("", "--protocol=28", fWhole), QStringLiteral("well"), 1, 0);
}

TEST_F(FarEndSystemTest, RefusedMovieCommandBehindAFilter_IsNamedWithWhatArrived) {
    expectPass(passAgainst("", "--protocol=28",
                           QStringLiteral("/usr/bin/rsync %@98 -rtv -f '- *.mp4' \"%@1\" "
                                          "\"%@2\"")),
               QStringLiteral("movie-command-refused"), 1, 13);
}

} // namespace
} // namespace kelvo
