#include "soak/process_figures.h"

#include "adapters/process/command_processes.h"

#include <filesystem>
#include <fstream>
#include <sstream>

namespace kelvo {
namespace {

namespace fs = std::filesystem;

std::string placeOf(pid_t process) {
    return "/proc/" + std::to_string(process);
}

int entriesIn(const std::string& folder) {
    int count = 0;
    std::error_code gone;
    for (fs::directory_iterator entry(folder, gone), end; !gone && entry != end;
         entry.increment(gone))
        ++count;
    return count;
}

long kibibytesAfter(const std::string& file, const std::string& name) {
    std::ifstream in(file);
    for (std::string word; in >> word;) {
        long kibibytes = 0;
        if (word == name && in >> kibibytes)
            return kibibytes;
    }
    return 0;
}

/// State and parent stand behind the name, which is in brackets and may hold anything.
bool isZombieOf(pid_t parent, const fs::path& process) {
    std::ifstream in(process / "stat");
    std::string line;
    std::getline(in, line);
    const auto name = line.rfind(')');
    if (name == std::string::npos)
        return false;
    std::istringstream rest(line.substr(name + 1));
    char state = 0;
    pid_t itsParent = 0;
    return rest >> state >> itsParent && state == 'Z' && itsParent == parent;
}

int zombiesOf(pid_t parent) {
    int count = 0;
    std::error_code gone;
    for (const auto& entry : fs::directory_iterator("/proc", gone)) {
        const std::string name = entry.path().filename();
        if (name.find_first_not_of("0123456789") == std::string::npos)
            count += isZombieOf(parent, entry.path()) ? 1 : 0;
    }
    return count;
}

} // namespace

ProcessFigures figuresOf(pid_t process) {
    const std::string place = placeOf(process);
    return {kibibytesAfter(place + "/smaps_rollup", "Pss_Anon:"), entriesIn(place + "/fd"),
            entriesIn(place + "/task"), zombiesOf(process)};
}

int commandsLeftBy(pid_t program) {
    return static_cast<int>(livingProcesses({{}, commandMark(program)}).size());
}

long long bytesIn(const std::string& folder) {
    long long bytes = 0;
    std::error_code gone;
    for (const auto& entry : fs::directory_iterator(folder, gone)) {
        if (entry.is_regular_file(gone))
            bytes += static_cast<long long>(entry.file_size(gone));
    }
    return bytes;
}

} // namespace kelvo
