#include "starter/own_module.h"

#include <dlfcn.h>
#include <sys/stat.h>
#include <unistd.h>

#include <cerrno>
#include <cstdio>
#include <cstring>

namespace kelvo {
namespace {

/// Whether everybody who can write what `entry` describes can write what `program` does as well.
bool isAsSafeAs(const struct stat& program, const struct stat& entry) {
    const bool isOwn =
        entry.st_uid == program.st_uid || entry.st_uid == 0 || entry.st_uid == ::geteuid();
    const mode_t others = entry.st_mode & (S_IWGRP | S_IWOTH);
    const bool sameGroup = (others & S_IWGRP) == 0 || entry.st_gid == program.st_gid;
    return isOwn && sameGroup && (others & ~program.st_mode) == 0;
}

OwnModule without(OwnModule::Fault fault, const char* detail) {
    OwnModule module{.fault = fault};
    (void)std::snprintf(module.detail, sizeof module.detail, "%s", detail);
    return module;
}

/// Cuts the last name and the slash before it off `path`; false when there is none.
bool goUp(char* path) {
    char* const slash = std::strrchr(path, '/');
    if (slash)
        *slash = '\0';
    return slash != nullptr;
}

} // namespace

OwnModule loadOwnModule(const char* file, const char* function) {
    using enum OwnModule::Fault;
    char top[PATH_MAX] = {};
    if (::readlink("/proc/self/exe", top, sizeof top - 1) < 0)
        return without(Unloadable, std::strerror(errno));
    char folder[PATH_MAX + 32];
    char path[sizeof folder + 32];
    if (!goUp(top) || !goUp(top))
        return without(Missing, std::strerror(ENOENT));
    (void)std::snprintf(folder, sizeof folder, "%s/lib/kelvo-mirror", top);
    (void)std::snprintf(path, sizeof path, "%s/%s", folder, file);
    struct stat ours {};
    struct stat place {};
    struct stat module {};
    if (::stat("/proc/self/exe", &ours) != 0 || ::stat(folder, &place) != 0 ||
        ::stat(path, &module) != 0)
        return without(errno == ENOENT ? Missing : Unloadable, std::strerror(errno));
    if (!isAsSafeAs(ours, place) || !isAsSafeAs(ours, module))
        return without(Unsafe, path);
    // It was linked with the way of binding that it wants.
    void* const handle = ::dlopen(path, RTLD_LAZY | RTLD_LOCAL);
    void* const found = handle ? ::dlsym(handle, function) : nullptr;
    if (!found)
        return without(Unloadable, ::dlerror());
    return {.function = found};
}

} // namespace kelvo
