#include "app/commands/once.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QSet>

#include <gtest/gtest.h>

#include <algorithm>

namespace kelvo {
namespace {

constexpr int cCauses = static_cast<int>(cLastPassCause) + 1;

PassRecord passWith(PassCause cause) {
    PassRecord pass;
    pass.kind = PassKind::Remote;
    pass.verdict = HostVerdict::Valid;
    pass.seconds = 65.2;
    pass.cause = cause;
    pass.transfer = {TransferSource::Statistics, 3, 430659};
    return pass;
}

/// Nothing in it that a desktop's notice, a terminal or a CSV file reads as its own.
bool isPlainEnglish(QStringView text) {
    return std::ranges::all_of(text, [](QChar letter) {
        return letter.isLetterOrNumber() || QStringView(u" .,:;()'\"-").contains(letter);
    });
}

// Programs read these names: they are never changed.
TEST(PassWordsTest, Names_AreTheOnesThatOtherProgramsKnow) {
    const QStringList names{
        "well",
        "host-not-found",
        "host-away",
        "remote-login-off",
        "host-key-unknown",
        "host-key-changed",
        "key-refused",
        "key-missing",
        "wrong-user",
        "rsync-missing-there",
        "rsync-too-old-there",
        "source-missing",
        "source-not-permitted",
        "disk-full",
        "destination-unusable",
        "files-vanished",
        "files-not-taken",
        "cut-off",
        "tool-missing-here",
        "command-not-understood",
        "settings-missing",
        "interrupted",
        "login-talks",
        "unknown",
        "settings-refused",
        "cancelled",
        "after-failed",
        "destination-taken",
        "movie-command-refused",
    };
    QStringList found;
    for (int i = 0; i < cCauses; ++i)
        found << wordsFor(static_cast<PassCause>(i)).name.toString();
    EXPECT_EQ(found, names);
}

TEST(PassWordsTest, EveryCause_HasItsOwnNameSentenceAndNextStep) {
    QSet<QString> names;
    QSet<QString> sentences;
    for (int i = 0; i < cCauses; ++i) {
        const auto words = wordsFor(static_cast<PassCause>(i));
        names.insert(words.name.toString());
        sentences.insert(words.sentence.toString());
        EXPECT_TRUE(words.sentence.endsWith(u'.')) << i;
        EXPECT_EQ(words.nextStep.isEmpty(), words.group == CauseGroup::Well) << i;
        EXPECT_TRUE(words.nextStep.isEmpty() || words.nextStep.endsWith(u'.')) << i;
        EXPECT_TRUE(isPlainEnglish(words.sentence.toString()) &&
                    isPlainEnglish(words.nextStep.toString()))
            << i;
    }
    EXPECT_EQ(names.size(), cCauses);
    EXPECT_EQ(sentences.size(), cCauses);
}

TEST(PassWordsTest, UnknownCause_IsToldInTheCommandsOwnWords) {
    PassRecord pass = passWith(PassCause::Unknown);
    EXPECT_EQ(sentenceFor(pass), QStringLiteral("Something went wrong."));
    pass.lastLine = QStringLiteral("closed today");
    EXPECT_EQ(sentenceFor(pass),
              QStringLiteral("Something went wrong. The last line was: closed today"));
    pass.cause = PassCause::DiskFull;
    EXPECT_EQ(sentenceFor(pass), QStringLiteral("The disk here is full."));
}

TEST(PassWordsTest, RefusedSettings_AreToldWithTheReason) {
    PassRecord pass = passWith(PassCause::SettingsRefused);
    pass.lastLine = QStringLiteral("the destination begins with \"-\"");
    EXPECT_EQ(sentenceFor(pass),
              QStringLiteral("The pass was not begun: a text in the settings cannot stand in a "
                             "command. The reason: the destination begins with \"-\"."));
}

TEST(PassWordsTest, RefusedMovieCommand_IsToldWithWhatDidArrive) {
    const QString lines = outcomeOf(passWith(PassCause::MovieCommandRefused), false).output;
    EXPECT_TRUE(lines.startsWith(
        u"The rsync on the Mac is too old for the built-in movie command: only what the template "
        u"takes has arrived. (3 files, "))
        << lines.toStdString();
    EXPECT_TRUE(lines.contains(u"\nNext step: Update rsync on the Mac, or let the template take "))
        << lines.toStdString();
}

TEST(PassWordsTest, Figures_ReadWell) {
    EXPECT_EQ(filesText(Transfer{TransferSource::Lines, 1, {}}), QStringLiteral("1 file"));
    EXPECT_EQ(filesText(Transfer{TransferSource::Lines, 2, {}}), QStringLiteral("2 files"));
    EXPECT_EQ(filesText(Transfer{TransferSource::Lines, 0, {}}), QStringLiteral("nothing new"));
    EXPECT_EQ(filesText(Transfer{}), QStringLiteral("files unknown"));
    PassRecord pass;
    pass.kind = PassKind::Remote;
    EXPECT_EQ(filesText(pass), QStringLiteral("no transfer"));
    pass.verdict = HostVerdict::Valid;
    EXPECT_EQ(filesText(pass), QStringLiteral("files unknown"));
    EXPECT_EQ(sizeText({TransferSource::Statistics, 1, 40000}), QStringLiteral("40.0 kB"));
    EXPECT_EQ(sizeText({TransferSource::Statistics, 1, 1}), QStringLiteral("1 bytes"));
    EXPECT_EQ(sizeText({TransferSource::Statistics, 0, 0}), QString());
    EXPECT_EQ(sizeText({}), QString());
    EXPECT_EQ(secondsText(4.4), QStringLiteral("4 s"));
    EXPECT_EQ(secondsText(59), QStringLiteral("59 s"));
    EXPECT_EQ(secondsText(60), QStringLiteral("1 min 0 s"));
    EXPECT_EQ(secondsText(61), QStringLiteral("1 min 1 s"));
    EXPECT_EQ(secondsText(125), QStringLiteral("2 min 5 s"));
    EXPECT_EQ(secondsText(3599), QStringLiteral("59 min 59 s"));
    EXPECT_EQ(secondsText(3600), QStringLiteral("1 h 0 min"));
    EXPECT_EQ(secondsText(7199), QStringLiteral("1 h 59 min"));
    EXPECT_EQ(secondsText(12000), QStringLiteral("3 h 20 min"));
    EXPECT_EQ(secondsText(-1), QStringLiteral("0 s"));
    EXPECT_EQ(agoText(59), QStringLiteral("just now"));
    EXPECT_EQ(agoText(60), QStringLiteral("1 minute ago"));
    EXPECT_EQ(agoText(3599), QStringLiteral("59 minutes ago"));
    EXPECT_EQ(agoText(3600), QStringLiteral("1 hour ago"));
    EXPECT_EQ(agoText(4 * 3600), QStringLiteral("4 hours ago"));
    EXPECT_EQ(agoText(48 * 3600 - 1), QStringLiteral("47 hours ago"));
    EXPECT_EQ(agoText(48 * 3600), QStringLiteral("2 days ago"));
    EXPECT_EQ(agoText(-1), QStringLiteral("just now"));
    EXPECT_EQ(agoText(49 * 3600), QStringLiteral("2 days ago"));
}

TEST(OnceTest, ExitCode_IsOneForEachGroupAndZeroOnlyWhenWell) {
    QSet<int> codes;
    QSet<int> groups;
    for (int i = 0; i < cCauses; ++i) {
        const auto cause = static_cast<PassCause>(i);
        const int code = outcomeOf(passWith(cause), false).exitCode;
        EXPECT_EQ(code == 0, cause == PassCause::Well) << i;
        EXPECT_TRUE(code != 2 && code != 3) << "those mean something else already";
        codes.insert(code);
        groups.insert(static_cast<int>(wordsFor(cause).group));
    }
    EXPECT_EQ(codes.size(), groups.size());
}

// Scripts read these numbers, and the manual page lists them: they are never changed.
TEST(OnceTest, ExitCodes_AreTheOnesOfTheManualPage) {
    using enum CauseGroup;
    for (const auto& [group, code] :
         {std::pair(Well, 0), std::pair(Unknown, 1), std::pair(Host, 10), std::pair(HostKey, 11),
          std::pair(Login, 12), std::pair(RemoteSide, 13), std::pair(ThisSide, 14),
          std::pair(Incomplete, 15), std::pair(CutOff, 16), std::pair(Settings, 17),
          std::pair(Interrupted, 18), std::pair(AfterArrivals, 19)})
        EXPECT_EQ(exitCodeFor(group), code);
}

TEST(OnceTest, Lines_TellOutcomeAndNextStep) {
    EXPECT_EQ(outcomeOf(passWith(PassCause::Well), false).output,
              QStringLiteral("All is well. (3 files, 430.7 kB, 1 min 5 s)\n"));
    const QString trouble = outcomeOf(passWith(PassCause::HostAway), false).output;
    EXPECT_EQ(trouble, QStringLiteral("The Mac is away or asleep. (3 files, 430.7 kB, 1 min 5 s)\n"
                                      "Next step: Wake the Mac; in its energy settings, let it "
                                      "wake for network access.\n"));
    PassRecord crowded = passWith(PassCause::Unknown);
    crowded.lastLine = QStringLiteral("one\ntwo");
    crowded.transfer.bytes.reset();
    EXPECT_TRUE(outcomeOf(crowded, false)
                    .output.startsWith(QStringLiteral("Something went wrong. The last line was: "
                                                      "one\\x0atwo (3 files, 1 min 5 s)\n")));
    PassRecord hostile = passWith(PassCause::Unknown);
    hostile.lastLine = QStringLiteral("\x1b[2Jclosed");
    EXPECT_FALSE(outcomeOf(hostile, false).output.contains(QChar(0x1b)));
}

TEST(OnceTest, Json_IsOneObjectOnOneLine) {
    PassRecord pass = passWith(PassCause::DiskFull);
    pass.transfer.bytes.reset();
    pass.lastLine = QStringLiteral("a \"line\"\nwith ends");
    const auto answer = outcomeOf(pass, true);
    EXPECT_EQ(answer.output.count(u'\n'), 1);
    const QJsonObject object = QJsonDocument::fromJson(answer.output.toUtf8()).object();
    EXPECT_EQ(object.keys(),
              (QStringList{"arrivals", "began", "bytes", "cause", "exitCode", "files", "kind",
                           "lastLine", "message", "nextStep", "seconds", "verdict"}));
    EXPECT_EQ(object.value(u"kind"), QStringLiteral("remote"));
    EXPECT_EQ(object.value(u"message"), QStringLiteral("The disk here is full."));
    pass.kind = PassKind::Plain;
    EXPECT_TRUE(outcomeOf(pass, true).output.contains(QStringLiteral("\"kind\":\"plain\"")));
    EXPECT_EQ(object.value(u"verdict"), QStringLiteral("valid"));
    EXPECT_EQ(object.value(u"cause"), QStringLiteral("disk-full"));
    EXPECT_FALSE(object.value(u"nextStep").toString().isEmpty());
    EXPECT_EQ(object.value(u"files"), 3);
    EXPECT_TRUE(object.value(u"bytes").isNull());
    EXPECT_EQ(object.value(u"seconds"), 65.2);
    EXPECT_EQ(object.value(u"exitCode"), answer.exitCode);
    EXPECT_EQ(object.value(u"lastLine"), pass.lastLine);
    EXPECT_TRUE(object.value(u"arrivals").isArray());
}

TEST(OnceTest, Arrivals_AreNamedUpToTwentyAndAllInJson) {
    PassRecord pass = passWith(PassCause::Well);
    for (int i = 1; i <= 23; ++i)
        pass.arrivals.push_back({"/in/" + QByteArray::number(i) + "\n.mov", i, pass.began});
    const QStringList lines = outcomeOf(pass, false).output.split(u'\n');
    ASSERT_EQ(lines.size(), 24) << "outcome, heading, twenty, the rest, the end";
    EXPECT_EQ(lines[1], QStringLiteral("Arrived:"));
    EXPECT_EQ(lines[21], QStringLiteral("  /in/20\\x0a.mov"));
    EXPECT_EQ(lines[22], QStringLiteral("  and 3 more"));
    const auto json = QJsonDocument::fromJson(outcomeOf(pass, true).output.toUtf8()).object();
    ASSERT_EQ(json.value(u"arrivals").toArray().size(), 23);
    EXPECT_EQ(json.value(u"arrivals")[22][u"path"], QStringLiteral("/in/23\n.mov"));
    pass.arrivals.resize(20);
    EXPECT_FALSE(outcomeOf(pass, false).output.contains(QStringLiteral("more")));
}

} // namespace
} // namespace kelvo
