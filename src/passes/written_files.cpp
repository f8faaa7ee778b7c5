#include "passes/written_files.h"

#include "support/plain_line.h"

#include <algorithm>

namespace kelvo {

void WrittenFiles::saw(const std::optional<FileBeingWritten>& file, double now) {
    fLooked = now;
    const QByteArray path = file ? file->path : QByteArray();
    if (path != fPath) {
        if (!fPath.isEmpty()) {
            ++fFilesDone;
            fBytesDone += fSize;
        }
        fPath = path;
        fSize = 0;
    }
    if (!file)
        return;
    fSawAny = true;
    fSize = std::max(fSize, file->size);
    fSpeed.reached(fBytesDone + fSize, now);
}

void WrittenFiles::addTo(PassProgress& progress, double now) const {
    if (!fSawAny)
        return;
    if (!fPath.isEmpty())
        progress.file = withVisibleControls(QString::fromUtf8(fPath));
    progress.filesDone = std::max(progress.filesDone.value_or(0), fFilesDone);
    progress.bytesDone = fBytesDone + fSize;
    progress.bytesPerSecond = fSpeed.at(now);
}

} // namespace kelvo
