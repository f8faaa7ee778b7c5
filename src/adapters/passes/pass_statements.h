// The SQL statements of the record of passes, their values, and the rows read back into records.
#pragma once

#include "ports/pass_store.h"

#include <QStringList>
#include <QVariantList>

class QSqlQuery;

namespace kelvo {

/// The layout that this program writes; 0 is a file without tables.
inline constexpr int cPassLayout = 2;

/// Marks files of this program; those of its first releases bear 0.
inline constexpr int cPassApplication = 0x4b6c764d;

/// Everything that is asked of the tables; question marks stand for what is told behind.
enum class PassStatement {
    InsertPass,    ///< `valuesOf` a record
    InsertCommand, ///< `valuesOf` a command
    InsertArrival, ///< `valuesOf` an arrival
    AddToDay,      ///< pass, twice
    SetStanding,   ///< StandingRow, pass
    AddTrouble,    ///< when it began, in milliseconds since 1970
    EndTrouble,
    DropPasses,   ///< the newest to be dropped
    DropCommands, ///< the newest pass to be dropped
    DropArrivals, ///< the newest to be dropped
    AllPasses,
    OnePass,          ///< pass
    CommandsOfPass,   ///< pass
    ArrivalsOfPass,   ///< pass
    Arrivals,         ///< before which one, how many
    ArrivalsWithText, ///< before which one, folded text, how many
    Days,             ///< the first one, as ISO has it
    ReadStanding,     ///< StandingRow
    ReadTrouble,
    Begin,
    Commit,
    RangeOfPasses,   ///< the oldest and the newest
    RangeOfArrivals, ///< the same
    Size,            ///< bytes in use, bytes free
    SamePass,        ///< of the newest; when it began, in milliseconds since 1970; seconds
    WhatLiesThere,   ///< application, layout, tables, whether there is one of passes
    Last = WhatLiesThere
};

enum class StandingRow { LastPass = 0, LastSuccess = 1 };

QString sqlOf(PassStatement statement);

/// What makes the newest layout out of layout `found`; part of one transaction.
QStringList layoutStatements(int found);

/// Texts of commands are packed.
QVariantList valuesOf(const PassRecord& record);
QVariantList valuesOf(qint64 pass, int number, const CommandRecord& command);
QVariantList valuesOf(qint64 pass, const Arrival& arrival);

/// Read the row on which `query` stands; a number that no name is known for counts as Unknown.
PassRecord passFrom(const QSqlQuery& query);
CommandRecord commandFrom(const QSqlQuery& query);
KeptArrival arrivalFrom(const QSqlQuery& query);
DayOfPasses dayFrom(const QSqlQuery& query);

} // namespace kelvo
