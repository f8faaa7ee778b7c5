// GuestService: answers what other programs ask the running copy, and does what they tell it.
#pragma once

#include "app/commands/copy_request.h"
#include "app/commands/copy_status.h"
#include "ports/guests.h"

#include <QJsonObject>

#include <optional>
#include <vector>

namespace kelvo {

class ViewController;
struct Alert;
struct AttributedString;

/// Both outlive the service.
struct GuestServiceParts {
    Guests& guests;
    ViewController& controller;
    CopyFacts copy;
    PassClock clock;
};

/// A guest asks one thing and is dismissed with the answer; one that follows stays, and there are
/// at most 8 of these. They are told each change of what a status says, how far the pass is once a
/// second, the status line and the alerts. Without followers nothing is made for them. Main thread
/// only.
class GuestService {
public:
    static constexpr std::size_t cMostFollowers = 8;

    /// From now on guests are answered.
    explicit GuestService(const GuestServiceParts& parts);

    /// The work has been looked at.
    void looked();

    /// The status line says something else now; an empty text when it was cleared.
    void messageShown(const AttributedString& message);

    /// An alert is put to the user.
    void alertShown(const Alert& alert);

private:
    void answer(Guests::Id guest, const QByteArray& line);
    void dismiss(Guests::Id guest, const QJsonObject& answer);
    void follow(Guests::Id guest);
    void left(Guests::Id guest);
    void remember(const QJsonObject& status);
    void tell(QJsonObject event);
    QJsonObject status() const;
    QJsonObject carryOut(CopyVerb verb);

    const GuestServiceParts fParts;
    std::vector<Guests::Id> fFollowers; ///< oldest first
    QJsonObject fTold;                  ///< the last status, without what changes by itself
    QJsonValue fToldPass;               ///< how far the pass was
    double fToldAt = 0;                 ///< when that was told, by the clock of passes
};

} // namespace kelvo
