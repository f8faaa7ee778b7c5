// KeyStateWatch: keeps what is known of the program's key from the last validation.
#pragma once

#include "ports/host_validator.h"
#include "support/key_state.h"
#include "support/subscription.h"

#include <functional>

namespace kelvo {

class BackgroundQueue;
class DispatchQueue;
class FileManager;
class UserDefaults;

/// What `verdict` of a validation says of a key whose files are there or not.
KeyState keyState(const QString& verdict, bool bothFilesExist);

/// What the watch works with; the references outlive it.
struct KeyStateParts {
    UserDefaults& defaults;
    const FileManager& files;
    DispatchQueue& mainQueue;
    BackgroundQueue& bgQueue;
    HostValidator& validator;
    /// Receives every state, on the main thread.
    std::function<void(KeyState)> show;
};

/// A validator that passes every question on and keeps the answers. Main thread only, except that
/// validations may run on any thread. Both queues must have ended before this is destroyed.
class KeyStateWatch final : public HostValidator {
public:
    explicit KeyStateWatch(KeyStateParts parts);
    ~KeyStateWatch() override;

    /// Shows what the files tell now, and again whenever another host or user is set, by which what
    /// an earlier host said is forgotten. Asks nobody. Called once.
    void begin();

    QString validateRemoteHostWithWhoami(qint64 timeout) override;

    /// The key files are not what they were: what was known of the old ones is forgotten.
    void keysChanged() { forget(); }

    /// Asks the host in the background and shows the answer. While one question is on its way
    /// another one waits for its end.
    void checkAgain();

private:
    void forget();
    void ask();
    void answered(const QString& target, const QString& verdict);
    bool bothFilesExist() const;
    QString target() const;

    const KeyStateParts fParts;
    bool fAsking = false;
    bool fAskAgain = false;
    Subscription fUserWatch;
    Subscription fHostWatch;
};

} // namespace kelvo
