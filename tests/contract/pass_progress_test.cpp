// What is seen of passes while the real rsync works for them.
#include "adapters/process/open_files.h"
#include "adapters/process/posix_shell_runner.h"
#include "fakes/memory_whole_pull.h"
#include "fakes/recording_console.h"
#include "passes/running_pass.h"
#include "settings/preference_keys.h"
#include "settings/preferences.h"
#include "support/wait_until.h"
#include "sync/rsync_command.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QTemporaryDir>

#include <gtest/gtest.h>

#include <algorithm>
#include <chrono>
#include <filesystem>
#include <fstream>
#include <future>
#include <random>

namespace kelvo {
namespace {

double secondsNow() {
    return std::chrono::duration<double>(std::chrono::steady_clock::now().time_since_epoch())
        .count();
}

class PassProgressTest : public testing::Test {
protected:
    void SetUp() override {
        if (!QFileInfo(QStringLiteral("/usr/bin/rsync")).isExecutable())
            GTEST_SKIP() << "there is no /usr/bin/rsync";
        ASSERT_TRUE(QDir().mkpath(fSource));
        ASSERT_TRUE(QDir().mkpath(fDestination));
    }

    /// As Qt cannot.
    void TearDown() override {
        std::filesystem::remove_all(fSource.toStdString());
        std::filesystem::remove_all(fDestination.toStdString());
    }

    static std::string pathOf(const QString& folder, const QByteArray& name) {
        return folder.toStdString() + '/' + name.toStdString();
    }

    static void make(const QString& folder, const QByteArray& name, qsizetype size) {
        // Qt has no word for a name that is no UTF-8.
        std::ofstream file(pathOf(folder, name));
        std::minstd_rand random; // files of different sizes begin alike
        std::string content(static_cast<std::size_t>(size), '\0');
        std::ranges::generate(content, [&random] { return static_cast<char>(random() >> 8); });
        file << content;
        ASSERT_TRUE(file.flush()) << name.constData();
    }

    QString filled(const QString& command) const {
        return filledCommand(command, {fSource, fDestination, std::nullopt}, fOption)
            .value_or(QString());
    }
    QString factory() const {
        return filled(factoryValue(*preference(prefRsyncCommandString1)).toString());
    }

    /// Looks five times a second while `command` runs.
    std::vector<PassProgress> seenOf(PassStep step, const QString& command) {
        auto ended = std::async(std::launch::async, [&] {
            RunningPass pass(fPasses, PassKind::Plain);
            const CommandResult result = pass.run(step, {.text = command});
            fNames.clear();
            for (std::size_t i = 0; i < pass.names().size(); ++i)
                fNames.push_back(pass.names()[i].toByteArray());
            return result;
        });
        std::vector<PassProgress> seen;
        while (ended.wait_for(std::chrono::milliseconds(20)) != std::future_status::ready) {
            for (const PassUnderWay& pass : fPasses.underWay()) {
                if (pass.progress.step == step)
                    seen.push_back(pass.progress);
            }
        }
        fResult = ended.get();
        EXPECT_EQ(fResult.exitStatus, 0) << fResult.output.toStdString();
        return seen;
    }

    /// What the runner says is written by `command`, which writes "half" into film.mov and then
    /// reads from the pipe "wait".
    std::optional<FileBeingWritten> seenBeside(const QString& command) {
        const QString film = fDestination + u"/film.mov";
        CommandId id = 0;
        auto ended = std::async(std::launch::async, [&] {
            return fRunner.run({.text = u"cd '" + fDestination + u"' && mkfifo wait && " + command,
                                .started = [&id](CommandId it) { id = it; }});
        });
        EXPECT_TRUE(waitUntil([&] { return QFileInfo(film).size() == 5; }));
        const auto found = fRunner.fileBeingWritten(id);
        QFile wait(fDestination + u"/wait");
        EXPECT_TRUE(wait.open(QFile::WriteOnly));
        wait.write("\n");
        wait.close();
        fRunner.cancel(id);
        ended.get();
        QFile::remove(film);
        wait.remove();
        return found;
    }

    QTemporaryDir fRoot;
    const QString fSource = fRoot.filePath("source");
    const QString fDestination = fRoot.filePath("destination");
    QString fOption;
    RecordingConsole fConsole;
    PosixShellRunner fRunner{fConsole};
    std::vector<PassRecord> fRecords;
    RunningPasses fPasses{fRunner,
                          {&QDateTime::currentDateTimeUtc, &secondsNow},
                          memoryWholePull(),
                          [this](const PassRecord& record) { fRecords.push_back(record); }};
    std::vector<QByteArray> fNames;
    CommandResult fResult;
};

constexpr qsizetype cMegabyte = 1'000'000;

TEST_F(PassProgressTest, FirstPull_IsRightInTheMiddleAndWholeAtTheEnd) {
    for (int i = 0; i < 20; ++i)
        make(fSource, "film " + QByteArray::number(100 + i) + ".mov", cMegabyte);
    fOption = QStringLiteral("--bwlimit=8000");
    const auto seen = seenOf(PassStep::Pull, factory());

    int inTheMiddle = 0;
    double last = 0;
    for (const PassProgress& each : seen) {
        if (!each.share)
            continue;
        EXPECT_GE(*each.share, last);
        last = *each.share;
        EXPECT_NEAR(*each.share, double(each.bytesDone.value_or(0)) / (20.0 * cMegabyte), 0.03);
        EXPECT_TRUE(each.file.startsWith(u"film 1")) << each.file.toStdString();
        EXPECT_EQ(each.filesKnown.value_or(20), 20);
        if (each.secondsLeft && *each.share > 0.3 && *each.share < 0.8) {
            ++inTheMiddle;
            EXPECT_LT(*each.secondsLeft, 5);
            EXPECT_NEAR(double(each.bytesKnown.value_or(0)), 20.0 * cMegabyte, 3.0 * cMegabyte);
        }
    }
    EXPECT_GT(inTheMiddle, 3);
    EXPECT_EQ(fNames.size(), 20U);
    EXPECT_FALSE(fResult.output.contains(u'\r'));
    EXPECT_FALSE(fResult.output.contains(u'%')) << fResult.output.toStdString();
    ASSERT_EQ(fRecords.size(), 1U);
    EXPECT_EQ(fRecords[0].transfer.files, 20);
    EXPECT_EQ(fRecords[0].transfer.bytes, 20 * cMegabyte);
}

TEST_F(PassProgressTest, ThreeNewAmongThousands_AreMeasuredByThemselvesOnceTheRestIsHere) {
    for (int i = 0; i < 5000; ++i)
        make(fSource, "a film of old " + QByteArray::number(i) + ".mov", 2000);
    seenOf(PassStep::Pull, factory());
    for (const char* name : {"new 1.mov", "new 2.mov", "new 3.mov"})
        make(fSource, name, 2 * cMegabyte);
    fOption = QStringLiteral("--bwlimit=4000");
    const auto first = seenOf(PassStep::Pull, factory());
    double last = 0;
    for (const PassProgress& each : first) {
        EXPECT_GE(each.share.value_or(last), last);
        last = each.share.value_or(last);
        // Of the whole list, and so no more than the truth.
        EXPECT_LE(each.share.value_or(0),
                  double(each.bytesDone.value_or(0)) / (6.0 * cMegabyte) + 0.001);
        EXPECT_EQ(each.filesKnown.value_or(3), 3);
    }
    EXPECT_GT(last, 0.1);

    // The first of the list.
    make(fSource, "a film.mov", 2 * cMegabyte);
    int halfway = 0;
    for (const PassProgress& each : seenOf(PassStep::Pull, factory())) {
        if (!each.bytesDone || *each.bytesDone == 0 || each.share.value_or(1) == 1)
            continue;
        ++halfway;
        EXPECT_EQ(each.file, QStringLiteral("a film.mov"));
        EXPECT_EQ(each.bytesKnown, 2 * cMegabyte);
        EXPECT_NEAR(each.share.value_or(0), double(*each.bytesDone) / (2.0 * cMegabyte), 0.011);
    }
    EXPECT_GT(halfway, 0);
    EXPECT_EQ(fNames, std::vector<QByteArray>{"a film.mov"});
}

TEST_F(PassProgressTest, PullFromAnOldSender_IsShownLikeAnyOther) {
    for (const char* name : {"one.mov", "two.mov", "three.mov", "four.mov"})
        make(fSource, name, 2 * cMegabyte);
    QFile script(fRoot.filePath("remote-shell"));
    ASSERT_TRUE(script.open(QFile::WriteOnly));
    script.write("#!/bin/sh\nshift\nexec \"$@\"\n");
    script.setPermissions(QFile::ReadOwner | QFile::ExeOwner);
    script.close();
    fOption = QStringLiteral("--bwlimit=4000 --protocol=29 -e '%1'").arg(script.fileName());
    QString command = factory();
    command.replace(u'"' + fSource, u"\"mac:" + fSource);
    int inTheMiddle = 0;
    for (const PassProgress& each : seenOf(PassStep::Pull, command)) {
        if (each.share.value_or(1) == 1)
            continue;
        ++inTheMiddle;
        EXPECT_NEAR(*each.share, double(each.bytesDone.value_or(0)) / (8.0 * cMegabyte), 0.03);
        EXPECT_TRUE(each.file.endsWith(u".mov"));
    }
    EXPECT_GT(inTheMiddle, 3);
    EXPECT_EQ(fNames, (std::vector<QByteArray>{"four.mov", "one.mov", "three.mov", "two.mov"}));
}

TEST_F(PassProgressTest, NamesInAnyEncoding_AreThoseOfTheFiles) {
    const std::vector<QByteArray> names{"Caf\xc3\xa9.mov", "back\\#101slash.mov", "bad\xff.mov",
                                        "new\nline.mov", "sent 5 bytes.mov"};
    for (const QByteArray& name : names)
        make(fSource, name, 10);
    seenOf(PassStep::Pull, factory());
    std::ranges::sort(fNames);
    std::vector<QByteArray> expected = names;
    std::ranges::sort(expected);
    EXPECT_EQ(fNames, expected);
    for (const QByteArray& name : fNames)
        EXPECT_TRUE(std::filesystem::exists(pathOf(fDestination, name)));
}

TEST_F(PassProgressTest, ResumedHalf_CountsAsReceived) {
    make(fSource, "long.mov", 8 * cMegabyte);
    ASSERT_TRUE(QDir().mkpath(fDestination + "/.kelvo-partial"));
    make(fDestination + "/.kelvo-partial", "long.mov", 4 * cMegabyte);
    fOption = QStringLiteral("--bwlimit=2000 --no-whole-file");
    int secondHalf = 0;
    for (const PassProgress& each : seenOf(PassStep::Pull, factory())) {
        const double half = double(each.bytesDone.value_or(0)) / (4.0 * cMegabyte);
        EXPECT_FALSE(half > 0.1 && half < 0.9) << "it was here: " << half;
        if (each.bytesDone.value_or(0) > 4 * cMegabyte && each.share.value_or(1) < 1) {
            ++secondHalf;
            EXPECT_EQ(each.file, QStringLiteral("long.mov"));
            EXPECT_NEAR(*each.share, double(*each.bytesDone) / (8.0 * cMegabyte), 0.02);
        }
    }
    EXPECT_GT(secondHalf, 0);
    EXPECT_EQ(QFileInfo(fDestination + "/long.mov").size(), 8 * cMegabyte);
}

TEST_F(PassProgressTest, LargeFileThatIsCut_LeavesItsHalfAlsoAfterAPullWithoutTheFolder) {
    constexpr qsizetype cLarge = 40 * cMegabyte;
    const QString half = fDestination + "/.kelvo-partial/long.mov";
    fOption = QStringLiteral("--bwlimit=20000 --no-whole-file");
    seenOf(PassStep::Pull, factory()); // from now on the folder is left out
    make(fSource, "long.mov", cLarge);
    auto cut = std::async(std::launch::async, [this] {
        RunningPass pass(fPasses, PassKind::Plain);
        (void)pass.run(PassStep::Pull, {.text = factory()});
    });
    EXPECT_TRUE(waitUntil([this] {
        const auto passes = fPasses.underWay();
        return !passes.empty() && passes[0].progress.bytesDone > 4 * cMegabyte;
    }));
    fPasses.cancel();
    cut.get();
    EXPECT_GT(QFileInfo(half).size(), 2 * cMegabyte);
    EXPECT_FALSE(QFile::exists(fDestination + "/long.mov"));
    seenOf(PassStep::Pull, factory());
    EXPECT_EQ(QFileInfo(fDestination + "/long.mov").size(), cLarge);
    EXPECT_FALSE(QFile::exists(half));
    EXPECT_TRUE(fResult.output.contains(u"Matched data: ") &&
                !fResult.output.contains(u"Matched data: 0 bytes"))
        << fResult.output.toStdString();
}

TEST_F(PassProgressTest, EmptyPull_IsWellAndBringsNothing) {
    seenOf(PassStep::Pull, factory());
    EXPECT_TRUE(fNames.empty());
    ASSERT_EQ(fRecords.size(), 1U);
    EXPECT_EQ(fRecords[0].transfer.files, 0);
    EXPECT_EQ(fRecords[0].cause, PassCause::Well);
}

TEST_F(PassProgressTest, MovieCommand_IsSeenByTheFileItWrites) {
    make(fSource, "Caf\xc3\xa9.mov", 6 * cMegabyte);
    QString command = filled(cMovieCommandTemplate.toString());
    command.replace(QStringLiteral(" -r "), QStringLiteral(" -r --bwlimit=3000 "));
    qint64 last = 0;
    int seenWriting = 0;
    double fastest = 0;
    for (const PassProgress& each : seenOf(PassStep::Movies, command)) {
        if (!each.bytesDone)
            continue;
        ++seenWriting;
        // The command may be looked at once more between its last write and its end.
        const bool isDone = each.filesDone.value_or(0) > 0;
        EXPECT_EQ(each.file, isDone ? QString() : QStringLiteral("Caf\u00e9.mov"));
        EXPECT_GE(*each.bytesDone, last);
        last = *each.bytesDone;
        fastest = std::max(fastest, each.bytesPerSecond.value_or(0));
        EXPECT_FALSE(each.share);
    }
    EXPECT_GT(seenWriting, 5);
    EXPECT_GT(last, cMegabyte);
    EXPECT_LE(last, 6 * cMegabyte);
    EXPECT_GT(fastest, 1e6);
}

TEST_F(PassProgressTest, OtherWriter_IsSeenButNotItsLog) {
    make(fDestination, "read.mov", 3);
    const QString command =
        QStringLiteral(
            "cd '%1' && exec 3<read.mov 4>gone.mov 5>>log.txt 6<>wait 2>err.txt && rm gone.mov && "
            "(printf half >&7; read x <wait) 7<>film.mov")
            .arg(fDestination);
    const QString open = QStringLiteral("mkfifo '%1/wait' && ").arg(fDestination);
    CommandId id = 0;
    auto ended = std::async(std::launch::async, [&] {
        return fRunner.run({.text = open + command, .started = [&id](CommandId it) { id = it; }});
    });
    const auto film = [&] { return QFileInfo(fDestination + "/film.mov").size() == 4; };
    ASSERT_TRUE(waitUntil(film));
    EXPECT_EQ(fRunner.fileBeingWritten(id), (FileBeingWritten{"film.mov", 4}));
    QFile wait(fDestination + "/wait");
    ASSERT_TRUE(wait.open(QFile::WriteOnly));
    wait.write("\n");
    wait.close();
    ended.get();
    EXPECT_EQ(fRunner.fileBeingWritten(id), std::nullopt);
}

TEST_F(PassProgressTest, WriterThatHasLeftTheSession_IsNotLookedAt) {
    const QString away =
        QStringLiteral("setsid sh -c 'exec 7>film.mov; echo half >&7; read x <wait' & wait");
    EXPECT_EQ(seenBeside(away), std::nullopt);
}

TEST_F(PassProgressTest, OnlyTheFirstSixtyFourProcesses_AreLookedAt) {
    const QString text = QStringLiteral("for i in $(seq %1); do sleep 600 & done; "
                                        "(exec 7>film.mov; echo half >&7; read x <wait) & wait");
    EXPECT_EQ(seenBeside(text.arg(62)), (FileBeingWritten{"film.mov", 5}));
    EXPECT_EQ(seenBeside(text.arg(63)), std::nullopt);
}

TEST(FinalPathTest, NamesOfRsync_BecomeThoseOfTheFiles) {
    EXPECT_EQ(finalPath("/to/.a film.mov.X1y2Z3"), "/to/a film.mov");
    EXPECT_EQ(finalPath("/to/.kelvo-partial/a.mov"), "/to/a.mov");
    EXPECT_EQ(finalPath("/to/a.mov"), "/to/a.mov");
    EXPECT_EQ(finalPath("/to/.hidden.mov"), "/to/.hidden.mov");
    EXPECT_EQ(finalPath("/.a1"), "/.a1");
    EXPECT_EQ(finalPath("relative"), "relative");
    EXPECT_EQ(finalPath("/.kelvo-partial/a.mov"), "/a.mov");
    EXPECT_EQ(finalPath("/to/.x.a1B2c3"), "/to/x");
    EXPECT_EQ(finalPath("/to/..a1B2c3"), "/to/..a1B2c3") << "no name would be left";
    EXPECT_EQ(finalPath("/to/.x.09azAZ"), "/to/x");
    for (const char last : {'.', ':', '@', '[', '`', '{'})
        EXPECT_EQ(finalPath(std::string("/to/.x.a1B2c") + last),
                  std::string("/to/.x.a1B2c") + last);
}

} // namespace
} // namespace kelvo
