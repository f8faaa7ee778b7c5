#include "adapters/posix/rotating_log_file.h"

#include "adapters/posix/local_file_manager.h"
#include "adapters/posix/visible_text.h"

#include <spdlog/logger.h>
#include <spdlog/sinks/rotating_file_sink.h>

#include <sys/stat.h>

#include <cstdlib>
#include <filesystem>

namespace kelvo {
namespace {

constexpr std::size_t cFileSize = 5 * 1024 * 1024;
constexpr std::size_t cOlderFiles = 2;
constexpr mode_t cPrivateFile = 0600;

QString stateFolder() {
    const char* variable = std::getenv("XDG_STATE_HOME"); // NOLINT(concurrency-mt-unsafe)
    if (variable && *variable == '/')
        return QString::fromLocal8Bit(variable);
    return LocalFileManager().homeDirectory() + QStringLiteral("/.local/state");
}

/// Makes the folder, private where it is new; the caller finds out whether it can be written to.
void makeFolder(const std::filesystem::path& folder) {
    std::error_code error;
    if (std::filesystem::create_directories(folder, error))
        std::filesystem::permissions(folder, std::filesystem::perms::owner_all, error);
}

} // namespace

RotatingLogFile::RotatingLogFile() = default;
RotatingLogFile::~RotatingLogFile() = default;

QString RotatingLogFile::defaultLogFileWithinSubdirectory(const QString& subdirectory) const {
    return stateFolder() + u'/' + subdirectory + QStringLiteral("/kelvo-mirror.log");
}

bool RotatingLogFile::setLogFile(const QString& path) {
    const std::string file = path.toLocal8Bit().toStdString();
    std::shared_ptr<spdlog::logger> logger;
    try {
        makeFolder(std::filesystem::path(file).parent_path());
        spdlog::file_event_handlers handlers;
        handlers.after_open = [](const spdlog::filename_t&, std::FILE* opened) {
            ::fchmod(::fileno(opened), cPrivateFile);
        };
        auto sink = std::make_shared<spdlog::sinks::rotating_file_sink_mt>(
            file, cFileSize, cOlderFiles, false, handlers);
        logger = std::make_shared<spdlog::logger>("kelvo-mirror", std::move(sink));
        logger->set_pattern("%Y-%m-%d %H:%M:%S.%e %v");
        logger->flush_on(spdlog::level::info);
        logger->set_error_handler([](const std::string&) {}); // a full disk is nobody's business
    } catch (const std::exception&) {
        return false;
    }
    const std::lock_guard lock(fMutex);
    fLogger = std::move(logger);
    return true;
}

void RotatingLogFile::append(const QString& line) {
    const std::lock_guard lock(fMutex);
    if (!fLogger)
        return;
    QString shown = withVisibleControls(line);
    shown.replace(QStringLiteral("\n"), QStringLiteral("\n\t"));
    const QByteArray bytes = shown.toUtf8();
    fLogger->log(spdlog::level::info,
                 spdlog::string_view_t(bytes.constData(), static_cast<std::size_t>(bytes.size())));
}

} // namespace kelvo
