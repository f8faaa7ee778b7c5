// AutostartEntry: the program's start at login as a desktop entry in the user's autostart folder.
#pragma once

#include "ports/login_item.h"
#include "support/profile.h"

class QByteArray;

namespace kelvo {

class FileManager;

/// A line in our entries that says they are ours.
inline constexpr const char* cAutostartMark = "X-KelvoMirror-Autostart=true";

/// The entry's text: `program`, an absolute path, is quoted for the Exec key, and starts `profile`.
QByteArray autostartText(const QString& program, const Profile& profile = {});

class AutostartEntry final : public LoginItem {
public:
    /// `folder` is the autostart folder, made when it is first needed; `program` is what shall be
    /// started, with `profile`, each of which has an entry of its own. `files` outlives the entry.
    AutostartEntry(const QString& folder, const QString& program, FileManager& files,
                   Profile profile = {});

    State state() const override;
    LoginItemOutcome setOn(bool on) override;

private:
    const QString fFolder;
    const Profile fProfile;
    const QString fPath;
    const QString fProgram;
    FileManager& fFiles;
};

} // namespace kelvo
