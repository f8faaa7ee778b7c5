// Workspace: the desktop's own services for showing files and folders.
#pragma once

#include <QString>
#include <QStringList>

namespace kelvo {

/// Main thread only. Every operation returns at once and reports nothing back: a request that
/// fails is a line in the log. A path is absolute or begins with "~" for the user's home; it is
/// taken as it stands, "%20" is four characters of a name.
class Workspace {
public:
    virtual ~Workspace() = default;

    /// Opens `url` with the program the desktop has for it; for the file location of a folder that
    /// is the file browser. Schemes: file, smb, http, https.
    virtual void openUrl(const QString& url) = 0;

    /// Opens what lies at `path`: a folder in the file browser, a file with its own program.
    virtual void openFile(const QString& path) = 0;

    /// Shows `path` itself: a folder is opened in the file browser, anything else is shown selected
    /// in its folder.
    virtual void revealInFinder(const QString& path) = 0;

    /// Shows the folders around `paths` in the file browser, with these items selected. An empty
    /// list shows nothing.
    virtual void activateFileViewerSelecting(const QStringList& paths) = 0;
};

} // namespace kelvo
