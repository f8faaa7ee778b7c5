// The running copy, asked over its socket; the record where none runs.
#include "adapters/process/copy_client.h"
#include "app/commands/ask.h"
#include "app/commands/passes.h"
#include "app/places.h"

#include <QFile>

#include <chrono>
#include <cstdio>

namespace kelvo {
namespace {

using namespace std::chrono_literals;

constexpr auto cPatience = 5s;
/// A copy that is followed may have nothing to say for hours.
constexpr auto cForEver = -1ms;

/// False when nobody reads any more.
bool print(const Told& told) {
    std::fputs(told.errors.toUtf8().constData(), stderr);
    return std::fputs(told.output.toUtf8().constData(), stdout) >= 0 && std::fflush(stdout) == 0;
}

Told silent() {
    return {.errors = QStringLiteral("kelvo-mirror: a copy is running, but does not answer\n"),
            .exitCode = cExitInTrouble};
}

Told next(CopyClient& copy, CopyAnswers& answers, std::chrono::milliseconds patience) {
    QByteArray line;
    switch (copy.hear(line, patience)) {
    case CopyClient::Heard::Line:
        return answers.heard(line, QDateTime::currentDateTimeUtc());
    case CopyClient::Heard::End:
        return answers.hungUp();
    case CopyClient::Heard::Silent:
        break;
    case CopyClient::Heard::Noise:
        return answers.heard({}, {});
    }
    return silent();
}

} // namespace

int runCopyCommand(const Profile& profile, const CopyRequest& request) {
    CopyClient copy(QFile::encodeName(copyFolder(profile)).toStdString());
    CopyAnswers answers(request);
    Told told;
    switch (copy.connect(cPatience)) {
    case CopyClient::Contact::NoneRuns:
        told = answers.noneRuns(request.verb == CopyVerb::Status ? recordedStanding(profile)
                                                                 : Standing(),
                                QDateTime::currentDateTimeUtc());
        break;
    case CopyClient::Contact::Silent:
        told = silent();
        break;
    case CopyClient::Contact::Made:
        if (!copy.send(requestLine(request.verb))) {
            told = silent();
            break;
        }
        told = next(copy, answers, cPatience);
        while (!told.ends && print(told))
            told = next(copy, answers, request.verb == CopyVerb::Follow ? cForEver : cPatience);
        break;
    }
    const bool printed = told.ends && print(told);
    return told.exitCode == 0 && !printed ? 1 : told.exitCode;
}

} // namespace kelvo
