#include "ui/key_replacement.h"

#include "ports/alert_presenter.h"
#include "remote/kept_pair.h"
#include "support/key_file.h"
#include "support/text.h"
#include "ui/words.h"

namespace kelvo {

void KeyReplacement::askAndReplace(Replace replace) {
    if (isHalfThere(fParts.files, keyPath()))
        ask(std::move(replace));
    else
        replace(guard());
}

void KeyReplacement::askAndComplete(Replace replace) {
    const QString path = keyPath();
    if (fParts.files.fileExistsAtPath(path) &&
        !fParts.files.fileExistsAtPath(QString(path + u".pub")))
        ask(std::move(replace));
    else
        replace(guard());
}

void KeyReplacement::ask(Replace replace) {
    if (std::exchange(fAsking, true))
        return;
    const Alert question{
        .messageText = Words::tr("Make a new key?"),
        .informativeText = Words::tr(
            "The Mac will not let Kelvo Mirror in until the new key is installed there with Set Up "
            "Key…, which asks for the password on the Mac. Until then no pass brings "
            "movies.\n\nThe key of today is kept beside the new one, under a name with the date, "
            "and is not used any more."),
        .style = AlertStyle::Informational,
        .buttons = {Words::tr("Make a New Key"), Words::tr("Keep the Key")},
        .defaultButton = 1};
    fParts.alerts.beginSheet(question, [this, replace = std::move(replace)](ModalResponse answer) {
        fAsking = false;
        if (answer == cAlertFirstButtonReturn)
            replace(guard());
    });
}

PairGuard KeyReplacement::guard() const {
    const auto kept = std::make_shared<KeptPair>(fParts.files, keyPath());
    return {.before =
                [this, kept] {
                    const FileFault fault = kept->keep(fParts.now());
                    if (fault)
                        tell(Words::tr("The key was not replaced"),
                             Words::tr("The key of today could not be kept, so nothing was "
                                       "changed.\n\n%1")
                                 .arg(Words::shown(*fault)));
                    return !fault;
                },
            .after = [this, kept] { tellOfReturn(*kept); }};
}

/// A pair that nothing has replaced is put back.
void KeyReplacement::tellOfReturn(KeptPair& kept) const {
    if (!kept.isMissing())
        return;
    if (const FileFault fault = kept.putBack())
        tell(Words::tr("No new key was made"),
             Words::tr("The key that was there before could not be put back. It lies at "
                       "%1.\n\n%2")
                 .arg(kept.path(), Words::shown(*fault)));
    else
        tell(Words::tr("No new key was made"),
             Words::tr("The key that was there before is in its place again."));
}

void KeyReplacement::tell(const QString& title, const QString& text) const {
    fParts.mainQueue.async([this, title, text] {
        fParts.alerts.beginSheet(
            {.messageText = title, .informativeText = text, .style = AlertStyle::Informational},
            [](ModalResponse) {});
    });
}

QString KeyReplacement::keyPath() const {
    return expandingTilde(cPrivateKeyFile, fParts.files.homeDirectory());
}

} // namespace kelvo
