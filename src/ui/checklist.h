// Checklist: what is still missing before a pass can go well, in plain words.
#pragma once

#include "support/key_state.h"
#include "support/pass_record.h"
#include "support/subscription.h"
#include "support/work_state.h"

#include <QString>

#include <functional>
#include <memory>
#include <optional>
#include <vector>

namespace kelvo {

class BackgroundQueue;
class DispatchQueue;
class FileManager;
class PassStore;
class UserDefaults;

struct ChecklistLine {
    QString text;
    Remedy remedy;
};

/// What is known about the things that a pass needs.
struct ChecklistFacts {
    bool remote = false; ///< pulls from the Mac
    bool hostChosen = false;
    bool userSet = false;
    KeyState key = KeyState::NotAsked;
    std::optional<PassCause> lastCause; ///< of the last pass, when there was one
    bool sourceChosen = false;          ///< plain passes
    bool destinationChosen = false;
    bool destinationWritable = false;
    bool rsyncThere = false;
    bool sshThere = false;
};

/// Empty when all is well.
std::vector<ChecklistLine> checklist(const ChecklistFacts& facts);

/// The command that installs what passes need; for CopyInstallCommand.
inline constexpr QStringView cInstallCommand = u"sudo apt install rsync openssh-client";

/// Looks again whenever a setting that matters changes and after each pass. The disk is asked on
/// the background queue.
class Checklist {
public:
    struct Parts {
        UserDefaults& defaults;
        DispatchQueue& mainQueue;
        BackgroundQueue& bgQueue;
        const FileManager& files;
        PassStore& passes;
        std::function<void(const std::vector<ChecklistLine>&)> show; ///< main thread
    };

    /// All of it outlives the checklist; nothing is shown once it is gone. Main thread.
    explicit Checklist(Parts parts);

    /// Looks now; shows later, on the main queue. Main thread; returns at once.
    void look();

    /// What is known of the key; a question that is under way leaves it. Main thread.
    void setKeyState(KeyState state);

private:
    const Parts fParts;
    std::optional<PassCause> fLastCause;
    KeyState fKey = KeyState::NotAsked;
    int fLooks = 0;
    std::shared_ptr<int> fAlive = std::make_shared<int>();
    std::vector<Subscription> fObservations;
};

} // namespace kelvo
