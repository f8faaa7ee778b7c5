// PassProgress: how far a running pass has come.
#pragma once

#include <QString>

#include <optional>

namespace kelvo {

enum class PassStep {
    Begun,         ///< no command runs: it is being prepared, or has just ended
    AskingTheMac,  ///< ssh … whoami
    Pull,          ///< the template's command; of a remote pass the first pull
    Movies,        ///< the built-in movie command
    AfterArrivals, ///< the command that is run once something has arrived
};

/// Of the command that runs; what is not known, or not yet, is missing. Nothing in it goes back
/// while one command runs.
struct PassProgress {
    PassStep step = PassStep::Begun;
    QString file = {};                     ///< being received, as rsync names it; may be empty
    std::optional<qint64> filesDone = {};  ///< received so far
    std::optional<qint64> filesKnown = {}; ///< to be received, folders to come among them
    std::optional<qint64> bytesDone = {};  ///< received so far
    std::optional<qint64> bytesKnown = {}; ///< to be received in all
    std::optional<double> share = {};      ///< of the command as far as it is known, 0 to 1
    std::optional<double> bytesPerSecond = {};
    std::optional<double> secondsLeft = {};

    bool operator==(const PassProgress&) const = default;
};

} // namespace kelvo
