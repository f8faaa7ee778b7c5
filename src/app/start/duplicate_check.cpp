#include "app/start/duplicate_check.h"

#include "ports/console.h"

#include <utility>

namespace kelvo {

DuplicateCheck::DuplicateCheck(SingleCopy& singleCopy, Console& console, QByteArray token,
                               SingleCopy::Show show)
    : fSingleCopy(singleCopy), fConsole(console), fToken(std::move(token)), fShow(std::move(show)) {
}

void DuplicateCheck::checkForDuplicateRunningInstances() {
    switch (fSingleCopy.claim(fToken, std::move(fShow))) {
    case SingleCopy::Claim::OtherIsShown:
        fConsole.log(QStringLiteral("Kelvo Mirror is running already; it shows its window."));
        fExitCode = 0;
        break;
    case SingleCopy::Claim::OtherIsSilent:
        fConsole.log(QStringLiteral("Kelvo Mirror is running already, but that copy does not "
                                    "answer. End it, then start Kelvo Mirror again."));
        fExitCode = cExitOtherIsSilent;
        break;
    case SingleCopy::Claim::First:
    case SingleCopy::Claim::Unguarded:
        break;
    }
}

} // namespace kelvo
