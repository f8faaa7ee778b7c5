#include "ui/pass_notices.h"

#include "ports/desktop_notices.h"
#include "ports/pass_store.h"
#include "ports/user_defaults.h"
#include "settings/preference_keys.h"
#include "ui/pass_words.h"
#include "ui/words.h"
#include "ui/work_words.h"

#include <utility>

namespace kelvo {
namespace {

/// Trouble that may go by itself: a Mac falls asleep, a network goes away and comes back, another
/// program's pass ends.
bool mayMendItself(PassCause cause) {
    return wordsFor(cause).group == CauseGroup::Host || cause == PassCause::CutOff ||
           cause == PassCause::DestinationTaken;
}

// The words are the program's own: nothing that a host said is shown on the desktop.
Notice turnNotice(const PassRecord& pass) {
    if (!isTrouble(pass.cause))
        return {.title = Words::tr("Kelvo Mirror is well again"),
                .text = Words::tr("The last pass went well: %1.").arg(filesText(pass.transfer))};
    return {.title = Words::tr("Kelvo Mirror is in trouble"),
            .text = Words::tr("%1 %2", "two sentences")
                        .arg(sentenceFor(pass.cause), nextStepFor(pass.cause)),
            .urgent = !mayMendItself(pass.cause)};
}

Notice arrivalsNotice(const std::vector<Arrival>& arrivals) {
    return {.title = Words::counted("%Ln new movie", QT_TRANSLATE_N_NOOP("Words", "%Ln new movies"),
                                    static_cast<qint64>(arrivals.size())),
            .text = arrivalsText(arrivals)};
}

} // namespace

PassNotices::PassNotices(PassStore& store, const UserDefaults& defaults, DesktopNotices& notices,
                         std::function<void(std::optional<qint64>)> show)
    : fDefaults(defaults), fNotices(notices), fShow(std::move(show)),
      fObservation(
          store.observe([this](const PassRecord& pass, const Standing&) { heard(pass); })) {}

void PassNotices::heard(const PassRecord& pass) {
    if (turned(pass) && fDefaults.boolForKey(prefShowNotices))
        show(pass, turnNotice(pass));
    else if (!pass.arrivals.empty() && fDefaults.boolForKey(prefShowArrivals))
        show(pass, arrivalsNotice(pass.arrivals));
}

bool PassNotices::turned(const PassRecord& pass) {
    const bool trouble = isTrouble(pass.cause);
    return !saysNothing(pass.cause) && std::exchange(fTrouble, trouble) != trouble;
}

void PassNotices::show(const PassRecord& pass, Notice notice) {
    notice.show = [show = fShow, id = pass.id] { show(id > 0 ? std::optional(id) : std::nullopt); };
    fNotices.showNotice(notice);
}

} // namespace kelvo
