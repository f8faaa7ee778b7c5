// The SQL statements of the record of passes, filled from records and read back into them.
#pragma once

#include "support/pass_record.h"

#include <QStringList>

class QSqlQuery;

namespace kelvo {

/// Makes the tables in one transaction; a program that does the same at this moment does no harm.
QStringList passTableStatements(int layout);

/// Drop all passes but the newest `most`, with their commands.
QStringList dropStatements(int most);

QString selectPasses();
QString selectPass(qint64 id);
QString selectCommands(qint64 id);

/// Prepare `query` to insert a row. Texts are packed.
void bindPass(QSqlQuery& query, const PassRecord& record);
void bindCommand(QSqlQuery& query, qint64 pass, int number, const CommandRecord& command);

/// Read the row on which `query` stands; a number that no name is known for counts as Unknown.
PassRecord passFrom(const QSqlQuery& query);
CommandRecord commandFrom(const QSqlQuery& query);

} // namespace kelvo
