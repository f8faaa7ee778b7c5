#include "fakes/memory_defaults.h"
#include "fakes/recording_console.h"
#include "settings/preference_keys.h"
#include "sync/rsync_command.h"

#include <gtest/gtest.h>

#include <csignal>
#include <cstdio>

namespace kelvo {
namespace {

const QString cKey = QStringLiteral("/Users/localuser/.ssh/id_kelvoRsync");

class RsyncCommandTest : public ::testing::Test {
protected:
    void setTag(const QVariant& tag) { defaults.setObject(prefRsyncCommandOptionTag, tag); }

    MemoryDefaults defaults;
    RecordingConsole console;
    RsyncCommand command{defaults, console};
};

TEST_F(RsyncCommandTest, MovieTemplate_IsExact) {
    EXPECT_EQ(cMovieCommandTemplate,
              u"/usr/bin/rsync %@98  -f '+ */' -f '+ *.[mM][oOpP][vV4]*' -f '- *' -r  --times  "
              u"--prune-empty-dirs \"%@1\" \"%@2\" ");
}

TEST_F(RsyncCommandTest, RemotePass_FillsTheMovieTemplate) {
    EXPECT_EQ(filledCommand(cMovieCommandTemplate.toString(),
                            {QStringLiteral("mediauser@RemoteMac:/Users/mediauser/Movies"),
                             QStringLiteral("/Users/localuser/Incoming"), cKey},
                            u""),
              u"/usr/bin/rsync 2>&1 --timeout=5  -e 'ssh -i /Users/localuser/.ssh/id_kelvoRsync'"
              u"  -f '+ */' -f '+ *.[mM][oOpP][vV4]*' -f '- *' -r  --times  --prune-empty-dirs "
              u"\"mediauser@RemoteMac:/Users/mediauser/Movies/\" \"/Users/localuser/Incoming/\" ");
}

TEST_F(RsyncCommandTest, PlainPass_DropsTheSshPartAndKeepsTheBlanks) {
    EXPECT_EQ(filledCommand(QStringLiteral("/usr/bin/rsync -r %@99 %@98 \"%@1\" \"%@2\""),
                            {QStringLiteral(" /Volumes/Cam "),
                             QStringLiteral("/Users/localuser/Incoming/"), std::nullopt},
                            u"--ignore-existing"),
              u"/usr/bin/rsync -r --ignore-existing  \"/Volumes/Cam/\" "
              u"\"/Users/localuser/Incoming/\"");
}

TEST_F(RsyncCommandTest, CommandsFilledBefore_AreFilledAnewWhenAnythingDiffers) {
    const QString plain = QStringLiteral("a %@99 %@1 %@2");
    const RsyncParams params{QStringLiteral("/from"), QStringLiteral("/to"), std::nullopt};
    RsyncParams other = params;
    other.dstpath = QStringLiteral("/elsewhere");
    setTag(100);
    for (int pass = 0; pass < 3; ++pass) {
        EXPECT_EQ(command.fillInParams(plain, params), u"a  /from/ /to/");
        EXPECT_EQ(command.fillInParams(plain, other), u"a  /from/ /elsewhere/");
        EXPECT_EQ(command.fillInParams(QStringLiteral("b %@1 %@2"), params), u"b /from/ /to/");
        EXPECT_EQ(command.fillInParams(QStringLiteral("c %@1 %@2"), params), u"c /from/ /to/");
    }
    EXPECT_EQ(command.fillInParams(plain, params), u"a  /from/ /to/");
    setTag(101);
    EXPECT_EQ(command.fillInParams(plain, params), u"a --update /from/ /to/");
    EXPECT_EQ(command.fillInParams(plain, params), u"a --update /from/ /to/");
}

TEST_F(RsyncCommandTest, FaultsOfCommandsFilledBefore_AreFoundAgain) {
    const RsyncParams odd{QStringLiteral("/a b"), QStringLiteral("/to"), std::nullopt};
    const RsyncParams dashed{QStringLiteral("-a"), QStringLiteral("/to"), std::nullopt};
    setTag(100);
    const QString unclear = QStringLiteral("echo `rsync %@1 %@2`");
    EXPECT_EQ(command.commandFault({}, {}), commandFault({}, {}));
    for (int pass = 0; pass < 3; ++pass) {
        EXPECT_EQ(command.commandFault(unclear, odd), commandFault(unclear, odd));
        EXPECT_FALSE(command.commandFault(unclear, odd).isEmpty());
        EXPECT_EQ(command.fillInParams(unclear, odd), std::nullopt);
        EXPECT_TRUE(command.commandFault(QStringLiteral("a %@1 %@2"), odd).isEmpty());
        EXPECT_FALSE(command.commandFault(QStringLiteral("a %@1 %@2"), dashed).isEmpty());
    }
}

TEST_F(RsyncCommandTest, NoKeyPath_LeavesTheKeyPlaceholder) {
    EXPECT_EQ(filledCommand(QStringLiteral("a %@3 b%@98c"), {}, u""), u"a %@3 bc");
}

TEST_F(RsyncCommandTest, KeyPath_PassesUnchanged) {
    EXPECT_EQ(filledCommand(QStringLiteral("\"%@3\"|%@98"), {{}, {}, QStringLiteral(" /k ")}, u""),
              u"\" /k \"|2>&1 --timeout=5  -e 'ssh -i \" /k \"'");
}

TEST_F(RsyncCommandTest, MissingPaths_LeaveTheirPlaceholders) {
    EXPECT_EQ(filledCommand(QStringLiteral("%@1 %@2"), {}, u""), u"%@1 %@2");
}

TEST_F(RsyncCommandTest, SourceWithLaterPlaceholders_IsFilledByTheLaterSteps) {
    EXPECT_EQ(filledCommand(QStringLiteral("[%@1]"),
                            {QStringLiteral("s-%@2-%@3-%@98-%@99"), QStringLiteral("/d"),
                             QStringLiteral("/k")},
                            u"--update"),
              u"[s-/d/-/k-2>&1 --timeout=5  -e 'ssh -i /k'---update/]");
}

TEST_F(RsyncCommandTest, PlaceholdersInDestinationAndKeyPath_Stay) {
    EXPECT_EQ(filledCommand(QStringLiteral("%@1>%@2"),
                            {QStringLiteral("/s"), QStringLiteral("/%@1"), std::nullopt}, u""),
              u"/s/>/%@1/");
    EXPECT_EQ(filledCommand(QStringLiteral("%@1>%@2 %@3 %@98 %@99"),
                            {QStringLiteral("/s"), QStringLiteral("/%@2%@3%@98%@99"),
                             QStringLiteral("/%@1%@2%@3%@98%@99/k")},
                            u"--update"),
              u"/s/>/%@2%@3%@98%@99/ /%@1%@2%@3%@98%@99/k 2>&1 --timeout=5  "
              u"-e 'ssh -i /%@1%@2%@3%@98%@99/k' --update");
}

TEST_F(RsyncCommandTest, EveryOccurrence_IsReplaced) {
    EXPECT_EQ(filledCommand(QStringLiteral("%@99 %@1 %@1 %@99"), {QStringLiteral("x"), {}, {}},
                            u"--update"),
              u"--update x/ x/ --update");
}

TEST_F(RsyncCommandTest, EmptyDestination_BecomesTheRoot) {
    const auto filled = [](const QString& destination) {
        return filledCommand(QStringLiteral("\"%@2\""), {{}, destination, {}}, u"");
    };
    EXPECT_EQ(filled(QString()), u"\"/\"");
    EXPECT_EQ(filled(QStringLiteral("/x")), filled(QStringLiteral("/x/")));
}

TEST_F(RsyncCommandTest, OddPaths_StayInTheirQuotes) {
    EXPECT_EQ(filledCommand(QStringLiteral("r \"%@1\" '%@2'"),
                            {QStringLiteral("/a\"b$(x)`y`\\"), QStringLiteral("/it's"), {}}, u""),
              u"r \"/a\\\"b\\$(x)\\`y\\`\\\\/\" '/it'\\''s/'");
}

TEST_F(RsyncCommandTest, PlaceholderInASource_IsFilledInTheQuotesOfTheSource) {
    EXPECT_EQ(filledCommand(QStringLiteral("\"%@1\""),
                            {QStringLiteral("/s%@2%@98"), QStringLiteral("/d\";reboot"),
                             QStringLiteral("/$k")},
                            u""),
              u"\"/s/d\\\";reboot/2>&1 --timeout=5  -e 'ssh -i /\\$k'/\"");
    EXPECT_EQ(filledCommand(QStringLiteral("'%@1'"),
                            {QStringLiteral("/s%@98"), QStringLiteral("/d"), QStringLiteral("/k")},
                            u""),
              u"'/s2>&1 --timeout=5  -e '\\''ssh -i /k'\\''/'");
}

TEST_F(RsyncCommandTest, OddKeyPath_IsQuotedForRsyncInTheShellsQuotes) {
    const auto sshPart = [](const char* key) {
        return filledCommand(QStringLiteral("%@98"), {{}, {}, QString::fromUtf8(key)}, u"");
    };
    EXPECT_EQ(sshPart("/a b/k"), u"2>&1 --timeout=5  -e 'ssh -i \"/a b/k\"'");
    EXPECT_EQ(sshPart("/it's/k"), u"2>&1 --timeout=5  -e 'ssh -i \"/it'\\''s/k\"'");
    EXPECT_EQ(sshPart("/a\"b/k"), u"2>&1 --timeout=5  -e 'ssh -i \"/a\"\"b/k\"'");
    EXPECT_EQ(sshPart("/$(x)\\`y`/k"), u"2>&1 --timeout=5  -e 'ssh -i /$(x)\\`y`/k'");
    EXPECT_EQ(filledCommand(QStringLiteral("-e \"/usr/bin/ssh -p 22 -i %@3\" -i %@3"),
                            {{}, {}, QStringLiteral("/a $b/k")}, u""),
              u"-e \"/usr/bin/ssh -p 22 -i \\\"/a \\$b/k\\\"\" -i /a\\ \\$b/k");
}

TEST_F(RsyncCommandTest, PatternsInAPathOnAHost_AreKeptFromTheShellThere) {
    const auto source = [](const char* text) {
        return filledCommand(QStringLiteral("'%@1'"), {QString::fromUtf8(text), {}, {}}, u"");
    };
    EXPECT_EQ(source("u@h:Films [1]*?"), u"'u@h:Films \\[1\\]\\*\\?/'");
    EXPECT_EQ(source("/here/Films [1]*?"), u"'/here/Films [1]*?/'");
    EXPECT_EQ(source("/here:Films*"), u"'/here:Films*/'");
    EXPECT_EQ(source(":Films*"), u"':Films\\*/'");
}

// -- what is refused

QString faultOf(const char* source, const char* destination, const char* key = "/k") {
    return commandFault(
        cMovieCommandTemplate.toString(),
        {QString::fromUtf8(source), QString::fromUtf8(destination), QString::fromUtf8(key)});
}

TEST_F(RsyncCommandTest, OrdinaryTexts_HaveNoFault) {
    EXPECT_EQ(faultOf("u@h:Movies", "/Incoming"), u"");
    EXPECT_EQ(faultOf(" /Volumes/a:b \n", "\t~/Films - $5 %@1\n", "/a b/\"c'/k"), u"");
    EXPECT_EQ(faultOf("", ""), u"");
    EXPECT_EQ(faultOf("s%@2%@3%@98%@99", "./-x:y%@3%@98%@99", "/%@98%@99/k"), u"");
}

TEST_F(RsyncCommandTest, TextsThatLeadElsewhere_AreRefused) {
    EXPECT_EQ(faultOf("-s", "/d"), u"the source begins with \"-\"");
    EXPECT_EQ(faultOf("a\nb", "/d"), u"the source holds a line break");
    EXPECT_EQ(faultOf("u@-oProxyCommand=x:p", "/d"), u"the host of the source begins with \"-\"");
    EXPECT_EQ(faultOf("u@-:p", "/d"), u"the host of the source begins with \"-\"");
    EXPECT_EQ(faultOf("u@-h:@p", "/d"), u"the host of the source begins with \"-\"");
    EXPECT_EQ(faultOf("/u@-h:p", "/d"), u"") << "a folder";
    EXPECT_EQ(faultOf("-oProxyCommand=x:p", "/d"), u"the source begins with \"-\"");
    EXPECT_EQ(faultOf("u@h::m", "/d"), u"the source would be read as a module of an rsync daemon");
    EXPECT_EQ(faultOf("::m", "/d"), u"the source would be read as a module of an rsync daemon");
    EXPECT_EQ(faultOf("/s", " -d"), u"the destination begins with \"-\"");
    EXPECT_EQ(faultOf("/s", "/d\r\nx"), u"the destination holds a line break");
    EXPECT_EQ(faultOf("/s", "/d\xff"), u"the destination holds signs that are no text");
    for (const char* host : {"h:d", "u@h:/d", ":d", "rsync://h/d"})
        EXPECT_EQ(faultOf("/s", host), u"the destination would be read as the name of a host")
            << host;
    EXPECT_EQ(faultOf("/s", "/d", "/home/a\nb/k"), u"the path of the key file holds a line break");
}

TEST_F(RsyncCommandTest, TemplateThatKeepsNoWordTogether_TakesOrdinaryTextsOnly) {
    const QString command = QStringLiteral("echo `rsync %@1 %@2`");
    const auto fault = [&command](const char* destination) {
        return commandFault(command, {QStringLiteral("/s"), QString::fromUtf8(destination), {}});
    };
    EXPECT_EQ(fault("/d"), u"");
    EXPECT_EQ(fault("/d;x"), u"the command puts a text where it cannot be kept in one word");
    EXPECT_EQ(filledCommand(command, {QStringLiteral("/s"), QStringLiteral("/d;x"), {}}, u""),
              std::nullopt);
}

TEST_F(RsyncCommandTest, OptionTags_HaveTheirStrings) {
    EXPECT_EQ(optionStringForTag(100), u"");
    EXPECT_EQ(optionStringForTag(101), u"--update");
    EXPECT_EQ(optionStringForTag(102), u"--ignore-existing");
    EXPECT_EQ(optionStringForTag(105), u"");
    for (const qint64 tag : {0, 99, 103, 104, 106, -101})
        EXPECT_EQ(optionStringForTag(tag), std::nullopt) << tag;
}

TEST_F(RsyncCommandTest, StoredTag_IsReadAndTraced) {
    setTag(QStringLiteral("102"));
    EXPECT_EQ(command.getRsyncCommandOptionString(), u"--ignore-existing");
    setTag(105);
    EXPECT_EQ(command.getRsyncCommandOptionString(), u"");
    EXPECT_EQ(console.printed(),
              (QStringList{QStringLiteral("Inside NSUserDefaults->getRsyncCommandOptionString()"
                                          ".......returning: [--ignore-existing]"),
                           QStringLiteral("Inside NSUserDefaults->getRsyncCommandOptionString()"
                                          ".......returning: []")}));
}

TEST_F(RsyncCommandTest, FillInParams_TracesEachStepInOrder) {
    setTag(101);
    const auto filled = command.fillInParams(QStringLiteral("r %@99 %@1 %@2"),
                                             {QStringLiteral("/s"), QStringLiteral("/d"), {}});
    EXPECT_EQ(filled, u"r --update /s/ /d/");
    EXPECT_EQ(
        console.printed(),
        (QStringList{QStringLiteral("Inside String->appendSlashIfNeeded()......."),
                     QStringLiteral("Inside String->appendSlashIfNeeded()......."),
                     QStringLiteral("Inside NSUserDefaults->getRsyncCommandOptionString()"
                                    ".......returning: [--update]"),
                     QStringLiteral("Inside String->fillInParams(srcpath:dstpath:sshfilepath:)"
                                    ".......returning:\nr --update /s/ /d/")}));
}

TEST_F(RsyncCommandTest, TemplateWithoutPlaceholders_ComesBackUnchanged) {
    setTag(100);
    EXPECT_EQ(command.fillInParams(cMissingRsyncCommandString1.toString(),
                                   {QStringLiteral("/s"), QStringLiteral("/d"), cKey}),
              cMissingRsyncCommandString1);
}

using RsyncCommandDeathTest = RsyncCommandTest;

/// Keeps what it is told until it is flushed to standard error, which takes time.
class SlowConsole final : public Console {
public:
    void printAll(const std::vector<QStringList>&) override {}
    void log(const QString& text) override { fWaiting += text.toStdString() + '\n'; }
    bool flush(std::chrono::milliseconds time) override {
        if (time.count() > 0)
            std::fputs(fWaiting.c_str(), stderr);
        return time.count() > 0;
    }

private:
    std::string fWaiting;
};

TEST_F(RsyncCommandDeathTest, TagThatDoesNotExist_StopsTheProgramOnceItIsSaid) {
    SlowConsole slow;
    const RsyncCommand last(defaults, slow);
    for (const auto& [stored, held] :
         {std::pair(QVariant(103), "103"), std::pair(QVariant(104), "104"),
          std::pair(QVariant(99), "99"), std::pair(QVariant(106), "106"),
          std::pair(QVariant(QStringLiteral("newest")), "newest"),
          std::pair(QVariant(QVariantList{101}), "no number"), std::pair(QVariant(), "nothing")}) {
        defaults.setObject(prefRsyncCommandOptionTag, stored);
        // Once and no more; an emulator adds a line of its own about the signal.
        EXPECT_EXIT(last.getRsyncCommandOptionString(), ::testing::KilledBySignal(SIGILL),
                    std::string("^prefRsyncCommandOptionTag holds ") + held +
                        ", which stands for no option of rsync. To mend it: kelvo-mirror --set "
                        "prefRsyncCommandOptionTag 100\n(qemu: [^\n]*\n)?$");
    }
}

} // namespace
} // namespace kelvo
