#include "support/descendants.h"

#include "support/wait_until.h"

#include <signal.h>
#include <sys/prctl.h>
#include <sys/wait.h>
#include <unistd.h>

#include <algorithm>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <sstream>

namespace kelvo {
namespace {

namespace fs = std::filesystem;

std::vector<Descendant> allProcesses() {
    std::vector<Descendant> found;
    std::error_code failed;
    for (const auto& entry : fs::directory_iterator("/proc", failed)) {
        const std::string number = entry.path().filename();
        if (!std::ranges::all_of(number, [](char c) { return c >= '0' && c <= '9'; }))
            continue;
        std::ifstream file(entry.path() / "stat");
        std::string text; // Stays empty for a process that goes while it is read.
        std::getline(file, text, '\0');
        const auto open = text.find('(');
        const auto close = text.rfind(')');
        if (open == std::string::npos || close == std::string::npos)
            continue;
        std::istringstream rest(text.substr(close + 1));
        char state = 'X';
        pid_t parent = 0;
        rest >> state >> parent;
        found.push_back({std::stoi(number), parent, text.substr(open + 1, close - open - 1),
                         state == 'Z' || state == 'X'});
    }
    return found;
}

void reapWhatHasEnded() {
    while (::waitpid(-1, nullptr, WNOHANG) > 0) {
    }
}

} // namespace

void adoptOrphans() {
    ::prctl(PR_SET_CHILD_SUBREAPER, 1);
}

std::vector<Descendant> descendants() {
    const std::vector<Descendant> all = allProcesses();
    std::vector<Descendant> found;
    std::vector<pid_t> parents{::getpid()};
    for (std::size_t next = 0; next < parents.size(); ++next) {
        for (const Descendant& each : all) {
            if (each.parent == parents[next]) {
                found.push_back(each);
                parents.push_back(each.pid);
            }
        }
    }
    return found;
}

std::optional<pid_t> livingChild(pid_t parent, const std::string& name) {
    for (const Descendant& each : descendants()) {
        if (each.parent == parent && each.name == name && !each.ended)
            return each.pid;
    }
    return std::nullopt;
}

std::optional<int> statusOf(pid_t pid) {
    int status = 0;
    if (!waitUntil([&] { return ::waitpid(pid, &status, WNOHANG) == pid; }))
        return std::nullopt;
    return status;
}

bool allEnd() {
    return waitUntil([] {
        reapWhatHasEnded();
        return descendants().empty();
    });
}

void endAllDescendants(const std::string& first) {
    (void)waitUntil([&] {
        const std::vector<Descendant> all = descendants();
        const bool haveFirst = std::ranges::any_of(
            all, [&](const Descendant& each) { return each.name == first && !each.ended; });
        for (const Descendant& each : all) {
            if (!each.ended && (!haveFirst || each.name == first))
                ::kill(each.pid, SIGKILL);
        }
        reapWhatHasEnded();
        return descendants().empty();
    });
}

} // namespace kelvo
