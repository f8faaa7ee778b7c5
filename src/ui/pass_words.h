// What people and scripts read about a pass: a sentence, a next step, figures.
#pragma once

#include "support/pass_record.h"

#include <QLatin1StringView>
#include <QString>

namespace kelvo {

/// Causes that call for the same kind of help.
enum class CauseGroup {
    Well,
    Host,
    HostKey,
    Login,
    RemoteSide,
    ThisSide,
    Incomplete,
    CutOff,
    Settings,
    Interrupted,
    AfterArrivals,
    Unknown
};

/// In English, for scripts and files, whatever the language of the window.
struct CauseWords {
    QLatin1StringView name;     ///< never changes
    QLatin1StringView sentence; ///< what is the matter
    QLatin1StringView nextStep; ///< what to do; empty when all is well
    CauseGroup group;
};

CauseWords wordsFor(PassCause cause);

/// What is the matter, for people.
QString sentenceFor(PassCause cause);

/// The same of a trouble, with `since` in it: "15:22 (6 passes)". Empty for a cause that is none.
QString sentenceFor(PassCause cause, const QString& since);

/// What to do, for people; empty when all is well.
QString nextStepFor(PassCause cause);

/// The last line of a pass as a sentence, where the cause alone says too little; else empty.
QString reasonFor(PassCause cause, const QString& lastLine);

/// What is the matter, with the reason behind it.
QString sentenceFor(const PassRecord& pass);

/// "3 files", "1 file", "nothing new"; "files unknown" when the commands did not say.
QString filesText(const Transfer& transfer);

/// The same of a whole pass, which may not have come to a transfer.
QString filesText(const PassRecord& pass);

/// "40.0 kB"; empty when it is not known or nothing.
QString sizeText(const Transfer& transfer);

/// "4 s", "2 min 5 s", "3 h 20 min".
QString secondsText(double seconds);

/// "just now", "4 minutes ago", "3 days ago".
QString agoText(double seconds);

/// How long from now that text stays true, in seconds.
double agoHolds(double seconds);

} // namespace kelvo
