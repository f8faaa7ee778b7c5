// LocalFileManager: this machine's files.
#pragma once

#include "ports/file_manager.h"
#include "support/profile.h"

#include <utility>

namespace kelvo {

class LocalFileManager final : public FileManager {
public:
    /// Of the program with `profile`, whose temporary folder is its own.
    explicit LocalFileManager(Profile profile = {}) : fProfile(std::move(profile)) {}

    bool fileExistsAtPath(const QString& path) const override;
    bool isProgram(const QString& path) const override;
    bool isWritableFolder(const QString& path) const override;

    std::vector<FoundFile> filesBeneath(const QByteArray& folder,
                                        const NameList& names) const override;
    std::vector<FoundFile>
    filesChangedSince(const QByteArray& folder, const QDateTime& moment,
                      const std::function<bool(QByteArrayView name)>& passedOver) const override;

    /// Programs of other users on this machine are kept out too, those on other machines are not.
    std::optional<Subscription> claimFolder(const QString& path) const override;

    /// $HOME, or the user's entry in the account database when that is unset or empty.
    QString homeDirectory() const override;

    /// See temporaryFolderOfUser in adapters/system/private_places.h.
    FolderOrFault temporaryFolder() override;

    FileFault removeItem(const QString& path) override;

    /// What is written reaches the disk before the old file goes.
    FileFault keepUnder(const QString& path, const QString& name) override;
    FileFault writeAtomically(const QString& path, const QByteArray& content) override;

    int changeMode(const QString& path, unsigned mode) override;

private:
    const Profile fProfile;
};

} // namespace kelvo
