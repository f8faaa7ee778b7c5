#include "app/own_module.h"

#include "support/system_error_text.h"

#include <dlfcn.h>
#include <link.h>
#ifdef __GLIBC__
#include <malloc.h>
#endif
#include <sys/mman.h>
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

OwnModule without(OwnModule::Fault fault, const QString& detail) {
    return {.fault = fault, .detail = detail};
}

} // namespace

OwnModule loadOwnModule(const char* file, const char* function) {
    using enum OwnModule::Fault;
    std::error_code unknown;
    const fs::path program = fs::read_symlink("/proc/self/exe", unknown);
    const fs::path folder = program.parent_path().parent_path() / "lib/kelvo-mirror";
    const fs::path path = folder / file;
    struct stat ours {};
    struct stat place {};
    struct stat module {};
    if (unknown || ::stat("/proc/self/exe", &ours) != 0 || ::stat(folder.c_str(), &place) != 0 ||
        ::stat(path.c_str(), &module) != 0)
        return without(!unknown && errno == ENOENT ? Missing : Unloadable, systemErrorText(errno));
    if (!isAsSafeAs(ours, place) || !isAsSafeAs(ours, module))
        return without(Unsafe, QString::fromLocal8Bit(path.c_str()));
    // It was linked with the way of binding that it wants.
    void* const handle = ::dlopen(path.c_str(), RTLD_LAZY | RTLD_LOCAL);
    void* const found = handle ? ::dlsym(handle, function) : nullptr;
    if (!found)
        return without(Unloadable, QString::fromLocal8Bit(::dlerror()));
    return {.function = found};
}

void giveBackStart() {
    const auto giveBack = [](dl_phdr_info* program, std::size_t, void*) {
        const auto page = static_cast<ElfW(Addr)>(::sysconf(_SC_PAGESIZE));
        for (ElfW(Half) i = 0; i < program->dlpi_phnum; ++i) {
            const ElfW(Phdr)& part = program->dlpi_phdr[i];
            if (part.p_type != PT_LOAD || (part.p_flags & PF_W) != 0)
                continue;
            const ElfW(Addr) begin = program->dlpi_addr + part.p_vaddr;
            const ElfW(Addr) first = begin & ~(page - 1);
            (void)::madvise(reinterpret_cast<void*>(first), begin + part.p_memsz - first, // NOLINT
                            MADV_DONTNEED);
        }
        return 1; // The program comes first; its libraries stay.
    };
    ::dl_iterate_phdr(giveBack, nullptr);
#ifdef __GLIBC__
    ::malloc_trim(0);
#endif
}

} // namespace kelvo
