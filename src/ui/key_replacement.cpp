#include "ui/key_replacement.h"

#include "ports/alert_presenter.h"
#include "remote/kept_pair.h"
#include "support/key_file.h"
#include "support/text.h"

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
        .messageText = QStringLiteral("Make a new key?"),
        .informativeText = QStringLiteral(
            "The Mac will not let Kelvo Mirror in until the new key is installed there with Set Up "
            "Key…, which asks for the password on the Mac. Until then no pass brings "
            "movies.\n\nThe key of today is kept beside the new one, under a name with the date, "
            "and is not used any more."),
        .style = AlertStyle::Informational,
        .buttons = {QStringLiteral("Make a New Key"), QStringLiteral("Keep the Key")},
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
                        tell(QStringLiteral("The key was not replaced"),
                             QStringLiteral("The key of today could not be kept, so nothing was "
                                            "changed.\n\n%1")
                                 .arg(*fault));
                    return !fault;
                },
            .after = [this, kept] { tellOfReturn(*kept); }};
}

/// A pair that nothing has replaced is put back.
void KeyReplacement::tellOfReturn(KeptPair& kept) const {
    if (!kept.isMissing())
        return;
    if (const FileFault fault = kept.putBack())
        tell(QStringLiteral("No new key was made"),
             QStringLiteral("The key that was there before could not be put back. It lies at "
                            "%1.\n\n%2")
                 .arg(kept.path(), *fault));
    else
        tell(QStringLiteral("No new key was made"),
             QStringLiteral("The key that was there before is in its place again."));
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
