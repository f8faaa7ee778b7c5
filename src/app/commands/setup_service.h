// SetupService: the systemd unit of the user's own, as a set-up from a terminal needs it.
#pragma once

#include "app/commands/setup_request.h"

#include <functional>

namespace kelvo {

class BackgroundQueue;
class CommandRunner;
class DispatchQueue;

/// Main thread only; its commands run in the background. Both queues must have ended before this
/// is destroyed.
class SetupService {
public:
    struct Parts {
        DispatchQueue& mainQueue;
        BackgroundQueue& bgQueue;
        CommandRunner& commands;
        QString unit; ///< without its ".service"; a word to any shell
    };
    /// What came of it, a sentence for people, and whether it went well.
    using Done = std::function<void(bool, const QString&)>;

    /// All of it outlives this.
    explicit SetupService(const Parts& parts) : fParts(parts) {}

    /// Whether there is a manager for this account that knows the unit. Changes nothing.
    void look(std::function<void(const ServiceFacts&)> done);

    /// Enables the unit and starts it anew, so that it works with the settings of now.
    void enable(bool linger, Done done);

private:
    const Parts fParts;
};

} // namespace kelvo
