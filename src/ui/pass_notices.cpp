#include "ui/pass_notices.h"

#include "ports/desktop_notices.h"
#include "ports/pass_store.h"
#include "ports/user_defaults.h"
#include "settings/preference_keys.h"
#include "ui/pass_words.h"

namespace kelvo {
PassNotices::PassNotices(PassStore& store, const UserDefaults& defaults, DesktopNotices& notices)
    : fDefaults(defaults), fNotices(notices),
      fObservation(store.observe([this](const PassRecord& pass) { heard(pass); })) {}

void PassNotices::heard(const PassRecord& pass) {
    const bool trouble = isTrouble(pass.cause);
    if (trouble == fTrouble || saysNothing(pass.cause))
        return;
    fTrouble = trouble;
    if (!fDefaults.boolForKey(prefShowNotices))
        return;
    // The words are the program's own: nothing that a host said is shown on the desktop.
    const CauseWords words = wordsFor(pass.cause);
    if (trouble)
        fNotices.showNotice({.title = QStringLiteral("Kelvo Mirror is in trouble"),
                             .text = QString(words.sentence + QLatin1String(" ") + words.nextStep),
                             .urgent = true});
    else
        fNotices.showNotice(
            {.title = QStringLiteral("Kelvo Mirror is well again"),
             .text = QString(u"The last pass went well: " + filesText(pass.transfer) + u'.')});
}

} // namespace kelvo
