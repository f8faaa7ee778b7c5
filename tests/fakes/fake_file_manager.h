// FakeFileManager: files, folders and links in memory.
#pragma once

#include "fakes/event_list.h"
#include "ports/file_manager.h"

#include <QMap>
#include <QSet>
#include <QStringList>

#include <algorithm>
#include <utility>

namespace kelvo {

class FakeFileManager final : public FileManager {
public:
    bool fileExistsAtPath(const QString& path) const override {
        return existing.contains(followed(path)) || folders.contains(followed(path));
    }
    bool isProgram(const QString& path) const override { return programs.contains(followed(path)); }
    bool isWritableFolder(const QString& path) const override {
        return path != guarded && folders.contains(followed(path));
    }
    std::vector<FoundFile> filesBeneath(const QByteArray& folder,
                                        const NameList& names) const override {
        std::vector<FoundFile> named;
        for (std::size_t i = 0; i < names.size(); ++i) {
            const QByteArray path = folder + '/' + names[i].toByteArray();
            const auto file = std::ranges::find(found, path, &FoundFile::path);
            if (file != found.end())
                named.push_back(*file);
        }
        return named;
    }
    std::vector<FoundFile>
    filesChangedSince(const QByteArray& folder, const QDateTime& moment,
                      const std::function<bool(QByteArrayView name)>& passedOver) const override {
        std::vector<FoundFile> changed;
        const QByteArray inside = folder + '/';
        for (const FoundFile& file : found) {
            const auto names = file.path.mid(inside.size()).split('/');
            if (file.path.startsWith(inside) && file.changed >= moment &&
                std::ranges::none_of(names, passedOver))
                changed.push_back(file);
        }
        return changed;
    }
    std::optional<Subscription> claimFolder(const QString& path) const override {
        if (!folders.contains(followed(path)))
            return Subscription();
        if (claimed.contains(followed(path)))
            return std::nullopt;
        claimed.insert(followed(path));
        return Subscription([this, folder = followed(path)] { claimed.remove(folder); });
    }
    QString homeDirectory() const override { return home; }
    FolderOrFault temporaryFolder() override {
        if (!temporary.path.isEmpty() && !folders.contains(temporary.path)) {
            folders.insert(temporary.path);
            modes.append({temporary.path, 0700});
        }
        return temporary;
    }

    FileFault removeItem(const QString& path) override {
        if (const auto fault = faultAt(path))
            return fault;
        if (folders.contains(path) && !isEmpty(path))
            return QString(path + u": Directory not empty");
        if (!existing.remove(path) && !folders.remove(path) && links.remove(path) == 0)
            return QString(path + u": No such file or directory");
        written.remove(path);
        programs.remove(path);
        removed.append(path);
        events.note(u"remove " + path);
        return {};
    }
    FileFault keepUnder(const QString& path, const QString& name) override {
        const auto fault = faultAt(path);
        if (fault)
            return fault;
        if (const auto other = faultAt(name))
            return other;
        if (existing.contains(name) || folders.contains(name) || links.contains(name))
            return QString(name + u": File exists");
        if (folders.contains(path))
            return QString(path + u": Is a directory");
        if (links.contains(path))
            links[name] = links[path];
        else if (existing.contains(path))
            existing.insert(name);
        else
            return QString(path + u": No such file or directory");
        if (written.contains(path))
            written[name] = written[path];
        unsigned bits = 0600;
        for (const auto& [changed, mode] : modes)
            bits = changed == path ? mode : bits;
        modes.append({name, bits});
        events.note(u"keep " + path + u" as " + name);
        return {};
    }
    FileFault writeAtomically(const QString& path, const QByteArray& content) override {
        if (const auto fault = faultAt(path))
            return fault;
        if (folders.contains(path))
            return QString(path + u": Is a directory");
        links.remove(path);
        programs.remove(path);
        existing.insert(path);
        written[path] = content;
        events.note(u"write " + path);
        modes.append({path, 0600});
        return {};
    }
    int changeMode(const QString& path, unsigned mode) override {
        events.note(u"mode " + QString::number(mode, 8) + u' ' + path);
        modes.append({followed(path), mode});
        if (!fileExistsAtPath(path))
            return -1;
        if ((mode & 0100U) != 0 && existing.contains(followed(path)))
            programs.insert(followed(path));
        return modeResult;
    }

    QString home = QStringLiteral("/Users/localuser");
    FolderOrFault temporary{QStringLiteral("/tmp/of me"), {}};
    QSet<QString> existing;            ///< files
    QMap<QString, QByteArray> written; ///< what files hold that were written
    QSet<QString> programs;            ///< the files that may be run
    QSet<QString> folders;
    QMap<QString, QString> links;              ///< where they lead
    QStringList removed;                       ///< every path so far
    QList<std::pair<QString, unsigned>> modes; ///< every one given so far
    int modeResult = 0;
    mutable QSet<QString> claimed; ///< the folders that somebody holds a claim to
    std::vector<FoundFile> found;  ///< what the two operations for files of a folder know of
    QString guarded;               ///< nothing changes at this path
    EventList events;

private:
    QString followed(const QString& path) const { return links.value(path, path); }
    FileFault faultAt(const QString& path) const {
        if (path.isEmpty() || path.contains(QChar(u'\0')))
            return QString(path + u": Invalid argument");
        return path == guarded ? FileFault(QString(path + u": Permission denied")) : FileFault();
    }
    bool isEmpty(const QString& folder) const {
        const auto inside = [&](const QString& path) { return path.startsWith(folder + u'/'); };
        return std::ranges::none_of(existing, inside) && std::ranges::none_of(folders, inside);
    }
};

} // namespace kelvo
