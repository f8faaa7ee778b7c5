#include "adapters/process/copy_starter.h"

#include "adapters/system/detached_start.h"
#include "adapters/system/pidfd.h"
#include "adapters/system/unique_fd.h"
#include "ports/console.h"
#include "support/system_error_text.h"

#include <QFile>
#include <QSocketNotifier>

#include <sys/wait.h>

#include <map>
#include <utility>

namespace kelvo {

/// The copies that have not ended, by process id.
struct CopyStarter::Watches : QObject {
    struct Watch {
        UniqueFd process;
        std::unique_ptr<QSocketNotifier> notifier;
    };
    std::map<pid_t, Watch> copies;
};

CopyStarter::CopyStarter(QString program, Console& console)
    : fProgram(std::move(program)), fConsole(console), fWatches(std::make_unique<Watches>()) {}

CopyStarter::~CopyStarter() = default;

QString CopyStarter::start(const Profile& profile) {
    std::vector<std::string> arguments{QFile::encodeName(fProgram).toStdString()};
    if (profile.isNamed())
        arguments.insert(arguments.end(), {"--profile", profile.name.toStdString()});
    const pid_t pid = startDetached(arguments);
    if (pid < 0)
        return systemErrorText(-pid);
    UniqueFd process = openProcess(pid);
    if (!process)
        return {};
    auto notifier = std::make_unique<QSocketNotifier>(process.get(), QSocketNotifier::Read);
    QObject::connect(notifier.get(), &QSocketNotifier::activated, fWatches.get(),
                     [this, pid, title = profile.title()] {
                         int status = 0;
                         const bool reaped = ::waitpid(pid, &status, WNOHANG) == pid;
                         if (reaped && status != 0)
                             fConsole.log(
                                 QStringLiteral("The copy \"%1\" ended badly: wait status %2")
                                     .arg(title, QString::number(status)));
                         auto ended = fWatches->copies.extract(pid);
                         ended.mapped().notifier->setEnabled(false);
                         ended.mapped().notifier.release()->deleteLater();
                     });
    fWatches->copies[pid] = {std::move(process), std::move(notifier)};
    return {};
}

} // namespace kelvo
