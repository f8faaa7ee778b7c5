#include "adapters/system/folder_walk.h"

#include "adapters/system/unique_fd.h"

#include <dirent.h>
#include <fcntl.h>
#include <sys/stat.h>
#ifdef __linux__
#include <sys/vfs.h>

#include <linux/magic.h>
#endif

#include <algorithm>
#include <array>
#include <memory>

namespace kelvo {
namespace {

constexpr int cMostEntries = 1'000'000;
constexpr int cMostDepth = 100;

/// Not a link, but for what is named outright.
UniqueFd openFolder(int parent, const char* name, int flags = O_NOFOLLOW) {
    return UniqueFd(::openat(parent, name, O_RDONLY | O_DIRECTORY | O_CLOEXEC | flags));
}

qint64 millisecondsOf(const timespec& time) {
    return qint64{time.tv_sec} * 1000 + time.tv_nsec / 1'000'000;
}

std::optional<FoundFile> regularFile(int parent, const char* name, const QByteArray& path) {
    struct stat entry {};
    if (::fstatat(parent, name, &entry, AT_SYMLINK_NOFOLLOW) != 0 || !S_ISREG(entry.st_mode))
        return {};
    return FoundFile{.path = path,
                     .size = entry.st_size,
                     .changed =
                         QDateTime::fromMSecsSinceEpoch(millisecondsOf(entry.st_ctim), Qt::UTC)};
}

/// Whether no folder lies in this one, told without reading it; false where that is not known. Each
/// folder in it is a link to it on these file systems: others say 2, or 1, of all.
bool holdsNoFolder(int folder, const struct stat& own) {
#ifdef __linux__
    constexpr std::array cWhereFoldersCount{EXT4_SUPER_MAGIC, XFS_SUPER_MAGIC, TMPFS_MAGIC};
    struct statfs place {};
    return own.st_nlink == 2 && ::fstatfs(folder, &place) == 0 &&
           std::ranges::count(cWhereFoldersCount, place.f_type) > 0;
#else
    return false;
#endif
}

class Walk {
public:
    Walk(const QDateTime& moment, const std::function<bool(QByteArrayView)>& passedOver)
        : fMoment(moment.toMSecsSinceEpoch()), fPassedOver(passedOver) {}

    /// What comes into a folder changes the folder too: in the others only folders are of interest.
    void enter(UniqueFd folder, const QByteArray& path, int depth) {
        struct stat own {};
        if (!folder || depth > cMostDepth || ::fstat(folder.get(), &own) != 0)
            return;
        const bool changed = millisecondsOf(own.st_ctim) >= fMoment;
        if (!changed && holdsNoFolder(folder.get(), own))
            return;
        const std::unique_ptr<DIR, int (*)(DIR*)> entries(::fdopendir(folder.get()), ::closedir);
        if (!entries)
            return;
        const int descriptor = folder.release();
        while (const dirent* const entry = ::readdir(entries.get())) {
            if (++fEntries > cMostEntries)
                return;
            look(descriptor, *entry, path, changed, depth);
        }
    }

    std::vector<FoundFile> found;

private:
    void look(int folder, const dirent& entry, const QByteArray& path, bool changed, int depth) {
        const QByteArrayView name(entry.d_name);
        const bool mayBeFolder = entry.d_type == DT_DIR || entry.d_type == DT_UNKNOWN;
        const bool mayBeFile = entry.d_type == DT_REG || entry.d_type == DT_UNKNOWN;
        if (name == "." || name == ".." || !(mayBeFolder || (mayBeFile && changed)) ||
            fPassedOver(name))
            return;
        const QByteArray whole = path + '/' + name;
        if (mayBeFolder)
            enter(openFolder(folder, entry.d_name), whole, depth + 1);
        if (!mayBeFile || !changed)
            return;
        auto file = regularFile(folder, entry.d_name, whole);
        if (file && file->changed.toMSecsSinceEpoch() >= fMoment)
            found.push_back(std::move(*file));
    }

    const qint64 fMoment;
    const std::function<bool(QByteArrayView)>& fPassedOver;
    int fEntries = 0;
};

/// The path of the root has its slash already.
QByteArray beforeSlash(const QByteArray& folder) {
    return folder == "/" ? QByteArray() : folder;
}

/// Looks for names beneath a folder. The one that held the last name stays open: rsync names files
/// folder by folder.
class Lookup {
public:
    explicit Lookup(const QByteArray& folder)
        : fTop(openFolder(AT_FDCWD, folder.constData(), 0)), fTopPath(beforeSlash(folder)) {}

    std::optional<FoundFile> find(QByteArrayView name) {
        if (!fTop || name.startsWith('/') || name.contains('\0'))
            return {};
        QByteArrayView way = name;
        while (way.endsWith('/') || way == "." || way.endsWith("/."))
            way.chop(1);
        const QByteArrayView last = way.sliced(way.lastIndexOf('/') + 1);
        if (last.isEmpty() || last == "..")
            return {};
        way.chop(last.size());
        if (!fWay || way != *fWay)
            enter(way);
        const QByteArray file = last.toByteArray();
        return fFolder >= 0 ? regularFile(fFolder, file.constData(), fPath + file) : std::nullopt;
    }

private:
    /// Opens the folder at `way`, which is empty or ends with a slash.
    void enter(QByteArrayView way) {
        fWay = way.toByteArray();
        fPath = fTopPath + '/';
        fOpen = UniqueFd();
        fFolder = fTop.get();
        for (const QByteArray& part : fWay->split('/')) {
            if (part.isEmpty() || part == ".")
                continue;
            fOpen = part == ".." ? UniqueFd() : openFolder(fFolder, part.constData());
            fFolder = fOpen.get();
            if (!fOpen)
                return;
            fPath += part + '/';
        }
    }

    const UniqueFd fTop;
    const QByteArray fTopPath;
    std::optional<QByteArray> fWay; ///< to the folder that was entered last
    QByteArray fPath;               ///< of it
    UniqueFd fOpen;                 ///< it, if it is not the top
    int fFolder = -1;               ///< its descriptor; -1 where it is none
};

} // namespace

std::vector<FoundFile> filesBeneath(const QByteArray& folder, const NameList& names) {
    if (folder.contains('\0'))
        return {};
    Lookup lookup(folder);
    std::vector<FoundFile> found;
    for (std::size_t i = 0; i < names.size(); ++i) {
        if (auto file = lookup.find(names[i]))
            found.push_back(std::move(*file));
    }
    return found;
}

std::vector<FoundFile>
filesChangedSince(const QByteArray& folder, const QDateTime& moment,
                  const std::function<bool(QByteArrayView name)>& passedOver) {
    Walk walk(moment, passedOver);
    if (!folder.contains('\0'))
        walk.enter(openFolder(AT_FDCWD, folder.constData(), 0), beforeSlash(folder), 0);
    return std::move(walk.found);
}

} // namespace kelvo
