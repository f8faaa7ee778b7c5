#include "fakes/memory_defaults.h"
#include "fakes/memory_pass_store.h"
#include "fakes/recording_notices.h"
#include "fakes/virtual_queues.h"
#include "settings/preference_keys.h"
#include "support/pass_record.h"
#include "ui/checklist.h"
#include "ui/health_words.h"
#include "ui/pass_notices.h"
#include "ui/pass_words.h"
#include "ui/setup_steps.h"
#include "ui/words.h"
#include "ui/work_words.h"

#include <QTranslator>

#include <gtest/gtest.h>

#include <map>
#include <set>

namespace kelvo {
namespace {

QString text(const char* latin1) {
    return QString::fromLatin1(latin1);
}

using Texts = std::map<std::string, const char*>;

/// A catalogue of a few texts, loaded while it lives. What is told apart by a remark for the
/// translator has that in front: "percent|%L1 %".
class Catalogue final : public QTranslator {
public:
    explicit Catalogue(Texts texts) : fTexts(std::move(texts)) {
        QCoreApplication::installTranslator(this);
    }
    bool isEmpty() const override { return false; }
    QString translate(const char* context, const char* source, const char* remark,
                      int) const override {
        fContexts.insert(context);
        const std::string key = remark ? std::string(remark) + '|' + source : source;
        const auto found = fTexts.find(key);
        return found == fTexts.end() ? QString() : text(found->second);
    }
    /// In which texts were looked for so far.
    std::set<std::string> contexts() const { return fContexts; }

private:
    const Texts fTexts;
    mutable std::set<std::string> fContexts;
};

TEST(WordsTest, Counted_SaysOneWithoutACatalogue) {
    EXPECT_EQ(Words::counted("%Ln file", "%Ln files", 1), text("1 file"));
    EXPECT_EQ(Words::counted("%Ln file", "%Ln files", 0), text("0 files"));
    EXPECT_EQ(Words::counted("%Ln file", "%Ln files", 12345), text("12345 files"));
}

TEST(WordsTest, Counted_LeavesTheFormsToTheCatalogue) {
    const Catalogue german(Texts{{"%Ln files", "%Ln Dateien"}});
    EXPECT_EQ(Words::counted("%Ln file", "%Ln files", 1), text("1 Dateien"));
}

TEST(WordsTest, Counted_StaysWithinAnInt) {
    EXPECT_EQ(Words::counted("%Ln file", "%Ln files", -1), text("0 files"));
    EXPECT_EQ(Words::counted("%Ln file", "%Ln files", qint64{1} << 40), text("2147483647 files"));
}

TEST(WordsTest, Listed_JoinsWhatHoldsPlacesOfItsOwn) {
    EXPECT_EQ(Words::listed({text("100%2"), text("%1"), text("c")}), text("100%2, %1, c"));
    EXPECT_EQ(Words::listed({}), QString());
}

TEST(WordsTest, TextsOfSeveralMeanings_AreToldApartForTheTranslator) {
    const Catalogue other(Texts{{"two facts, as in: 3 files, 1.2 GB|%1, %2", "%1; %2"},
                                {"percent|%L1 %", "%L1 of 100"},
                                {"two sentences|%1 %2", "%1 - %2"},
                                {"a sentence without its full stop|%1.", "(%1)"},
                                {"two movies|%1 and %2", "%1 + %2"},
                                {"as in: 18.2 of 37.6 GB|%1 of %2", "%1/%2"},
                                {"as in: 92.0 MB/s|%1/s", "%1 a second"}});
    EXPECT_EQ(Words::listed({text("a"), text("b")}), text("a; b"));
    EXPECT_EQ(Words::percent(0.5), text("50 of 100"));
    EXPECT_EQ(arrivalsText({{"A", 0, {}}, {"B", 0, {}}}), text("A + B"));
    EXPECT_EQ(amountText({.bytesDone = 1, .bytesKnown = 2}), text("1/2 bytes"));
    EXPECT_EQ(speedText({.bytesPerSecond = 1}), text("1 bytes a second"));
    PassRecord pass;
    pass.cause = PassCause::Unknown;
    pass.lastLine = text("x");
    EXPECT_EQ(sentenceFor(pass), text("Something went wrong. - The last line was: x"));
    Standing standing;
    standing.last = pass;
    SettingsStanding settings;
    settings.fault = text("fault");
    const std::vector<ChecklistLine> missing;
    const HealthWords health =
        healthWords({.standing = standing, .settings = settings, .missing = missing, .now = {}});
    EXPECT_EQ(health.remarks, QStringList{text("(fault)")});
    EXPECT_TRUE(health.health.text.endsWith(u" - The last line was: x"));
    VirtualMainQueue mainQueue;
    MemoryPassStore store(mainQueue);
    const MemoryDefaults defaults({{prefShowNotices.toString(), true}});
    RecordingNotices desktop;
    const PassNotices notices(store, defaults, desktop, [](std::optional<qint64>) {});
    store.append(pass);
    mainQueue.runDue();
    EXPECT_TRUE(desktop.shown.value(0).contains(u"wrong. - See the pass's text"))
        << qPrintable(desktop.shown.value(0));
    SetupFacts setup;
    setup.key = KeyState::HostAway;
    EXPECT_TRUE(setupSteps(setup)[3].text.contains(u"network. - Check"))
        << qPrintable(setupSteps(setup)[3].text);
}

TEST(WordsTest, Shown_ComesBackAsItIsWithoutACatalogue) {
    for (const char* english :
         {"", "Resting a bit ...", "Trying to rsync with option = --update...", "any text %1",
          "something went wrong - waiting to retry again... [3]",
          "Please make sure remote host is on this network\nor\nPlease check "
          "username...\n\ncheckremotehost\n",
          "Settings cannot be saved to /a: b/c: No space left on device"})
        EXPECT_EQ(Words::shown(text(english)), text(english));
}

TEST(WordsTest, Shown_FindsTextsAndPatternsWithTheirValues) {
    const Catalogue german(Texts{{"Resting a bit ...", "Kurze Pause ..."},
                                 {"No space left on device", "Voll"},
                                 {"Settings cannot be saved to %1: %2", "%2 (%1)"},
                                 {"Trying to rsync with option = %1...", "Option %1..."}});
    EXPECT_EQ(Words::shown(text("Resting a bit ...")), text("Kurze Pause ..."));
    EXPECT_EQ(Words::shown(text("Trying to rsync with option = --update...")),
              text("Option --update..."));
    EXPECT_EQ(Words::shown(text("Trying to rsync with option = %1...")), text("Option %1..."));
    EXPECT_EQ(Words::shown(text("Settings cannot be saved to /a%2: No space left on device")),
              text("Voll (/a%2)"));
    EXPECT_EQ(Words::shown(text("Resting a bit ....")), text("Resting a bit ...."));
    EXPECT_EQ(Words::shown(text("Trying to rsync with option = .")),
              text("Trying to rsync with option = ."));
    EXPECT_EQ(Words::shown(text("Trying to rsync with option = ..")),
              text("Trying to rsync with option = .."))
        << "begin and end share no sign";
    EXPECT_EQ(Words::shown(text("Trying to rsync with option = ...")), text("Option ..."));
    for (const char* other :
         {"Trying to rsync with option = --update!", "Somebody tries to rsync with an option...",
          "Settings cannot be saved to /a"})
        EXPECT_EQ(Words::shown(text(other)), text(other));
    EXPECT_EQ(german.contexts(), std::set<std::string>{"FixedWords"});
}

TEST(WordsTest, Shown_KnowsEachPatternOfTheLowerParts) {
    const Catalogue german(
        Texts{{"Trying to rsync with option = %1...", "Mit %1"},
              {"something went wrong - waiting to retry again... [%1]", "Wieder [%1]"},
              {"Please make sure remote host is on this network\nor\nPlease check "
               "username...\n\n%1\n",
               "Name? %1"},
              {"Settings cannot be saved to %1: %2", "%2 (%1)"},
              {"The settings in %1 are not known: %2", "%1? %2"}});
    for (const auto& [english, german] :
         {std::pair("Trying to rsync with option = -u...", "Mit -u"),
          std::pair("something went wrong - waiting to retry again... [3]", "Wieder [3]"),
          std::pair("Please make sure remote host is on this network\nor\nPlease check "
                    "username...\n\ncheckremotehost\n",
                    "Name? checkremotehost"),
          std::pair("Settings cannot be saved to /a: full", "full (/a)"),
          std::pair("The settings in /a are not known: no", "/a? no")})
        EXPECT_EQ(Words::shown(text(english)), text(german));
}

TEST(WordsTest, EveryCause_HasItsNameItsSentenceAndItsNextStep) {
    using enum PassCause;
    struct Case {
        PassCause cause;
        const char* name;
        const char* sentence;
        const char* nextStep;
    };
    const std::vector<Case> cases{
        {Well, "well", "All is well.", ""},
        {HostNotFound, "host-not-found", "No Mac answers to this name on the network.",
         "Check the host name, and that the Mac is switched on and in this network."},
        {HostAway, "host-away", "The Mac is away or asleep.",
         "Wake the Mac; in its energy settings, let it wake for network access."},
        {RemoteLoginOff, "remote-login-off", "The Mac is there but refuses logins.",
         "On the Mac, switch on Remote Login (System Settings, General, Sharing)."},
        {HostKeyUnknown, "host-key-unknown", "This machine has not met the Mac before.",
         "Log in once with ssh in a terminal and accept the Mac's key."},
        {HostKeyChanged, "host-key-changed",
         "The Mac shows another key than before: it was set up anew, or another machine has taken "
         "its name.",
         "If you know why, remove the old key with ssh-keygen -R and the host name, then accept "
         "the new one."},
        {KeyRefused, "key-refused", "The Mac does not take this key for this user.",
         "Check the user name, then install the key on the Mac again."},
        {KeyMissing, "key-missing", "The program's own ssh key is missing here.",
         "Make the key and install it on the Mac."},
        {WrongUser, "wrong-user", "The Mac calls this user by another name.",
         "Enter the account name that whoami prints on the Mac."},
        {LoginTalks, "login-talks", "The Mac prints a text at each login, which hides its answer.",
         "On the Mac, remove what the shell's start file (.zshenv, .bashrc) prints."},
        {RsyncMissingThere, "rsync-missing-there", "There is no rsync on the Mac.",
         "Install rsync on the Mac, or give its place in the template with --rsync-path."},
        {RsyncTooOldThere, "rsync-too-old-there",
         "The rsync on the Mac is too old for an option of the template.",
         "Update rsync on the Mac, or take the option out of the template."},
        {MovieCommandRefused, "movie-command-refused",
         "The rsync on the Mac is too old for the built-in movie command: only what the template "
         "takes has arrived.",
         "Update rsync on the Mac, or let the template take every movie: without filters, and with "
         "-r."},
        {SourceMissing, "source-missing", "The source folder is not there.",
         "Check the remote path, and that the disk with it is connected."},
        {SourceNotPermitted, "source-not-permitted", "A source folder may not be read.",
         "On the Mac, allow full disk access for remote users (in Remote Login), or change the "
         "folder's permissions."},
        {DiskFull, "disk-full", "The disk here is full.",
         "Make room on the disk of the destination folder."},
        {DestinationUnusable, "destination-unusable",
         "The destination folder is missing or cannot be written.",
         "Connect its disk, or choose another destination folder."},
        {DestinationTaken, "destination-taken", "Another program is pulling into this folder.",
         "Give each program a destination folder of its own, or end the other one."},
        {ToolMissingHere, "tool-missing-here", "A command of the pass is not installed here.",
         "Install rsync and ssh on this machine, or correct the command template."},
        {CommandNotUnderstood, "command-not-understood", "The command template cannot be run.",
         "Correct the rsync command template in the settings."},
        {FilesVanished, "files-vanished",
         "Some files vanished from the source while they were copied.",
         "Nothing: the next pass brings what is there then."},
        {FilesNotTaken, "files-not-taken", "Some files could not be taken.",
         "See the pass's text for their names and reasons."},
        {CutOff, "cut-off", "The connection gave way in the middle of the transfer.",
         "Check the network; the next pass goes on where this one stopped."},
        {SettingsMissing, "settings-missing",
         "The pass cannot run: a folder, the host or the user is not set.",
         "Choose the Mac, the user name and both folders."},
        {SettingsRefused, "settings-refused",
         "The pass was not begun: a text in the settings cannot stand in a command.",
         "Choose another folder, user name or host: without a line break, and no \"-\" in front."},
        {Interrupted, "interrupted", "The program was ended during the pass.",
         "Nothing: start it again."},
        {Cancelled, "cancelled", "Cancelled by you.",
         "Nothing: the next pass goes on where this one stopped."},
        {AfterFailed, "after-failed",
         "The files have arrived, but the command that is run after arrivals failed.",
         "See the pass's text for what it said, or correct it in the settings."},
        {Unknown, "unknown", "Something went wrong.",
         "See the pass's text for what the commands said."},
    };
    EXPECT_EQ(cases.size(), static_cast<std::size_t>(cLastPassCause) + 1);
    for (const Case& c : cases) {
        EXPECT_EQ(wordsFor(c.cause).name, QLatin1StringView(c.name));
        EXPECT_EQ(sentenceFor(c.cause), text(c.sentence));
        EXPECT_EQ(nextStepFor(c.cause), text(c.nextStep));
    }
}

TEST(WordsTest, EveryTrouble_HasASentenceWithItsBeginning) {
    for (int i = 0; i <= static_cast<int>(cLastPassCause); ++i) {
        const auto cause = static_cast<PassCause>(i);
        QString since = sentenceFor(cause, text("X"));
        EXPECT_EQ(since.count(u" since X"), isTrouble(cause) ? 1 : 0) << i;
        if (isTrouble(cause)) {
            EXPECT_EQ(since.remove(text(" since X")), sentenceFor(cause)) << i;
        } else {
            EXPECT_EQ(since, QString()) << i;
        }
    }
}

TEST(WordsTest, CauseWithoutANextStep_HasNoneInAnyLanguage) {
    // What a catalogue says of itself stands there for the empty text.
    const Catalogue german(Texts{{"", "Content-Type: text/plain"}});
    EXPECT_EQ(nextStepFor(PassCause::Well), QString());
    EXPECT_EQ(sentenceFor(PassCause::Cancelled, text("X")), QString());
}

TEST(WordsTest, WordsForScripts_StayEnglishWhateverIsLoaded) {
    const Catalogue german(Texts{{"All is well.", "Alles in Ordnung."}});
    EXPECT_EQ(sentenceFor(PassCause::Well), text("Alles in Ordnung."));
    EXPECT_EQ(wordsFor(PassCause::Well).sentence, QLatin1StringView("All is well."));
}

} // namespace
} // namespace kelvo
