// MemoryPassStore: the records of passes in memory, answered on the queue it is given.
#pragma once

#include "ports/dispatch_queue.h"
#include "ports/pass_store.h"

#include <algorithm>
#include <map>
#include <memory>
#include <mutex>
#include <utility>

namespace kelvo {

class MemoryPassStore final : public PassStore {
public:
    explicit MemoryPassStore(DispatchQueue& mainQueue) : fMainQueue(mainQueue) {}

    bool isWritable = true; ///< false: passes are told as those are that could not be written

    void append(const PassRecord& record) override {
        const std::lock_guard lock(fState->mutex);
        fState->records.push_back(record);
        fState->records.back().id = ++fState->lastId;
        for (const Arrival& arrival : record.arrivals)
            fState->arrivals.push_back({++fState->lastArrival, fState->lastId, arrival});
        if (fState->arrivals.size() > cMostArrivals)
            fState->arrivals.erase(fState->arrivals.begin(),
                                   fState->arrivals.end() - cMostArrivals);
        fState->standing.add(fState->records.back());
        fState->noteDay(record);
        if (fState->records.size() > cMostPasses)
            fState->records.erase(fState->records.begin());
        PassRecord told = fState->records.back();
        told.commands.clear();
        if (!isWritable)
            told.id = 0;
        fMainQueue.async([state = fState, told = std::move(told)] {
            for (const auto& [number, observer] : std::map(state->observers))
                observer(told, state->standing);
        });
    }

    void readAll(Records answer) override {
        fMainQueue.async([state = fState, alive = std::weak_ptr(fAlive), answer] {
            if (alive.expired())
                return;
            std::vector<PassRecord> all;
            for (auto record = state->records.rbegin(); record != state->records.rend(); ++record)
                all.push_back(asListed(*record));
            answer(std::move(all));
        });
    }

    void read(qint64 id, Record answer) override {
        fMainQueue.async([state = fState, alive = std::weak_ptr(fAlive), id, answer] {
            if (alive.expired())
                return;
            const auto found = std::ranges::find(state->records, id, &PassRecord::id);
            answer(found == state->records.end() ? std::nullopt : std::optional(*found));
        });
    }

    void readArrivals(const ArrivalQuestion& question, Arrivals answer) override {
        fMainQueue.async([state = fState, alive = std::weak_ptr(fAlive), question, answer] {
            if (alive.expired())
                return;
            std::vector<KeptArrival> found;
            const QString text = foldedText(question.text);
            for (auto kept = state->arrivals.rbegin(); kept != state->arrivals.rend(); ++kept) {
                if ((question.before == 0 || kept->id < question.before) &&
                    foldedText(QString::fromUtf8(kept->arrival.path)).contains(text) &&
                    std::cmp_less(found.size(), question.most))
                    found.push_back(*kept);
            }
            answer(std::move(found));
        });
    }

    void readDays(int days, Days answer) override {
        fMainQueue.async([state = fState, alive = std::weak_ptr(fAlive), days, answer] {
            if (alive.expired())
                return;
            const QDate first = QDate::currentDate().addDays(1 - days);
            std::vector<DayOfPasses> all;
            for (const auto& [date, day] : state->days) {
                if (date >= first)
                    all.push_back(day);
            }
            answer(std::move(all));
        });
    }

    void readStanding(StandingAnswer answer) override {
        fMainQueue.async([state = fState, alive = std::weak_ptr(fAlive), answer] {
            if (!alive.expired())
                answer(state->standing);
        });
    }

    /// What the store says of itself from now on.
    void setFault(const QString& fault, const QString& aside) {
        fState->standing.fault = fault;
        fState->standing.aside = aside;
    }

    Subscription observe(Observer observer) override {
        const int number = fState->next++;
        fState->observers.emplace(number, std::move(observer));
        return Subscription([state = fState, number] { state->observers.erase(number); });
    }

private:
    struct State {
        void noteDay(const PassRecord& record) {
            const QDate date = record.began.toLocalTime().date();
            DayOfPasses& day = days[date];
            day.day = date;
            for (const Arrival& arrival : record.arrivals) {
                ++day.files;
                day.bytes += arrival.size;
            }
            if (record.arrivals.empty()) {
                day.files += record.transfer.files.value_or(0);
                day.bytes += record.transfer.bytes.value_or(0);
            }
            day.trouble = day.trouble || isTrouble(record.cause);
        }

        std::mutex mutex;
        std::vector<KeptArrival> arrivals;
        std::map<QDate, DayOfPasses> days;
        Standing standing;
        qint64 lastArrival = 0;
        std::vector<PassRecord> records;
        std::map<int, Observer> observers;
        qint64 lastId = 0;
        int next = 0;
    };

    static PassRecord asListed(PassRecord record) {
        record.commands.clear();
        record.arrivals.clear();
        return record;
    }

    DispatchQueue& fMainQueue;
    std::shared_ptr<State> fState = std::make_shared<State>();
    std::shared_ptr<int> fAlive = std::make_shared<int>();
};

} // namespace kelvo
