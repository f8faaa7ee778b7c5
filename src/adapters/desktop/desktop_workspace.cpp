#include "adapters/desktop/desktop_workspace.h"

#include "adapters/system/detached_start.h"
#include "adapters/system/pidfd.h"
#include "ports/console.h"
#include "ports/dispatch_queue.h"
#include "support/plain_line.h"
#include "support/system_error_text.h"
#include "support/text.h"

#include <QDBusMessage>
#include <QDBusPendingCallWatcher>
#include <QDBusPendingReply>
#include <QFileInfo>
#include <QSocketNotifier>
#include <QUrl>

#include <sys/wait.h>

#include <map>
#include <utility>

namespace kelvo {
namespace {

const QString cFileManager = QStringLiteral("org.freedesktop.FileManager1");
const QString cFileManagerPath = QStringLiteral("/org/freedesktop/FileManager1");

QString reasonOf(int exitCode) {
    switch (exitCode) {
    case 2:
        return QStringLiteral("there is no such file");
    case 3:
        return QStringLiteral("the desktop has no program for it");
    case 4:
        return QStringLiteral("the desktop's program for it failed");
    default:
        return QStringLiteral("exit code %1").arg(exitCode);
    }
}

QString enclosingFolder(const QString& address) {
    return QUrl(address).adjusted(QUrl::RemoveFilename).toString(QUrl::FullyEncoded);
}

} // namespace

/// The openers at work, by process id. A context for answers too: they come only while it lives.
struct DesktopWorkspace::Watches : QObject {
    struct Watch {
        UniqueFd process;
        std::unique_ptr<QSocketNotifier> notifier;
    };
    std::map<pid_t, Watch> openers;
};

DesktopWorkspace::DesktopWorkspace(DispatchQueue& mainQueue, BackgroundQueue& bgQueue,
                                   Console& console, QString home,
                                   std::function<QDBusConnection()> joinBus, QString opener)
    : fMainQueue(mainQueue), fBgQueue(bgQueue), fConsole(console), fHome(std::move(home)),
      fJoinBus(std::move(joinBus)), fOpener(std::move(opener)),
      fWatches(std::make_shared<Watches>()) {}

DesktopWorkspace::~DesktopWorkspace() = default;

// -- opening

void DesktopWorkspace::openUrl(const QString& url) {
    const QUrl address(url, QUrl::StrictMode);
    const QString scheme = address.scheme();
    const bool known =
        scheme == u"file" || scheme == u"smb" || scheme == u"http" || scheme == u"https";
    const bool whole =
        scheme == u"file" ? address.path().startsWith(u'/') : !address.host().isEmpty();
    if (!address.isValid() || !known || !whole) {
        fConsole.log(u"Cannot open " + withVisibleControls(url) + u": this is no address to open.");
        return;
    }
    open(url);
}

void DesktopWorkspace::openFile(const QString& path) {
    const QString address = addressOf(path);
    if (!address.isEmpty())
        open(address);
}

QString DesktopWorkspace::addressOf(const QString& path) const {
    const QString whole = expandingTilde(path, fHome);
    if (whole.startsWith(u'/') && !whole.contains(QChar(u'\0')))
        return QUrl::fromLocalFile(whole).toString(QUrl::FullyEncoded);
    fConsole.log(u"Cannot show " + quotedText(withVisibleControls(path)) +
                 u": the path does not begin at the root folder.");
    return {};
}

void DesktopWorkspace::open(const QString& address) {
    const pid_t pid = startDetached({fOpener.toLocal8Bit().toStdString(), address.toStdString()});
    if (pid < 0) {
        fConsole.log(u"Cannot open " + address + u": " + fOpener + u": " + systemErrorText(-pid));
        return;
    }
    UniqueFd process = openProcess(pid);
    if (!process)
        return;
    auto notifier = std::make_unique<QSocketNotifier>(process.get(), QSocketNotifier::Read);
    QObject::connect(
        notifier.get(), &QSocketNotifier::activated, fWatches.get(), [this, pid, address] {
            int status = 0;
            const bool reaped = ::waitpid(pid, &status, WNOHANG) == pid;
            if (reaped && !(WIFEXITED(status) && WEXITSTATUS(status) == 0))
                fConsole.log(u"Cannot open " + address + u": " +
                             (WIFEXITED(status) ? reasonOf(WEXITSTATUS(status))
                                                : QStringLiteral("the opener was ended")));
            auto ended = fWatches->openers.extract(pid);
            ended.mapped().notifier->setEnabled(false);
            ended.mapped().notifier.release()->deleteLater();
        });
    fWatches->openers[pid] = {std::move(process), std::move(notifier)};
}

// -- showing in the file browser

void DesktopWorkspace::revealInFinder(const QString& path) {
    const QString address = addressOf(path);
    if (address.isEmpty())
        return;
    const QString place = expandingTilde(path, fHome);
    fBgQueue.async(
        [this, &mainQueue = fMainQueue, path, place, address, alive = std::weak_ptr(fWatches)] {
            const bool isFolder = QFileInfo(place).isDir();
            mainQueue.async([this, path, isFolder, address, alive] {
                if (alive.expired())
                    return;
                if (isFolder)
                    open(address);
                else
                    activateFileViewerSelecting({path});
            });
        });
}

void DesktopWorkspace::activateFileViewerSelecting(const QStringList& paths) {
    QStringList addresses;
    for (const QString& path : paths) {
        const QString address = addressOf(path);
        if (!address.isEmpty())
            addresses.append(address);
    }
    if (addresses.isEmpty())
        return;
    const QDBusConnection bus = fJoinBus();
    if (!bus.isConnected()) {
        openFoldersOf(addresses);
        return;
    }
    QDBusMessage request = QDBusMessage::createMethodCall(
        cFileManager, cFileManagerPath, cFileManager, QStringLiteral("ShowItems"));
    request << addresses << QString();
    auto* answer = new QDBusPendingCallWatcher(bus.asyncCall(request), fWatches.get());
    QObject::connect(
        answer, &QDBusPendingCallWatcher::finished, fWatches.get(), [this, answer, addresses] {
            answer->deleteLater();
            const QDBusPendingReply<> reply = *answer;
            if (!reply.isError())
                return;
            fConsole.log(u"The file manager cannot show " + addresses.join(QStringLiteral(", ")) +
                         u": " + withVisibleControls(reply.error().message()));
            openFoldersOf(addresses);
        });
}

void DesktopWorkspace::openFoldersOf(const QStringList& addresses) {
    QStringList folders;
    for (const QString& address : addresses)
        folders.append(enclosingFolder(address));
    folders.removeDuplicates();
    for (const QString& folder : folders)
        open(folder);
}

} // namespace kelvo
