// AutostartEntry: the program's start at login as a desktop entry in the user's autostart folder.
#pragma once

#include "ports/login_item.h"

class QByteArray;

namespace kelvo {

class FileManager;

/// A line in our entries that says they are ours.
inline constexpr const char* cAutostartMark = "X-KelvoMirror-Autostart=true";

/// The entry's text: `program`, an absolute path, is quoted for the Exec key.
QByteArray autostartText(const QString& program);

class AutostartEntry final : public LoginItem {
public:
    /// `folder` is the autostart folder, made when it is first needed; `program` is what shall be
    /// started. `changes` outlives the entry.
    AutostartEntry(const QString& folder, const QString& program, FileManager& files);

    State state() const override;
    LoginItemOutcome setOn(bool on) override;

private:
    const QString fFolder;
    const QString fPath;
    const QString fProgram;
    FileManager& fFiles;
};

} // namespace kelvo
