#include "adapters/desktop/terminal_window.h"

#include "adapters/system/detached_start.h"
#include "adapters/system/pidfd.h"
#include "ports/console.h"
#include "ports/dispatch_queue.h"
#include "ports/file_manager.h"
#include "support/system_error_text.h"

#include <QSocketNotifier>
#include <QTimer>

#include <fcntl.h>
#include <poll.h>
#include <sys/stat.h>
#include <sys/wait.h>
#include <unistd.h>

#include <array>
#include <cerrno>
#include <cstdlib>
#include <cstring>
#include <utility>

namespace kelvo {
namespace {

using namespace std::chrono_literals;

/// How long a terminal program that went well may take to open its window.
constexpr auto cWindowPatience = 20s;

/// Says on the pipe that it has begun (there is none any more once the program has ended), gives
/// the window its title in the way that every terminal knows, runs the script, lets go of the pipe
/// and waits for a key: one that is pressed after the end, not one left over from an answer. An
/// interrupt ends the script and not the window.
constexpr const char* cWindowScript = R"(if [ -p "$2" ]; then
    exec 3<>"$2"
    printf b >&3
fi
trap : INT QUIT
if [ -n "$3" ]; then printf '\033]0;%s\007%s\n\n' "$3" "$3"; fi
/bin/sh "$1" 3>&-
code=$?
exec 3>&-
if [ "$code" -eq 0 ]; then printf '\nDone. '; else printf '\nEnded with code %s. ' "$code"; fi
printf 'Press any key to close this window.'
stty -icanon -echo min 0 time 0 2>/dev/null
dd bs=4096 count=1 >/dev/null 2>&1
stty min 1 2>/dev/null
dd bs=1 count=1 >/dev/null 2>&1
)";

} // namespace

std::vector<TerminalProgram> knownTerminals() {
    return {{"x-terminal-emulator", {"-e"}},
            {"gnome-terminal", {"--"}},
            {"konsole", {"-e"}},
            {"xfce4-terminal", {"-x"}},
            {"mate-terminal", {"-x"}},
            {"terminator", {"-x"}},
            {"tilix", {"-e"}},
            {"qterminal", {"-e"}},
            {"kitty", {}},
            {"alacritty", {"-e"}},
            {"foot", {}},
            {"urxvt", {"-e"}},
            {"rxvt", {"-e"}},
            {"xterm", {"-e"}}};
}

/// One script, from the first try to its end.
class TerminalWindow::Run : public QObject {
public:
    Run(const TerminalWindow& owner, QString path, QString title,
        std::function<void(TerminalOutcome)> ended)
        : fOwner(owner), fPath(std::move(path)), fTitle(std::move(title)),
          fEnded(std::move(ended)) {
        fPatience.setSingleShot(true);
        connect(&fPatience, &QTimer::timeout, this, [this] { tryNext(); });
    }
    ~Run() override { removePipe(); }

    bool isOver() const { return !fEnded; }

    void begin() {
        if (makePipe())
            tryNext();
        else
            finish(TerminalOutcome::NoWindow);
    }

private:
    /// A pipe under a name that is new each time, in a folder that nobody else can enter.
    bool makePipe() {
        const FolderOrFault folder = fOwner.fFiles.temporaryFolder();
        if (folder.path.isEmpty()) {
            fOwner.fConsole.log(u"Cannot open a terminal window: " + folder.fault);
            return false;
        }
        QByteArray place = folder.path.toLocal8Bit() + "/terminal.XXXXXX";
        if (::mkdtemp(place.data()) == nullptr)
            return logFault("temporary folder");
        fPlace = place.toStdString();
        if (::mkfifo(pipePath().c_str(), S_IRUSR | S_IWUSR) != 0)
            return logFault("pipe");
        fPipe = UniqueFd(::open(pipePath().c_str(), O_RDONLY | O_NONBLOCK | O_CLOEXEC));
        if (!fPipe)
            return logFault("pipe");
        fPipeWatch = std::make_unique<QSocketNotifier>(fPipe.get(), QSocketNotifier::Read);
        connect(fPipeWatch.get(), &QSocketNotifier::activated, this, [this] { readPipe(); });
        return true;
    }

    bool logFault(const char* what) {
        fOwner.fConsole.log(QStringLiteral("Cannot open a terminal window: %1: %2")
                                .arg(QLatin1StringView(what), systemErrorText(errno)));
        return false;
    }

    std::string pipePath() const { return fPlace + "/ended"; }

    void removePipe() {
        if (fPlace.empty())
            return;
        ::unlink(pipePath().c_str());
        ::rmdir(fPlace.c_str());
        fPlace.clear();
    }

    void readPipe() {
        std::array<char, 16> room{};
        const ssize_t size = ::read(fPipe.get(), room.data(), room.size());
        if (size > 0) {
            fBegun = true;
            fPatience.stop();
        } else if (size == 0) {
            fPipeWatch->setEnabled(false);
            finish(TerminalOutcome::Ended);
        }
    }

    /// The pipe may not have been looked at since the window opened.
    bool hasBegun() {
        pollfd pipe{fPipe.get(), POLLIN, 0};
        return fBegun || ::poll(&pipe, 1, 0) > 0;
    }

    void tryNext() {
        fProgramWatch.reset();
        fOwner.fBgQueue.async([this, &mainQueue = fOwner.fMainQueue, alive = std::weak_ptr(fAlive),
                               programs = fOwner.fPrograms, next = fNext, path = fPath,
                               pipe = pipePath(), title = fTitle] {
            const Search search = startOneOf(programs, next, path, pipe, title);
            mainQueue.async([this, alive, search] {
                if (!alive.expired())
                    searched(search);
            });
        });
    }

    /// What came of looking for a program that starts.
    struct Search {
        std::size_t next = 0; ///< the one to try after it
        pid_t pid = -1;
        QString name = {};
        QStringList faults = {};
    };

    static Search startOneOf(const std::vector<TerminalProgram>& programs, std::size_t next,
                             const QString& path, const std::string& pipe, const QString& title) {
        Search search{.next = next};
        while (search.next < programs.size() && search.pid <= 0) {
            const TerminalProgram& program = programs[search.next++];
            std::vector<std::string> arguments{program.name};
            arguments.insert(arguments.end(), program.option.begin(), program.option.end());
            for (const std::string& word :
                 {std::string("/bin/sh"), std::string("-c"), std::string(cWindowScript),
                  std::string("kelvo-mirror"), path.toLocal8Bit().toStdString(), pipe,
                  title.toUtf8().toStdString()})
                arguments.push_back(word);
            search.pid = startDetached(arguments);
            search.name = QString::fromStdString(program.name);
            if (search.pid <= 0 && search.pid != -ENOENT)
                search.faults.append(QStringLiteral("Cannot start %1: %2")
                                         .arg(search.name, systemErrorText(-search.pid)));
        }
        return search;
    }

    void searched(const Search& search) {
        fNext = search.next;
        for (const QString& fault : search.faults)
            fOwner.fConsole.log(fault);
        if (search.pid > 0) {
            watch(search.pid, search.name);
            return;
        }
        fOwner.fConsole.log(QStringLiteral("No terminal program could open a window."));
        finish(TerminalOutcome::NoWindow);
    }

    void watch(pid_t pid, const QString& name) {
        fProgram = openProcess(pid);
        if (!fProgram)
            return;
        fProgramWatch = std::make_unique<QSocketNotifier>(fProgram.get(), QSocketNotifier::Read);
        connect(fProgramWatch.get(), &QSocketNotifier::activated, this, [this, pid, name] {
            fProgramWatch->setEnabled(false);
            int status = 0;
            const bool reaped = ::waitpid(pid, &status, WNOHANG) == pid;
            if (hasBegun())
                return;
            if (reaped && WIFEXITED(status) && WEXITSTATUS(status) == 0) {
                fPatience.start(cWindowPatience);
                return;
            }
            fOwner.fConsole.log(name + u" could not open a window.");
            QTimer::singleShot(0, this, [this] { tryNext(); });
        });
    }

    /// The callback may open another window, and with it take this object away.
    void finish(TerminalOutcome outcome) {
        removePipe();
        QTimer::singleShot(0, this, [this, outcome] {
            if (const auto ended = std::exchange(fEnded, {}))
                ended(outcome);
        });
    }

    const TerminalWindow& fOwner;
    const QString fPath;
    const QString fTitle;
    std::function<void(TerminalOutcome)> fEnded;
    std::string fPlace;
    UniqueFd fPipe;
    std::unique_ptr<QSocketNotifier> fPipeWatch;
    UniqueFd fProgram;
    std::unique_ptr<QSocketNotifier> fProgramWatch;
    QTimer fPatience;
    std::size_t fNext = 0;
    std::shared_ptr<int> fAlive = std::make_shared<int>();
    bool fBegun = false;
};

TerminalWindow::TerminalWindow(FileManager& files, Console& console, DispatchQueue& mainQueue,
                               BackgroundQueue& bgQueue, std::vector<TerminalProgram> programs)
    : fFiles(files), fConsole(console), fMainQueue(mainQueue), fBgQueue(bgQueue),
      fPrograms(std::move(programs)) {}

TerminalWindow::~TerminalWindow() = default;

void TerminalWindow::openCommandFile(const QString& path, const QString&, const QString& title,
                                     std::function<void(TerminalOutcome)> ended) {
    std::erase_if(fRuns, [](const auto& run) { return run->isOver(); });
    fRuns.push_back(std::make_unique<Run>(*this, path, title, std::move(ended)));
    fRuns.back()->begin();
}

} // namespace kelvo
