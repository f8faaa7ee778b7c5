// KeyStateWatch: keeps what is known of the program's key from the last validation.
#pragma once

#include "support/host_verdict.h"
#include "support/key_state.h"
#include "support/subscription.h"

#include <functional>

namespace kelvo {

class BackgroundQueue;
class DispatchQueue;
class FileManager;
class UserDefaults;

/// What `verdict` of a validation says of a key whose files are there or not.
KeyState keyState(const HostVerdict& verdict, bool bothFilesExist);

/// What the watch works with; the references outlive it.
struct KeyStateParts {
    UserDefaults& defaults;
    const FileManager& files;
    DispatchQueue& mainQueue;
    BackgroundQueue& bgQueue;
    /// Asks the host with this connect time-out in seconds, and blocks; the answer comes by
    /// `answered`.
    std::function<void(qint64 timeout)> validate;
    /// Receives every state, on the main thread.
    std::function<void(KeyState)> show;
};

/// Main thread only, where nothing else is said. Both queues must have ended before this is
/// destroyed.
class KeyStateWatch {
public:
    explicit KeyStateWatch(KeyStateParts parts);
    ~KeyStateWatch();
    KeyStateWatch(const KeyStateWatch&) = delete;
    KeyStateWatch& operator=(const KeyStateWatch&) = delete;

    /// Shows what the files tell now, and again whenever another host or user is set, by which what
    /// an earlier host said is forgotten. Asks nobody. Called once.
    void begin();

    /// A validation has asked `target`, user@host, and this came of it. Any thread; shown later on
    /// the main thread, unless another target is set by then.
    void answered(const QString& target, const HostVerdict& verdict);

    /// The key files are not what they were: what was known of the old ones is forgotten.
    void keysChanged() { forget(); }

    /// Asks the host in the background and shows the answer. While one question is on its way
    /// another one waits for its end.
    void checkAgain();

private:
    void forget();
    void ask();
    bool bothFilesExist() const;
    QString target() const;

    const KeyStateParts fParts;
    bool fAsking = false;
    bool fAskAgain = false;
    Subscription fUserWatch;
    Subscription fHostWatch;
};

} // namespace kelvo
