#include "engine/engine.h"
#include "fakes/view_controller_world.h"
#include "passes/captured_text.h"
#include "passes/running_pass.h"
#include "support/partial_option.h"

#include <gtest/gtest.h>

#include <map>
#include <set>
#include <thread>

namespace kelvo {
namespace {

const QString cStatistics = QStringLiteral("one.mov\n\nNumber of regular files transferred: 1\n"
                                           "Total transferred file size: 40,000 bytes\n");

/// Commands take time on the test's clock and end as told.
class ScriptedCommands final : public CommandRunner {
public:
    explicit ScriptedCommands(double& clock) : fClock(clock) {}

    CommandResult run(const Command& command) override {
        variables.push_back(command.variables);
        fCancelled = false;
        if (beforeItStarts)
            beforeItStarts();
        if (command.started)
            command.started(1);
        for (const char* piece : pieces) {
            if (!command.received)
                break;
            command.received(piece);
            if (whileRunning)
                whileRunning();
        }
        if (whileRunning && pieces.empty())
            whileRunning();
        if (command.text == endless) {
            fClock += command.seconds.value_or(0);
            return {QStringLiteral("so far\n"), {}, 124};
        }
        fClock += 2.5;
        if (fCancelled && !hasEnded)
            return {QStringLiteral("cut"), {}, {}};
        for (const auto& [part, result] : results) {
            if (command.text.contains(part))
                return result;
        }
        return {{}, {}, 0};
    }
    void cancel(CommandId) override {
        fCancelled = true;
        ++cancels;
    }
    std::optional<FileBeingWritten> fileBeingWritten(CommandId) const override {
        ++looks;
        return writing;
    }

    std::function<void()> beforeItStarts;
    std::function<void()> whileRunning;
    std::vector<const char*> pieces; ///< printed one by one
    std::optional<FileBeingWritten> writing;
    mutable int looks = 0;
    QString endless;       ///< this command never ends by itself
    bool hasEnded = false; ///< a wish to end it comes too late
    int cancels = 0;

    std::map<QString, CommandResult> results;
    std::vector<std::map<QByteArray, QByteArray>> variables; ///< of each command

private:
    double& fClock;
    bool fCancelled = false;
};

class RunningPassTest : public ::testing::Test {
protected:
    static CommandResult run(RunningPass& pass, const char* command,
                             PassStep step = PassStep::Pull) {
        return pass.run(step, {.text = QString::fromLatin1(command)});
    }

    double clock = 100;
    const QDateTime noon{QDate(2026, 3, 1), QTime(12, 0), Qt::UTC};
    QString wholePull;
    int keepings = 0;
    std::vector<PassRecord> records;
    ScriptedCommands commands{clock};
    RunningPasses passes{commands,
                         {[this] { return noon; }, [this] { return clock; }},
                         {.last = [this] { return wholePull; },
                          .keep =
                              [this](const QString& command) {
                                  wholePull = command;
                                  ++keepings;
                              }},
                         [this](const PassRecord& record) { records.push_back(record); }};
};

TEST_F(RunningPassTest, RemotePass_IsWrittenDownWhole) {
    commands.results[QStringLiteral("whoami")] = {QStringLiteral("mediauser\n"), {}, 0};
    commands.results[QStringLiteral("first")] = {cStatistics, {}, 0};
    commands.results[QStringLiteral("second")] = {{}, QStringLiteral("oops\n"), 24};
    {
        RunningPass pass(passes, PassKind::Remote);
        run(pass, "ssh whoami", PassStep::AskingTheMac);
        pass.judged(HostVerdict::Valid);
        run(pass, "first --stats");
        run(pass, "second");
        EXPECT_TRUE(records.empty());
    }

    ASSERT_EQ(records.size(), 1U);
    const PassRecord& record = records.front();
    EXPECT_EQ(record.began, noon);
    EXPECT_DOUBLE_EQ(record.seconds, 7.5);
    EXPECT_EQ(record.kind, PassKind::Remote);
    EXPECT_EQ(record.verdict, HostVerdict::Valid);
    EXPECT_EQ(record.cause, PassCause::FilesVanished);
    EXPECT_EQ(record.lastLine, QStringLiteral("oops"));
    EXPECT_EQ(record.transfer.files, 1);
    EXPECT_EQ(record.transfer.bytes, 40000);
    ASSERT_EQ(record.commands.size(), 3U);
    EXPECT_EQ(record.commands[0].role, CommandRole::HostCheck);
    EXPECT_EQ(record.commands[0].text.head, QStringLiteral("mediauser\n"));
    EXPECT_EQ(record.commands[1].role, CommandRole::Pull);
    EXPECT_DOUBLE_EQ(record.commands[1].seconds, 2.5);
    EXPECT_EQ(record.commands[2].exitStatus, 24);
    EXPECT_EQ(record.commands[2].text.head, QStringLiteral("oops\n"));
    EXPECT_EQ(record.commands[2].transfer.source, TransferSource::Unknown);
}

TEST_F(RunningPassTest, SilentCommandThatWritesNothing_HasNoFigures) {
    PassProgress seen;
    commands.whileRunning = [&] { seen = passes.underWay().at(0).progress; };
    RunningPass pass(passes, PassKind::Plain);
    run(pass, "silent");
    EXPECT_GT(commands.looks, 0);
    EXPECT_EQ(seen.filesDone, std::nullopt);
    EXPECT_EQ(seen.bytesDone, std::nullopt);
}

TEST_F(RunningPassTest, WishThatComesBeforeTheCommandHasStarted_EndsItToo) {
    commands.beforeItStarts = [this] { passes.cancel(); };
    RunningPass pass(passes, PassKind::Plain);
    EXPECT_EQ(run(pass, "pull").output, QStringLiteral("cut"));
}

TEST_F(RunningPassTest, WishBetweenTwoCommands_DoesNotReachTheFirst) {
    RunningPass pass(passes, PassKind::Plain);
    run(pass, "first");
    commands.beforeItStarts = [this] {
        passes.cancel();
        EXPECT_EQ(commands.cancels, 0) << "its number may be another's by now";
    };
    EXPECT_EQ(run(pass, "second").output, QStringLiteral("cut"));
    EXPECT_EQ(commands.cancels, 1);
}

TEST_F(RunningPassTest, WhoeverRanTheCommand_HearsOfItsStart) {
    RunningPass pass(passes, PassKind::Plain);
    std::vector<CommandId> started;
    (void)pass.run(PassStep::Pull, {.text = QStringLiteral("pull"),
                                    .started = [&](CommandId id) { started.push_back(id); }});
    EXPECT_EQ(started, std::vector<CommandId>{1});
}

TEST_F(RunningPassTest, FilesThatNoCommandTold_AreCountedAsTheyArrived) {
    commands.results[QStringLiteral("first")] = {cStatistics, {}, 0};
    const auto passThatBrought = [&](std::vector<Arrival> arrivals) {
        RunningPass pass(passes, PassKind::Remote);
        pass.judged(HostVerdict::Valid);
        run(pass, "first --stats");
        run(pass, "silent");
        pass.brought(std::move(arrivals));
    };
    passThatBrought({{"/in/a.mov", 40'000, noon}, {"/in/b.movie", 7, noon}});
    EXPECT_EQ(records.back().transfer.files, 2);
    EXPECT_EQ(records.back().transfer.bytes, 40'007);
    EXPECT_EQ(records.back().transfer.source, TransferSource::Lines);
    for (const auto& told : {std::vector<Arrival>(), {{"/in/a.mov", 50'000, noon}}}) {
        passThatBrought(told);
        EXPECT_EQ(records.back().transfer.files, 1);
        EXPECT_EQ(records.back().transfer.bytes, 40'000) << "what rsync says is believed";
    }
    {
        RunningPass pass(passes, PassKind::Plain);
        run(pass, "silent");
        pass.brought({{"/in/c.mov", 9, noon}});
    }
    EXPECT_EQ(records.back().transfer.files, 1) << "alone";
    EXPECT_EQ(records.back().transfer.bytes, 9);
    {
        RunningPass pass(passes, PassKind::Plain);
        run(pass, "silent");
        pass.brought({{"/in/empty.mov", 0, noon}});
    }
    EXPECT_EQ(records.back().transfer.files, 1);
    EXPECT_EQ(records.back().transfer.bytes, 0);
}

TEST_F(RunningPassTest, PassWithoutACommand_LacksItsSettings) {
    { const RunningPass pass(passes, PassKind::Plain); }
    ASSERT_EQ(records.size(), 1U);
    EXPECT_TRUE(records.front().commands.empty());
    EXPECT_EQ(records.front().cause, PassCause::SettingsMissing);
}

TEST_F(RunningPassTest, RefusedPass_TellsWhatWasRefused) {
    { RunningPass(passes, PassKind::Remote).refused(QStringLiteral("the host is odd")); }
    ASSERT_EQ(records.size(), 1U);
    EXPECT_EQ(records.front().cause, PassCause::SettingsRefused);
    EXPECT_EQ(records.front().lastLine, QStringLiteral("the host is odd"));
}

TEST_F(RunningPassTest, PassesSideBySide_KeepTheirCommandsApart) {
    {
        RunningPass mine(passes, PassKind::Plain);
        run(mine, "mine");
        std::thread other([this] {
            RunningPass theirs(passes, PassKind::Remote);
            run(theirs, "theirs");
        });
        other.join();
    }
    ASSERT_EQ(records.size(), 2U);
    EXPECT_EQ(records[0].commands.at(0).command, QStringLiteral("theirs"));
    EXPECT_EQ(records[1].commands.at(0).command, QStringLiteral("mine"));
    EXPECT_EQ(records[1].commands.size(), 1U);
}

TEST_F(RunningPassTest, CommandRunOnAnotherThread_BelongsToItsPass) {
    {
        RunningPass pass(passes, PassKind::Plain);
        std::thread([&pass] { run(pass, "elsewhere"); }).join();
    }
    ASSERT_EQ(records.size(), 1U);
    ASSERT_EQ(records[0].commands.size(), 1U);
    EXPECT_EQ(records[0].commands[0].command, QStringLiteral("elsewhere"));
}

TEST_F(RunningPassTest, PassesUnderWay_TellWhatRunsSinceWhen) {
    EXPECT_TRUE(passes.underWay().empty());
    std::vector<PassUnderWay> seen;
    commands.whileRunning = [&] { seen = passes.underWay(); };
    {
        RunningPass pass(passes, PassKind::Remote);
        run(pass, "ssh whoami", PassStep::AskingTheMac);
        ASSERT_EQ(seen.size(), 1U);
        EXPECT_EQ(seen[0].kind, PassKind::Remote);
        EXPECT_EQ(seen[0].began, noon);
        EXPECT_EQ(seen[0].progress.step, PassStep::AskingTheMac);
        EXPECT_EQ(seen[0].command, QStringLiteral("ssh whoami"));
        const RunningPass second(passes, PassKind::Plain);
        run(pass, "pull");
        ASSERT_EQ(seen.size(), 2U);
        EXPECT_EQ(seen[0].progress.step, PassStep::Pull);
        EXPECT_EQ(seen[0].command, QStringLiteral("pull"));
        EXPECT_EQ(seen[1].progress.step, PassStep::Begun);
        EXPECT_EQ(passes.underWay()[0].progress.step, PassStep::Begun) << "between two commands";
    }
    EXPECT_TRUE(passes.underWay().empty());
}

TEST_F(RunningPassTest, Result_IsHandedBackUntouched) {
    commands.results[QStringLiteral("x")] = {QStringLiteral(" text \n\n"), QStringLiteral("e"), 3};
    RunningPass pass(passes, PassKind::Plain);
    const CommandResult result = run(pass, "x");
    EXPECT_EQ(result.output, QStringLiteral(" text \n\n"));
    EXPECT_EQ(result.errors, QStringLiteral("e"));
    EXPECT_EQ(result.exitStatus, 3);
}

TEST_F(RunningPassTest, PullThatTellsItsProgress_IsSeenAsItIs) {
    std::vector<PassProgress> seen;
    commands.pieces = {"70 a\\#377.mov\n\r      0   0%    0.00kB/s    0:00:00  ",
                       "\r     70 100%    1.00kB/s    0:00:01 (xfr#1, to-chk=0/2)\n"};
    commands.whileRunning = [&] { seen.push_back(passes.underWay().at(0).progress); };
    RunningPass pass(passes, PassKind::Plain);
    run(pass, "rsync --info=progress2 --out-format='%l %n'", PassStep::Pull);
    ASSERT_EQ(seen.size(), 2U);
    EXPECT_EQ(seen[0].step, PassStep::Pull);
    EXPECT_EQ(seen[0].file, QStringLiteral("a\\#377.mov"));
    EXPECT_EQ(seen[0].bytesDone, 0);
    EXPECT_EQ(seen[1].share, 1);
    EXPECT_EQ(seen[1].filesDone, 1);
    EXPECT_EQ(commands.looks, 0) << "the command tells by itself";
    EXPECT_EQ(passes.underWay().at(0).progress, PassProgress()) << "the command has ended";
    EXPECT_EQ(pass.names(), (NameList{"a\xff.mov"}));
}

TEST_F(RunningPassTest, SamePullOnceMore_KnowsThatTheRestIsHere) {
    std::vector<PassProgress> seen;
    commands.pieces = {"100 a.mov\n\r      50   0%    1.00kB/s    0:01:01  "};
    commands.whileRunning = [&] { seen.push_back(passes.underWay().at(0).progress); };
    RunningPass pass(passes, PassKind::Plain);
    run(pass, "rsync --info=progress2 --out-format='%l %n'");
    run(pass, "rsync --info=progress2 --out-format='%l %n'");
    ASSERT_EQ(seen.size(), 2U);
    EXPECT_FALSE(seen[0].bytesKnown);
    EXPECT_EQ(seen[1].bytesKnown, 100);
    EXPECT_EQ(seen[1].share, 0.5);
    commands.results[QStringLiteral("-r")] = {QStringLiteral("cut"), {}, 30};
    run(pass, "rsync -r --info=progress2 --out-format='%l %n'");
    run(pass, "rsync -r --info=progress2 --out-format='%l %n'");
    EXPECT_FALSE(seen.at(3).bytesKnown) << "the first has not brought all";
}

TEST_F(RunningPassTest, PullThatSaysNothing_IsSeenByTheFileItWrites) {
    std::vector<PassProgress> seen;
    const auto look = [&](std::optional<FileBeingWritten> writing, double seconds) {
        commands.writing = std::move(writing);
        clock += seconds;
        seen.push_back(passes.underWay().at(0).progress);
    };
    commands.whileRunning = [&] {
        look(FileBeingWritten{"one.mov", 1000}, 0);
        look(FileBeingWritten{"one.mov", 9000}, 0.1);
        look(FileBeingWritten{"one.mov", 3000}, 1);
        look(FileBeingWritten{"two\x1b.mov", 500}, 1);
        look(std::nullopt, 1);
        look(FileBeingWritten{"three.mov", 0}, 1);
    };
    RunningPass pass(passes, PassKind::Remote);
    run(pass, "rsync", PassStep::Movies);
    ASSERT_EQ(seen.size(), 6U);
    EXPECT_EQ(seen[0].step, PassStep::Movies);
    EXPECT_EQ(seen[0].file, QStringLiteral("one.mov"));
    EXPECT_EQ(seen[0].bytesDone, 1000);
    EXPECT_EQ(seen[1].bytesDone, 1000) << "looked at too short a while ago";
    EXPECT_EQ(seen[2].bytesDone, 3000);
    EXPECT_NEAR(seen[2].bytesPerSecond.value_or(0), 2000 / 1.1, 1);
    EXPECT_EQ(seen[3].file, QStringLiteral("two\\x1b.mov"));
    EXPECT_EQ(seen[3].filesDone, 1);
    EXPECT_EQ(seen[3].bytesDone, 3500);
    EXPECT_EQ(seen[4].filesDone, 2);
    EXPECT_FALSE(seen[4].share);
    EXPECT_EQ(seen[5].bytesDone, 3500);
    EXPECT_EQ(commands.looks, 5);
    commands.whileRunning = [&] { look(std::nullopt, 1); };
    run(pass, "rsync of the next step", PassStep::Pull);
    EXPECT_EQ(seen[6].filesDone, std::nullopt);
    EXPECT_EQ(seen[6].bytesDone, std::nullopt);
}

TEST_F(RunningPassTest, ProgressOfAPull_IsNotKept) {
    const QString text = QStringLiteral("a.mov\n\r   70 100%  1.00kB/s  0:00:01 (xfr#1, "
                                        "to-chk=0/2)\nend\n");
    commands.results[QStringLiteral("x")] = {text, {}, 0};
    {
        RunningPass pass(passes, PassKind::Plain);
        EXPECT_EQ(run(pass, "x").output, QStringLiteral("a.mov\nend\n"));
        EXPECT_EQ(run(pass, "x", PassStep::AskingTheMac).output, text);
    }
    ASSERT_EQ(records.size(), 1U);
    EXPECT_EQ(records[0].commands.at(0).text.head, QStringLiteral("a.mov\nend\n"));
}

TEST_F(RunningPassTest, PullOfWhichMuchIsLeftOut_StillTellsItsNamesAndItsFigures) {
    constexpr const char* cNames = "1 a.mov\n1 b.mov\n1 c.mov\n1 d.mov\n";
    const QString names = QStringLiteral("rsync --out-format='%l %n'");
    const QString other = QStringLiteral("rsync --out-format='%f'");
    const QString statistics = QStringLiteral("rsync --stats");
    const QString cut = QStringLiteral("1 a.mov\n\n… 16 bytes left out …\n1 d.mov\n");
    commands.pieces = {cNames};
    commands.results[names] = {cut, {}, 0, 1};
    commands.results[other] = {cut, {}, 0, 16};
    commands.results[statistics] = {QString(cut + cStatistics), {}, 0, 16};
    NameList named;
    {
        RunningPass pass(passes, PassKind::Plain);
        for (const QString& command : {names, other, statistics})
            (void)pass.run(PassStep::Pull, {.text = command});
        named = pass.names();
    }
    EXPECT_EQ(named, (NameList{"a.mov", "b.mov", "c.mov", "d.mov"}));
    ASSERT_EQ(records.size(), 1U);
    const std::vector<CommandRecord>& done = records[0].commands;
    EXPECT_EQ(done[0].transfer.files, 4) << "two of them are not in the text";
    EXPECT_EQ(done[1].transfer.files, std::nullopt) << "nobody could count them";
    EXPECT_EQ(done[2].transfer.files, 1);
    EXPECT_EQ(done[2].transfer.source, TransferSource::Statistics);
}

TEST_F(RunningPassTest, BytesThatTheRunnerLeftOut_CountAmongThoseThatAreNotKept) {
    const QString much(200'000, u'x');
    commands.results[QStringLiteral("x")] = {much, QStringLiteral("the cause\n"), 1, 5'000'000};
    {
        RunningPass pass(passes, PassKind::Plain);
        run(pass, "x");
    }
    const CapturedText& text = records.at(0).commands.at(0).text;
    EXPECT_EQ(text.leftOut, 5'000'000 + 200'010 - text.head.size() - text.tail.size());
    EXPECT_TRUE(text.tail.endsWith(u"the cause\n"));
    for (const qsizetype beyond : {0, 1}) {
        const QString text = QString(2 * cKeptText + beyond, u'x');
        commands.results[QStringLiteral("x")] = {text, {}, 0, 7};
        {
            RunningPass pass(passes, PassKind::Plain);
            run(pass, "x");
        }
        EXPECT_EQ(records.back().commands.at(0).text.leftOut, beyond > 0 ? 7 + 1 : 0);
    }
}

TEST_F(RunningPassTest, CheckWhoseTimeWasUp_IsWrittenDownAsAHostThatIsAway) {
    commands.endless = QStringLiteral("ssh whoami");
    {
        RunningPass pass(passes, PassKind::Remote);
        const CommandResult result =
            pass.run(PassStep::AskingTheMac, {.text = commands.endless, .seconds = 33});
        EXPECT_EQ(result.output, QStringLiteral("so far\n"));
        pass.judged(HostVerdict::UnknownError);
    }
    ASSERT_EQ(records.size(), 1U);
    EXPECT_EQ(records[0].cause, PassCause::HostAway);
    EXPECT_EQ(records[0].lastLine, QStringLiteral("so far"));
    ASSERT_EQ(records[0].commands.size(), 1U);
    EXPECT_EQ(records[0].commands[0].exitStatus, 124);
    EXPECT_DOUBLE_EQ(records[0].commands[0].seconds, 33);
}

// -- the folder for half files

const QString cWithFolder = u"rsync --out-format='%l %n' " + cPartialOption.toString();

class HalfFilesTest : public RunningPassTest {
protected:
    void pull() {
        RunningPass pass(passes, PassKind::Plain);
        names = NameList();
        (void)pass.run(PassStep::Pull, {.text = cWithFolder});
        (void)pass.run(PassStep::Movies, {.text = QStringLiteral("the other")});
        names = pass.names();
    }

    /// What the variable was each time since the last call: the option, "none" where it was empty,
    /// "unset" where it was not there.
    QByteArrayList folders() {
        QByteArrayList all;
        for (const auto& variables : std::exchange(commands.variables, {})) {
            const auto found = variables.find(cPartialVariable);
            all.append(found == variables.end()  ? "unset"
                       : found->second.isEmpty() ? "none"
                                                 : found->second);
        }
        return all;
    }

    const QByteArray option = cPartialWord.toLatin1();
    NameList names;
};

TEST_F(HalfFilesTest, PullThatWentWell_DoesWithoutTheFolderTheNextTime) {
    pull();
    EXPECT_EQ(folders(), (QByteArrayList{option, "unset"})) << "nobody knows what lies there";
    pull();
    EXPECT_EQ(folders(), (QByteArrayList{"none", "unset"}));
    commands.results[cWithFolder] = {QStringLiteral("cut"), {}, 30};
    pull();
    EXPECT_EQ(folders(), (QByteArrayList{"none", "unset"}));
    pull();
    EXPECT_EQ(folders(), (QByteArrayList{option, "unset"})) << "a half may lie there";
    commands.results.clear();
    pull();
    EXPECT_EQ(folders(), (QByteArrayList{option, "unset"}));
    pull();
    EXPECT_EQ(folders(), (QByteArrayList{"none", "unset"}));
}

TEST_F(HalfFilesTest, WholePullOfAnEarlierRun_DoesWithoutTheFolderAtOnce) {
    wholePull = cWithFolder;
    pull();
    EXPECT_EQ(folders(), (QByteArrayList{"none", "unset"}));
    EXPECT_EQ(wholePull, cWithFolder);
    EXPECT_EQ(keepings, 0) << "what is known already costs no write";
}

TEST_F(HalfFilesTest, WholePull_IsForgottenWhileTheFolderIsInUse) {
    wholePull = cWithFolder;
    commands.pieces = {"33554432 large.mov\n"};
    QStringList known;
    commands.whileRunning = [&] { known.append(wholePull); };
    pull();
    // The other command, without the option, knows nothing of it.
    EXPECT_EQ(known, (QStringList{cWithFolder, {}, cWithFolder}))
        << "who is killed in the second run has left a half";
    EXPECT_EQ(wholePull, cWithFolder);
    EXPECT_EQ(keepings, 2);
}

TEST_F(HalfFilesTest, WholePullOfAnotherCommand_IsForgottenBeforeTheFolderIsUsed) {
    wholePull = QStringLiteral("another");
    QStringList known;
    commands.whileRunning = [&] { known.append(wholePull); };
    pull();
    EXPECT_EQ(known, (QStringList{{}, cWithFolder}));
}

TEST_F(HalfFilesTest, PullThatWasEndedByOthers_IsNotRunAgain) {
    wholePull = cWithFolder;
    commands.results[cWithFolder] = {QStringLiteral("killed"), {}, {}};
    pull();
    EXPECT_EQ(folders(), (QByteArrayList{"none", "unset"}));
}

TEST_F(HalfFilesTest, LargeFileThatCameBeforeTheEnd_IsNotPulledAgain) {
    wholePull = cWithFolder;
    commands.pieces = {"33554432 large.mov\n"};
    commands.hasEnded = true;
    pull();
    EXPECT_EQ(folders(), (QByteArrayList{"none", "unset"}));
    EXPECT_EQ(commands.cancels, 1);
}

TEST_F(HalfFilesTest, OtherPull_SaysNothingOfThisOne) {
    pull();
    RunningPass pass(passes, PassKind::Plain);
    (void)pass.run(PassStep::Pull, {.text = QString(cWithFolder + u" elsewhere")});
    EXPECT_EQ(folders(), (QByteArrayList{option, "unset", option}));
}

TEST_F(HalfFilesTest, LargeFileWithoutTheFolder_IsPulledAgainWithIt) {
    pull();
    commands.pieces = {"7 small.mov\n", "33554432 large", ".mov\n"};
    commands.results[cWithFolder] = {cStatistics, {}, 0};
    folders();
    pull();
    EXPECT_EQ(folders(), (QByteArrayList{"none", option, "unset"}));
    std::set<QByteArray> named;
    for (std::size_t i = 0; i < names.size(); ++i)
        named.insert(names[i].toByteArray());
    EXPECT_EQ(named, (std::set<QByteArray>{"small.mov", "large.mov"}));
    const PassRecord& record = records.back();
    ASSERT_EQ(record.commands.size(), 2U) << "the run that was ended is not written down";
    EXPECT_EQ(record.commands[0].exitStatus, 0);
    EXPECT_EQ(record.commands[0].transfer.files, 1);
    EXPECT_EQ(record.cause, PassCause::Well);
    commands.pieces.clear();
    pull();
    EXPECT_EQ(folders(), (QByteArrayList{"none", "unset"})) << "it came whole";
}

TEST_F(HalfFilesTest, SmallFileWithoutTheFolder_ComesAtOnce) {
    pull();
    commands.pieces = {"33554431 small.mov\n"};
    folders();
    pull();
    EXPECT_EQ(folders(), (QByteArrayList{"none", "unset"}));
    EXPECT_EQ(names, (NameList{"small.mov"}));
}

TEST_F(HalfFilesTest, WhoeverStartedIt_HearsThePullWithAndWithoutTheFolder) {
    commands.pieces = {"7 a.mov\n", "8 b.mov\n"};
    for (const char* folder : {"with", "without"}) {
        QByteArray heard;
        RunningPass pass(passes, PassKind::Plain);
        (void)pass.run(PassStep::Pull, {.text = cWithFolder, .received = [&](QByteArrayView bytes) {
                                            heard += bytes.toByteArray();
                                        }});
        EXPECT_EQ(heard, "7 a.mov\n8 b.mov\n") << folder;
    }
    EXPECT_EQ(folders(), (QByteArrayList{option, "none"}));
}

TEST_F(HalfFilesTest, CancelledPull_IsNotRunAgain) {
    pull();
    commands.pieces = {"99999999999 large.mov\n"};
    commands.whileRunning = [&] { passes.cancel(); };
    folders();
    pull();
    EXPECT_EQ(folders(), QByteArrayList{"none"});
    EXPECT_EQ(records.back().cause, PassCause::Cancelled);
}

// -- with the cycle

TEST(RecordedCycleTest, RemotePassWithoutAHost_IsHandedOverWithoutACommand) {
    ViewControllerWorld world;
    world.button.performClick();
    world.defaults.setObject(prefIsScanning, false);
    world.controller.ibRSyncOnceBonjour(&world.button);
    world.bgQueue.runAll(); // neither user nor host is set
    ASSERT_EQ(world.passes.size(), 1U);
    EXPECT_EQ(world.passes[0].kind, PassKind::Remote);
    EXPECT_EQ(world.passes[0].verdict, HostVerdict::NotAsked);
    EXPECT_TRUE(world.passes[0].commands.empty());
}

TEST(RecordedCycleTest, RemotePass_KnowsTheRoleOfEachCommand) {
    ViewControllerWorld world;
    world.defaults.setObject(prefIsScanning, false);
    world.defaults.setObject(prefRemoteUsername, QStringLiteral("ann"));
    world.defaults.setObject(prefRemoteBonjourName, QStringLiteral("mac.local"));
    world.defaults.setObject(prefSampleRemoteFullPath, QStringLiteral("ann@mac.local:Movies"));
    world.defaults.setObject(prefPath2, QStringLiteral("/b"));
    world.shell.answerTo(QStringLiteral("whoami"), QStringLiteral("ann\n"));
    world.button.performClick();
    world.bgQueue.runAll();
    ASSERT_EQ(world.passes.size(), 1U);
    const PassRecord& pass = world.passes[0];
    EXPECT_EQ(pass.verdict, HostVerdict::Valid);
    ASSERT_EQ(pass.commands.size(), 3U);
    EXPECT_EQ(pass.commands[0].role, CommandRole::HostCheck);
    EXPECT_TRUE(pass.commands[0].command.contains(u"whoami"));
    EXPECT_EQ(pass.commands[1].role, CommandRole::Pull);
    EXPECT_EQ(pass.commands[2].role, CommandRole::Pull);
}

TEST(RecordedCycleTest, PlainPass_EndsWithItsBody) {
    ViewControllerWorld world;
    world.defaults.setObject(prefRsyncWithSSH, false);
    world.defaults.setObject(prefIsScanning, false);
    world.files.folders.insert(QStringLiteral("/a"));
    world.defaults.setObject(prefPath1, QStringLiteral("/a"));
    world.defaults.setObject(prefPath2, QStringLiteral("/b"));
    world.defaults.setObject(prefRsyncCommandString1, QStringLiteral("cp %@1 %@2"));
    world.shell.answerTo(QStringLiteral("cp"), [&](const QString&) {
        EXPECT_TRUE(world.passes.empty()) << "the pass is under way";
        return QString();
    });
    world.button.performClick();
    world.bgQueue.runAll();
    ASSERT_EQ(world.passes.size(), 1U);
    EXPECT_EQ(world.passes[0].kind, PassKind::Plain);
    ASSERT_EQ(world.passes[0].commands.size(), 1U);
    EXPECT_EQ(world.passes[0].commands[0].command, QStringLiteral("cp /a/ /b/"));
}

} // namespace
} // namespace kelvo
