#include "soak/soak_world.h"

#include <fcntl.h>
#include <poll.h>
#include <sched.h>
#include <signal.h>
#include <spawn.h>
#include <sys/mount.h>
#include <sys/stat.h>
#include <sys/wait.h>
#include <unistd.h>

#include <array>
#include <cerrno>
#include <cstring>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <stdexcept>
#include <utility>

namespace kelvo {
namespace {

constexpr std::size_t cLongestLine = 4096;
constexpr int cStopSeconds = 20;

void writeFile(const std::string& path, const std::string& text) {
    std::ofstream(path) << text;
}

std::string settings(const std::string& folder) {
    return "<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n<plist version=\"1.0\"><dict>\n"
           "<key>prefAutoStartScanOnLaunch</key><true/>\n"
           "<key>prefRsyncWithSSH</key><true/>\n"
           "<key>prefRemoteUsername</key><string>mediauser</string>\n"
           "<key>prefRemoteBonjourName</key><string>Remote-Mac.local</string>\n"
           "<key>keepConnection</key><false/>\n" // a stand-in shares nothing
           "<key>prefRemotePath</key><string>Movies</string>\n"
           "<key>prefDelayBetweenScans</key><real>0.001</real>\n"
           "<key>prefPath2</key><string>" +
           folder + "/home/Incoming</string>\n</dict></plist>\n";
}

void putInPlace(const std::string& folder, const std::string& tool) {
    const std::string file = folder + "/" + tool;
    // What the kernel is told to run is looked up anew each time, so that it can be taken away.
    writeFile(file, "#!" + folder + "/stand-in " + tool + "\n");
    ::chmod(file.c_str(), 0755);
    const std::string place = "/usr/bin/" + tool;
    if (::mount(file.c_str(), place.c_str(), nullptr, MS_BIND, nullptr) != 0)
        throw std::runtime_error("cannot stand in for " + place + ": " + std::strerror(errno));
}

} // namespace

std::string enterOwnView() {
    const uid_t user = ::getuid();
    const int others = user == 0 ? 0 : CLONE_NEWUSER;
    if (::unshare(CLONE_NEWNS | others) != 0)
        return std::string("no mount namespace: ") + std::strerror(errno);
    if (others != 0) {
        writeFile("/proc/self/setgroups", "deny");
        writeFile("/proc/self/uid_map", "0 " + std::to_string(user) + " 1\n");
    }
    if (::mount("none", "/", nullptr, MS_REC | MS_PRIVATE, nullptr) != 0)
        return std::string("mounts would be seen outside: ") + std::strerror(errno);
    return {};
}

SoakWorld::SoakWorld(std::string folder, std::uint64_t seed) : fFolder(std::move(folder)) {
    for (const char* name : {"home/.ssh", "home/Incoming", "config/kelvo-mirror", "state", "run"})
        std::filesystem::create_directories(fFolder + "/" + name);
    ::chmod((fFolder + "/run").c_str(), 0700);
    writeFile(fFolder + "/home/.ssh/id_kelvoRsync", "a key\n");
    writeFile(fFolder + "/seed", std::to_string(seed) + "\n");
    writeFile(fFolder + "/config/kelvo-mirror/preferences.plist", settings(fFolder));
    const auto self = std::filesystem::read_symlink("/proc/self/exe");
    std::filesystem::create_symlink(self.parent_path() / "soak_stand_in", fFolder + "/kept");
    setToolsPresent(true);
    putInPlace(fFolder, "ssh");
    putInPlace(fFolder, "rsync");
}

SoakWorld::~SoakWorld() {
    if (fProgram > 0) {
        ::kill(fProgram, SIGKILL);
        ::waitpid(fProgram, nullptr, 0);
    }
    ::close(fOutput);
}

void SoakWorld::start(const std::string& program, const std::string& quickClock) {
    std::array<int, 2> ends{};
    if (::pipe2(ends.data(), O_CLOEXEC) != 0)
        throw std::runtime_error("no pipe");
    std::vector<std::string> variables = {"HOME=" + fFolder + "/home",
                                          "XDG_CONFIG_HOME=" + fFolder + "/config",
                                          "XDG_STATE_HOME=" + fFolder + "/state",
                                          "XDG_RUNTIME_DIR=" + fFolder + "/run",
                                          "TMPDIR=" + fFolder + "/run",
                                          "PATH=/usr/bin:/bin",
                                          "LC_ALL=C.UTF-8",
                                          "LD_PRELOAD=" + quickClock};
    std::vector<char*> environment;
    for (std::string& variable : variables)
        environment.push_back(variable.data());
    environment.push_back(nullptr);
    std::string name = program;
    std::string option = "--headless";
    std::array<char*, 3> arguments{name.data(), option.data(), nullptr};

    posix_spawn_file_actions_t actions;
    ::posix_spawn_file_actions_init(&actions);
    ::posix_spawn_file_actions_addopen(&actions, 0, "/dev/null", O_RDONLY, 0);
    ::posix_spawn_file_actions_adddup2(&actions, ends[1], 1);
    ::posix_spawn_file_actions_adddup2(&actions, ends[1], 2);
    const int failure = ::posix_spawn(&fProgram, name.c_str(), &actions, nullptr, arguments.data(),
                                      environment.data());
    ::posix_spawn_file_actions_destroy(&actions);
    ::close(ends[1]);
    fOutput = ends[0];
    if (failure != 0)
        throw std::runtime_error("cannot start " + program + ": " + std::strerror(failure));
}

std::optional<std::string> SoakWorld::nextLine(int seconds) {
    for (;;) {
        if (const auto end = fPending.find('\n'); end != std::string::npos) {
            std::string line = fPending.substr(0, end);
            fPending.erase(0, end + 1);
            if (!std::exchange(fCut, false))
                return line;
            continue; // the rest of a line that was handed out before
        }
        if (fPending.size() > cLongestLine) {
            std::string line = std::exchange(fPending, {});
            if (!std::exchange(fCut, true))
                return line;
            continue;
        }
        pollfd watched{fOutput, POLLIN, 0};
        std::array<char, 65536> room; // NOLINT: filled by read
        if (::poll(&watched, 1, seconds * 1000) <= 0)
            return std::nullopt;
        const ssize_t size = ::read(fOutput, room.data(), room.size());
        if (size <= 0)
            return std::nullopt;
        fPending.append(room.data(), static_cast<std::size_t>(size));
    }
}

int SoakWorld::stop(const std::function<void(const std::string&)>& line) {
    ::kill(fProgram, SIGTERM);
    while (const auto last = nextLine(cStopSeconds))
        line(*last);
    int status = 0;
    pid_t ended = 0;
    for (int tries = 0; ended == 0 && tries < cStopSeconds * 100; ++tries) {
        ended = ::waitpid(fProgram, &status, WNOHANG);
        if (ended == 0)
            ::poll(nullptr, 0, 10);
    }
    if (ended != fProgram) {
        ::kill(fProgram, SIGKILL);
        ::waitpid(fProgram, &status, 0);
    }
    fProgram = -1;
    return ended > 0 && WIFEXITED(status) ? WEXITSTATUS(status) : -1;
}

void SoakWorld::setToolsPresent(bool present) {
    const std::string link = fFolder + "/stand-in";
    std::filesystem::remove(link);
    if (present)
        std::filesystem::copy_symlink(fFolder + "/kept", link);
}

std::string SoakWorld::drawn() const {
    std::ifstream in(fFolder + "/drawn");
    return {std::istreambuf_iterator<char>(in), {}};
}

} // namespace kelvo
