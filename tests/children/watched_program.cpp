// A small program under the real watchdog, to be ended in every way there is.
//   watched_program FOLDER ACTION [ARGUMENT…]
// Keeps everything in FOLDER: the settings, "resources" with the sentinel, "log" with the lines,
// and "starts", a record for each start: process id, how many descriptors it came with, working
// folder, the variable KELVO_TEST_MARK and the arguments. ACTION is what a start by hand does then.
#include "adapters/process/posix_sentinel_launcher.h"
#include "adapters/process/posix_shell_runner.h"
#include "adapters/process/qt_main_queue.h"
#include "adapters/process/signal_pipe.h"
#include "adapters/process/thread_pool_queue.h"
#include "adapters/settings/file_bundle.h"
#include "adapters/settings/plist_defaults.h"
#include "app/start/watchdog.h"
#include "settings/preferences.h"
#include "support/notification_center.h"

#include <QCoreApplication>
#include <QDir>

#include <fcntl.h>
#include <signal.h>
#include <unistd.h>

#include <cstdio>
#include <cstdlib>

using namespace kelvo;

namespace {

void append(const QString& path, const QByteArray& text) {
    const int file =
        ::open(path.toLocal8Bit().constData(), O_WRONLY | O_APPEND | O_CREAT | O_CLOEXEC, 0600);
    (void)!::write(file, text.constData(), static_cast<std::size_t>(text.size()));
    ::close(file);
}

class FileConsole final : public Console {
public:
    explicit FileConsole(QString path) : fPath(std::move(path)) {}
    void printAll(const std::vector<QStringList>& lines) override {
        for (const QStringList& pieces : lines)
            log(pieces.join(QString()));
    }
    void log(const QString& text) override { append(fPath, text.toUtf8() + '\n'); }
    bool flush(std::chrono::milliseconds) override { return true; }

private:
    const QString fPath;
};

/// Deeper than any stack, for a large `depth`.
[[gnu::noinline]] long overflow(long depth) {
    volatile char room[4096]; // NOLINT: touched to fill the stack
    room[0] = static_cast<char>(depth);
    return depth == 0 ? 0 : overflow(depth - 1) + room[0];
}

class WatchedProgram {
public:
    WatchedProgram(const QString& folder, const QStringList& arguments, qsizetype descriptors)
        : fFolder(folder), fArguments(arguments), fDescriptors(descriptors) {}

    int run(const QString& action) {
        const Subscription watchdog = Watchdog::begin(
            {fSignals, fBundle, fDefaults, fConsole, fLauncher, fCenter, fMainQueue, fArguments,
             ::getpid(), QDateTime::currentDateTimeUtc, [] { QCoreApplication::quit(); },
             [](int status) { ::_exit(status); }});
        Watchdog::autoRelaunchUnless(4, 30.0, [](unsigned long, double) { return false; });
        fMainQueue.async([this, action] {
            fDefaults.setObject(u"starts", fDefaults.integerForKey(u"starts") + 1);
            if (fArguments.contains(QStringLiteral("clear-record")))
                fDefaults.removeObject(u"recentLaunchDates");
            fDefaults.synchronize();
            report();
            if (!fArguments.contains(QStringLiteral("--autorelaunched")))
                act(action);
        });
        const int status = QCoreApplication::exec();
        fCenter.post(cWillTerminateNotification.toString());
        return status;
    }

private:
    void report() const {
        const QStringList fields{QString::number(::getpid()), QString::number(fDescriptors),
                                 QDir::currentPath(), qEnvironmentVariable("KELVO_TEST_MARK"),
                                 fArguments.join(u'\x1f')};
        append(fFolder + QStringLiteral("/starts"),
               QString(fields.join(u'\x1e') + u'\x1d').toUtf8());
    }

    void act(const QString& action) {
        if (action == u"null")
            *fNowhere = 1;
        else if (action == u"abort")
            std::abort();
        else if (action == u"overflow")
            std::printf("%ld\n", overflow(1L << 40));
        else if (action == u"trap")
            __builtin_trap();
#ifdef __x86_64__
        else if (action == u"breakpoint")
            __asm__ volatile("int3");
#endif
        else if (action == u"quit-and-relaunch") {
            fDefaults.setObject(u"setAtTheEnd", QStringLiteral("kept"));
            Watchdog::quitAndRelaunch();
        } else if (action == u"cleared")
            fBgQueue.async([this] {
                // Both forget where they come from; the second leaves the session as well.
                outputWhenRunAsShellCommand(
                    fShell, QString(u"cd '" + fFolder +
                                    u"'; env -i sh -c 'trap \"\" TERM; while :; do echo x >> "
                                    u"written; sleep 0.01; done' >/dev/null 2>&1 & "
                                    u"exec env -i setsid sh -c 'while :; do echo x >> orphan; "
                                    u"sleep 0.01; done'"));
            });
        else if (action == u"command")
            fBgQueue.async([this] {
                outputWhenRunAsShellCommand(
                    fShell,
                    QString(u"cd '" + fFolder +
                            u"'; cat /proc/self/status > status; setsid sh -c 'trap \"\" TERM INT; "
                            u"while :; do echo x >> orphan; sleep 0.01; done' & "
                            u"while :; do echo x >> written; sleep 0.01; done"));
            });
    }

    int* volatile fNowhere = nullptr;
    const QString fFolder;
    const QStringList fArguments;
    const qsizetype fDescriptors;
    FileConsole fConsole{fFolder + QStringLiteral("/log")};
    QtMainQueue fMainQueue;
    PlistDefaults fDefaults{fFolder + QStringLiteral("/preferences.plist"), DamagedFile::IsSetAside,
                            isState, fMainQueue, fConsole};
    FileBundle fBundle{fFolder + QStringLiteral("/resources")};
    NotificationCenter fCenter;
    PosixShellRunner fShell{fConsole};
    ThreadPoolQueue fBgQueue;
    SignalPipe fSignals;
    PosixSentinelLauncher fLauncher{fShell.runningCommands()};
};

} // namespace

int main(int argc, char** argv) {
    if (argc < 3)
        return 2;
    // Less the one that reads the folder.
    const qsizetype descriptors =
        QDir(QStringLiteral("/proc/self/fd"))
            .entryList(QDir::AllEntries | QDir::NoDotAndDotDot | QDir::System)
            .size() -
        1;
    const QCoreApplication application(argc, argv);
    QStringList arguments;
    for (int i = 0; i < argc; ++i)
        arguments.append(QString::fromLocal8Bit(argv[i]));
    return WatchedProgram(arguments.at(1), arguments, descriptors).run(arguments.at(2));
}
