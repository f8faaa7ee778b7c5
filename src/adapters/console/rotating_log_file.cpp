#include "adapters/console/rotating_log_file.h"

#include "adapters/system/private_places.h"
#include "support/plain_line.h"

#include <spdlog/details/log_msg.h>
#include <spdlog/sinks/rotating_file_sink.h>

#include <fcntl.h>
#include <pwd.h>
#include <sys/stat.h>
#include <unistd.h>

#include <cstdio>
#include <cstdlib>
#include <exception>
#include <string_view>

namespace kelvo {
namespace {

using namespace std::chrono_literals;

constexpr std::size_t cOlderFiles = 2;
constexpr auto cPause = 5s;
constexpr mode_t cFileMode = S_IRUSR | S_IWUSR;

void makePrivate(int fd) {
    struct stat status {};
    if (::fstat(fd, &status) == 0 && S_ISREG(status.st_mode))
        (void)::fchmod(fd, cFileMode);
    (void)::fcntl(fd, F_SETFD, FD_CLOEXEC);
}

/// The file is there, and private, before the logging library opens it: also after a rotation.
spdlog::file_event_handlers privateFiles() {
    spdlog::file_event_handlers handlers;
    handlers.before_open = [](const spdlog::filename_t& name) {
        const int fd = ::open(name.c_str(), O_WRONLY | O_CREAT | O_CLOEXEC | O_NOCTTY, cFileMode);
        if (fd >= 0)
            ::close(fd);
    };
    handlers.after_open = [](const spdlog::filename_t&, std::FILE* file) {
        makePrivate(::fileno(file));
    };
    return handlers;
}

std::string homeFolder() {
    if (const char* const home = std::getenv("HOME"); home != nullptr && *home == '/') // NOLINT
        return home;
    const passwd* const user = ::getpwuid(::getuid()); // NOLINT
    return user != nullptr ? user->pw_dir : "";
}

} // namespace

RotatingLogFile::RotatingLogFile(std::size_t fileSize) : fFileSize(fileSize) {}

RotatingLogFile::~RotatingLogFile() = default;

QString RotatingLogFile::defaultLogFileWithinSubdirectory(const QString& subdirectory) const {
    const char* const state = std::getenv("XDG_STATE_HOME"); // NOLINT
    const std::string base =
        state != nullptr && *state == '/' ? std::string(state) : homeFolder() + "/.local/state";
    return QString::fromStdString(base) + u'/' + subdirectory + u"/kelvo-mirror.log";
}

bool RotatingLogFile::setLogFile(const QString& path) {
    const std::lock_guard lock(fMutex);
    fSink.reset();
    fPath = path.toStdString();
    return !fPath.empty() && open();
}

void RotatingLogFile::append(const QStringList& pieces) {
    const std::string line = logLine(pieces).toStdString();
    const std::lock_guard lock(fMutex);
    if (fPath.empty() || (!fSink && (std::chrono::steady_clock::now() < fNextTry || !open())))
        return;
    try {
        fSink->log(spdlog::details::log_msg(spdlog::string_view_t(), spdlog::level::info, line));
        fSink->flush();
    } catch (const std::exception&) {
        // A sink that has failed may have lost its file: begin again with a new one.
        fSink.reset();
        fNextTry = std::chrono::steady_clock::now() + cPause;
    }
}

bool RotatingLogFile::open() {
    fNextTry = std::chrono::steady_clock::now() + cPause;
    try {
        (void)makePrivateFolders(fPath.substr(0, fPath.rfind('/')));
        fSink = std::make_unique<spdlog::sinks::rotating_file_sink_st>(
            fPath, fFileSize, cOlderFiles, false, privateFiles());
        fSink->set_pattern("%Y-%m-%d %H:%M:%S.%e %v");
        return true;
    } catch (const std::exception&) {
        fSink.reset();
        return false;
    }
}

} // namespace kelvo
