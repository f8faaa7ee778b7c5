// SetupFaults: what keeps an answer to a question of the set-up from being used.
#pragma once

#include <QString>

namespace kelvo {

class FileManager;
class UserDefaults;

/// By the rules of the passes. Each fault is a piece of a sentence, empty when there is none.
class SetupFaults {
public:
    /// Both outlive this.
    SetupFaults(const UserDefaults& settings, const FileManager& files)
        : fSettings(settings), fFiles(files) {}

    QString ofMac(const QString& host) const;
    QString ofAccount(const QString& user) const;
    QString ofFolder(const QString& folder) const;

    /// Looks at the folder, if it is there.
    QString ofDestination(const QString& typed) const;

    /// `path` with a leading "~" as the home folder.
    QString wholePath(const QString& path) const;

    /// Of the private half of the program's key.
    QString keyPath() const;

private:
    QString ofPass(const QString& folder, const QString& destination) const;

    const UserDefaults& fSettings;
    const FileManager& fFiles;
};

} // namespace kelvo
