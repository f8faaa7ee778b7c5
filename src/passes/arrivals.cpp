#include "passes/arrivals.h"

#include "ports/file_manager.h"

#include <algorithm>
#include <array>
#include <cctype>
#include <iterator>

namespace kelvo {
namespace {

constexpr std::size_t cMostArrivals = 10'000;

/// The clock of a file system may be that much behind.
constexpr qint64 cClockLag = 20; // milliseconds

/// The earliest time, in milliseconds, that a file system tells of what changed at `began`.
qint64 earliestOf(const QDateTime& began) {
    return began.toMSecsSinceEpoch() - cClockLag;
}

/// A file system that counts whole seconds only tells an earlier time than it was.
bool changedSince(qint64 earliest, const QDateTime& changed) {
    const qint64 at = changed.toMSecsSinceEpoch();
    return at >= earliest || (at % 1000 == 0 && at / 1000 >= earliest / 1000);
}

/// Folders for unfinished files, ours and rsync's usual ones, and rsync's temporary files, such as
/// ".A Movie.mov.x7TQ0b".
bool isUnfinished(QByteArrayView name) {
    constexpr std::array<QByteArrayView, 3> cFolders = {".kelvo-partial", ".rsync-partial",
                                                        ".~tmp~"};
    constexpr qsizetype cSuffix = 7;
    if (std::ranges::count(cFolders, name) > 0)
        return true;
    if (name.size() <= cSuffix + 1 || name.front() != '.' || name[name.size() - cSuffix] != '.')
        return false;
    return std::ranges::all_of(name.last(cSuffix - 1), [](char c) {
        return std::isalnum(static_cast<unsigned char>(c)) != 0;
    });
}

} // namespace

std::vector<Arrival> arrivalsOf(const FileManager& files, const ArrivalSearch& search) {
    QByteArray folder = search.destination;
    if (!folder.startsWith('/'))
        return {};
    while (folder.size() > 1 && folder.endsWith('/'))
        folder.chop(1);

    const qint64 earliest = earliestOf(search.began);
    std::vector<FoundFile> found = files.filesBeneath(folder, search.names);
    if (search.unnamedToo) {
        const auto second = QDateTime::fromSecsSinceEpoch(earliest / 1000, Qt::UTC);
        std::ranges::move(files.filesChangedSince(folder, second, isUnfinished),
                          std::back_inserter(found));
    }
    std::erase_if(found, [&](const auto& file) { return !changedSince(earliest, file.changed); });
    std::ranges::sort(found, {}, &FoundFile::path);
    const auto samePath = [](const FoundFile& one, const FoundFile& other) {
        return one.path == other.path;
    };
    found.erase(std::unique(found.begin(), found.end(), samePath), found.end());
    std::ranges::stable_sort(found, {}, &FoundFile::changed);
    found.resize(std::min(found.size(), cMostArrivals));

    std::vector<Arrival> arrivals;
    arrivals.reserve(found.size());
    for (FoundFile& file : found)
        arrivals.push_back(
            {.path = std::move(file.path), .size = file.size, .arrived = file.changed});
    return arrivals;
}

} // namespace kelvo
