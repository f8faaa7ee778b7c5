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

    void append(const PassRecord& record) override {
        const std::lock_guard lock(fState->mutex);
        fState->records.push_back(record);
        fState->records.back().id = ++fState->lastId;
        if (fState->records.size() > cMostPasses)
            fState->records.erase(fState->records.begin());
        fMainQueue.async([state = fState, told = withoutCommands(fState->records.back())] {
            for (const auto& [number, observer] : std::map(state->observers))
                observer(told);
        });
    }

    void readAll(Records answer) override {
        fMainQueue.async([state = fState, alive = std::weak_ptr(fAlive), answer] {
            if (alive.expired())
                return;
            std::vector<PassRecord> all;
            for (const PassRecord& record : state->records)
                all.insert(all.begin(), withoutCommands(record));
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

    Subscription observe(std::function<void(const PassRecord&)> observer) override {
        const int number = fState->next++;
        fState->observers.emplace(number, std::move(observer));
        return Subscription([state = fState, number] { state->observers.erase(number); });
    }

private:
    struct State {
        std::mutex mutex;
        std::vector<PassRecord> records;
        std::map<int, std::function<void(const PassRecord&)>> observers;
        qint64 lastId = 0;
        int next = 0;
    };

    static PassRecord withoutCommands(PassRecord record) {
        record.commands.clear();
        return record;
    }

    DispatchQueue& fMainQueue;
    std::shared_ptr<State> fState = std::make_shared<State>();
    std::shared_ptr<int> fAlive = std::make_shared<int>();
};

} // namespace kelvo
