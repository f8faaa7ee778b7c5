#include "adapters/system/local_checklist_probe.h"

#include <sys/stat.h>
#include <unistd.h>

namespace kelvo {
namespace {

/// 0 for a path that is none.
mode_t kindOf(const QString& path) {
    struct stat entry {};
    if (path.isEmpty() || path.contains(QChar(u'\0')) ||
        ::stat(path.toLocal8Bit().constData(), &entry) != 0)
        return 0;
    return entry.st_mode & S_IFMT;
}

bool allows(const QString& path, int access) {
    return ::access(path.toLocal8Bit().constData(), access) == 0;
}

} // namespace

bool LocalChecklistProbe::isProgram(const QString& path) const {
    return kindOf(path) == S_IFREG && allows(path, X_OK);
}

bool LocalChecklistProbe::isWritableFolder(const QString& path) const {
    return kindOf(path) == S_IFDIR && allows(path, W_OK | X_OK);
}

} // namespace kelvo
