// SetupDeeds: does what was agreed in the questions of a set-up, and tells what came of it.
#pragma once

#include "app/commands/setup_key.h"
#include "app/commands/setup_service.h"
#include "support/profile.h"

#include <QString>

#include <functional>
#include <optional>
#include <utility>
#include <vector>

namespace kelvo {

class Dialogue;
class SshConfiguration;

/// Nothing is stored before the Mac has let this program in, or a person wants it stored all the
/// same. Main thread only.
class SetupDeeds {
public:
    struct Parts {
        Profile profile;
        Dialogue& dialogue;
        UserDefaults& settings;
        SetupKey& key;
        SetupService& service;
        SshConfiguration& ssh;
        std::function<FileFault(const QString&)> makeFolder; ///< with the folders above it
        /// Brings the settings of the set-up to disk; why they are not there, empty when they are.
        std::function<QString(bool startByItself)> store;
    };
    using Done = std::function<void(const CommandAnswer&)>;

    /// All of it outlives this.
    explicit SetupDeeds(const Parts& parts) : fParts(parts) {}
    SetupDeeds(const SetupDeeds&) = delete;
    SetupDeeds& operator=(const SetupDeeds&) = delete;

    /// Calls `done` once.
    void begin(const SetupAnswers& answers, Done done);

    /// Whether the settings were stored.
    bool stored() const { return fStored; }

    /// A person has pressed Ctrl+C: nothing more is begun. What runs in the terminal ends by that.
    void interrupt() { fInterrupted = true; }

private:
    void firstAnswer(const std::optional<HostAnswer>& answer);
    void install();
    void secondAnswer(const std::optional<HostAnswer>& answer);
    void notLetIn(const HostAnswer& answer);
    void letIn();
    bool storeAll(bool startByItself);
    bool tellSsh();
    void tellNext() const;
    /// Each with what it is for.
    void tellCommands(const std::vector<std::pair<QString, QStringView>>& commands) const;
    void giveUp();
    void end(int exitCode, const QString& errors = {});
    QString accountText() const;

    const Parts fParts;
    SetupAnswers fAnswers;
    Done fDone;
    bool fStored = false;
    bool fInterrupted = false;
};

} // namespace kelvo
