#include "passes/captured_text.h"
#include "passes/pass_cause.h"

#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>
#include <iterator>
#include <map>
#include <string>

namespace kelvo {
namespace {

using enum PassCause;

/// What tests/lab/record-texts recorded, and what each text means.
const std::map<std::string, PassCause> cRecorded{
    {"command-not-understood", CommandNotUnderstood},
    {"cut-off", CutOff},
    {"cut-off-by-host", CutOff},
    {"destination-is-file", DestinationUnusable},
    {"destination-missing", DestinationUnusable},
    {"destination-read-only", DestinationUnusable},
    {"disk-full", DiskFull},
    {"files-not-taken", FilesNotTaken},
    {"files-vanished", FilesVanished},
    {"folder-not-permitted", SourceNotPermitted},
    {"host-away", HostAway},
    {"host-key-changed", HostKeyChanged},
    {"host-key-unknown", HostKeyUnknown},
    {"host-not-found", HostNotFound},
    {"host-unreachable", HostAway},
    {"key-missing", KeyMissing},
    {"key-refused", KeyRefused},
    {"key-too-open", KeyRefused},
    {"login-closed", Unknown},
    {"login-talks", LoginTalks},
    {"login-talks-to-rsync", LoginTalks},
    {"plain-source-missing", SourceMissing},
    {"plain-well", Well},
    {"protocol-too-old-there", RsyncTooOldThere},
    {"protocol-unknown-there", RsyncTooOldThere},
    {"remote-login-off", RemoteLoginOff},
    {"remote-login-off-between", RemoteLoginOff},
    {"rsync-missing-there", RsyncMissingThere},
    {"rsync-too-old-there", RsyncTooOldThere},
    {"source-missing", SourceMissing},
    {"source-not-permitted", SourceNotPermitted},
    {"template-missing", ToolMissingHere},
    {"tool-missing-here", ToolMissingHere},
    {"user-unknown", KeyRefused},
    {"well", Well},
    {"wrong-user", WrongUser},
};

CommandRecord recorded(const std::filesystem::path& path) {
    std::ifstream in(path);
    std::string role;
    std::string status;
    std::string empty;
    std::getline(in, role);
    std::getline(in, status);
    std::getline(in, empty);
    const std::string text{std::istreambuf_iterator<char>(in), {}};
    CommandRecord command;
    command.role = role == "role: check" ? CommandRole::HostCheck : CommandRole::Pull;
    command.exitStatus = std::stoi(status.substr(std::string("status: ").size()));
    command.text = capturedText(QString::fromStdString(text));
    return command;
}

CommandRecord ended(CommandRole role, std::optional<int> status, const QString& text) {
    CommandRecord command;
    command.role = role;
    command.exitStatus = status;
    command.text = capturedText(text);
    return command;
}

TEST(PassCauseTest, EveryRecordedText_HasItsCause) {
    std::size_t seen = 0;
    for (const auto& file : std::filesystem::directory_iterator(KELVO_TEXTS)) {
        const std::string name = file.path().stem();
        if (name == "check-well")
            continue; // judged by its answer, not by its text
        const auto meaning = cRecorded.find(name);
        ASSERT_NE(meaning, cRecorded.end()) << name << " has no meaning in the table";
        EXPECT_EQ(causeOf(recorded(file.path())).cause, meaning->second) << name;
        ++seen;
    }
    EXPECT_EQ(seen, cRecorded.size()) << "texts are missing";
}

TEST(PassCauseTest, EveryCause_HasAText) {
    std::map<PassCause, int> texts;
    for (const auto& [name, cause] : cRecorded)
        ++texts[cause];
    for (int i = 0; i <= static_cast<int>(cLastPassCause); ++i) {
        const auto cause = static_cast<PassCause>(i);
        if (cause == SettingsMissing || cause == SettingsRefused || cause == Interrupted ||
            cause == Cancelled || cause == AfterFailed || cause == DestinationTaken ||
            cause == MovieCommandRefused)
            continue; // told by the record itself
        EXPECT_GE(texts[cause], 1) << "cause " << i;
    }
}

TEST(PassCauseTest, MacOfAnotherAge_IsUnderstoodToo) {
    const auto pull = [](int status, const char* text) {
        return causeOf(ended(CommandRole::Pull, status, QString::fromUtf8(text))).cause;
    };
    EXPECT_EQ(pull(23, "rsync: opendir \"/Users/x/Movies\" failed: Operation not permitted (1)\n"),
              SourceNotPermitted);
    EXPECT_EQ(
        pull(23, "rsync: change_dir \"/Volumes/Out\" failed: No such file or directory (2)\n"),
        SourceMissing);
    EXPECT_EQ(pull(30, "nothing that is known\n"), CutOff);
    EXPECT_EQ(pull(77, "nothing that is known\n"), Unknown);
    EXPECT_EQ(pull(143, ""), Unknown);
}

TEST(PassCauseTest, PullThatSaidNothing_IsJudgedByItsStatus) {
    for (const auto& [status, cause] :
         {std::pair(0, Well), std::pair(1, CommandNotUnderstood), std::pair(2, RsyncTooOldThere),
          std::pair(3, DestinationUnusable), std::pair(4, RsyncTooOldThere), std::pair(5, Unknown),
          std::pair(11, Unknown), std::pair(12, Unknown), std::pair(20, Interrupted),
          std::pair(23, FilesNotTaken), std::pair(24, FilesVanished), std::pair(30, CutOff),
          std::pair(35, CutOff), std::pair(126, CommandNotUnderstood),
          std::pair(127, ToolMissingHere), std::pair(130, Unknown), std::pair(255, Unknown)})
        EXPECT_EQ(causeOf(ended(CommandRole::Pull, status, {})).cause, cause) << status;
}

TEST(PassCauseTest, CheckWhoseTimeWasUp_MeansAHostThatIsAwayWhateverItSaid) {
    for (const char* said : {"", "mediauser\n", "Warning: Identity file x not accessible: no\n"})
        EXPECT_EQ(causeOf(ended(CommandRole::HostCheck, 124, QString::fromUtf8(said))).cause,
                  HostAway)
            << said;
    EXPECT_EQ(causeOf(ended(CommandRole::Pull, 124, QString())).cause, Unknown);
}

TEST(PassCauseTest, CheckThatPrintedTooMuch_MeansALoginThatTalksWhateverItSaid) {
    for (const char* said :
         {"mediauser\n", "ssh: connect to host mac port 22: Connection refused\n"})
        EXPECT_EQ(causeOf(ended(CommandRole::HostCheck, 141, QString::fromUtf8(said))).cause,
                  LoginTalks)
            << said;
    EXPECT_EQ(causeOf(ended(CommandRole::Pull, 141, QString())).cause, Unknown);
}

TEST(PassCauseTest, NameOfAFile_IsNoMessage) {
    const QString names = QStringLiteral("Host key verification failed.mov\n"
                                         "a: No space left on device (28).mov\n");
    EXPECT_EQ(causeOf(ended(CommandRole::Pull, 0, names)).cause, Well);
    EXPECT_EQ(causeOf(ended(CommandRole::Pull, 24,
                            QString(names + u"rsync warning: some files vanished")))
                  .cause,
              FilesVanished);
}

TEST(PassCauseTest, UnknownText_KeepsItsLastLine) {
    const auto named = causeOf(
        ended(CommandRole::HostCheck, 1, QStringLiteral("first\n  It is Sunday here. \n\n")));
    EXPECT_EQ(named.cause, Unknown);
    EXPECT_EQ(named.lastLine, QStringLiteral("It is Sunday here."));
    EXPECT_EQ(causeOf(ended(CommandRole::Pull, 9, QString(5000, u'x'))).lastLine.size(), 300);
    const QString pairAtTheCut = QString(299, u'x') + QStringLiteral("🎬 and more");
    EXPECT_EQ(causeOf(ended(CommandRole::Pull, 9, pairAtTheCut)).lastLine, QString(299, u'x'));
}

TEST(PassCauseTest, CommandGivenUp_MeansInterrupted) {
    EXPECT_EQ(causeOf(ended(CommandRole::Pull, std::nullopt, {})).cause, Interrupted);
    EXPECT_EQ(causeOf(ended(CommandRole::HostCheck, std::nullopt, {})).cause, Interrupted);
}

// -- whole passes

PassRecord remotePass(const QString& verdict, std::vector<CommandRecord> commands) {
    PassRecord pass;
    pass.kind = PassKind::Remote;
    pass.verdict = HostVerdict::fromText(verdict);
    pass.commands = std::move(commands);
    return pass;
}

TEST(PassCauseTest, ValidHost_IsNotJudgedByItsCheck) {
    const auto check = ended(CommandRole::HostCheck, 0, QStringLiteral("mediauser\n"));
    const auto good = ended(CommandRole::Pull, 0, {});
    EXPECT_EQ(causeOf(remotePass(QStringLiteral("valid"), {check, good, good})).cause, Well);
    EXPECT_EQ(causeOf(remotePass(QStringLiteral("valid"), {check})).cause, SettingsMissing);
}

TEST(PassCauseTest, FirstPullInTrouble_NamesThePass) {
    const auto check = ended(CommandRole::HostCheck, 0, QStringLiteral("mediauser\n"));
    const auto good = ended(CommandRole::Pull, 0, {});
    const auto vanished = ended(CommandRole::Pull, 24, {});
    const auto partial = ended(CommandRole::Pull, 23, {});
    const QString valid = QStringLiteral("valid");
    EXPECT_EQ(causeOf(remotePass(valid, {check, good, vanished})).cause, FilesVanished);
    EXPECT_EQ(causeOf(remotePass(valid, {check, partial, vanished})).cause, FilesNotTaken);
}

TEST(PassCauseTest, NothingAsked_MeansSettingsAreMissing) {
    EXPECT_EQ(causeOf(remotePass({}, {})).cause, SettingsMissing);
    EXPECT_EQ(causeOf(PassRecord()).cause, SettingsMissing);
}

const QString cSshPart =
    QStringLiteral("2>&1 --timeout=5  -e 'ssh -i /home/ann/.ssh/id_kelvoRsync' ");
const QString cPlaces = QStringLiteral(" \"ann@Mac.local:Movies/\" \"/in/\" ");

/// The cause of a pass whose pull went well and whose movie command an old rsync refused.
NamedCause refusedBehind(const QString& pull, const QString& places = cPlaces) {
    CommandRecord first = ended(CommandRole::Pull, 0, {});
    first.command = pull;
    CommandRecord movies =
        recorded(std::filesystem::path(KELVO_TEXTS) / "protocol-too-old-there.txt");
    movies.command = u"/usr/bin/rsync " + cSshPart +
                     u" -f '+ */' -f '+ *.[mM][oOpP][vV4]*' -f '- *' -r  --times  "
                     u"--prune-empty-dirs" +
                     places;
    return causeOf(remotePass(QStringLiteral("valid"), {first, movies}));
}

/// The same behind the template `/usr/bin/rsync %@98 OPTIONS "%@1" "%@2"`.
PassCause causeBehind(const QString& options) {
    return refusedBehind(u"/usr/bin/rsync " + cSshPart + options + cPlaces).cause;
}

TEST(PassCauseTest, RefusedMovieCommand_IsNoTroubleWhenThePullBroughtEveryMovie) {
    for (const QString& options :
         {QStringLiteral("-r --times"), QStringLiteral("-avP --stats --bwlimit=9"),
          QStringLiteral("--recursive -f '- .kelvo-partial/'"), QStringLiteral("-r --update"),
          QStringLiteral("-r --ignore-existing"), QStringLiteral("-r --partial-dir=/tmp/parts"),
          QStringLiteral("-r --times --partial-dir=.kelvo-partial --stats --info=progress2 "
                         "--out-format='%l %n' -f '- .kelvo-partial/' -f '+ */' "
                         "-f '+ *.[mM][oO][vV]' -f '+ *.[mM][pP]4' -f '- *'"),
          QStringLiteral("-r -f '+ */' -f '+ *.[mM][oO][vV]' -f \"+ *.[mM][pP]4\" -f '- *' "
                         "-f '- *.mov'")})
        EXPECT_EQ(causeBehind(options), Well) << options.toStdString();
    EXPECT_EQ(refusedBehind(u"rsync -r" + cPlaces).lastLine, QString());
}

TEST(PassCauseTest, RefusedMovieCommand_IsNamedWhereThePullMayHaveLeftMoviesOut) {
    for (const QString& options :
         {QStringLiteral("--times"), QStringLiteral("-r -f '- *.mp4'"), QStringLiteral("-rn"),
          QStringLiteral("-r --partial-dir=Films"), QStringLiteral("-r --partial-dir"),
          QStringLiteral("-r --max-size=9G"), QStringLiteral("-r --exclude='*.mov'"),
          QStringLiteral("-r -f '. rules'"), QStringLiteral("-rf '- *'"), QStringLiteral("-r -f"),
          QStringLiteral("-r -f '+ */' -f '+ *.[mM][oO][vV]' -f '- *'"),
          QStringLiteral("-r -f '+ */' -f '+ *.[mM][pP]4' -f '- *'"),
          QStringLiteral("-r -f '+ *.[mM][oO][vV]' -f '+ *.[mM][pP]4' -f '- *'"),
          QStringLiteral("-r -f '- *' -f '+ */' -f '+ *.[mM][oO][vV]' -f '+ *.[mM][pP]4'"),
          QStringLiteral("-r $OPTIONS"), QStringLiteral("-r \"`cat options`\""),
          QStringLiteral("-r 'elsewhere'"), QStringLiteral("-r; true"), QStringLiteral("-r 'open")})
        EXPECT_EQ(causeBehind(options), MovieCommandRefused) << options.toStdString();
    EXPECT_EQ(refusedBehind(QStringLiteral("rsync -r \"ann@Mac.local:Films/\" \"/in/\"")).cause,
              MovieCommandRefused)
        << "from another folder";
    for (const QChar sign : QStringView(u"$`&|;<>()*?[{~#\t\n"))
        EXPECT_EQ(causeBehind(u"-r --info=x" + sign + u'y'), MovieCommandRefused)
            << QString(sign).toStdString();
    EXPECT_EQ(refusedBehind(u"rsync -r" + cPlaces + u"--info='x").cause, MovieCommandRefused);
    EXPECT_EQ(refusedBehind(u"copy -r" + cPlaces).cause, MovieCommandRefused);
    EXPECT_EQ(refusedBehind(u"/opt/new/rsync -r" + cPlaces).cause, Well);
    EXPECT_EQ(refusedBehind({}).lastLine,
              QStringLiteral("rsync error: protocol incompatibility (code 2) at compat.c(720) "
                             "[Receiver=3.5.0]"));
}

TEST(PassCauseTest, PlacesOfAPull_AreReadAsAShellReadsThem) {
    const QString odd =
        QStringLiteral(" \"ann@Mac.local:Films \\$5 \\\\[x] it's/\" \"/in 2>&1/\" ");
    EXPECT_EQ(refusedBehind(u"rsync -r" + odd, odd).cause, Well);
    EXPECT_EQ(refusedBehind(QStringLiteral("rsync -r ann@Mac.local:Films\\ \\$5' \\[x] it'\\'s/ "
                                           "'/in 2>&1/'"),
                            odd)
                  .cause,
              Well);
    EXPECT_EQ(refusedBehind(QStringLiteral("rsync -r 'ann@Mac.local:Films \\$5 \\[x] it'\\''s/' "
                                           "'/in 2>&1/'"),
                            odd)
                  .cause,
              MovieCommandRefused)
        << "a backslash more";
    EXPECT_EQ(refusedBehind(QStringLiteral("rsync -r 'h:a\\Mb' /in/"),
                            QStringLiteral(" \"h:a\\Mb\" \"/in/\""))
                  .cause,
              Well);
    EXPECT_EQ(
        refusedBehind(QStringLiteral("rsync -r h:a /in/"), QStringLiteral(" \"h:a\" \"2>&1/in/\""))
            .cause,
        MovieCommandRefused);
    EXPECT_EQ(
        refusedBehind(QStringLiteral("rsync -r h:a /in/"), QStringLiteral(" \"h:a\" /in2>&1/"))
            .cause,
        MovieCommandRefused);
}

TEST(PassCauseTest, RefusedTemplate_NamesThePassWhateverFollows) {
    const auto refused =
        recorded(std::filesystem::path(KELVO_TEXTS) / "protocol-too-old-there.txt");
    EXPECT_EQ(causeOf(remotePass(QStringLiteral("valid"), {refused, refused})).cause,
              RsyncTooOldThere);
    EXPECT_EQ(
        causeOf(remotePass(QStringLiteral("valid"), {refused, ended(CommandRole::Pull, 0, {})}))
            .cause,
        RsyncTooOldThere);
}

TEST(PassCauseTest, CommandBehindARefusal_IsJudgedToo) {
    CommandRecord pull = ended(CommandRole::Pull, 0, {});
    pull.command = u"rsync -r" + cPlaces;
    CommandRecord movies =
        recorded(std::filesystem::path(KELVO_TEXTS) / "protocol-too-old-there.txt");
    movies.command = pull.command;
    const auto after = ended(CommandRole::AfterArrivals, 1, QStringLiteral("no player"));
    const auto named = causeOf(remotePass(QStringLiteral("valid"), {pull, movies, after}));
    EXPECT_EQ(named.cause, AfterFailed);
}

} // namespace
} // namespace kelvo
