#include "app/launch.h"

#include "app/commands/profiles.h"
#include "app/reason.h"

#include <QLocale>

#ifdef __GLIBC__
#include <malloc.h>
#endif
#include <sys/resource.h>

#include <algorithm>

namespace kelvo {
namespace {

constexpr int cExitUsage = 2;
constexpr int cExitTooFewFiles = 7;
/// What a window at work needs, with room to spare; below that something fails at any place.
constexpr rlim_t cOpenFiles = 64;

/// Whether passes are run.
bool worksOn(LaunchKind kind) {
    using enum LaunchKind;
    return kind == Once || kind == Headless || kind == Window;
}

/// Why the program cannot work here; empty when it can.
QString missingFiles() {
    rlimit files{};
    if (::getrlimit(RLIMIT_NOFILE, &files) != 0 || files.rlim_cur >= cOpenFiles)
        return {};
    files.rlim_cur = std::min(cOpenFiles, files.rlim_max);
    if (files.rlim_cur == cOpenFiles && ::setrlimit(RLIMIT_NOFILE, &files) == 0)
        return {};
    return QStringLiteral("it may have only %1 files open at a time here, and needs %2. Raise the "
                          "limit with 'ulimit -n %2' where it is started")
        .arg(files.rlim_cur)
        .arg(cOpenFiles);
}

} // namespace

CommandLine readCommandLine(int argc, char** argv) {
    QLocale::setDefault(QLocale::c());
    QStringList arguments;
    for (int i = 0; i < argc; ++i)
        arguments.append(QString::fromLocal8Bit(argv[i]));
    return parseCommandLine(arguments);
}

std::optional<int> refused(const CommandLine& line) {
    if (const QString missing = missingFiles(); !missing.isEmpty() && worksOn(line.kind))
        return printReason(missing, cExitTooFewFiles);
    if (needsProfile(line) && !isThere(line.profile))
        return printReason(QStringLiteral("there is no profile %1; 'kelvo-mirror --profiles' lists "
                                          "those there are")
                               .arg(line.profile.name),
                           cExitUsage);
    if (line.kind != LaunchKind::Refuse)
        return {};
    std::fputs(qPrintable(line.message), stderr);
    return cExitUsage;
}

// It would learn from the first flood of a command's output to keep such buffers in its heap for
// good; with a fixed bound each goes back to the system as soon as it is done with. The threads,
// which mostly wait, share one heap instead of having one each.
void keepMemorySmall() {
#ifdef __GLIBC__
    constexpr int cLarge = 256 * 1024;
    ::mallopt(M_MMAP_THRESHOLD, cLarge);
    ::mallopt(M_TRIM_THRESHOLD, cLarge);
    ::mallopt(M_ARENA_MAX, 1);
#endif
}

void giveMemoryBack() {
#ifdef __GLIBC__
    ::malloc_trim(0);
#endif
}

} // namespace kelvo
