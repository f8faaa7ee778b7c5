// SshConnection: the kept connection to the Mac as a process of ssh that the program holds.
#pragma once

#include "ports/kept_connection.h"

#include <condition_variable>
#include <cstdint>
#include <memory>
#include <mutex>
#include <optional>
#include <string>

namespace kelvo {

class BackgroundQueue;
class CommandRunner;
class SocketFolder;

/// ssh runs as a command in the foreground, so that it ends as commands end; where the program is
/// killed the system ends it too. It listens in a folder of its own, for this user alone. Where
/// ssh's configuration does not lead commands there it is not even started.
class SshConnection final : public KeptConnection {
public:
    /// Both outlive the connection; what they run belongs to it, so both must have ended before it
    /// is destroyed.
    SshConnection(CommandRunner& commands, BackgroundQueue& bgQueue);
    ~SshConnection() override;

    void open(const LoginTarget& target) override;
    QByteArray folder(double patience) override;
    bool hasStood() const override;
    void close() override;

private:
    enum class Stage { Closed, LoggingIn, Open };

    void run(std::uint64_t number, const LoginTarget& target);
    void closeLocked();

    CommandRunner& fCommands;
    BackgroundQueue& fBgQueue;
    mutable std::mutex fMutex; ///< of all that follows
    std::condition_variable fChanged;
    Stage fStage = Stage::Closed;
    bool fHasStood = false;
    std::uint64_t fNumber = 0; ///< of the connection that counts; others are on their way out
    std::optional<std::int64_t> fCommand;
    std::string fFolder;
    std::string fKeyPath;
    std::string fSurroundings; ///< when the login began
};

} // namespace kelvo
