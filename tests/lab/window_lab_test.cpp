// The real window on the near host: passes and the choice of the remote Mac, all by keyboard.
#include "lab/lab_fixture.h"
#include "support/plist_text.h"
#include "support/virtual_desktop.h"
#include "support/wait_until.h"

#include <QFile>
#include <QJsonDocument>
#include <QJsonObject>

namespace kelvo {
namespace {

using namespace std::chrono_literals;

constexpr int cPatience = 20'000; // milliseconds
const QString cSettings = QStringLiteral("/Users/near/.config/kelvo-mirror/preferences.plist");

struct OtherMac {
    const char* name;
    const char* host;
    const char* address;
};
constexpr OtherMac cOtherMacs[] = {{"Studio One", "Studio-One", "10.77.0.11"},
                                   {"Edit Bay", "Edit-Bay", "10.77.0.12"},
                                   {"Archive", "Archive", "10.77.0.13"}};

class WindowLabTest : public LabTest {
protected:
    void SetUp() override {
        LabTest::SetUp();
        if (IsSkipped())
            return;
        if (const QString missing = VirtualDesktop::missingTool(); !missing.isEmpty())
            GTEST_SKIP() << missing.toStdString() << " is not installed on this machine";
        ASSERT_TRUE(screen.start({800, 660})) << "no display comes up";
    }

    void TearDown() override {
        program.reset();
        for (const auto& announcer : fAnnouncers) {
            announcer->terminate();
            if (!announcer->waitForFinished(cPatience))
                announcer->kill();
        }
    }

    void start(const QVariantMap& profile) {
        writeNear(cSettings, plistText(profile));
        startAgain();
    }

    void startAgain(const QStringList& variables = {}) {
        program = std::make_unique<RunningProgram>(
            QStringLiteral(KELVO_LAB_COMMAND),
            QStringList{QStringLiteral("near"), QStringLiteral("env"),
                        QString(u"DISPLAY=" + screen.name()), QStringLiteral("QT_QPA_PLATFORM=xcb"),
                        QStringLiteral("DBUS_SESSION_BUS_ADDRESS=disabled:")} +
                variables + QStringList{QStringLiteral(KELVO_PROGRAM)});
    }

    void keepPicture(const char* name) const {
        EXPECT_TRUE(screen.keepPicture(QStringLiteral(KELVO_PICTURES), name));
    }

    /// On the Activity tab: turns to the passes.
    void selectNewestPass() const {
        screen.keys({QStringLiteral("alt+l")});
        screen.click({300, 328}, 1); // in the first row
    }

    /// Of the pass that ended last; empty before the first.
    static QString lastCause() {
        const QByteArray told = near(QStringLiteral(KELVO_PROGRAM " --passes --json")).output;
        return QJsonDocument::fromJson(told.trimmed().split('\n').last())
            .object()
            .value(u"cause")
            .toString();
    }

    /// Three more Macs, with names and addresses of their own, by packets on the cable.
    void announceOthers() {
        const QString announcer = QStringLiteral("/tmp/mdns_announcer");
        QFile program(QStringLiteral(KELVO_ANNOUNCER));
        ASSERT_TRUE(program.open(QFile::ReadOnly));
        writeRemote(announcer, program.readAll());
        remote(u"chmod 755 " + announcer);
        for (const auto& [name, host, address] : cOtherMacs) {
            auto& process = *fAnnouncers.emplace_back(std::make_unique<QProcess>());
            process.start(QStringLiteral(KELVO_LAB_COMMAND),
                          {QStringLiteral("remote"), announcer, QString::fromLatin1(address),
                           QString::fromLatin1(host), cRemoteAddress});
            process.write(QByteArray(name).toHex() + '\n');
            process.closeWriteChannel();
            while (!process.canReadLine())
                ASSERT_TRUE(process.waitForReadyRead(cPatience));
        }
    }

    VirtualDesktop screen;
    std::unique_ptr<RunningProgram> program;

private:
    std::vector<std::unique_ptr<QProcess>> fAnnouncers;
};

TEST_F(WindowLabTest, AutoStart_PullsWhileTheWindowShowsIt) {
    start(remoteProfile());
    ASSERT_TRUE(program->waitForLine(QStringLiteral("result from movie shell command ="), 90))
        << program->transcript().toStdString();
    keepPicture("lab-passes");
    EXPECT_EQ(nearChecksums(cIncoming), moviesOf(remoteChecksums(cRemoteMovies)));
    EXPECT_EQ(program->stop(), 0) << program->transcript().toStdString();
}

TEST_F(WindowLabTest, ActivityTab_TellsGoodPassesThenTheTroubleAndExportsBoth) {
    QVariantMap profile = remoteProfile();
    profile[QStringLiteral("mainWindowTab")] = QStringLiteral("activity");
    start(profile);
    const QString passed = QStringLiteral("result from movie shell command =");
    ASSERT_TRUE(program->waitForLine(passed, 90)) << program->transcript().toStdString();
    ASSERT_TRUE(program->waitForLine(passed, 30));
    ASSERT_TRUE(screen.becomesActive(QStringLiteral("Kelvo Mirror")));
    selectNewestPass();
    keepPicture("activity-health");
    lab({QStringLiteral("sshd"), QStringLiteral("stop")});
    ASSERT_TRUE(program->waitForLine(QStringLiteral("NEED to handle possible ERROR:"), 30))
        << program->transcript().toStdString();
    ASSERT_TRUE(program->waitForLine(QStringLiteral("NEED to handle possible ERROR:"), 30));
    selectNewestPass();
    keepPicture("activity-trouble");

    const QString list = cNearHome + QStringLiteral("/passes.csv");
    screen.keys({QStringLiteral("alt+x")});
    ASSERT_TRUE(screen.becomesActive(QStringLiteral("Export passes")));
    screen.keys({QStringLiteral("ctrl+a")});
    screen.type(list);
    QList<QByteArray> lines;
    ASSERT_TRUE(waitUntil(
        [&] {
            // The list of completions, which comes late on a busy machine, takes the first one.
            if (screen.activeTitle().startsWith(u"Export passes"))
                screen.keys({QStringLiteral("Return")});
            lines = near(u"cat " + list).output.trimmed().split('\n');
            return lines.size() > 3;
        },
        60s))
        << near(u"cat " + list).output.constData();
    EXPECT_TRUE(lines[1].contains(",remote,remote-login-off,")) << lines[1].constData();
    EXPECT_TRUE(lines.last().contains(",remote,well,")) << lines.last().constData();
    EXPECT_EQ(program->stop(), 0) << program->transcript().toStdString();
}

TEST_F(WindowLabTest, SlowPull_IsSeenUnderWayCancelledAndTakenUpAgain) {
    remote(QStringLiteral("cd %1 && find . -mindepth 1 -delete && for i in $(seq -w "
                          "15); do head -c 3000000 /dev/urandom >\"Long Feature $i (2019).mov\"; "
                          "done && chown -R mediauser: .")
               .arg(cRemoteMovies));
    ASSERT_EQ(lab({QStringLiteral("slow"), QStringLiteral("24mbit")}).exitCode, 0);
    QVariantMap profile = remoteProfile();
    profile[QStringLiteral("prefDelayBetweenScans")] = 600.0;
    start(profile);
    const auto arrived = [](int atLeast) {
        return [atLeast] {
            return near(QStringLiteral("find Incoming -name '*.mov' ! -name '.*' | wc -l"))
                       .output.trimmed()
                       .toInt() >= atLeast;
        };
    };
    ASSERT_TRUE(screen.becomesActive(QStringLiteral("Kelvo Mirror")));
    ASSERT_TRUE(waitUntil(arrived(7), 60s)) << program->transcript().toStdString();
    keepPicture("work-under-way");
    screen.keys({QStringLiteral("alt+p"), QStringLiteral("c")});
    ASSERT_TRUE(waitUntil([] { return lastCause() == u"cancelled"; }, 20s))
        << program->transcript().toStdString();
    EXPECT_FALSE(arrived(15)()) << "it was cancelled in the middle";

    lab({QStringLiteral("slow"), QStringLiteral("off")});
    screen.keys({QStringLiteral("ctrl+r")});
    ASSERT_TRUE(waitUntil([] { return lastCause() == u"well"; }, 20s))
        << "the next pass comes at once, not after ten minutes\n"
        << program->transcript().toStdString();
    EXPECT_EQ(nearChecksums(cIncoming), remoteChecksums(cRemoteMovies));
    keepPicture("work-resting");
    screen.keys({QStringLiteral("ctrl+4")});
    keepPicture("activity-arrived");

    screen.keys({QStringLiteral("ctrl+1")});
    lab({QStringLiteral("sshd"), QStringLiteral("stop")});
    screen.keys({QStringLiteral("ctrl+r")});
    ASSERT_TRUE(waitUntil([] { return lastCause() == u"remote-login-off"; }, 20s));
    keepPicture("work-trouble");
    EXPECT_EQ(program->stop(), 0) << program->transcript().toStdString();
}

/// What is printed stays English, so the lines that are waited for are the same.
TEST_F(WindowLabTest, DesktopsOfOtherLooksAndLanguages_HaveTheSamePasses) {
    const QString kde = QStringLiteral("XDG_CURRENT_DESKTOP=KDE");
    const QString version = QStringLiteral("KDE_SESSION_VERSION=5");
    const struct {
        const char* picture;
        const char* settings;
        QStringList variables;
    } looks[]{
        {"dark",
         "[Colors:Window]\nBackgroundNormal=42,44,46\nForegroundNormal=240,240,240\n"
         "[Colors:Button]\nBackgroundNormal=58,61,64\nForegroundNormal=240,240,240\n"
         "[Colors:View]\nBackgroundNormal=29,31,32\nForegroundNormal=240,240,240\n",
         {kde, version}},
        {"large", "[General]\nfont=DejaVu Sans,18,-1,5,50,0,0,0,0,0\n", {kde, version}},
        {"arabic", "", {QStringLiteral("LC_ALL=ar_EG.UTF-8")}},
    };
    QVariantMap profile = remoteProfile();
    profile[QStringLiteral("prefDelayBetweenScans")] = 600.0;
    writeNear(cSettings, plistText(profile));
    const auto passes = [] {
        return near(QStringLiteral(KELVO_PROGRAM " --passes --json")).output.count("\"well\"");
    };
    for (qsizetype ended = 0; const auto& look : looks) {
        writeNear(QStringLiteral("/Users/near/.config/kdeglobals"), look.settings);
        startAgain(look.variables);
        ASSERT_TRUE(program->waitForLine(QStringLiteral("result from movie shell command ="), 90))
            << look.picture << program->transcript().toStdString();
        ++ended;
        ASSERT_TRUE(waitUntil([&] { return passes() == ended; }, 20s)) << look.picture;
        ASSERT_TRUE(screen.becomesActive(QStringLiteral("Kelvo Mirror")));
        keepPicture(look.picture);
        EXPECT_EQ(program->stop(), 0) << program->transcript().toStdString();
    }
    EXPECT_EQ(nearChecksums(cIncoming), moviesOf(remoteChecksums(cRemoteMovies)));
}

TEST_F(WindowLabTest, FirstStart_SaysWhatIsMissing) {
    start({});
    ASSERT_TRUE(program->waitForLine(QStringLiteral("great got self.fKelvoSSID..."), 60));
    ASSERT_TRUE(screen.becomesActive(QStringLiteral("Kelvo Mirror")));
    screen.keys({QStringLiteral("ctrl+t")});
    ASSERT_TRUE(waitUntil([] { return lastCause() == u"settings-missing"; }, 20s));
    keepPicture("first-run");
    // What is missing is there: it begins by itself.
    QVariantMap whole = remoteProfile();
    whole.remove(QStringLiteral("prefAutoStartScanOnLaunch"));
    writeNear(cSettings, plistText(whole));
    ASSERT_TRUE(waitUntil([] { return lastCause() == u"well"; }, 60s))
        << program->transcript().toStdString();
    EXPECT_EQ(nearChecksums(cIncoming), moviesOf(remoteChecksums(cRemoteMovies)));
    EXPECT_EQ(program->stop(), 0) << program->transcript().toStdString();
}

TEST_F(WindowLabTest, RemoteMac_IsChosenFromTheListByKeyboardAndTheNextStartPullsFromIt) {
    announceOthers();
    QVariantMap profile = remoteProfile();
    profile.remove(QStringLiteral("prefRemoteBonjourName"));
    profile[QStringLiteral("prefAutoStartScanOnLaunch")] = false;
    start(profile);
    ASSERT_TRUE(program->waitForLine(QStringLiteral("great got self.fKelvoSSID..."), 60));
    ASSERT_TRUE(screen.becomesActive(QStringLiteral("Kelvo Mirror")));
    screen.keys({QStringLiteral("ctrl+2"), QStringLiteral("alt+c")});
    ASSERT_TRUE(program->waitForLine(QStringLiteral("NOW SCANNING"), 20))
        << program->transcript().toStdString();

    // Every scan adds what has been announced meanwhile.
    const auto rowsOf = [](const QString& line) { return line.count(u"DNSSD_Service("); };
    const auto allAreListed = [&] {
        const auto list = program->waitForLine(
            [&](const QString& line) {
                return line.contains(u".......self.fFilteredFoundServicesArray = ") &&
                       rowsOf(line) == 4;
            },
            4);
        if (!list)
            screen.keys({QStringLiteral("alt+r")});
        return list.has_value();
    };
    ASSERT_TRUE(waitUntil(allAreListed, std::chrono::seconds(60)))
        << program->transcript().toStdString();
    keepPicture("bonjour-sheet");

    // One letter is enough; on a busy machine the second may count as a new search.
    screen.type(QStringLiteral("r"));
    ASSERT_TRUE(program->waitForLine(
        QStringLiteral("Inside BonjourViewController->tableViewSelectionDidChange(_:)"), 60));
    screen.keys({QStringLiteral("Return")});
    ASSERT_TRUE(
        program->waitForLine(QStringLiteral("Inside BonjourViewController->ibSelectItem(_:)"), 60));
    const auto stored = [](const char* text) {
        return waitUntil([&] { return near(u"cat " + cSettings).output.contains(text); },
                         std::chrono::seconds(20));
    };
    EXPECT_TRUE(stored("<key>prefRemoteBonjourName</key>\n\t<string>Remote-Mac.local</string>"))
        << near(u"cat " + cSettings).output.toStdString();
    EXPECT_TRUE(stored("<string>10.77.0.2</string>"));
    for (const char* key :
         {"name", "type", "scheme", "domain", "hostTarget", "ip4Address", "macAddress", "fullName",
          "dateAdded", "interface", "hostPort", "available"})
        EXPECT_TRUE(
            stored(qPrintable(QStringLiteral("<key>%1</key>").arg(QLatin1StringView(key)))));
    EXPECT_EQ(program->stop(), 0) << program->transcript().toStdString();

    near(u"sed -i '/prefAutoStartScanOnLaunch/{n;s/false/true/}' " + cSettings);
    startAgain();
    ASSERT_TRUE(program->waitForLine(QStringLiteral("result from movie shell command ="), 90))
        << program->transcript().toStdString();
    EXPECT_EQ(nearChecksums(cIncoming), moviesOf(remoteChecksums(cRemoteMovies)));
    EXPECT_EQ(program->stop(), 0);
}

TEST_F(WindowLabTest, NetworkLine_FollowsTheCable) {
    writeNear(cSettings, plistText({}));
    program = startProgram({});
    const QString connected = QStringLiteral("network: Connected to the ");
    const QString nothing = QStringLiteral("network: No network connection");
    EXPECT_TRUE(program->waitForLine(connected, 30)) << program->transcript().toStdString();
    lab({QStringLiteral("link"), QStringLiteral("down")});
    EXPECT_TRUE(program->waitForLine(nothing, 30)) << program->transcript().toStdString();
    lab({QStringLiteral("link"), QStringLiteral("up")});
    EXPECT_TRUE(program->waitForLine(connected, 30)) << program->transcript().toStdString();
    EXPECT_EQ(program->stop(), 0);
}

} // namespace
} // namespace kelvo
