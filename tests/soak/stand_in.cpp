// Stands in for ssh and rsync: answers well, or in one of the ways in which tools go wrong.
//   stand-in TOOL …    in the folder of this file: "seed" is read, "drawn" grows by a letter a run
// What a run does follows from the seed and the number of the run alone.
#include <fcntl.h>
#include <signal.h>
#include <sys/stat.h>
#include <unistd.h>

#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <ctime>
#include <fstream>
#include <string>
#include <string_view>

namespace {

/// What may happen, and how often in a thousand runs; the rest goes well.
struct Fault {
    char letter;
    int often;
};
constexpr Fault cFaults[] = {
    {'h', 8},  // hangs
    {'f', 10}, // floods
    {'g', 40}, // garbage bytes
    {'k', 30}, // killed by a signal
    {'s', 40}, // slow
    {'e', 40}, // says what is wrong and fails
    {'n', 20}, // says nothing
    {'c', 15}, // leaves a child that holds the output a little longer
    {'d', 15}, // leaves a child that has left everything
    {'t', 20}, // talks on the error stream
};

/// A good mixture of the bits (the finalizer of splitmix64).
std::uint64_t mixed(std::uint64_t value) {
    value += 0x9e3779b97f4a7c15u;
    value = (value ^ (value >> 30)) * 0xbf58476d1ce4e5b9u;
    value = (value ^ (value >> 27)) * 0x94d049bb133111ebu;
    return value ^ (value >> 31);
}

class Dice {
public:
    explicit Dice(std::uint64_t state) : fState(state) {}
    std::uint64_t next() { return fState = mixed(fState); }
    int below(int limit) { return static_cast<int>(next() % static_cast<std::uint64_t>(limit)); }

private:
    std::uint64_t fState;
};

void sleepFor(double seconds) {
    timespec span{
        static_cast<time_t>(seconds),
        static_cast<long>((seconds - static_cast<double>(static_cast<time_t>(seconds))) * 1e9)};
    ::nanosleep(&span, nullptr);
}

/// Runs follow each other, so the length of the file is the number of this one.
std::uint64_t nextRun(const std::string& folder) {
    struct stat drawn {};
    return ::stat((folder + "/drawn").c_str(), &drawn) == 0
               ? static_cast<std::uint64_t>(drawn.st_size)
               : 0;
}

void note(const std::string& folder, char letter) {
    const int file =
        ::open((folder + "/drawn").c_str(), O_WRONLY | O_APPEND | O_CREAT | O_CLOEXEC, 0600);
    if (file < 0 || ::write(file, &letter, 1) != 1)
        std::abort();
}

char draw(Dice& dice) {
    int number = dice.below(1000);
    for (const Fault& fault : cFaults) {
        if (number < fault.often)
            return fault.letter;
        number -= fault.often;
    }
    return '.';
}

void write(int stream, std::string_view text) {
    while (!text.empty()) {
        const ssize_t size = ::write(stream, text.data(), text.size());
        if (size <= 0)
            std::_Exit(9); // the reader is gone
        text.remove_prefix(static_cast<std::size_t>(size));
    }
}

void sayGood(bool asked) {
    if (asked)
        write(1, "mediauser\n");
    else
        write(1, "Features/one.mov\n\nNumber of regular files transferred: 1\n"
                 "Total transferred file size: 40,000 bytes\n");
}

void leaveChild(double seconds, bool away) {
    if (::fork() != 0)
        return;
    if (away) {
        ::setsid();
        for (int stream = 0; stream < 3; ++stream)
            ::close(stream);
    }
    sleepFor(seconds);
    std::_Exit(0);
}

int act(char letter, bool asked, Dice& dice) {
    constexpr const char* cSshSays[] = {
        "ssh: Could not resolve hostname remote-mac.local: Name or service not known\n",
        "ssh: connect to host remote-mac.local port 22: Connection refused\n",
        "Permission denied (publickey,password).\n",
        "Warning: Identity file /x not accessible: No such file or directory.\n"};
    constexpr const char* cRsyncSays[] = {
        "rsync: connection unexpectedly closed (12 bytes received so far) [Receiver]\n",
        "rsync: [receiver] write failed on \"x\": No space left on device (28)\n",
        "rsync: change_dir \"/Movies\" failed: No such file or directory (2)\n",
        "file has vanished: \"/Movies/a.mov\"\n"};
    switch (letter) {
    case 'h':
        // A check that hangs is cut off; nobody cuts a transfer, so it must come to its own end.
        for (int turn = 0; asked || turn < 20; ++turn)
            sleepFor(1);
        return 30;
    case 'f': {
        std::string block(1 << 16, 'x');
        for (std::size_t at = 99; at < block.size(); at += 100)
            block[at] = '\n';
        for (int i = 0, blocks = 16 + dice.below(112); i < blocks; ++i)
            write(1, block);
        return 0;
    }
    case 'g': {
        std::string bytes(static_cast<std::size_t>(1 + dice.below(5000)), '\0');
        for (char& byte : bytes)
            byte = static_cast<char>(dice.below(256));
        write(1, bytes);
        return dice.below(256);
    }
    case 'k': {
        constexpr int cSignals[] = {SIGKILL, SIGSEGV, SIGTERM, SIGABRT, SIGPIPE};
        write(1, "so far");
        ::raise(cSignals[dice.below(5)]);
        return 1;
    }
    case 's':
        sleepFor(0.1 + 0.1 * dice.below(30));
        break;
    case 'e':
        write(1, (asked ? cSshSays : cRsyncSays)[dice.below(4)]);
        return asked ? 255 : 23;
    case 'n':
        return 0;
    case 'c':
        leaveChild(0.5, false);
        break;
    case 'd':
        leaveChild(20, true);
        break;
    case 't':
        write(2, "debug1: talks\n\x1b[31m and talks\n");
        break;
    default:
        break;
    }
    sayGood(asked);
    return 0;
}

} // namespace

int main(int count, char** arguments) {
    const std::string self = arguments[0];
    const std::string folder = self.substr(0, self.rfind('/'));
    const std::string_view tool = count > 1 ? arguments[1] : "";
    const std::string_view last = count > 2 ? arguments[count - 1] : "";
    const bool asked = tool == "ssh" && last == "whoami";
    if (!asked && (last == "-V" || last == "--version")) {
        std::puts("OpenSSH_9.2p1 stand-in");
        return 0;
    }
    std::uint64_t seed = 0;
    std::ifstream(folder + "/seed") >> seed;
    Dice dice(mixed(seed) ^ mixed(nextRun(folder) + 1));
    const char letter = draw(dice);
    note(folder, letter);
    return act(letter, asked, dice);
}
