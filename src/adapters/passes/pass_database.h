// PassDatabase: the SQLite file with the records of passes.
#pragma once

#include "support/pass_record.h"

#include <QSqlDatabase>
#include <QString>

#include <optional>
#include <vector>

class QSqlQuery;

namespace kelvo {

/// One thread only, the one that first opens it. Several programs may have the same file open.
class PassDatabase {
public:
    /// How an operation ended.
    struct Outcome {
        enum Kind {
            Done,
            Broken, ///< the file is no database, or a damaged one
            Failed, ///< no room, no permission, kept locked by another program …
        };
        Kind kind = Done;
        QString reason;
        explicit operator bool() const { return kind == Done; }
    };

    /// Of `most` passes the newest are kept.
    PassDatabase(const QString& path, int most);
    ~PassDatabase();
    PassDatabase(const PassDatabase&) = delete;
    PassDatabase& operator=(const PassDatabase&) = delete;

    /// Opens the file, made with mode 0600 when it is missing, its folder with 0700; at once when
    /// it is open already. A file that a newer program has written is refused.
    Outcome open();

    /// Stores `record` and gives it its number; drops what is too old.
    Outcome insert(PassRecord& record);

    /// Newest first, without commands.
    Outcome readAll(std::vector<PassRecord>& records);
    /// Empty when there is none of that number.
    Outcome read(qint64 id, std::optional<PassRecord>& record);

    /// Closes a broken file and moves it to a free name beside its own. Returns the new name, or
    /// nothing when that cannot be done.
    std::optional<QString> moveAside(const QDateTime& now);

private:
    Outcome outcomeOf(const QSqlQuery& query) const;
    Outcome run(const QString& statement);
    Outcome prepareFile() const;
    Outcome prepareTables();
    Outcome insertRows(PassRecord& record);
    void close();

    const QString fPath;
    const int fMost;
    const QString fConnection;
    QSqlDatabase fDatabase;
};

} // namespace kelvo
