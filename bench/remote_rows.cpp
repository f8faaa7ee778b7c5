// Passes from a Mac, between the two hosts of the lab: what the kept connection saves, beside the
// same commands by hand and beside others who keep two folders equal.
#include "bench/profile.h"
#include "bench/row.h"

#include <QDir>
#include <QFile>
#include <QStandardPaths>
#include <QTemporaryDir>

#include <algorithm>
#include <array>
#include <chrono>
#include <cstdio>

namespace kelvo::bench {
namespace {

using Clock = std::chrono::steady_clock;

constexpr int cRounds = 15;
constexpr int cRoundsOfMany = 5;
constexpr int cMostMilliseconds = 1'800'000;
constexpr double cGoalOverFloor = 1.1;
const QString cMac = QStringLiteral("10.77.0.2");
const QString cUser = QStringLiteral("mediauser");
const QString cSsh = QStringLiteral("/usr/bin/ssh");
const QString cShell = QStringLiteral("/bin/sh");
const QString cRead = QStringLiteral("-c");

QString keyPath() {
    return QDir::homePath() + QStringLiteral("/.ssh/id_kelvoRsync");
}

std::nullopt_t because(const char* why) {
    std::fprintf(stderr, "%s\n", why);
    return std::nullopt;
}

bool isHere() {
    if (qEnvironmentVariable("USER") == u"root" && QFile::exists(QStringLiteral("/.kelvo-lab")))
        return true;
    std::fputs("Passes from a Mac are measured on the near host of the lab; ./dev bench sees to "
               "that as root.\n",
               stderr);
    return false;
}

/// Seconds of one run to a good end, `input` on its standard input; -1 else.
double secondsOf(const QString& program, const QStringList& arguments,
                 const QProcessEnvironment& environment, const QByteArray& input = {}) {
    QProcess process;
    process.setProcessEnvironment(environment);
    process.setStandardOutputFile(QProcess::nullDevice());
    process.setStandardErrorFile(QProcess::nullDevice());
    const auto begin = Clock::now();
    process.start(program, arguments);
    process.write(input);
    process.closeWriteChannel();
    const bool ended = process.waitForFinished(cMostMilliseconds);
    const double taken = std::chrono::duration<double>(Clock::now() - begin).count();
    return ended && process.exitStatus() == QProcess::NormalExit && process.exitCode() == 0 ? taken
                                                                                            : -1;
}

/// Movies in the account over there.
class MacFolder {
public:
    MacFolder(int files, int size) {
        fMade = onTheMac(QStringLiteral("perl - Bench %1 %2").arg(files).arg(size),
                         R"(my ($folder, $files, $size) = @ARGV;
                            open my $random, "<", "/dev/urandom" or die;
                            read $random, my $frames, $size;
                            mkdir $folder or die;
                            for my $i (0 .. $files - 1) {
                                my $place = "$folder/folder " . int($i / 100);
                                mkdir $place if $i % 100 == 0;
                                open my $movie, ">", "$place/movie $i.mov" or die;
                                print $movie $frames;
                            })");
    }
    ~MacFolder() { (void)onTheMac(QStringLiteral("rm -rf Bench")); }
    MacFolder(const MacFolder&) = delete;
    MacFolder& operator=(const MacFolder&) = delete;

    bool isMade() const { return fMade; }

private:
    static bool onTheMac(const QString& command, const QByteArray& input = {}) {
        return secondsOf(cSsh, {QStringLiteral("-i"), keyPath(), cUser + u'@' + cMac, command},
                         QProcessEnvironment::systemEnvironment(), input) >= 0;
    }

    bool fMade = false;
};

/// The program's home for passes from there, and all that is run in it.
class NearFolder {
public:
    NearFolder() {
        fProfile.set(QStringLiteral("<key>prefAutoStartScanOnLaunch</key><true/>"
                                    "<key>prefRemoteUsername</key><string>%2</string>"
                                    "<key>prefRemoteBonjourName</key><string>%3</string>"
                                    "<key>prefRemotePath</key><string>Bench</string>"
                                    "<key>prefDelayBetweenScans</key><real>60</real>"
                                    "<key>prefPath2</key><string>%1/to</string>")
                         .replace(QStringLiteral("%2"), cUser)
                         .replace(QStringLiteral("%3"), cMac));
        empty();
    }

    QString to() const { return fProfile.path("to"); }
    const Profile& profile() const { return fProfile; }

    void empty() const {
        QDir(to()).removeRecursively();
        QDir().mkpath(to());
    }
    double once() const { return run(program(), {QStringLiteral("--once")}); }
    double shell(const QString& commands) const { return run(cShell, {cRead, commands}); }
    /// Through a connection that is kept in `sockets`, and without the folder for half files.
    double shellKept(const QString& commands, const QString& sockets) const {
        QProcessEnvironment environment = this->environment();
        environment.insert(QStringLiteral("KELVO_MIRROR_CONTROL"), sockets);
        environment.insert(QStringLiteral("KELVO_MIRROR_PARTIAL"), QString());
        return secondsOf(cShell, {cRead, commands}, environment);
    }
    double run(const QString& what, const QStringList& arguments) const {
        return secondsOf(what, arguments, environment());
    }
    static QString program() { return builtProgram(QStringLiteral("kelvo-mirror")); }

    /// The newest one; nothing where none went well.
    std::optional<PassRecord> lastPass() const {
        const std::vector<PassRecord> passes = fProfile.recordedPasses();
        const auto last = std::ranges::max_element(passes, {}, &PassRecord::id);
        return last == passes.end() || last->cause != PassCause::Well ? std::nullopt
                                                                      : std::optional(*last);
    }
    /// The check and the two pulls of the last pass, as a script; empty where it had others.
    QString threeCommands() const {
        const auto pass = lastPass();
        if (!pass || pass->commands.size() != 3)
            return {};
        QStringList texts;
        for (const CommandRecord& command : pass->commands)
            texts.append(command.command);
        return texts.join(u'\n');
    }

private:
    QProcessEnvironment environment() const {
        QProcessEnvironment environment = fProfile.environment();
        environment.insert(QStringLiteral("UNISON"), fProfile.path("unison"));
        return environment;
    }

    const Profile fProfile;
};

/// An ssh connection that others come through, from its begin to its end.
class KeptByHand {
public:
    KeptByHand() {
        const QStringList way{QStringLiteral("-o"), u"ControlPath=" + sockets() + u"/%C",
                              QStringLiteral("-i"), keyPath()};
        const QString account = cUser + u'@' + cMac;
        fProcess.start(cSsh, QStringList{QStringLiteral("-M"), QStringLiteral("-N")} + way +
                                 QStringList{account});
        const QStringList question =
            way + QStringList{QStringLiteral("-O"), QStringLiteral("check"), account};
        const auto ours = QProcessEnvironment::systemEnvironment();
        while (!(fIsOpen = secondsOf(cSsh, question, ours) >= 0) && !fProcess.waitForFinished(50)) {
        }
    }
    ~KeptByHand() {
        fProcess.terminate();
        fProcess.waitForFinished();
    }
    KeptByHand(const KeptByHand&) = delete;
    KeptByHand& operator=(const KeptByHand&) = delete;

    bool isOpen() const { return fIsOpen; }
    QString sockets() const { return fFolder.path(); }

private:
    const QTemporaryDir fFolder;
    QProcess fProcess;
    bool fIsOpen = false;
};

/// The program that stays, and its passes on demand.
class StayingProgram {
public:
    explicit StayingProgram(const NearFolder& folder) : fFolder(folder) {
        fProcess.setProcessEnvironment(folder.profile().environment());
        fProcess.setStandardOutputFile(folder.profile().path("output"));
        fProcess.setStandardErrorFile(QProcess::nullDevice());
        fProcess.start(NearFolder::program(), {QStringLiteral("--headless")});
    }
    ~StayingProgram() {
        fProcess.terminate();
        fProcess.waitForFinished();
    }
    StayingProgram(const StayingProgram&) = delete;
    StayingProgram& operator=(const StayingProgram&) = delete;

    /// How long its next pass took; the first one is not asked for. -1 when none came.
    double pass() {
        while (fPasses > 0 &&
               fFolder.run(NearFolder::program(), {QStringLiteral("--sync-now")}) < 0)
            if (fProcess.waitForFinished(50))
                return -1;
        ++fPasses;
        while (ended() < fPasses) {
            if (fProcess.waitForFinished(50))
                return -1;
        }
        const auto last = fFolder.lastPass();
        return last && ended() == fPasses ? last->seconds : -1;
    }

private:
    qsizetype ended() const {
        QFile file(fFolder.profile().path("output"));
        return file.open(QIODevice::ReadOnly) ? file.readAll().count("Resting a bit") : 0;
    }

    const NearFolder& fFolder;
    QProcess fProcess;
    qsizetype fPasses = 0;
};

/// One of those who keep two folders equal.
struct Peer {
    const char* name;
    double goal; ///< of our pass over one run of it
    QStringList arguments;
};

std::vector<Peer> peers(const QString& to, double goalOverUnison) {
    std::vector<Peer> all{
        {.name = "unison",
         .goal = goalOverUnison,
         .arguments = {"-batch", "-auto", "-silent", "-times", "-sshargs", "-i " + keyPath(), to,
                       "ssh://" + cUser + "@" + cMac + "/Bench"}},
        {.name = "rclone",
         .goal = 1,
         .arguments = {"sync", "--config", "/dev/null", "--sftp-host", cMac, "--sftp-user", cUser,
                       "--sftp-key-file", keyPath(), ":sftp:Bench", to}}};
    std::erase_if(all, [](const Peer& peer) {
        const bool isMissing =
            QStandardPaths::findExecutable(QString::fromLatin1(peer.name)).isEmpty();
        if (isMissing)
            std::fprintf(stderr, "%s is left out: it is not installed here (apt install %s).\n",
                         peer.name, peer.name);
        return isMissing;
    });
    return all;
}

std::optional<std::vector<Figure>> measureSharing(int files, double goal, double goalOverUnison) {
    constexpr int cFrames = 6;
    const MacFolder movies(files, cFrames);
    const NearFolder folder;
    if (!movies.isMade() || folder.once() < 0)
        return because("The movies did not come over.");
    const QString commands = folder.threeCommands();
    const auto others = peers(folder.to(), goalOverUnison);
    const KeptByHand connection;
    if (!connection.isOpen())
        return because("No connection could be kept by hand.");
    std::vector<double> ours;
    std::vector<double> byHand;
    std::vector<double> keptByHand;
    std::vector<std::vector<double>> theirs(others.size());
    StayingProgram program(folder);
    for (int round = -1; round < (files > 2000 ? cRoundsOfMany : cRounds); ++round) {
        const double pass = program.pass();
        const double shell = commands.isEmpty() ? -1 : folder.shell(commands);
        const double kept = folder.shellKept(commands, connection.sockets());
        bool well = pass > 0 && shell > 0 && kept > 0;
        for (std::size_t i = 0; i < others.size() && well; ++i) {
            const double run = folder.run(QString::fromLatin1(others[i].name), others[i].arguments);
            well = run > 0;
            if (round >= 0)
                theirs[i].push_back(run);
        }
        if (!well)
            return because("A pass or what it is measured against failed.");
        if (round < 0)
            continue; // the first pass logs in, and others learn what is there
        ours.push_back(pass);
        byHand.push_back(shell);
        keptByHand.push_back(kept);
    }
    const std::string what = "pass that brings nothing of " + std::to_string(files) + " files / ";
    std::vector<Figure> figures{
        ratioOfTimes({ours, byHand}, what + "its three commands by a bare sh", goal),
        ratioOfTimes({ours, keptByHand}, what + "the same over a kept connection", cGoalOverFloor)};
    for (std::size_t i = 0; i < others.size(); ++i)
        figures.push_back(ratioOfTimes({ours, theirs[i]}, what + others[i].name, others[i].goal));
    return figures;
}

/// `--once` beside its three commands: `prepare` is done before each of both.
std::optional<Rounds> onceInTurns(const NearFolder& folder, int rounds,
                                  const std::function<void()>& prepare) {
    Rounds all;
    for (int round = -1; round < rounds; ++round) {
        prepare();
        const double ours = folder.once();
        const QString commands = folder.threeCommands();
        prepare();
        const double theirs = commands.isEmpty() ? -1 : folder.shell(commands);
        if (ours < 0 || theirs < 0)
            return because("A pass or what it is measured against failed.");
        if (round < 0)
            continue; // brings the movies over, and programs into memory
        all.ours.push_back(ours);
        all.theirs.push_back(theirs);
    }
    return all;
}

std::optional<Figure> measureOnce() {
    const MacFolder movies(100, 6);
    const NearFolder folder;
    const auto rounds = onceInTurns(folder, cRounds, [] {});
    if (!rounds)
        return std::nullopt;
    return ratioOfTimes(*rounds, "remote --once over 100 files / its three commands by a bare sh",
                        0.5);
}

std::optional<std::vector<Figure>> measureAll(const std::vector<std::array<double, 3>>& counts) {
    std::vector<Figure> all;
    for (const auto& [files, goal, goalOverUnison] : counts) {
        const auto figures = measureSharing(static_cast<int>(files), goal, goalOverUnison);
        if (!figures)
            return std::nullopt;
        all.insert(all.end(), figures->begin(), figures->end());
    }
    return all;
}

std::optional<std::vector<Figure>> measureFew() {
    if (!isHere())
        return std::nullopt;
    auto figures = measureAll({{100, 0.15, 0.5}, {2000, 0.20, 0.6}});
    const auto once = measureOnce();
    if (!figures || !once)
        return std::nullopt;
    figures->push_back(*once);
    return figures;
}

std::optional<std::vector<Figure>> measureMany() {
    if (!isHere())
        return std::nullopt;
    return measureAll({{20000, 0.40, 1.2}, {200000, 0.50, 1.5}});
}

std::optional<std::vector<Figure>> measureFirstPull() {
    if (!isHere())
        return std::nullopt;
    const MacFolder movies(2000, 1'000'000);
    const NearFolder folder;
    const auto rounds = onceInTurns(folder, cRoundsOfMany, [&folder] { folder.empty(); });
    if (!rounds)
        return std::nullopt;
    return std::vector<Figure>{ratioOfTimes(
        *rounds, "first pull of 2 GB in 2,000 files / its three commands by a bare sh", 1.01)};
}

} // namespace

Row sharingRow() {
    return {"sharing", measureFew};
}

Row manySharingRow() {
    return {"sharing-many", measureMany};
}

Row firstPullRow() {
    return {"first-pull", measureFirstPull};
}

} // namespace kelvo::bench
