// FolderSelection: chooses the two folders of a synchronisation and shows them in the file browser.
#pragma once

#include <QString>
#include <QStringView>

#include <memory>

namespace kelvo {

class Console;
class Control;
class FileManager;
class OpenPanel;
class PathControl;
class UserDefaults;
class Workspace;

/// What the selection works with; the references outlive it.
struct FolderSelectionParts {
    UserDefaults& defaults;
    Console& console;
    OpenPanel& openPanel;
    Workspace& workspace;
    FileManager& files;
    std::weak_ptr<PathControl> fNsPathControl1;
};

/// Main thread only. Each action prints its entry line first. An action on a folder that is not set
/// does nothing; what the workspace cannot do is not reported here.
class FolderSelection {
public:
    explicit FolderSelection(FolderSelectionParts parts);

    /// Let a person choose what is stored under prefPath1 or prefPath2, a file as well as a folder.
    /// They block while the panel is open; a cancelled panel changes nothing.
    void ibSelectFolder1Action(Control* sender);
    void ibSelectFolder2Action(Control* sender);

    /// Open the source or the destination folder in the file browser.
    void ibRevealSourcePath(Control* sender);
    void ibRevealDestPath(Control* sender);

    /// The path control's action. It opens a fixed place whatever was clicked.
    void ibRevealInFinderAction(Control* sender);

    /// Shows prefPath1 in the path control, the desktop folder when it is not set; that is stored
    /// then. A path control that is gone stops the program.
    void ibAction1(Control* sender);

    /// Opens the user's temporary folder in the file browser; prints why there is none.
    void ibOpenTempFolder(Control* sender);

private:
    void selectFolder(QStringView key);
    QString fileLocation(QStringView path) const;
    void printInside(QStringView operation, QStringView detail = u".......") const;

    const FolderSelectionParts fParts;
};

} // namespace kelvo
