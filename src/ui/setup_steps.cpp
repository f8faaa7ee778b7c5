#include "ui/setup_steps.h"

#include "support/plain_line.h"
#include "support/text.h"
#include "ui/activity_texts.h"
#include "ui/checklist.h"
#include "ui/key_state_words.h"
#include "ui/pass_words.h"
#include "ui/words.h"

#include <algorithm>
#include <optional>

namespace kelvo {
namespace {

bool isSet(const QString& text) {
    return !trimmedText(text).isEmpty();
}

std::optional<PassCause> causeIn(const SetupFacts& facts) {
    if (facts.connection.answer)
        return facts.connection.answer->cause;
    return facts.key == KeyState::Accepted ? std::optional(PassCause::Well) : std::nullopt;
}

/// The Mac has refused the key, or this machine the Mac's.
bool refusesTheKey(PassCause cause) {
    return wordsFor(cause).group == CauseGroup::HostKey || cause == PassCause::KeyRefused ||
           cause == PassCause::KeyMissing;
}

/// The Mac has let the key in, whatever it said then.
bool letsTheKeyIn(PassCause cause) {
    return cause == PassCause::Well || cause == PassCause::WrongUser ||
           cause == PassCause::LoginTalks;
}

bool keyIsDone(const SetupFacts& facts, std::optional<PassCause> cause) {
    if (facts.key == KeyState::NoKey)
        return false;
    if (cause)
        return letsTheKeyIn(*cause) || (!refusesTheKey(*cause) && facts.connection.letInBefore);
    return facts.key != KeyState::NotAccepted && facts.connection.letInBefore;
}

/// A key that was never accepted is only not installed yet.
bool isTroubleWithTheKey(const SetupFacts& facts, PassCause cause) {
    return facts.connection.letInBefore || cause == PassCause::HostKeyChanged;
}

/// Whether what the Mac said is trouble that is mended in this step.
bool isTroubleIn(SetupStep step, const SetupFacts& facts, std::optional<PassCause> cause) {
    if (!cause || !isTrouble(*cause) || facts.asking)
        return false;
    if (*cause == PassCause::WrongUser)
        return step == SetupStep::Account;
    if (refusesTheKey(*cause))
        return step == SetupStep::Key && isTroubleWithTheKey(facts, *cause);
    return step == SetupStep::Connection;
}

QString withNextStep(PassCause cause) {
    return Words::tr("%1 %2", "two sentences").arg(sentenceFor(cause), nextStepFor(cause));
}

// -- the words of each step

void describeMac(SetupLine& line, const SetupFacts& facts) {
    line.summary = isSet(facts.host) ? oneLine(facts.host) : Words::tr("No Mac chosen yet.");
    line.text = Words::tr("Choose the Mac from the list of those in this network, or type its "
                          "host name.");
}

void describeAccount(SetupLine& line, const SetupFacts& facts, std::optional<PassCause> cause) {
    line.summary = Words::tr("%1, folder %2").arg(oneLine(facts.user), oneLine(facts.folder));
    if (cause == PassCause::WrongUser)
        line.text = withNextStep(*cause);
    else
        line.text = Words::tr("An account on the Mac that may log in there, and the folder "
                              "with the movies.");
}

QString keySummary(const SetupFacts& facts, std::optional<PassCause> cause) {
    if (facts.key == KeyState::NoKey || facts.asking)
        return keyStateWords(facts.asking ? KeyState::Asking : facts.key);
    if (!cause)
        return keyStateWords(facts.connection.letInBefore && facts.key == KeyState::NotAsked
                                 ? KeyState::Accepted
                                 : facts.key);
    if (letsTheKeyIn(*cause))
        return keyStateWords(KeyState::Accepted);
    if (refusesTheKey(*cause))
        return isTroubleWithTheKey(facts, *cause) ? withNextStep(*cause)
                                                  : keyStateWords(KeyState::NotAccepted);
    return facts.connection.letInBefore
               ? Words::tr("Key made, and accepted by the remote Mac before.")
               : Words::tr("Key made. The remote Mac could not be asked about it.");
}

void describeKey(SetupLine& line, const SetupFacts& facts, std::optional<PassCause> cause) {
    line.summary = keySummary(facts, cause);
    if (!isSet(facts.host) || !isSet(facts.user))
        line.text = Words::tr("The key is installed on the Mac, so choose that and enter the "
                              "account first.");
    else
        line.text =
            Words::tr("A terminal opens and asks for the password of %1 on %2; it is typed "
                      "there and kept nowhere. When the two machines meet for the first time "
                      "it asks before that whether to go on connecting: answer yes.")
                .arg(oneLine(facts.user), oneLine(facts.host));
}

QString verdict(const HostAnswer& answer) {
    const QString lastLine = oneLine(trimmedText(answer.lastLine));
    switch (answer.cause) {
    case PassCause::Well:
        return Words::tr("The Mac lets this program in.");
    case PassCause::ToolMissingHere:
        return Words::tr("ssh is not installed on this machine. Install it with: %1")
            .arg(cInstallCommand);
    case PassCause::SettingsRefused:
        return Words::tr("The Mac was not asked, because %1.").arg(Words::shown(lastLine));
    case PassCause::Unknown:
        return lastLine.isEmpty()
                   ? Words::tr("The Mac was not reached, or did not say a word. Test it once "
                               "more, or log in with ssh in a terminal and see what it says.")
                   : Words::tr("The Mac did not answer as it should. The last line was: %1")
                         .arg(lastLine);
    case PassCause::HostKeyUnknown:
        return Words::tr("This machine has not met the Mac before. Set up the key: the "
                         "terminal asks whether to trust the Mac.");
    default:
        return withNextStep(answer.cause);
    }
}

QString withoutAnswer(const SetupFacts& facts) {
    switch (facts.key) {
    case KeyState::Accepted:
        return Words::tr("The Mac lets this program in.");
    case KeyState::NotAccepted:
        return Words::tr("The Mac does not let this program in yet.");
    case KeyState::HostAway:
        return withNextStep(PassCause::HostNotFound);
    default:
        return Words::tr("Not tried yet.");
    }
}

void describeConnection(SetupLine& line, const SetupFacts& facts) {
    const auto& answer = facts.connection.answer;
    if (facts.asking)
        line.text = keyStateWords(KeyState::Asking);
    else
        line.text = answer ? verdict(*answer) : withoutAnswer(facts);
    line.summary = line.text;
    if (!answer || facts.asking)
        return;
    line.remark = Words::tr("Asked at %1.").arg(momentText(facts.connection.asked, facts.now));
    if (answer->saidSuccess && answer->cause != PassCause::Well)
        line.remark += u'\n' + Words::tr("The message \"SUCCESS...\" only means that ssh "
                                         "named neither a missing key file nor an unknown "
                                         "host name; this line says what came of it.");
}

// -- which is next

std::size_t at(SetupStep step) {
    return static_cast<std::size_t>(step);
}

bool isDone(SetupStep step, const SetupFacts& facts, std::optional<PassCause> cause) {
    switch (step) {
    case SetupStep::Mac:
        return isSet(facts.host);
    case SetupStep::Account:
        return isSet(facts.user) && isSet(facts.folder) && cause != PassCause::WrongUser &&
               facts.source == facts.user + u'@' + facts.host + u':' + facts.folder;
    case SetupStep::Key:
        return keyIsDone(facts, cause);
    case SetupStep::Connection:
        return cause == PassCause::Well;
    }
    return false;
}

/// A key that cannot be installed at the moment lets the connection go first.
bool waitsForTheMac(const SetupFacts& facts, std::optional<PassCause> cause) {
    return facts.key != KeyState::NoKey && cause && wordsFor(*cause).group == CauseGroup::Host;
}

} // namespace

SetupSteps setupSteps(const SetupFacts& facts) {
    const auto cause = causeIn(facts);
    SetupSteps steps;
    describeMac(steps[at(SetupStep::Mac)], facts);
    describeAccount(steps[at(SetupStep::Account)], facts, cause);
    describeKey(steps[at(SetupStep::Key)], facts, cause);
    describeConnection(steps[at(SetupStep::Connection)], facts);
    bool hasNext = false;
    for (std::size_t i = 0; i < steps.size(); ++i) {
        const auto step = static_cast<SetupStep>(i);
        if (isDone(step, facts, cause)) {
            steps[i].state = StepState::Done;
            continue;
        }
        steps[i].isNext = !hasNext && !(step == SetupStep::Key && waitsForTheMac(facts, cause));
        hasNext = hasNext || steps[i].isNext;
        if (isTroubleIn(step, facts, cause))
            steps[i].state = StepState::Trouble;
        else if (steps[i].isNext)
            steps[i].state = StepState::Next;
    }
    return steps;
}

QString passwordTitle(const QString& user, const QString& host) {
    return Words::tr("Kelvo Mirror: the password of %1 on %2").arg(oneLine(user), oneLine(host));
}

} // namespace kelvo
