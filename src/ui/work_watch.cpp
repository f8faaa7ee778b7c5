#include "ui/work_watch.h"

#include "ports/dispatch_queue.h"
#include "settings/preference_keys.h"
#include "ui/health_words.h"
#include "ui/pass_words.h"
#include "ui/words.h"

#include <algorithm>
#include <utility>

namespace kelvo {
namespace {

constexpr double cSeenPace = 0.5;
constexpr double cLinesPace = 1.0;
constexpr double cUnseenPace = 10.0;
constexpr double cLeastGap = 0.1;
/// The settings do not tell of themselves when they can be saved again.
constexpr double cSettingsPace = 60.0;
/// A text changes at its moment, not just before it.
constexpr double cJustAfter = 0.01;

QString waitingText(WorkPhase phase) {
    switch (phase) {
    case WorkPhase::Off:
        return Words::tr("Syncing is off");
    case WorkPhase::Missing:
        return Words::tr("Waiting for what is missing");
    case WorkPhase::Finishing:
        return Words::tr("Finishing this pass…");
    case WorkPhase::Cancelling:
        return Words::tr("Cancelling this pass…");
    case WorkPhase::Running:
    case WorkPhase::Resting:
        break;
    }
    return {};
}

} // namespace

WorkWatch::WorkWatch(WorkWatchParts parts) : fParts(std::move(parts)) {}

void WorkWatch::begin() {
    for (const QStringView key : {prefEnableScanning, prefIsScanning})
        fObservations.push_back(fParts.defaults.observe(
            key, [this](const DefaultsChange&) { fParts.mainQueue.async([this] { look(); }); }));
    fObservations.push_back(fParts.passStore.observe(
        [this](const PassRecord&, const Standing& standing) { setStanding(standing); }));
    fParts.passStore.readStanding([this](const Standing& standing) { setStanding(standing); });
}

void WorkWatch::setStanding(const Standing& standing) {
    fStanding = standing;
    look();
}

void WorkWatch::look() {
    const double gap = fAttention == Attention::Lines ? cLinesPace : cLeastGap;
    const double since = fParts.clock.seconds() - fLooked;
    tickIn(fShown ? std::max(gap - since, 0.0) : 0);
}

void WorkWatch::setAttention(Attention attention) {
    if (std::exchange(fAttention, attention) != attention)
        look();
}

void WorkWatch::setMenuShown(bool shown) {
    if (std::exchange(fMenuShown, shown) != shown)
        refresh();
}

void WorkWatch::setMissing(std::vector<ChecklistLine> missing) {
    fMissing = std::move(missing);
    look();
}

void WorkWatch::setFollowed(bool followed) {
    if (std::exchange(fFollowed, followed) != followed)
        look();
}

WorkFacts WorkWatch::facts() const {
    const CycleState cycle = fParts.cycleState();
    const std::vector<PassUnderWay> passes = fParts.passesUnderWay();
    WorkFacts facts;
    facts.phase = phase(cycle, passes);
    facts.on = fParts.defaults.boolForKey(prefEnableScanning);
    if (!passes.empty())
        facts.pass = passes.front();
    if (facts.phase == WorkPhase::Resting)
        facts.nextPass = cycle.nextPass;
    facts.standing = fStanding;
    facts.settings = fParts.defaults.standing();
    facts.missing = fMissing;
    return facts;
}

WorkState WorkWatch::state() {
    const WorkFacts facts = this->facts();
    HealthWords words = healthWords({.standing = facts.standing,
                                     .settings = facts.settings,
                                     .missing = facts.missing,
                                     .now = fParts.clock.now()});
    fNextPass = facts.nextPass;
    WorkState work;
    work.phase = facts.phase;
    work.nextPass = waitingText(work.phase);
    work.health = std::move(words.health);
    work.remarks = std::move(words.remarks);
    HeadlineFacts headline;
    if (facts.pass) {
        describeProgress(work, *facts.pass, fTimeLeft);
        headline.step = facts.pass->progress.step;
        headline.kind = facts.pass->kind;
    } else {
        fTimeLeft = {};
    }
    if (facts.nextPass) {
        work.maySyncNow = true;
        if (isSeen())
            work.nextPass = nextPassText(*(headline.nextPass = facts.nextPass));
    }
    work.mayCancel = work.phase == WorkPhase::Running || work.phase == WorkPhase::Finishing;
    headline.matter = work.phase == WorkPhase::Missing && !fMissing.empty() ? fMissing.front().text
                                                                            : words.matter;
    work.headline = headlineText(work, headline);
    return work;
}

WorkPhase WorkWatch::phase(const CycleState& cycle, const std::vector<PassUnderWay>& passes) const {
    const bool enabled = fParts.defaults.boolForKey(prefEnableScanning);
    if (cycle.passRuns || !passes.empty()) {
        if (std::ranges::any_of(passes, &PassUnderWay::cancelled))
            return WorkPhase::Cancelling;
        return enabled ? WorkPhase::Running : WorkPhase::Finishing;
    }
    if (!enabled)
        return WorkPhase::Off;
    return cycle.waits ? WorkPhase::Missing : WorkPhase::Resting;
}

void WorkWatch::refresh() {
    fLooked = fParts.clock.seconds();
    WorkState now = state();
    if (now != fShown) {
        fShown = std::move(now);
        fParts.show(*fShown);
    }
    plan();
    if (fParts.looked)
        fParts.looked();
}

/// The next moment at which a text of what is shown stops being true.
void WorkWatch::plan() {
    const bool lines = fAttention == Attention::Lines;
    if (fShown->mayCancel || fShown->phase == WorkPhase::Cancelling)
        tickIn(isSeen() ? cSeenPace : lines || fFollowed ? cLinesPace : cUnseenPace);
    else if (isSeen() && fShown->maySyncNow && fNextPass)
        tickIn(nextPassHolds(*fNextPass) + cJustAfter);
    if (isSeen() && !fParts.defaults.standing().fault.isEmpty())
        tickIn(cSettingsPace);
    if (fStanding.lastSuccess && !lines)
        tickIn(
            agoHolds(static_cast<double>(fStanding.lastSuccess->began.secsTo(fParts.clock.now()))) +
            cJustAfter);
}

/// A tick that comes earlier anyway looks and plans anew.
void WorkWatch::tickIn(double seconds) {
    const double due = fParts.clock.seconds() + seconds;
    if (fDue && *fDue <= due)
        return;
    fDue = due;
    fParts.mainQueue.asyncAfter(seconds, [this, tick = ++fTick] {
        if (tick != fTick)
            return;
        fDue.reset();
        refresh();
    });
}

} // namespace kelvo
