#include "adapters/passes/sqlite_pass_store.h"

#include "ports/console.h"
#include "ports/dispatch_queue.h"

#include <type_traits>
#include <utility>

namespace kelvo {
namespace {

constexpr std::size_t cMostUnwritten = 100;
/// A connection of its own, then a new file.
constexpr int cMostRepairs = 2;

PassDatabase::Outcome readStandingOf(PassDatabase& database, Standing& standing) {
    return database.readStanding(standing);
}

} // namespace

SqlitePassStore::SqlitePassStore(const QString& path, DispatchQueue& mainQueue, Console& console,
                                 PassLimits limits)
    : fPath(path), fLimits(limits), fMainQueue(mainQueue), fConsole(console),
      fThread([this] { work(); }) {}

SqlitePassStore::~SqlitePassStore() {
    {
        const std::lock_guard lock(fObservers->mutex);
        fObservers->gone = true;
        fObservers->observers.clear();
    }
    (void)finish();
}

QString SqlitePassStore::finish() {
    {
        const std::lock_guard lock(fMutex);
        fStopping = true;
        fPosted.notify_all();
    }
    if (fThread.joinable())
        fThread.join();
    return fUnwritten.empty() ? QString() : fTrouble;
}

// -- any thread

void SqlitePassStore::getReady() {
    post([](PassDatabase& database) { database.getReady(); }, true);
}

void SqlitePassStore::append(const PassRecord& record) {
    post([this, record](PassDatabase& database) { write(database, record); }, false);
}

template <typename Result, typename Read>
void SqlitePassStore::ask(Read read, std::function<void(Result)> answerWith) {
    post(
        [this, read, answerWith = std::move(answerWith)](PassDatabase& database) {
            findLostFile(database);
            auto result = std::make_shared<Result>(found<Result>(database, read));
            answer([result, answerWith] { answerWith(std::move(*result)); });
        },
        true);
}

template <typename Result, typename Read>
Result SqlitePassStore::found(PassDatabase& database, Read read) {
    Result result;
    auto outcome = read(database, result);
    for (int repairs = 0; !outcome && repaired(database, outcome, repairs);) {
        (void)writeOut(database);
        result = {};
        outcome = read(database, result);
    }
    note(outcome);
    if (!outcome)
        result = {};
    if constexpr (std::is_same_v<Result, Standing>)
        completeStanding(result);
    return result;
}

void SqlitePassStore::readAll(Records answerWith) {
    ask([](PassDatabase& database, auto& records) { return database.readAll(records); },
        std::move(answerWith));
}

void SqlitePassStore::readArrivals(const ArrivalQuestion& question, Arrivals answerWith) {
    ask([question](PassDatabase& database,
                   auto& arrivals) { return database.readArrivals(question, arrivals); },
        std::move(answerWith));
}

void SqlitePassStore::readDays(int days, Days answerWith) {
    ask([days](PassDatabase& database, auto& found) { return database.readDays(days, found); },
        std::move(answerWith));
}

void SqlitePassStore::readStanding(StandingAnswer answerWith) {
    ask(readStandingOf, std::move(answerWith));
}

void SqlitePassStore::read(qint64 id, Record answerWith) {
    ask([id](PassDatabase& database, auto& record) { return database.read(id, record); },
        std::move(answerWith));
}

Subscription SqlitePassStore::observe(Observer observer) {
    const std::lock_guard lock(fObservers->mutex);
    const int number = fObservers->next++;
    fObservers->observers.emplace(number, std::move(observer));
    return Subscription([shared = fObservers, number] {
        const std::lock_guard inside(shared->mutex);
        shared->observers.erase(number);
    });
}

void SqlitePassStore::post(Job job, bool question) {
    {
        const std::lock_guard lock(fMutex);
        fJobs.emplace_back(std::move(job), question);
    }
    fPosted.notify_one(); // The thread wants the lock as soon as it is awake.
}

// -- the store's own thread

void SqlitePassStore::work() {
    PassDatabase database(fPath, fLimits);
    std::unique_lock lock(fMutex);
    for (;;) {
        fPosted.wait(lock, [this] { return fStopping || !fJobs.empty(); });
        if (fJobs.empty())
            break;
        const auto [job, question] = std::move(fJobs.front());
        fJobs.pop_front();
        if (question && fStopping)
            continue;
        lock.unlock();
        job(database);
        lock.lock();
    }
    // Trouble of the last pass may be over.
    (void)writeOut(database);
}

void SqlitePassStore::write(PassDatabase& database, PassRecord record) {
    findLostFile(database);
    record.id = 0;
    fUnwritten.push_back(record);
    record.id = writeOut(database);
    if (fObservers->areThere())
        announce(std::move(record), found<Standing>(database, readStandingOf));
    while (fUnwritten.size() > cMostUnwritten)
        fUnwritten.pop_front();
}

/// The number of the newest record; 0 when it could not be written.
qint64 SqlitePassStore::writeOut(PassDatabase& database) {
    if (fUnwritten.empty())
        return 0;
    PassDatabase::Outcome outcome;
    qint64 number = 0;
    for (int repairs = 0; !fUnwritten.empty();) {
        outcome = database.insert(fUnwritten.front());
        if (!outcome && repaired(database, outcome, repairs))
            continue;
        if (!outcome)
            break;
        number = fUnwritten.front().id;
        fUnwritten.pop_front();
    }
    note(outcome);
    return fUnwritten.empty() ? number : 0;
}

/// Whether to try again, after `repairs` repairs. SQLite takes a page that could not be read just
/// now for a damaged one: only a file that fails twice and can be read whole is damaged.
bool SqlitePassStore::repaired(PassDatabase& database, PassDatabase::Outcome& outcome,
                               int& repairs) {
    if (outcome.kind != PassDatabase::Outcome::Broken || repairs == cMostRepairs)
        return false;
    const auto own = database.leave();
    fUnwritten.insert(fUnwritten.begin(), own.begin(), own.end());
    if (++repairs < cMostRepairs)
        return true;
    if (const QString fault = database.readFault(); !fault.isEmpty()) {
        outcome = {PassDatabase::Outcome::Failed, fault};
        return false;
    }
    const auto aside = database.moveAside(QDateTime::currentDateTimeUtc());
    if (!aside)
        return false;
    fAside = *aside;
    fConsole.log(u"The record of passes was damaged (" + outcome.reason + u") and is kept as " +
                 *aside + u"; a new one is begun.");
    return true;
}

/// Somebody has taken the file away or replaced it: what this run had written goes into the one
/// that is there now.
void SqlitePassStore::findLostFile(PassDatabase& database) {
    if (!database.fileIsGone())
        return;
    const auto own = database.leave();
    fUnwritten.insert(fUnwritten.begin(), own.begin(), own.end());
    fReplaced = true;
    fConsole.log(u"The record of passes " + fPath +
                 u" was removed or replaced; the passes of this run are written again.");
    (void)writeOut(database);
}

void SqlitePassStore::note(const PassDatabase::Outcome& outcome) {
    if (outcome.reason == fTrouble || (outcome && !fUnwritten.empty()))
        return;
    fTrouble = outcome.reason;
    fConsole.log(outcome ? QStringLiteral("The record of passes works again.")
                         : QString(u"The record of passes " + fPath + u" is set aside for now: " +
                                   outcome.reason));
}

void SqlitePassStore::completeStanding(Standing& standing) const {
    for (const PassRecord& record : fUnwritten)
        standing.add(record);
    standing.fault = fTrouble;
    standing.aside = fAside;
    standing.replaced = fReplaced;
}

void SqlitePassStore::answer(std::function<void()> give) {
    fMainQueue.async([shared = fObservers, give = std::move(give)] {
        {
            const std::lock_guard lock(shared->mutex);
            if (shared->gone)
                return;
        }
        give();
    });
}

void SqlitePassStore::announce(PassRecord record, Standing standing) {
    record.commands.clear();
    fMainQueue.async([shared = fObservers, record = std::move(record),
                      standing = std::move(standing)] { shared->tell(record, standing); });
}

bool SqlitePassStore::Observers::areThere() {
    const std::lock_guard lock(mutex);
    return !observers.empty();
}

void SqlitePassStore::Observers::tell(const PassRecord& record, const Standing& standing) {
    std::vector<int> numbers;
    {
        const std::lock_guard lock(mutex);
        for (const auto& [number, observer] : observers)
            numbers.push_back(number);
    }
    for (const int number : numbers) {
        Observer observer;
        {
            const std::lock_guard lock(mutex);
            if (const auto found = observers.find(number); found != observers.end())
                observer = found->second;
        }
        if (observer)
            observer(record, standing);
    }
}

} // namespace kelvo
