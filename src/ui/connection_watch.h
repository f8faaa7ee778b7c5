// ConnectionWatch: keeps what the Mac said when the program last asked it to be let in.
#pragma once

#include "engine/host_answer.h"
#include "support/key_state.h"

#include <QDateTime>

#include <functional>
#include <memory>
#include <optional>

namespace kelvo {

class PassStore;
class UserDefaults;
struct PassRecord;

/// What is known of the way to the Mac that is set now, with the key that is there now.
struct Connection {
    std::optional<HostAnswer> answer = {}; ///< the last one
    QDateTime asked = {};                  ///< when it came
    bool letInBefore = false;              ///< some earlier pass got in, whatever came since

    bool operator==(const Connection&) const = default;
};

/// Begins with what the record tells of the last passes. Main thread only.
class ConnectionWatch {
public:
    struct Parts {
        const UserDefaults& defaults;
        PassStore& passes;
        std::function<QDateTime()> now;
        std::optional<KeyState> keyState; ///< what was shown before; nothing: nothing yet
        std::function<void(const Connection&)> show; ///< each time it has changed
    };

    /// All of it outlives the watch; nothing is shown once that is gone.
    explicit ConnectionWatch(Parts parts);

    /// An answer about another account than the one that is set now says nothing.
    void answered(const HostAnswer& answer);

    /// What is shown of the key from now on. A key or an account of which nobody was asked makes
    /// the watch forget; the first state of all is not news.
    void setKeyState(KeyState state);

private:
    void readRecord(qint64 pass, std::function<void(const PassRecord&)> use);
    QString target() const;
    void show() const { fParts.show(fConnection); }

    const Parts fParts;
    Connection fConnection;
    bool fKeyIsKnown;
    std::shared_ptr<int> fRecordCounts = std::make_shared<int>(); ///< gone: what it tells is over
};

} // namespace kelvo
