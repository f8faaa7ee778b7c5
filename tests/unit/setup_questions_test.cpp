#include "app/commands/setup_questions.h"
#include "fakes/fake_dialogue.h"
#include "fakes/fake_file_manager.h"
#include "fakes/fake_ssh_configuration.h"
#include "fakes/memory_defaults.h"
#include "fakes/recording_console.h"
#include "fakes/scripted_browser.h"
#include "fakes/virtual_queues.h"
#include "settings/overlay_defaults.h"
#include "settings/preference_keys.h"
#include "settings/preferences.h"

#include <gtest/gtest.h>

namespace kelvo {
namespace {

const QString cIncoming = QStringLiteral("/Users/localuser/Movies");

DNSSD_Service mac(const QString& name, const QString& address) {
    DNSSD_Service service;
    service.name = name;
    service.type = QStringLiteral("_smb._tcp");
    service.domain = QStringLiteral("local");
    service.ip4Address = address;
    service.hostTarget = QString(name).replace(u' ', u'-') + u".local";
    return service;
}

class SetupQuestionsTest : public ::testing::Test {
protected:
    SetupQuestionsTest() {
        stored.registerDefaults({{prefRemotePath.toString(), QStringLiteral("Movies")},
                                 {prefKeepConnection.toString(), true},
                                 {prefRsyncCommandString1.toString(),
                                  factoryValue(*preference(prefRsyncCommandString1))}});
        files.folders = {QStringLiteral("/Users/localuser"), cIncoming};
        ssh.standing = SshConfiguration::Knows::ByTheMachine;
    }

    void begin(const SetupRequest& request = {}) {
        questions.emplace(SetupQuestions::Parts{.dialogue = dialogue,
                                                .settings = settings,
                                                .files = files,
                                                .macs = macs,
                                                .ssh = ssh,
                                                .service = service},
                          request);
        questions->begin(
            [this](const std::optional<SetupAnswers>& answers, const CommandAnswer& answer) {
                ++ends;
                agreed = answers;
                failure = answer;
            });
    }
    /// Lets the search for Macs end, and answers what comes then.
    void answer(std::initializer_list<const char*> texts) {
        mainQueue.advance(20);
        for (const char* text : texts) {
            ASSERT_TRUE(dialogue.isWaiting()) << "nobody asked for " << text;
            dialogue.answer(text);
        }
    }
    QString value(QStringView key) const { return settings.stringForKey(key).value_or(QString()); }
    static SetupRequest everything() {
        return {.mac = QStringLiteral("Remote-Mac.local"),
                .account = QStringLiteral("mediauser"),
                .folder = QStringLiteral("Movies/2026"),
                .destination = cIncoming};
    }

    FakeDialogue dialogue;
    MemoryDefaults stored;
    OverlayDefaults settings{stored};
    FakeFileManager files;
    VirtualMainQueue mainQueue;
    ManualBackgroundQueue bgQueue;
    RecordingConsole console;
    ScriptedBrowser browser;
    bool hasNetwork = true;
    SetupMacs macs{{.dialogue = dialogue,
                    .settings = settings,
                    .mainQueue = mainQueue,
                    .bgQueue = bgQueue,
                    .console = console,
                    .browser = browser,
                    .hasNetwork = [this] { return hasNetwork; }}};
    FakeSshConfiguration ssh;
    ServiceFacts service;
    std::optional<SetupQuestions> questions;
    int ends = 0;
    std::optional<SetupAnswers> agreed;
    CommandAnswer failure;
};

TEST_F(SetupQuestionsTest, PersonAtATerminal_IsAskedInTheWindowsOrder) {
    service.canBeEnabled = true;
    ssh.standing = SshConfiguration::Knows::NotYet;
    browser.announce(mac(QStringLiteral("Remote Mac"), QStringLiteral("10.77.0.2")));
    begin();
    answer({"1", "mediauser", "", "~/Movies", "", "y", "n"});
    ASSERT_TRUE(agreed) << failure.errors.toStdString();
    EXPECT_EQ(value(prefRemoteBonjourName), u"Remote-Mac.local");
    EXPECT_EQ(settings.dictionaryForKey(prefRemoteDnssdServiceData)->value(QStringLiteral("name")),
              QStringLiteral("Remote Mac"));
    EXPECT_EQ(value(prefRemoteUsername), u"mediauser");
    EXPECT_EQ(value(prefRemotePath), u"Movies");
    EXPECT_EQ(value(prefPath2), cIncoming);
    EXPECT_EQ(agreed->destination, cIncoming);
    EXPECT_FALSE(agreed->makeDestination);
    EXPECT_TRUE(agreed->enable);
    EXPECT_FALSE(agreed->linger);
    EXPECT_EQ(agreed->sshLine, true);
    ASSERT_EQ(dialogue.said.size(), 2);
    EXPECT_EQ(dialogue.said[0], QStringLiteral("  1  Remote Mac  10.77.0.2  Remote-Mac.local"));
    EXPECT_EQ(dialogue.said[1],
              QStringLiteral("Passes can share one login to the Mac, and ssh does not know of it "
                             "yet. This line at the top of /home/me/.ssh/config tells it, and "
                             "concerns no commands but those of passes:\n"
                             "  Include \"/opt/ssh.conf\""));
    EXPECT_EQ(dialogue.lines.indexOf(dialogue.said[1]), 6) << "before the question";
    EXPECT_EQ(
        dialogue.asked,
        (QStringList{QStringLiteral("Looking for Macs in this network; Return ends the search … "),
                     QStringLiteral("Which Mac? Its number, or a host name or address: "),
                     QStringLiteral("Account on the Mac, one that may log in there: "),
                     QStringLiteral("Folder with the movies on the Mac [Movies]: "),
                     QStringLiteral("Folder on this machine that the movies come into: "),
                     QStringLiteral("Add the line? [Y/n] "),
                     QStringLiteral("Keep the folder supplied from now on, as a service of your "
                                    "account (systemd user unit kelvo-mirror)? [Y/n] "),
                     QStringLiteral("Run it from the start of the machine, also while you are not "
                                    "logged in (loginctl enable-linger)? [Y/n] ")}));
    EXPECT_EQ(ssh.standing, SshConfiguration::Knows::NotYet) << "asking changes nothing";
    EXPECT_TRUE(stored.changes().empty()) << "nothing is stored by asking";
    EXPECT_EQ(ends, 1);
}

TEST_F(SetupQuestionsTest, NewestMacFirst_NumbersMeanWhatWasShown) {
    for (const auto& [name, address] : {std::pair("Attic", "10.0.0.5"), {"Bath", "10.0.0.6"}})
        browser.announce(mac(QString::fromLatin1(name), QString::fromLatin1(address)));
    begin();
    answer({"2"});
    ASSERT_EQ(dialogue.said.size(), 2);
    const QString second = dialogue.said[1].section(QStringLiteral("  "), 2, 2);
    EXPECT_EQ(value(prefRemoteBonjourName), QString(second + u".local"));
}

TEST_F(SetupQuestionsTest, SearchWithoutMacs_EndsByItselfWithItsReasonAndANameCanBeTyped) {
    begin();
    EXPECT_TRUE(dialogue.isWaiting());
    EXPECT_EQ(dialogue.asked.last(),
              u"Looking for Macs in this network; Return ends the search … ");
    mainQueue.advance(11.9);
    EXPECT_EQ(dialogue.takenBack, 0);
    mainQueue.advance(0.2);
    EXPECT_EQ(dialogue.takenBack, 1);
    EXPECT_EQ(dialogue.everything(),
              u"No Mac was found. On the Mac, System Settings, General, Sharing: File Sharing "
              u"makes it known in its network, and Remote Login lets this program in. A Mac that "
              u"is known by name or address can be used without being found.");
    EXPECT_EQ(dialogue.asked.last(), QStringLiteral("Host name or address of the Mac: "));
    dialogue.answer("10.77.0.2");
    EXPECT_EQ(value(prefRemoteBonjourName), u"10.77.0.2");
}

TEST_F(SetupQuestionsTest, SearchWithoutMacs_LooksAgainEveryThreeSeconds) {
    for (int search = 0; search < 2; ++search) {
        browser.browsed.clear();
        begin();
        std::vector<qsizetype> scans;
        for (const double pause : {2.7, 0.1, 2.9, 0.1, 2.9, 0.1, 2.9, 0.1}) {
            mainQueue.advance(pause);
            scans.push_back(browser.browsed.size());
        }
        EXPECT_EQ(scans, (std::vector<qsizetype>{1, 2, 2, 3, 3, 4, 4, 5}));
        EXPECT_EQ(dialogue.takenBack, search);
        mainQueue.advance(0.3);
        EXPECT_EQ(dialogue.takenBack, search + 1);
    }
}

TEST_F(SetupQuestionsTest, SearchWithAMac_EndsOnceTheFirstScanHasBroughtAll) {
    browser.announce(mac(QStringLiteral("Attic"), QStringLiteral("10.0.0.5")));
    begin();
    mainQueue.advance(2.2);
    EXPECT_EQ(dialogue.takenBack, 0);
    mainQueue.advance(0.1);
    EXPECT_EQ(dialogue.takenBack, 1);
    EXPECT_EQ(dialogue.everything(), u"  1  Attic  10.0.0.5  Attic.local");
    EXPECT_TRUE(dialogue.isWaiting()) << "for the number";
}

TEST_F(SetupQuestionsTest, DiscoveryThatComesBack_IsAskedUntilThereIsAMac) {
    browser.setRunning(false);
    begin();
    mainQueue.advance(2.0);
    ASSERT_EQ(browser.browsed.size(), 1);
    browser.setRunning(true);
    EXPECT_EQ(browser.browsed.size(), 2) << "at once";
    mainQueue.advance(0.9);
    EXPECT_EQ(browser.browsed.size(), 3) << "as in any search";
    browser.announce(mac(QStringLiteral("Attic"), QStringLiteral("10.0.0.5")));
    mainQueue.advance(0.7);
    browser.announce(mac(QStringLiteral("Bath"), QStringLiteral("10.0.0.6")));
    mainQueue.advance(30);
    EXPECT_EQ(browser.browsed.size(), 3) << "one is found";
    EXPECT_EQ(dialogue.everything(), u"  1  Attic  10.0.0.5  Attic.local");
    dialogue.answer("1");
    EXPECT_EQ(value(prefRemoteBonjourName), u"Attic.local") << "not the one found since";
    console.clear();
    begin();
    mainQueue.advance(20);
    const QStringList rows = console.printed().filter(QStringLiteral("selectedRow =>>>"));
    EXPECT_FALSE(rows.isEmpty());
    for (const QString& row : rows)
        EXPECT_TRUE(row.endsWith(u" -1")) << "nothing is chosen: " << row.toStdString();
}

TEST_F(SetupQuestionsTest, SearchWithoutDiscovery_SaysWhatWouldHelp) {
    browser.setRunning(false);
    const auto said = [this](DiscoveryState state) {
        browser.away = state;
        browser.setRunning(false);
        begin();
        mainQueue.advance(20);
        return dialogue.said.last();
    };
    EXPECT_EQ(said(DiscoveryState::NotInstalled),
              u"Discovery is not installed on this machine. With it Macs would be listed here: "
              u"sudo apt install avahi-daemon");
    EXPECT_EQ(said(DiscoveryState::NotRunning),
              u"Discovery is not running on this machine. With it Macs would be listed here: sudo "
              u"systemctl start avahi-daemon");
}

TEST_F(SetupQuestionsTest, ReturnDuringTheSearch_EndsIt) {
    begin();
    mainQueue.advance(1);
    dialogue.answer("");
    EXPECT_TRUE(dialogue.asked.last().startsWith(u"Host name or address")) << "asked at once";
    mainQueue.advance(60);
    EXPECT_EQ(dialogue.said.size(), 1) << "the search does not come back";
}

TEST_F(SetupQuestionsTest, MacThatComesLate_IsListed) {
    begin();
    mainQueue.advance(6);
    browser.announce(mac(QStringLiteral("Late"), QStringLiteral("10.77.0.3")));
    mainQueue.advance(5);
    EXPECT_TRUE(dialogue.everything().contains(u"Late")) << dialogue.everything().toStdString();
}

TEST_F(SetupQuestionsTest, DiscoveryThatIsAway_IsSaidSoonWithItsRemedy) {
    for (const auto& [away, words] :
         {std::pair(DiscoveryState::NotRunning, u"sudo systemctl start avahi-daemon"),
          std::pair(DiscoveryState::NotInstalled, u"sudo apt install avahi-daemon")}) {
        browser.away = away;
        browser.setRunning(false);
        begin();
        mainQueue.advance(3);
        EXPECT_TRUE(dialogue.everything().endsWith(QStringView(words)));
        browser.setRunning(true);
        browser.browsed.clear();
    }
}

TEST_F(SetupQuestionsTest, NoNetwork_IsSaid) {
    hasNetwork = false;
    begin();
    answer({});
    EXPECT_EQ(dialogue.everything(), QStringLiteral("This machine is not connected to a network."));
}

TEST_F(SetupQuestionsTest, CtrlDAtAnyQuestion_EndsWithNothingChanged) {
    service.canBeEnabled = true;
    ssh.standing = SshConfiguration::Knows::NotYet;
    files.existing.insert(QStringLiteral("/Users/localuser/.ssh/id_kelvoRsync"));
    const std::vector<const char*> texts{"10.77.0.2", "mediauser", "Movies", "~/New",
                                         "y",         "y",         "n",      "y"};
    for (std::size_t before = 0; before <= texts.size(); ++before) {
        begin();
        mainQueue.advance(20);
        for (std::size_t i = 0; i < before; ++i)
            dialogue.answer(texts[i]);
        ASSERT_TRUE(dialogue.isWaiting()) << before;
        dialogue.answer(std::nullopt);
        EXPECT_EQ(failure.exitCode, 18) << before;
        EXPECT_EQ(failure.errors, u"kelvo-mirror: the set-up was ended. Nothing was changed.\n");
        EXPECT_FALSE(agreed);
    }
    EXPECT_EQ(ends, static_cast<int>(texts.size()) + 1);
    EXPECT_TRUE(stored.changes().empty());
    // The search can be ended so too.
    begin();
    dialogue.answer(std::nullopt);
    EXPECT_EQ(failure.exitCode, 18);
}

TEST_F(SetupQuestionsTest, AnswerThatCannotStandInACommand_IsRefusedAndAskedForAgain) {
    begin();
    answer({"-oProxyCommand=x", "a/b", "", "10.77.0.2"});
    EXPECT_EQ(dialogue.lines.mid(2, 3),
              (QStringList{QStringLiteral("Host name or address of the Mac: "),
                           QStringLiteral("That cannot be used: the host name begins with \"-\"."),
                           QStringLiteral("Host name or address of the Mac: ")}));
    EXPECT_EQ(dialogue.said.mid(1),
              (QStringList{QStringLiteral("That cannot be used: the host name begins with \"-\"."),
                           QStringLiteral("That cannot be used: the host name holds \"/\"."),
                           QStringLiteral("That cannot be used: a Mac is needed.")}));
    answer({"-l", "a:b", "a\nb", "mediauser"});
    EXPECT_EQ(dialogue.said.last(),
              QStringLiteral("That cannot be used: the user name holds a line break."));
    answer({"a\rb", "Movies"});
    EXPECT_EQ(dialogue.said.last(),
              QStringLiteral("That cannot be used: the source holds a line break."));
    files.existing.insert(QStringLiteral("/a-file"));
    answer({"Movies", "/a-file", "/two\xef\xbf\xbd", "~"});
    EXPECT_EQ(dialogue.said.last(),
              QStringLiteral("That cannot be used: the destination holds signs that are no text."));
    EXPECT_TRUE(dialogue.said.contains(
        QStringLiteral("That cannot be used: /a-file is no folder that you may write to.")));
    ASSERT_TRUE(agreed);
    EXPECT_EQ(agreed->destination, u"/Users/localuser");
}

TEST_F(SetupQuestionsTest, EverythingGiven_AsksNothing) {
    dialogue.isThere = false;
    begin(everything());
    ASSERT_TRUE(agreed) << failure.errors.toStdString();
    EXPECT_TRUE(dialogue.asked.isEmpty());
    EXPECT_TRUE(browser.browsed.isEmpty()) << "nobody is looked for";
    EXPECT_EQ(value(prefRemotePath), u"Movies/2026");
    EXPECT_FALSE(agreed->enable) << "only when it is wished for";
}

TEST_F(SetupQuestionsTest, WithoutATerminal_EverythingMissingIsNamed) {
    dialogue.isThere = false;
    begin();
    EXPECT_EQ(failure.exitCode, 2);
    EXPECT_EQ(failure.errors,
              QStringLiteral("kelvo-mirror: there is no terminal to ask in, and these are "
                             "missing: --mac, --account, --destination. Nothing was changed.\n"));
    SetupRequest request = everything();
    request.destination = QStringLiteral("~/New");
    files.existing.insert(QStringLiteral("/Users/localuser/.ssh/id_kelvoRsync"));
    begin(request);
    EXPECT_TRUE(failure.errors.contains(u"missing: --make-destination, --new-key."))
        << failure.errors.toStdString();
    request.makeDestination = request.newKey = true;
    begin(request);
    ASSERT_TRUE(agreed);
    EXPECT_EQ(agreed->destination, u"/Users/localuser/New");
    EXPECT_TRUE(agreed->makeDestination);
    EXPECT_TRUE(agreed->newKey);
    EXPECT_TRUE(dialogue.asked.isEmpty());
}

TEST_F(SetupQuestionsTest, OptionThatCannotBeUsed_IsNamed) {
    struct Case {
        std::optional<QString> SetupRequest::*option;
        const char* value;
        const char* words;
    };
    for (const Case& each :
         {Case{&SetupRequest::mac, "-x", "--mac: the host name begins with \"-\""},
          Case{&SetupRequest::mac, " ", "--mac: a Mac is needed"},
          Case{&SetupRequest::account, "a\nb", "--account: the user name holds a line break"},
          Case{&SetupRequest::account, "\t", "--account: an account is needed"},
          Case{&SetupRequest::folder, "", "--folder: a folder is needed"},
          Case{&SetupRequest::folder, ":module/x",
               "--folder: the source would be read as a module of an rsync daemon"},
          Case{&SetupRequest::destination, "here",
               "--destination: the folder's whole path is needed, from \"/\" or \"~\""}}) {
        SetupRequest request = everything();
        request.*each.option = QString::fromUtf8(each.value);
        begin(request);
        EXPECT_FALSE(agreed);
        EXPECT_EQ(failure.exitCode, 2);
        EXPECT_EQ(failure.errors.toStdString(),
                  std::string("kelvo-mirror: ") + each.words + ". Nothing was changed.\n");
    }
}

TEST_F(SetupQuestionsTest, WhatWasSetBefore_IsOfferedAndTakenWhereNobodyAnswers) {
    stored.setObject(prefRemoteBonjourName, QStringLiteral("Old-Mac.local"));
    stored.setObject(prefRemoteUsername, QStringLiteral("-broken"));
    stored.setObject(prefPath2, cIncoming);
    begin();
    answer({"", "mediauser", "", ""});
    ASSERT_TRUE(agreed);
    EXPECT_EQ(dialogue.asked[1], QStringLiteral("Host name or address of the Mac "
                                                "[Old-Mac.local]: "));
    EXPECT_EQ(dialogue.asked[2], QStringLiteral("Account on the Mac, one that may log in there: "));
    EXPECT_EQ(agreed->destination, cIncoming);
    stored.setObject(prefRemoteUsername, QStringLiteral("mediauser"));
    dialogue.isThere = false;
    begin();
    EXPECT_TRUE(agreed);
}

TEST_F(SetupQuestionsTest, FolderThatIsNotWanted_IsAskedForAgain) {
    SetupRequest request = everything();
    request.destination.reset();
    request.folder.reset();
    begin(request);
    answer({"Films", "~/New", "n", "~/Other", "maybe", "yes"});
    ASSERT_TRUE(agreed);
    EXPECT_EQ(agreed->destination, u"/Users/localuser/Other");
    EXPECT_TRUE(agreed->makeDestination);
    request = everything();
    request.destination = QStringLiteral("~/New");
    begin(request);
    answer({"No"});
    EXPECT_EQ(dialogue.asked.last(), u"There is no folder /Users/localuser/New. Make it? [Y/n] ");
    EXPECT_EQ(failure.exitCode, 2) << "there is no other one to ask for";
    EXPECT_EQ(failure.errors, u"kelvo-mirror: --destination: there is no such folder. Nothing was "
                              u"changed.\n");
}

TEST_F(SetupQuestionsTest, LonePrivateHalf_IsReplacedOnlyByAgreement) {
    files.existing.insert(QStringLiteral("/Users/localuser/.ssh/id_kelvoRsync"));
    begin(everything());
    EXPECT_EQ(dialogue.lines,
              (QStringList{QStringLiteral("Of the key of this program "
                                          "/Users/localuser/.ssh/id_kelvoRsync only the private "
                                          "half is there."),
                           QStringLiteral("Make a new key? That of today is kept beside it, under "
                                          "a name with the date. [y/N] ")}));
    dialogue.answer("");
    EXPECT_EQ(failure.exitCode, 12);
    EXPECT_EQ(failure.errors, u"kelvo-mirror: without its public half the key cannot be installed "
                              u"on the Mac. Nothing was changed.\n");
    begin(everything());
    dialogue.answer("y");
    ASSERT_TRUE(agreed);
    EXPECT_TRUE(agreed->newKey);
}

TEST_F(SetupQuestionsTest, SharedConnection_IsAskedAboutOnlyWhereSshNeedsToBeTold) {
    using Knows = SshConfiguration::Knows;
    for (const Knows standing : {Knows::ByTheMachine, Knows::ByTheLine}) {
        ssh.standing = standing;
        begin(everything());
        ASSERT_TRUE(agreed);
        EXPECT_FALSE(agreed->sshLine);
    }
    ssh.standing = Knows::NotYet;
    stored.setObject(prefKeepConnection, false);
    begin(everything());
    ASSERT_TRUE(agreed) << "passes are not to share one";
    EXPECT_TRUE(dialogue.asked.isEmpty());
    stored.setObject(prefKeepConnection, true);
    begin(everything());
    dialogue.answer("n");
    ASSERT_TRUE(agreed);
    EXPECT_FALSE(agreed->sshLine) << "left as it is";
    for (const bool wished : {true, false}) {
        SetupRequest request = everything();
        request.shareConnection = wished;
        begin(request);
        EXPECT_TRUE(agreed && agreed->sshLine == wished) << "unasked";
    }
    dialogue.isThere = false;
    begin(everything());
    EXPECT_TRUE(agreed && !agreed->sshLine) << "only when it is wished for";
    EXPECT_EQ(dialogue.asked.size(), 1);
}

TEST_F(SetupQuestionsTest, Service_IsAskedAboutOnlyWhereItCanBeEnabled) {
    begin(everything());
    EXPECT_TRUE(agreed && !agreed->enable);
    EXPECT_TRUE(dialogue.asked.isEmpty());
    SetupRequest request = everything();
    request.enable = true;
    begin(request);
    EXPECT_EQ(failure.exitCode, 2);
    EXPECT_EQ(failure.errors,
              u"kelvo-mirror: --enable: systemd's manager of your account does not run here, or "
              u"does not know the unit kelvo-mirror.service. Nothing was changed.\n");
    service.canBeEnabled = true;
    begin(request);
    dialogue.answer("y");
    EXPECT_TRUE(agreed && agreed->enable && agreed->linger);
    service.lingers = true;
    begin(request);
    EXPECT_TRUE(agreed && agreed->enable && !agreed->linger) << "it does so already";
    request.enable = false;
    request.linger = true;
    begin(request);
    EXPECT_TRUE(agreed && !agreed->enable && !agreed->linger);
}

} // namespace
} // namespace kelvo
