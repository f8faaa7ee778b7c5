// SoakWorld: the folders, the stand-ins and the running program of a soak.
#pragma once

#include <sys/types.h>

#include <cstdint>
#include <functional>
#include <optional>
#include <string>
#include <vector>

namespace kelvo {

/// Gives this process its own view of the machine's files; nothing mounted later is seen outside.
/// Empty, or the reason why that cannot be.
std::string enterOwnView();

class SoakWorld {
public:
    /// Lays everything out in `folder`, which is empty, and puts the stand-ins where the program's
    /// commands look for ssh and rsync. Needs the own view; throws std::runtime_error with a
    /// reason.
    SoakWorld(std::string folder, std::uint64_t seed);
    ~SoakWorld();
    SoakWorld(const SoakWorld&) = delete;
    SoakWorld& operator=(const SoakWorld&) = delete;

    /// Starts the program with the quick clock; once.
    void start(const std::string& program, const std::string& quickClock);
    pid_t program() const { return fProgram; }

    /// The next line of either stream, cut after 4 KiB; nothing at the end, or when `seconds` have
    /// passed without one.
    std::optional<std::string> nextLine(int seconds);

    /// Asks for the orderly end and hands on what it still prints. The exit code; -1 when the
    /// program had to be killed or died by a signal.
    int stop(const std::function<void(const std::string&)>& line);

    /// Whether ssh and rsync are there; the files stay, what they need to run does not.
    void setToolsPresent(bool present);

    std::string logFolder() const { return fFolder + "/state/Kelvo"; }
    std::string recordFile() const { return fFolder + "/state/kelvo-mirror/passes.sqlite"; }
    /// A letter for each run of a stand-in.
    std::string drawn() const;

private:
    std::string fFolder;
    pid_t fProgram = -1;
    int fOutput = -1;
    std::string fPending;
    bool fCut = false;
};

} // namespace kelvo
