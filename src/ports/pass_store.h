// PassStore: keeps the records of passes across runs of the program.
#pragma once

#include "support/pass_record.h"
#include "support/subscription.h"

#include <functional>
#include <optional>
#include <vector>

namespace kelvo {

/// Every operation: any thread, returns at once. Answers come on the main queue, in the order of
/// the questions; none comes once the store is gone. A store that cannot read answers with nothing.
class PassStore {
public:
    using Records = std::function<void(std::vector<PassRecord>)>;
    using Record = std::function<void(std::optional<PassRecord>)>;

    static constexpr int cMostPasses = 10000;

    virtual ~PassStore() = default;

    /// Keeps `record` under a number of the store's own. Only the newest 10,000 are kept. While the
    /// store cannot write, the newest 100 wait in memory and are tried again with the next record.
    virtual void append(const PassRecord& record) = 0;

    /// All records, newest first, without their commands.
    virtual void readAll(Records answer) = 0;

    /// One record with its commands; nothing when it is not there any more.
    virtual void read(qint64 id, Record answer) = 0;

    /// Calls `observer` on the main queue with each record that has been appended by this program
    /// from now on, whether it could be written (then it has its number) or not. Without commands.
    virtual Subscription observe(std::function<void(const PassRecord&)> observer) = 0;
};

} // namespace kelvo
