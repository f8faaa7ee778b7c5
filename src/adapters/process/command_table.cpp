#include "adapters/process/command_table.h"

#include "adapters/process/command_processes.h"
#include "adapters/process/shell_child.h"

#include <sys/mman.h>

#include <algorithm>
#include <cstdint>

namespace kelvo {
namespace {

using Row = std::array<std::uint64_t, 4>;

void write(const UniqueFd& file, std::ptrdiff_t place, const Row& row) {
    (void)!::pwrite(file.get(), row.data(), sizeof row,
                    static_cast<off_t>(place) * static_cast<off_t>(sizeof row));
}

} // namespace

CommandTable::CommandTable() : fFile(::memfd_create("commands", MFD_CLOEXEC)) {
    if (::ftruncate(fFile.get(), static_cast<off_t>(fSessions.size() * sizeof(Row))) != 0)
        fFile.reset();
}

void CommandTable::add(const ShellChild& child) {
    const auto free = std::ranges::find(fSessions, 0);
    if (free == fSessions.end())
        return;
    *free = child.pid;
    write(fFile, free - fSessions.begin(),
          {static_cast<std::uint64_t>(child.pid), startOf(child.pid), child.pipes[0],
           child.pipes[1]});
}

void CommandTable::remove(pid_t session) {
    const auto found = std::ranges::find(fSessions, session);
    if (found == fSessions.end())
        return;
    *found = 0;
    write(fFile, found - fSessions.begin(), {});
}

} // namespace kelvo
