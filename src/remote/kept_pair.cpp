#include "remote/kept_pair.h"

#include <tuple>
#include <utility>

namespace kelvo {
namespace {

QString publicHalf(const QString& keyPath) {
    return keyPath + u".pub";
}

} // namespace

bool isHalfThere(const FileManager& files, const QString& keyPath) {
    return files.fileExistsAtPath(keyPath) || files.fileExistsAtPath(publicHalf(keyPath));
}

KeptPair::KeptPair(FileManager& files, QString keyPath)
    : fFiles(files), fKeyPath(std::move(keyPath)) {}

FileFault KeptPair::keep(const QDateTime& when) {
    const bool isPrivateThere = fFiles.fileExistsAtPath(fKeyPath);
    const bool isPublicThere = fFiles.fileExistsAtPath(publicHalf(fKeyPath));
    if (!isPrivateThere && !isPublicThere)
        return {};
    const QString path =
        freePath(when.toLocalTime().toString(QStringLiteral("yyyy-MM-ddTHH-mm-ss")));
    if (isPrivateThere) {
        if (FileFault fault = fFiles.keepUnder(fKeyPath, path))
            return fault;
    }
    if (isPublicThere) {
        if (FileFault fault = fFiles.keepUnder(publicHalf(fKeyPath), publicHalf(path))) {
            if (isPrivateThere)
                (void)fFiles.removeItem(path);
            return fault;
        }
    }
    fPath = path;
    fPrivateKept = isPrivateThere;
    fPublicKept = isPublicThere;
    return {};
}

bool KeptPair::isMissing() const {
    return !fPath.isEmpty() && !isHalfThere(fFiles, fKeyPath);
}

FileFault KeptPair::putBack() {
    for (const auto& [wasKept, from, to] :
         {std::tuple(fPrivateKept, fPath, fKeyPath),
          std::tuple(fPublicKept, publicHalf(fPath), publicHalf(fKeyPath))}) {
        if (!wasKept)
            continue;
        if (FileFault fault = fFiles.keepUnder(from, to))
            return fault;
        (void)fFiles.removeItem(from);
    }
    return {};
}

QString KeptPair::freePath(const QString& stamp) const {
    const QString first = fKeyPath + u'-' + stamp;
    QString path = first;
    for (int number = 2; isHalfThere(fFiles, path); ++number)
        path = first + u'-' + QString::number(number);
    return path;
}

} // namespace kelvo
