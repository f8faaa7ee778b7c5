// The record of passes as this user's file has it.
#include "adapters/passes/pass_database.h"
#include "app/commands/passes.h"
#include "app/places.h"

#include <QFileInfo>

#include <algorithm>

namespace kelvo {

Standing recordedStanding(const Profile& profile) {
    Standing standing;
    const QString file = passesFile(profile);
    if (!QFileInfo::exists(file))
        return standing;
    PassDatabase database(file, {}, PassDatabase::Access::ReadOnly);
    auto outcome = database.readStanding(standing);
    if (!outcome) {
        standing = {};
        std::vector<PassRecord> passes;
        outcome = database.readAll(passes);
        for (auto pass = passes.crbegin(); pass != passes.crend(); ++pass)
            standing.add(*pass);
    }
    if (!outcome)
        standing.fault = outcome.reason;
    return standing;
}

CommandAnswer runPassesCommand(const Profile& profile, const PassesRequest& request) {
    const QString file = passesFile(profile);
    if (!QFileInfo::exists(file))
        return {0, {}, QStringLiteral("kelvo-mirror: there is no record of passes yet\n")};
    PassDatabase database(file, {}, PassDatabase::Access::ReadOnly);
    std::vector<PassRecord> passes;
    std::vector<KeptArrival> arrivals;
    auto outcome = database.readAll(passes);
    if (outcome && request.json)
        outcome = database.readArrivals({.most = PassStore::cMostArrivals}, arrivals);
    if (!outcome)
        return {cExitRecordUnknown,
                {},
                QString(u"kelvo-mirror: the record of passes " + file + u" cannot be read: " +
                        outcome.reason + u'\n')};
    if (request.since)
        std::erase_if(passes, [&](const PassRecord& each) { return each.began < *request.since; });
    std::ranges::reverse(passes);
    std::ranges::reverse(arrivals);
    for (KeptArrival& each : arrivals) {
        const auto pass = std::ranges::lower_bound(passes, each.pass, {}, &PassRecord::id);
        if (pass != passes.end() && pass->id == each.pass)
            pass->arrivals.push_back(std::move(each.arrival));
    }
    return {0, passesText(passes, request.json), {}};
}

} // namespace kelvo
