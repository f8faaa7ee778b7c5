#include "app/commands/guest_service.h"

#include "support/alert.h"
#include "support/attributed_string.h"
#include "ui/view_controller.h"

#include <utility>

namespace kelvo {
namespace {

/// In seconds; what comes within a moment of that is as good.
constexpr double cProgressPace = 0.9;

QJsonObject answerWith(QStringView event, const QString& text) {
    QJsonObject answer = answerOf(event);
    answer.insert(QStringLiteral("text"), text);
    return answer;
}

QJsonObject done(const char* text) {
    return answerWith(u"done", QString::fromLatin1(text));
}

QJsonObject refused(const QString& text) {
    return answerWith(u"refused", text);
}

/// `status` without what changes as time passes.
QJsonObject lastingOf(QJsonObject status) {
    const QJsonObject pass = status.take(QStringLiteral("pass")).toObject();
    status.insert(QStringLiteral("passBegan"), pass.value(u"began"));
    status.insert(QStringLiteral("nextPass"), !status.value(u"nextPass").isNull());
    return status;
}

QJsonObject start(ViewController& controller) {
    if (controller.workFacts().on)
        return done("Syncing is on already.");
    controller.clickStartButton();
    return done(controller.workFacts().phase == WorkPhase::Missing
                    ? "Syncing is on; a pass begins once what is missing is there."
                    : "Syncing is on.");
}

QJsonObject stop(ViewController& controller) {
    if (!controller.workFacts().on)
        return done("Syncing is off already.");
    controller.clickStartButton();
    return done(passRuns(controller.workFacts().phase)
                    ? "Syncing is off; the pass that runs is the last one."
                    : "Syncing is off.");
}

QJsonObject syncNow(ViewController& controller) {
    const WorkFacts work = controller.workFacts();
    if (passRuns(work.phase))
        return done("A pass runs already.");
    if (work.phase == WorkPhase::Off)
        return refused(QStringLiteral("Syncing is off; switch it on with --start."));
    if (work.phase == WorkPhase::Missing)
        return refused(QStringLiteral("A pass begins once what is missing is there."));
    if (!work.nextPass)
        return refused(QStringLiteral("No pass is planned at this moment."));
    controller.syncNow();
    return done("A pass begins now.");
}

QJsonObject cancel(ViewController& controller) {
    const WorkPhase phase = controller.workFacts().phase;
    if (!passRuns(phase))
        return done("No pass runs.");
    if (phase == WorkPhase::Cancelling)
        return done("The pass is being cancelled already.");
    controller.cancelPass();
    return done("The pass is being cancelled.");
}

} // namespace

GuestService::GuestService(const GuestServiceParts& parts) : fParts(parts) {
    fParts.guests.receive(
        {.said = [this](Guests::Id guest, const QByteArray& line) { answer(guest, line); },
         .left = [this](Guests::Id guest) { left(guest); }});
}

void GuestService::answer(Guests::Id guest, const QByteArray& line) {
    if (line.isEmpty()) {
        dismiss(
            guest,
            refused(QStringLiteral("A request has at most %1 bytes.").arg(Guests::cLongestLine)));
        return;
    }
    const auto request = requestFrom(line);
    if (const auto* fault = std::get_if<QString>(&request))
        dismiss(guest, refused(*fault));
    else if (const CopyVerb verb = std::get<CopyVerb>(request); verb == CopyVerb::Follow)
        follow(guest);
    else
        dismiss(guest, carryOut(verb));
}

QJsonObject GuestService::carryOut(CopyVerb verb) {
    switch (verb) {
    case CopyVerb::Start:
        return start(fParts.controller);
    case CopyVerb::Stop:
        return stop(fParts.controller);
    case CopyVerb::SyncNow:
        return syncNow(fParts.controller);
    case CopyVerb::Cancel:
        return cancel(fParts.controller);
    case CopyVerb::Status:
    case CopyVerb::Follow:
        break;
    }
    return status();
}

void GuestService::dismiss(Guests::Id guest, const QJsonObject& answer) {
    (void)fParts.guests.say(guest, answerLine(answer));
    fParts.guests.dismiss(guest);
}

void GuestService::follow(Guests::Id guest) {
    if (fFollowers.size() >= cMostFollowers) {
        dismiss(
            guest,
            refused(
                QStringLiteral("%1 programs follow this copy already.").arg(fFollowers.size())));
        return;
    }
    QJsonObject first = status();
    if (fFollowers.empty())
        remember(first);
    first.insert(QStringLiteral("time"), fParts.clock.now().toString(Qt::ISODateWithMs));
    if (!fParts.guests.say(guest, answerLine(first)))
        return;
    fFollowers.push_back(guest);
    fParts.controller.setFollowed(true);
}

void GuestService::left(Guests::Id guest) {
    std::erase(fFollowers, guest);
    if (fFollowers.empty())
        fParts.controller.setFollowed(false);
}

QJsonObject GuestService::status() const {
    return statusOf(fParts.controller.workFacts(), fParts.copy, fParts.clock.now());
}

void GuestService::looked() {
    if (fFollowers.empty())
        return;
    QJsonObject now = status();
    const QJsonValue pass = now.value(u"pass");
    if (lastingOf(now) != fTold) {
        remember(now);
        tell(std::move(now));
    } else if (pass != fToldPass && fParts.clock.seconds() - fToldAt >= cProgressPace) {
        remember(now);
        QJsonObject event = answerOf(u"progress");
        event.insert(QStringLiteral("pass"), pass);
        tell(std::move(event));
    }
}

void GuestService::remember(const QJsonObject& status) {
    fTold = lastingOf(status);
    fToldPass = status.value(u"pass");
    fToldAt = fParts.clock.seconds();
}

void GuestService::messageShown(const AttributedString& message) {
    QJsonObject event = answerWith(u"message", message.string);
    event.insert(QStringLiteral("color"), colorName(message.foregroundColor).toString());
    tell(std::move(event));
}

void GuestService::alertShown(const Alert& alert) {
    QJsonObject event = answerWith(u"alert", alert.informativeText);
    event.insert(QStringLiteral("title"), alert.messageText);
    tell(std::move(event));
}

void GuestService::tell(QJsonObject event) {
    if (fFollowers.empty())
        return;
    event.insert(QStringLiteral("time"), fParts.clock.now().toString(Qt::ISODateWithMs));
    const QByteArray line = answerLine(event);
    static const QByteArray cFarewell = answerLine(
        answerWith(u"dropped", QStringLiteral("This program reads too slowly to follow.")));
    std::erase_if(fFollowers,
                  [&](Guests::Id each) { return !fParts.guests.say(each, line, cFarewell); });
    if (fFollowers.empty())
        fParts.controller.setFollowed(false);
}

} // namespace kelvo
