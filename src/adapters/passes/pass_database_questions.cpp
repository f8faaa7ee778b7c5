// What PassDatabase reads.
#include "adapters/passes/pass_database.h"

#include <QFileInfo>
#include <QSqlQuery>

#include <limits>

namespace kelvo {
namespace {

constexpr int cLayoutWithArrivals = 2; // and with how things stand

} // namespace

/// No file is made for a question, and the database's library is not loaded for one.
bool PassDatabase::nothingIsKept() const {
    return fAccess == Access::ReadAndWrite && !fDatabase.isOpen() && !QFileInfo::exists(fPath);
}

PassDatabase::Outcome PassDatabase::readAll(std::vector<PassRecord>& records) {
    if (nothingIsKept())
        return {};
    if (Outcome outcome = open(); !outcome || fLayout == 0)
        return outcome;
    return run(PassStatement::AllPasses, {},
               [&](const QSqlQuery& row) { records.push_back(passFrom(row)); });
}

PassDatabase::Outcome PassDatabase::readArrivals(const ArrivalQuestion& question,
                                                 std::vector<KeptArrival>& arrivals) {
    if (nothingIsKept())
        return {};
    if (Outcome outcome = open(); !outcome || fLayout < cLayoutWithArrivals)
        return outcome;
    const RowReader take = [&](const QSqlQuery& row) { arrivals.push_back(arrivalFrom(row)); };
    const qint64 before =
        question.before > 0 ? question.before : std::numeric_limits<qint64>::max();
    if (question.text.isEmpty())
        return run(PassStatement::Arrivals, {before, question.most}, take);
    return run(PassStatement::ArrivalsWithText, {before, foldedText(question.text), question.most},
               take);
}

PassDatabase::Outcome PassDatabase::readDays(int days, std::vector<DayOfPasses>& found) {
    if (nothingIsKept())
        return {};
    if (Outcome outcome = open(); !outcome)
        return outcome;
    const QDate first = QDate::currentDate().addDays(1 - days);
    return run(PassStatement::Days, {first.toString(Qt::ISODate)},
               [&](const QSqlQuery& row) { found.push_back(dayFrom(row)); });
}

PassDatabase::Outcome PassDatabase::readStanding(Standing& standing) {
    if (nothingIsKept())
        return {};
    if (Outcome outcome = open(); !outcome || fLayout < cLayoutWithArrivals)
        return outcome;
    const auto readRow = [this](StandingRow row, std::optional<PassRecord>& record) {
        return run(PassStatement::ReadStanding, {static_cast<int>(row)},
                   [&](const QSqlQuery& found) { record = passFrom(found); });
    };
    if (Outcome outcome = readRow(StandingRow::LastPass, standing.last); !outcome)
        return outcome;
    if (Outcome outcome = readRow(StandingRow::LastSuccess, standing.lastSuccess); !outcome)
        return outcome;
    return run(PassStatement::ReadTrouble, {}, [&](const QSqlQuery& row) {
        standing.troubleSince = QDateTime::fromMSecsSinceEpoch(row.value(0).toLongLong(), Qt::UTC);
        standing.passesInTrouble = row.value(1).toLongLong();
    });
}

PassDatabase::Outcome PassDatabase::read(qint64 id, std::optional<PassRecord>& record) {
    if (nothingIsKept())
        return {};
    if (Outcome outcome = open(); !outcome)
        return outcome;
    std::optional<PassRecord> found;
    Outcome outcome =
        run(PassStatement::OnePass, {id}, [&](const QSqlQuery& row) { found = passFrom(row); });
    if (!outcome || !found)
        return outcome;
    outcome = run(PassStatement::CommandsOfPass, {id},
                  [&](const QSqlQuery& row) { found->commands.push_back(commandFrom(row)); });
    if (!outcome)
        return outcome;
    outcome = run(PassStatement::ArrivalsOfPass, {id}, [&](const QSqlQuery& row) {
        found->arrivals.push_back(arrivalFrom(row).arrival);
    });
    if (outcome)
        record = std::move(found);
    return outcome;
}

} // namespace kelvo
