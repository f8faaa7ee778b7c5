#include "adapters/passes/sqlite_pass_store.h"

#include "ports/console.h"
#include "ports/dispatch_queue.h"

#include <utility>

namespace kelvo {
namespace {

constexpr std::size_t cMostUnwritten = 100;

} // namespace

SqlitePassStore::SqlitePassStore(const QString& path, DispatchQueue& mainQueue, Console& console,
                                 int most)
    : fPath(path), fMost(most), fMainQueue(mainQueue), fConsole(console),
      fThread([this] { work(); }) {}

SqlitePassStore::~SqlitePassStore() {
    {
        const std::lock_guard lock(fObservers->mutex);
        fObservers->gone = true;
        fObservers->observers.clear();
    }
    {
        const std::lock_guard lock(fMutex);
        fStopping = true;
    }
    fPosted.notify_all();
    fThread.join();
}

// -- any thread

void SqlitePassStore::append(const PassRecord& record) {
    post([this, record](PassDatabase& database) { write(database, record); }, false);
}

void SqlitePassStore::readAll(Records answerWith) {
    post(
        [this, answerWith = std::move(answerWith)](PassDatabase& database) {
            auto records = std::make_shared<std::vector<PassRecord>>();
            auto outcome = database.readAll(*records);
            if (!outcome && repaired(database, outcome)) {
                records->clear();
                outcome = database.readAll(*records);
            }
            note(outcome);
            if (!outcome)
                records->clear();
            answer([records, answerWith] { answerWith(std::move(*records)); });
        },
        true);
}

void SqlitePassStore::read(qint64 id, Record answerWith) {
    post(
        [this, id, answerWith = std::move(answerWith)](PassDatabase& database) {
            std::optional<PassRecord> record;
            auto outcome = database.read(id, record);
            if (!outcome && repaired(database, outcome))
                outcome = database.read(id, record);
            note(outcome);
            answer([record = std::move(record), answerWith] { answerWith(record); });
        },
        true);
}

void SqlitePassStore::readArrivals(const ArrivalQuestion&, Arrivals) {}
void SqlitePassStore::readDays(int, Days) {}
void SqlitePassStore::readStanding(StandingAnswer) {}

Subscription SqlitePassStore::observe(std::function<void(const PassRecord&)> observer) {
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
    fPosted.notify_one();
}

// -- the store's own thread

void SqlitePassStore::work() {
    PassDatabase database(fPath, fMost);
    std::unique_lock lock(fMutex);
    for (;;) {
        fPosted.wait(lock, [this] { return fStopping || !fJobs.empty(); });
        if (fJobs.empty())
            return;
        const auto [job, question] = std::move(fJobs.front());
        fJobs.pop_front();
        if (question && fStopping)
            continue;
        lock.unlock();
        job(database);
        lock.lock();
    }
}

void SqlitePassStore::write(PassDatabase& database, const PassRecord& record) {
    fUnwritten.push_back(record);
    PassRecord newest = record;
    PassDatabase::Outcome outcome;
    while (!fUnwritten.empty()) {
        outcome = insert(database, fUnwritten.front());
        if (!outcome)
            break;
        newest = std::move(fUnwritten.front());
        fUnwritten.pop_front();
    }
    note(outcome);
    announce(std::move(newest));
    if (fUnwritten.size() > cMostUnwritten)
        fUnwritten.pop_front();
}

PassDatabase::Outcome SqlitePassStore::insert(PassDatabase& database, PassRecord& record) {
    auto outcome = database.insert(record);
    if (!outcome && repaired(database, outcome))
        outcome = database.insert(record);
    return outcome;
}

/// Whether there is a new file to try again with.
bool SqlitePassStore::repaired(PassDatabase& database, const PassDatabase::Outcome& outcome) {
    if (outcome.kind != PassDatabase::Outcome::Broken)
        return false;
    const auto aside = database.moveAside(QDateTime::currentDateTimeUtc());
    if (!aside)
        return false;
    fConsole.log(u"The record of passes was damaged (" + outcome.reason + u") and is kept as " +
                 *aside + u"; a new one is begun.");
    return true;
}

void SqlitePassStore::note(const PassDatabase::Outcome& outcome) {
    if (outcome.reason == fTrouble)
        return;
    fTrouble = outcome.reason;
    fConsole.log(outcome ? QStringLiteral("The record of passes works again.")
                         : QString(u"The record of passes " + fPath + u" is set aside for now: " +
                                   outcome.reason));
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

void SqlitePassStore::announce(PassRecord record) {
    record.commands.clear();
    fMainQueue.async([shared = fObservers, record = std::move(record)] { shared->tell(record); });
}

void SqlitePassStore::Observers::tell(const PassRecord& record) {
    std::vector<int> numbers;
    {
        const std::lock_guard lock(mutex);
        for (const auto& [number, observer] : observers)
            numbers.push_back(number);
    }
    for (const int number : numbers) {
        std::function<void(const PassRecord&)> observer;
        {
            const std::lock_guard lock(mutex);
            if (const auto found = observers.find(number); found != observers.end())
                observer = found->second;
        }
        if (observer)
            observer(record);
    }
}

} // namespace kelvo
