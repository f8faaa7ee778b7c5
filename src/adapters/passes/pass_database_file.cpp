// The file of PassDatabase: what lies at its place, its layout, and what becomes of a file that
// cannot be the record.
#include "adapters/passes/pass_database.h"
#include "adapters/system/private_places.h"
#include "adapters/system/unique_fd.h"
#include "support/system_error_text.h"

#include <QFile>
#include <QFileInfo>
#include <QSqlQuery>

#include <fcntl.h>
#include <sys/stat.h>

#include <array>
#include <cerrno>
#include <cstdio>

namespace kelvo {
namespace {

constexpr int cMostAsides = 1000;
/// Looking at the size of the file is worth its cost only so often, in passes.
constexpr qint64 cBetweenLooksAtSize = 16;
/// So many passes stay, however much they hold.
constexpr qint64 cLeastPasses = 100;

/// 0, or why not.
int readToTheEnd(const QByteArray& name) {
    struct stat status {};
    if (::stat(name.constData(), &status) != 0)
        return errno == ENOENT || errno == ENOTDIR || errno == ELOOP ? 0 : errno;
    if (!S_ISREG(status.st_mode))
        return 0;
    const UniqueFd file(::open(name.constData(), O_RDONLY | O_CLOEXEC));
    if (!file)
        return errno;
    std::array<char, 65536> room{};
    ssize_t size = 0;
    do
        size = ::read(file.get(), room.data(), room.size());
    while (size > 0 || (size < 0 && errno == EINTR));
    return size < 0 ? errno : 0;
}

} // namespace

QByteArray PassDatabase::fileName(const char* ending) const {
    return QFile::encodeName(fPath) + ending;
}

PassDatabase::FilePlace PassDatabase::placeOf(const QByteArray& name) {
    struct stat status {};
    if (::stat(name.constData(), &status) != 0)
        return {};
    return std::pair(status.st_dev, status.st_ino);
}

PassDatabase::Outcome PassDatabase::prepareFile() const {
    const QString folder = QFileInfo(fPath).path();
    if (makePrivateFolders(QFile::encodeName(folder).toStdString()) != 0)
        return {Outcome::Failed, QStringLiteral("its folder cannot be made")};
    const QByteArray path = fileName();
    struct stat status {};
    // An existing file is not opened: closing it here would end SQLite's locks on it.
    if (::stat(path.constData(), &status) == 0) {
        if (!S_ISREG(status.st_mode))
            return {Outcome::Broken, QStringLiteral("it is no ordinary file")};
        closeToOthers(path.toStdString());
        return {};
    }
    const UniqueFd file(::open(path.constData(), O_WRONLY | O_CREAT | O_CLOEXEC, 0600));
    if (file)
        return {};
    const int error = errno;
    // What is there all the same is a link.
    if (::lstat(path.constData(), &status) == 0 &&
        (error == ENOENT || error == ENOTDIR || error == ELOOP))
        return {Outcome::Broken, QStringLiteral("it is a link that leads nowhere")};
    return {Outcome::Failed, systemErrorText(error)};
}

/// One statement, so that a file which another program is just beginning is seen whole.
PassDatabase::Outcome PassDatabase::readLayout() {
    int application = 0;
    int tables = 0;
    bool hasPasses = false;
    Outcome outcome = run(PassStatement::WhatLiesThere, {}, [&](const QSqlQuery& row) {
        application = row.value(0).toInt();
        fLayout = row.value(1).toInt();
        tables = row.value(2).toInt();
        hasPasses = row.value(3).toBool();
    });
    if (!outcome)
        return outcome;
    const bool ours = application == 0 || application == cPassApplication;
    if (!ours || fLayout < 0 || (fLayout == 0 ? tables > 0 : !hasPasses))
        return {Outcome::Broken, QStringLiteral("another program has written it")};
    return fLayout > cPassLayout
               ? Outcome{Outcome::Failed, QStringLiteral("a newer Kelvo Mirror has written it")}
               : Outcome();
}

PassDatabase::Outcome PassDatabase::prepareTables() {
    // With a log beside the file a record costs no wait for the disk. A file system that cannot
    // have it keeps SQLite's usual way.
    if (Outcome outcome = run(QStringLiteral("PRAGMA journal_mode = WAL"));
        outcome.kind == Outcome::Broken)
        return outcome;
    for (const QString& setting : {QStringLiteral("PRAGMA synchronous = NORMAL"),
                                   QStringLiteral("PRAGMA cache_size = -256")}) {
        if (Outcome outcome = run(setting); !outcome)
            return outcome;
    }
    if (fLayout == cPassLayout)
        return checkTables();
    return inTransaction([this] { return takeOver(); });
}

/// A statement that cannot be prepared asks for a table or column that is not there.
PassDatabase::Outcome PassDatabase::checkTables() {
    for (int each = 0; each <= static_cast<int>(PassStatement::Last); ++each) {
        if (Outcome outcome = prepare(static_cast<PassStatement>(each)); !outcome)
            return outcome;
    }
    fQueries = {}; // few of them are asked
    return {};
}

void PassDatabase::getReady() {
    if (nothingIsKept() || !open())
        return;
    // The least that can be written: a number that is there already.
    (void)run(QStringLiteral("PRAGMA user_version = %1").arg(cPassLayout));
    for (int each = 0; each <= static_cast<int>(PassStatement::DropArrivals); ++each)
        (void)prepare(static_cast<PassStatement>(each));
}

PassDatabase::Outcome PassDatabase::takeOver() {
    // Another program may have done it meanwhile.
    if (Outcome outcome = readLayout(); !outcome || fLayout == cPassLayout)
        return outcome;
    for (const QString& statement : layoutStatements(fLayout)) {
        if (Outcome outcome = run(statement); !outcome)
            return outcome;
    }
    fLayout = cPassLayout;
    return {};
}

PassDatabase::Outcome PassDatabase::readSize(qint64& used) {
    return run(PassStatement::Size, {}, [&](const QSqlQuery& row) {
        used = row.value(0).toLongLong();
        fFree = row.value(1).toLongLong();
    });
}

PassDatabase::Outcome PassDatabase::dropBeyondBytes(qint64 newest) {
    if (fSizeSeen && newest % cBetweenLooksAtSize != 0)
        return {};
    fSizeSeen = true;
    const auto drop = [this](PassStatement range, const std::vector<PassStatement>& drops,
                             qint64 least) {
        for (;;) {
            qint64 used = 0;
            if (Outcome outcome = readSize(used); !outcome || used <= fLimits.bytes)
                return outcome;
            bool dropped = false;
            if (Outcome outcome = dropOldest(range, drops, least, dropped); !outcome || !dropped)
                return outcome;
        }
    };
    if (Outcome outcome =
            drop(PassStatement::RangeOfPasses,
                 {PassStatement::DropCommands, PassStatement::DropPasses}, cLeastPasses);
        !outcome)
        return outcome;
    return drop(PassStatement::RangeOfArrivals, {PassStatement::DropArrivals}, 0);
}

/// An eighth of those beyond the newest `least`.
PassDatabase::Outcome PassDatabase::dropOldest(PassStatement range,
                                               const std::vector<PassStatement>& drops,
                                               qint64 least, bool& dropped) {
    qint64 oldest = 0;
    qint64 kept = 0;
    if (Outcome outcome = run(range, {},
                              [&](const QSqlQuery& row) {
                                  oldest = row.value(0).toLongLong();
                                  kept = row.value(1).toLongLong() - oldest + 1 - least;
                              });
        !outcome)
        return outcome;
    dropped = oldest > 0 && kept > 0;
    if (!dropped)
        return {};
    for (const PassStatement each : drops) {
        if (Outcome outcome = run(each, {oldest + kept / 8}); !outcome)
            return outcome;
    }
    return {};
}

/// A file that has been much larger is written anew. Where that cannot be done it stays as it is:
/// what is free in it is used again.
void PassDatabase::giveBackRoom() {
    if (fFree <= fLimits.bytes / 2)
        return;
    fFree = 0;
    (void)run(QStringLiteral("VACUUM"));
}

bool PassDatabase::fileIsGone() const {
    if (!fDatabase.isOpen())
        return false;
    const FilePlace place = placeOf(fileName());
    return place ? place != fPlace : errno == ENOENT || errno == ENOTDIR;
}

std::vector<PassRecord> PassDatabase::leave() {
    std::vector<PassRecord> own;
    for (const qint64 id : fWritten) {
        std::optional<PassRecord> record;
        if (fDatabase.isOpen() && read(id, record) && record)
            own.push_back(std::move(*record));
    }
    if (!fileIsGone()) {
        close();
        return own;
    }
    // SQLite keeps its log under the file's name, where it would be laid over the next file: what
    // it holds goes home first, wherever the file is now.
    (void)run(QStringLiteral("PRAGMA wal_checkpoint(TRUNCATE)"));
    const bool logIsOurs = fLog && fLog == placeOf(fileName("-wal"));
    close();
    if (logIsOurs) {
        ::unlink(fileName("-wal").constData());
        ::unlink(fileName("-shm").constData());
    }
    return own;
}

QString PassDatabase::readFault() {
    close();
    for (const char* part : {"", "-wal"}) {
        if (const int error = readToTheEnd(fileName(part)); error != 0)
            return systemErrorText(error);
    }
    return {};
}

std::optional<QString> PassDatabase::moveAside(const QDateTime& now) {
    close();
    const QByteArray wanted =
        fileName(".corrupt-") +
        now.toUTC().toString(QStringLiteral("yyyyMMdd'T'HHmmss'Z'")).toLatin1();
    for (int attempt = 1; attempt <= cMostAsides; ++attempt) {
        const QByteArray aside = attempt == 1 ? wanted : wanted + '-' + QByteArray::number(attempt);
        struct stat there {};
        if (::lstat(aside.constData(), &there) == 0)
            continue;
        if (std::rename(fileName().constData(), aside.constData()) != 0)
            return std::nullopt;
        // What belongs to the broken file must not be laid over the next one.
        (void)std::rename(fileName("-wal").constData(), QByteArray(aside + "-wal").constData());
        ::unlink(fileName("-shm").constData());
        return QFile::decodeName(aside);
    }
    return std::nullopt;
}

} // namespace kelvo
