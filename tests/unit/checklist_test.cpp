#include "fakes/fake_file_manager.h"
#include "fakes/memory_defaults.h"
#include "fakes/memory_pass_store.h"
#include "fakes/virtual_queues.h"
#include "settings/preference_keys.h"
#include "ui/checklist.h"
#include "ui/pass_words.h"

#include <gtest/gtest.h>

namespace kelvo {
namespace {

ChecklistFacts wellFacts(bool remote) {
    ChecklistFacts facts;
    facts.remote = remote;
    facts.hostChosen = facts.userSet = remote;
    facts.sourceChosen = !remote;
    facts.destinationChosen = facts.destinationWritable = facts.rsyncThere = true;
    facts.sshThere = remote;
    return facts;
}

TEST(ChecklistTest, AllWell_HasNoLine) {
    EXPECT_TRUE(checklist(wellFacts(true)).empty());
    EXPECT_TRUE(checklist(wellFacts(false)).empty());
}

TEST(ChecklistTest, EachLack_HasItsLineAndRemedy) {
    const auto only = [](bool remote, bool ChecklistFacts::*fact, Remedy remedy,
                         const char* words) {
        ChecklistFacts facts = wellFacts(remote);
        facts.*fact = false;
        const auto lines = checklist(facts);
        ASSERT_EQ(lines.size(), 1U) << words;
        EXPECT_EQ(lines[0].remedy, remedy);
        EXPECT_EQ(lines[0].text, QString::fromLatin1(words));
    };
    only(true, &ChecklistFacts::hostChosen, Remedy::ChooseMac, "No Mac is chosen yet.");
    only(true, &ChecklistFacts::userSet, Remedy::EnterAccount,
         "The user name on the Mac is missing.");
    only(true, &ChecklistFacts::sshThere, Remedy::CopyInstallCommand,
         "ssh is not installed on this machine.");
    only(true, &ChecklistFacts::rsyncThere, Remedy::CopyInstallCommand,
         "rsync is not installed on this machine.");
    only(false, &ChecklistFacts::sourceChosen, Remedy::ChooseSource,
         "No source folder is chosen yet.");
    only(true, &ChecklistFacts::destinationChosen, Remedy::ChooseDestination,
         "No destination folder is chosen yet.");
    only(true, &ChecklistFacts::destinationWritable, Remedy::ChooseDestination,
         "The destination folder is missing or cannot be written.");
}

TEST(ChecklistTest, Key_IsALineUntilItIsAccepted) {
    const auto linesFor = [](KeyState key, std::optional<PassCause> lastCause) {
        ChecklistFacts facts = wellFacts(true);
        facts.key = key;
        facts.lastCause = lastCause;
        QStringList texts;
        for (const ChecklistLine& line : checklist(facts)) {
            EXPECT_EQ(line.remedy,
                      lastCause == PassCause::WrongUser ? Remedy::EnterAccount : Remedy::SetUpKey);
            texts << line.text;
        }
        return texts;
    };
    const QString notAccepted = QStringLiteral("The Mac has not accepted the program's key yet.");
    EXPECT_EQ(linesFor(KeyState::NoKey, {}),
              QStringList{QStringLiteral("The program has no ssh key of its own yet.")});
    EXPECT_EQ(linesFor(KeyState::NotAccepted, {}), QStringList{notAccepted});
    EXPECT_EQ(linesFor(KeyState::NotAccepted, PassCause::DiskFull), QStringList{notAccepted});
    EXPECT_EQ(linesFor(KeyState::NotAccepted, PassCause::RemoteLoginOff), QStringList())
        << "nobody was asked";
    EXPECT_EQ(linesFor(KeyState::NotAccepted, PassCause::HostKeyChanged),
              QStringList{wordsFor(PassCause::HostKeyChanged).sentence.toString()});
    for (const PassCause cause : {PassCause::KeyRefused, PassCause::WrongUser})
        EXPECT_EQ(linesFor(KeyState::NotAccepted, cause),
                  QStringList{wordsFor(cause).sentence.toString()});
    EXPECT_EQ(linesFor(KeyState::Accepted, PassCause::KeyRefused), QStringList());
    EXPECT_EQ(linesFor(KeyState::NotAsked, {}), QStringList());
}

TEST(ChecklistTest, EverythingMissing_IsListedInTheOrderOfSettingUp) {
    ChecklistFacts facts;
    facts.remote = true;
    using enum Remedy;
    for (const KeyState key : {KeyState::NoKey, KeyState::NotAccepted}) {
        facts.key = key;
        std::vector<Remedy> remedies;
        for (const ChecklistLine& line : checklist(facts))
            remedies.push_back(line.remedy);
        EXPECT_EQ(remedies, (std::vector{ChooseMac, EnterAccount, SetUpKey, CopyInstallCommand,
                                         ChooseDestination, CopyInstallCommand}));
    }
}

// -- looking

QStringList texts(const std::vector<ChecklistLine>& lines) {
    QStringList all;
    for (const ChecklistLine& line : lines)
        all << line.text;
    return all;
}

const QString cNoMac = QStringLiteral("No Mac is chosen yet.");
const QString cNoUser = QStringLiteral("The user name on the Mac is missing.");
const QString cNoSsh = QStringLiteral("ssh is not installed on this machine.");
const QString cNoRsync = QStringLiteral("rsync is not installed on this machine.");

class ChecklistLookTest : public ::testing::Test {
protected:
    ChecklistLookTest() {
        files.programs = {QStringLiteral("/usr/bin/rsync"), QStringLiteral("/usr/bin/ssh")};
    }
    void settle() {
        mainQueue.runDue();
        bgQueue.runAll();
        mainQueue.runDue();
    }

    MemoryDefaults defaults;
    VirtualMainQueue mainQueue;
    ManualBackgroundQueue bgQueue;
    FakeFileManager files;
    MemoryPassStore store{mainQueue};
    std::vector<std::vector<ChecklistLine>> shown;
    std::optional<Checklist> list{Checklist::Parts{
        defaults, mainQueue, bgQueue, files, store,
        [this](const std::vector<ChecklistLine>& lines) { shown.push_back(lines); }}};
};

TEST_F(ChecklistLookTest, DiskIsAskedInTheBackground) {
    mainQueue.runDue();
    EXPECT_TRUE(shown.empty());
    EXPECT_EQ(bgQueue.size(), 1U);
    settle();
    ASSERT_EQ(shown.size(), 1U);
    EXPECT_EQ(shown[0].size(), 2U) << "source and destination";
}

TEST_F(ChecklistLookTest, SettingThatChanges_IsLookedAtAgain) {
    settle();
    files.folders.insert(QStringLiteral("/in"));
    defaults.setObject(prefPath1, QStringLiteral("/out"));
    defaults.setObject(prefPath2, QStringLiteral("/in"));
    settle();
    EXPECT_TRUE(shown.back().empty());
    EXPECT_EQ(shown.size(), 2U) << "of two looks at once only the later is shown";
    files.folders.clear();
    store.append({});
    settle();
    EXPECT_EQ(shown.back().size(), 1U) << "and after each pass";
}

TEST_F(ChecklistLookTest, RemotePass_AsksForWhatItNeeds) {
    files.programs.clear();
    files.folders = {files.home + QStringLiteral("/in")};
    defaults.setObject(prefPath2, QStringLiteral("~/in"));
    defaults.setObject(prefRsyncWithSSH, true);
    settle();
    EXPECT_EQ(texts(shown.back()), (QStringList{cNoMac, cNoUser, cNoSsh, cNoRsync}));
    defaults.setObject(prefRemoteBonjourName, QStringLiteral("mac.local"));
    settle();
    EXPECT_EQ(texts(shown.back()), (QStringList{cNoUser, cNoSsh, cNoRsync}));
    defaults.setObject(prefRemoteBonjourName, QStringLiteral(" \n"));
    defaults.setObject(prefRemoteUsername, QStringLiteral("ann"));
    settle();
    EXPECT_EQ(texts(shown.back()), (QStringList{cNoMac, cNoSsh, cNoRsync}));
    defaults.setObject(prefRemoteBonjourName, QStringLiteral("mac.local"));
    settle();
    files.programs = {QStringLiteral("/usr/bin/rsync")};
    list->look();
    settle();
    EXPECT_EQ(texts(shown.back()), QStringList{cNoSsh});
    files.programs = {QStringLiteral("/usr/bin/ssh")};
    list->look();
    settle();
    EXPECT_EQ(texts(shown.back()), QStringList{cNoRsync});
}

TEST_F(ChecklistLookTest, EachSettingOfAPass_IsLookedAtWhenItChanges) {
    settle();
    for (const QStringView key :
         {prefRsyncWithSSH, prefRemoteBonjourName, prefRemoteUsername, prefPath1, prefPath2}) {
        const std::size_t before = shown.size();
        defaults.setObject(key, QStringLiteral("other"));
        settle();
        EXPECT_EQ(shown.size(), before + 1) << key.toString().toStdString();
    }
}

TEST_F(ChecklistLookTest, CauseOfTheLastPass_GivesTheKeyItsWords) {
    defaults.setObject(prefRsyncWithSSH, true);
    list->setKeyState(KeyState::NotAccepted);
    settle();
    PassRecord pass;
    pass.cause = PassCause::HostKeyChanged;
    store.append(pass);
    settle();
    EXPECT_TRUE(
        texts(shown.back()).contains(wordsFor(PassCause::HostKeyChanged).sentence.toString()));
}

TEST_F(ChecklistLookTest, StateOfTheKey_IsLookedAtOnceItIsKnown) {
    defaults.setObject(prefRsyncWithSSH, true);
    settle();
    const std::size_t before = shown.back().size();
    list->setKeyState(KeyState::NotAccepted);
    settle();
    EXPECT_EQ(shown.back().size(), before + 1);
    list->setKeyState(KeyState::Asking);
    settle();
    EXPECT_EQ(shown.back().size(), before + 1) << "a question is no answer";
    list->setKeyState(KeyState::Accepted);
    settle();
    EXPECT_EQ(shown.back().size(), before);
}

TEST_F(ChecklistLookTest, ChecklistThatIsGone_ShowsNothing) {
    defaults.setObject(prefPath2, QStringLiteral("/in"));
    list.reset();
    settle();
    EXPECT_TRUE(shown.empty());
}

} // namespace
} // namespace kelvo
