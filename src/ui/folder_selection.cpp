#include "ui/folder_selection.h"

#include "ports/console.h"
#include "ports/file_manager.h"
#include "ports/open_panel.h"
#include "ports/path_control.h"
#include "ports/user_defaults.h"
#include "ports/workspace.h"
#include "settings/preference_keys.h"
#include "support/fatal.h"
#include "support/file_url.h"
#include "support/text.h"

#include <utility>

namespace kelvo {
namespace {

constexpr QStringView cDesktopFolder = u"~/Desktop";

/// Test code on purpose: the name is passed as it stands.
constexpr QStringView cFixedTestTarget =
    u"/Volumes/Macintosh%20HD-2/Users/support/Desktop/FolderOnRemoteServer";

QString senderText(const Control* sender, const PathControl* pathControl) {
    if (!sender)
        return QStringLiteral("nil");
    const QStringView type = pathControl ? u"PathControl" : u"Control";
    return u'<' + type + u": 0x" + QString::number(reinterpret_cast<quintptr>(sender), 16) + u'>';
}

} // namespace

FolderSelection::FolderSelection(FolderSelectionParts parts) : fParts(std::move(parts)) {}

// -- choosing

void FolderSelection::ibSelectFolder1Action(Control*) {
    printInside(u"ibSelectFolder1Action(_:)");
    selectFolder(prefPath1);
}

void FolderSelection::ibSelectFolder2Action(Control*) {
    printInside(u"ibSelectFolder2Action(_:)");
    selectFolder(prefPath2);
}

void FolderSelection::selectFolder(QStringView key) {
    fParts.console.print(QStringLiteral("openDocument ViewController"));
    const auto path = fParts.openPanel.selectDirectoryUrl();
    if (!path) {
        fParts.console.print(QStringLiteral("file selection was canceled"));
        return;
    }
    fParts.console.print(u"file selected: " + *path);
    fParts.defaults.setObject(key, *path);
}

// -- showing

void FolderSelection::ibRevealSourcePath(Control*) {
    printInside(u"ibRevealSourcePath(_:)");
    if (const auto path = fParts.defaults.stringForKey(prefPath1))
        fParts.workspace.openUrl(fileLocation(*path));
}

void FolderSelection::ibRevealDestPath(Control*) {
    printInside(u"ibRevealDestPath(_:)");
    if (const auto path = fParts.defaults.stringForKey(prefPath2))
        fParts.workspace.openFile(*path);
}

void FolderSelection::ibOpenTempFolder(Control*) {
    constexpr QStringView operation = u"ibOpenTempFolder(_:)";
    printInside(operation);
    const FolderOrFault folder = fParts.files.temporaryFolder();
    if (folder.path.isEmpty())
        printInside(operation, QString(u".......no temporary folder: " + folder.fault));
    else
        fParts.workspace.openUrl(fileUrl(folder.path));
}

void FolderSelection::ibAction1(Control*) {
    printInside(u"ibAction1(_:)");
    auto path = fParts.defaults.stringForKey(prefPath1);
    if (!path) {
        path = cDesktopFolder.toString();
        fParts.defaults.setObject(prefPath1, *path);
    }
    const auto pathControl = fParts.fNsPathControl1.lock();
    if (!pathControl)
        stopProgram("the path control is not there");
    pathControl->setUrl(fileLocation(*path));
    for (const PathControl::Item& item : pathControl->pathItems())
        fParts.console.print(u"item.title = " + item.title + u"  item.url = " + item.url);
}

void FolderSelection::ibRevealInFinderAction(Control* sender) {
    constexpr QStringView operation = u"ibRevealInFinderAction(_:)";
    const auto* pathControl = dynamic_cast<const PathControl*>(sender);
    printInside(operation, QString(u".......sender = " + senderText(sender, pathControl)));
    const auto destination = fParts.defaults.stringForKey(prefPath2);
    if (!destination)
        return;
    printInside(operation, QString(u".......prefPath2 = " + *destination));
    const auto url = pathControl ? pathControl->url() : std::nullopt;
    if (!url)
        return;
    printInside(operation, QString(u".......url = " + *url));
    fParts.workspace.openFile(cFixedTestTarget.toString());
    printInside(operation, QString(u".......url = " + *destination));
}

/// A stored "~" means the home folder here too: the program itself stores "~/Desktop".
QString FolderSelection::fileLocation(QStringView path) const {
    return fileUrl(expandingTilde(path, fParts.files.homeDirectory()));
}

void FolderSelection::printInside(QStringView operation, QStringView detail) const {
    fParts.console.print(insideLine(cViewControllerTypeName, operation, detail));
}

} // namespace kelvo
