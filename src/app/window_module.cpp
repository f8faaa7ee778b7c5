#include "app/window_module.h"

#include "support/system_error_text.h"

#include <dlfcn.h>
#include <sys/stat.h>
#include <unistd.h>

#include <cerrno>
#include <filesystem>

namespace kelvo {
namespace {

namespace fs = std::filesystem;

/// Whether everybody who can write what `entry` describes can write what `program` does as well.
bool isAsSafeAs(const struct stat& program, const struct stat& entry) {
    const bool isOwn =
        entry.st_uid == program.st_uid || entry.st_uid == 0 || entry.st_uid == ::geteuid();
    const mode_t others = entry.st_mode & (S_IWGRP | S_IWOTH);
    const bool sameGroup = (others & S_IWGRP) == 0 || entry.st_gid == program.st_gid;
    return isOwn && sameGroup && (others & ~program.st_mode) == 0;
}

WindowModule without(const QString& trouble) {
    return {.trouble = trouble};
}

} // namespace

WindowModule loadWindowModule() {
    std::error_code unknown;
    const fs::path program = fs::read_symlink("/proc/self/exe", unknown);
    const fs::path folder = program.parent_path().parent_path() / "lib/kelvo-mirror";
    const fs::path file = folder / "window.so";
    struct stat ours {};
    struct stat place {};
    struct stat module {};
    if (unknown || ::stat("/proc/self/exe", &ours) != 0 || ::stat(folder.c_str(), &place) != 0 ||
        ::stat(file.c_str(), &module) != 0)
        return without(!unknown && errno == ENOENT
                           ? QStringLiteral("the window is not installed; its package is "
                                            "kelvo-mirror-window")
                           : QString(u"the window cannot be loaded: " + systemErrorText(errno)));
    if (!isAsSafeAs(ours, place) || !isAsSafeAs(ours, module))
        return without(u"the window is not loaded, for other users can write it: " +
                       QString::fromLocal8Bit(file.c_str()));
    // It was linked with the way of binding that it wants.
    void* const handle = ::dlopen(file.c_str(), RTLD_LAZY | RTLD_LOCAL);
    void* const show = handle ? ::dlsym(handle, cShowWindow) : nullptr;
    if (!show)
        return without(u"the window cannot be loaded: " + QString::fromLocal8Bit(::dlerror()));
    return {.show = reinterpret_cast<ShowWindow*>(show)};
}

} // namespace kelvo
