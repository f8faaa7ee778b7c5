// What people are told while passes run between two real hosts: how far they are, and how it
// stands.
#include "lab/lab_fixture.h"
#include "support/plist_text.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QRegularExpression>

#include <algorithm>

namespace kelvo {
namespace {

constexpr int cFiles = 200;
constexpr int cFileSize = 100'000;
constexpr int cTellsWithin = 2; // seconds after the first word of the pull
const QString cSettings = cNearHome + QStringLiteral("/.config/kelvo-mirror/preferences.plist");

class WorkLabTest : public LabTest {
protected:
    static QVariantMap profile(double rest = 0.5) {
        QVariantMap values = remoteProfile();
        values[QStringLiteral("prefDelayBetweenScans")] = rest;
        return values;
    }

    /// Nothing but `cFiles` new movies of one size, and a cable that takes about ten seconds for
    /// them.
    static void fillRemote() {
        ASSERT_EQ(
            remote(QStringLiteral("cd %1 && find . -mindepth 1 -delete && for i in $(seq -w %2); "
                                  "do head -c %3 /dev/urandom >\"Take $i.mov\"; done && "
                                  "chown -R mediauser: .")
                       .arg(cRemoteMovies)
                       .arg(cFiles)
                       .arg(cFileSize))
                .exitCode,
            0);
    }

    static void slow(const char* rate) {
        ASSERT_EQ(lab({QStringLiteral("slow"), QString::fromLatin1(rate)}).exitCode, 0);
    }

    /// Every pass that is kept, oldest first.
    static QList<QJsonObject> passes() {
        const CommandResult told = near(QStringLiteral(KELVO_PROGRAM " --passes --json"));
        EXPECT_EQ(told.exitCode, 0) << told.output.constData();
        QList<QJsonObject> all;
        for (const QByteArray& line : told.output.trimmed().split('\n'))
            all << QJsonDocument::fromJson(line).object();
        return all;
    }

    /// Does `harm` to a program whose passes went well, and waits for `words` as its health and in
    /// its tray. Within one pass: no other in trouble came before them.
    void expectTrouble(const std::function<void()>& harm, const QString& words,
                       const QVariantMap& values = profile()) {
        const CommandResult bus =
            near(QStringLiteral("dbus-daemon --session --fork --print-address 2>/dev/null"));
        ASSERT_EQ(bus.exitCode, 0) << bus.output.constData();
        const QStringList desktop{QStringLiteral("env"),
                                  QStringLiteral("QT_QPA_PLATFORM=offscreen"),
                                  QString(u"DBUS_SESSION_BUS_ADDRESS=" +
                                          QString::fromLatin1(bus.output).section(u'\n', 0, 0))};
        const auto nearBy = [&desktop](const char* program) {
            return std::make_unique<RunningProgram>(QStringLiteral(KELVO_LAB_COMMAND),
                                                    QStringList{QStringLiteral("near")} + desktop +
                                                        QStringList{QString::fromLatin1(program)});
        };
        const auto tray = nearBy(KELVO_TRAY_READER);
        ASSERT_TRUE(tray->waitForLine(QStringLiteral("ready"), 30))
            << tray->transcript().toStdString();
        writeNear(cSettings, plistText(values));
        const auto window = nearBy(KELVO_PROGRAM);
        ASSERT_TRUE(tray->waitForLine(QStringLiteral("Active | All is well"), 60))
            << tray->transcript().toStdString() << window->transcript().toStdString();
        harm();
        const auto told = tray->waitForLine(
            [&](const QString& line) {
                return line.startsWith(u"NeedsAttention | ") && line.contains(words);
            },
            30);
        EXPECT_TRUE(told) << words.toStdString() << " is not told:\n"
                          << tray->transcript().toStdString();
        const QList<QJsonObject> kept = passes();
        const auto inTrouble = std::ranges::count_if(
            kept, [](const QJsonObject& pass) { return pass[u"cause"].toString() != u"well"; });
        EXPECT_GE(inTrouble, 1);
        EXPECT_LE(inTrouble, 2) << "it must not wait for later passes";
        EXPECT_EQ(window->stop(), 0) << window->transcript().toStdString();
    }

    /// The line of a program without a window says the same as long as the trouble lasts.
    static void expectHealthLine(const QString& words, const QVariantMap& values = profile()) {
        const auto program = startProgram(values);
        EXPECT_TRUE(program->waitForLine(
            [&](const QString& line) {
                return line.startsWith(u"health: ") && line.contains(words);
            },
            30))
            << program->transcript().right(4000).toStdString();
        EXPECT_EQ(program->stop(), 0);
    }
};

TEST_F(WorkLabTest, PullOverASlowCable_TellsNameShareSpeedAndTimeLeftAndEndsExactly) {
    fillRemote();
    slow("16mbit");
    QVariantMap quiet = profile(60);
    const auto program = startProgram(quiet);
    static const QRegularExpression cWhole(QStringLiteral(
        "^progress: First pull, \\d+ %, file \\d+ of 200, \\d+\\.\\d of (19|20)\\.\\d "
        "MB, .*/s, (about .*|a few seconds), Take \\d+\\.mov$"));
    const auto whole =
        program->waitForLine([](const QString& line) { return cWhole.match(line).hasMatch(); }, 60);
    ASSERT_TRUE(whole) << program->transcript().toStdString();
    const QStringList told =
        program->lines().filter(QRegularExpression(QStringLiteral("^progress: First pull")));
    EXPECT_LE(told.indexOf(*whole), cTellsWithin) << "a line comes each second, the first at once";

    ASSERT_TRUE(program->waitForLine(QStringLiteral("result from movie shell command ="), 60));
    ASSERT_TRUE(program->waitForLine(QStringLiteral("health: All is well"), 30));
    int last = 0;
    static const QRegularExpression cShare(QStringLiteral("^progress: First pull.* (\\d+) %"));
    for (const QString& line : program->lines()) {
        const auto match = cShare.match(line);
        if (!match.hasMatch())
            continue;
        EXPECT_GE(match.captured(1).toInt(), last) << "the share went back: " << line.toStdString();
        last = match.captured(1).toInt();
    }
    EXPECT_GT(last, 50) << "no share near the end was told";
    EXPECT_EQ(program->stop(), 0);

    const QList<QJsonObject> kept = passes();
    ASSERT_EQ(kept.size(), 1);
    EXPECT_EQ(kept[0][u"files"].toInt(), cFiles);
    EXPECT_EQ(kept[0][u"bytes"].toInteger(), qint64{cFiles} * cFileSize);
    EXPECT_EQ(kept[0][u"arrivals"].toArray().size(), cFiles);
    EXPECT_EQ(nearChecksums(cIncoming), remoteChecksums(cRemoteMovies));
}

TEST_F(WorkLabTest, FewNewFilesAmongManyOld_ShareReachesItsEndAndOnlyTheNewArrive) {
    fillRemote();
    writeNear(cSettings, plistText(profile()));
    ASSERT_EQ(near(QStringLiteral(KELVO_PROGRAM " --once --json"), 120).exitCode, 0);
    const QByteArray large(6'000'000, 'm');
    writeRemote(cRemoteMovies + QStringLiteral("/Zebra.mov"), large);
    slow("16mbit");
    const auto program = startProgram(profile(60));
    EXPECT_TRUE(program->waitForLine(
        [](const QString& line) {
            return line.startsWith(u"progress: First pull") && line.contains(u"Zebra.mov");
        },
        30))
        << program->transcript().toStdString();
    ASSERT_TRUE(program->waitForLine(QStringLiteral("result from movie shell command ="), 60));
    EXPECT_EQ(program->stop(), 0);
    const QJsonArray arrivals = passes().last()[u"arrivals"].toArray();
    ASSERT_EQ(arrivals.size(), 1);
    EXPECT_EQ(arrivals[0][u"path"].toString(), QString(cIncoming + QStringLiteral("/Zebra.mov")));
    EXPECT_EQ(arrivals[0][u"size"].toInteger(), large.size());
}

TEST_F(WorkLabTest, MissingSource_IsToldWithinOnePass) {
    const QString words = QStringLiteral("The source folder is not there");
    expectTrouble([] { remote(QStringLiteral("mv %1 %1.away").arg(cRemoteMovies)); }, words);
    expectHealthLine(words);
}

TEST_F(WorkLabTest, RefusedLogin_IsToldWithinOnePass) {
    const QString words = QStringLiteral("The Mac does not take this key for this user");
    expectTrouble([] { remote(QStringLiteral("rm /Users/mediauser/.ssh/authorized_keys")); },
                  words);
    expectHealthLine(words);
}

TEST_F(WorkLabTest, KilledRsync_IsToldWithinOnePass) {
    expectTrouble(
        [] {
            writeRemote(cRemoteMovies + QStringLiteral("/Long.mov"), QByteArray(8'000'000, 'l'));
            slow("4mbit");
            // Whichever of ours is there, and no other: the near host's network is its own.
            EXPECT_EQ(
                near(QStringLiteral("for i in $(seq 200); do pkill -KILL --ns $$ --nslist net "
                                    "-x rsync && exit 0; sleep 0.1; done; exit 1"))
                    .exitCode,
                0);
            lab({QStringLiteral("slow"), QStringLiteral("off")});
        },
        QStringLiteral("since"));
}

TEST_F(WorkLabTest, FullDisk_IsToldWithinOnePass) {
    ASSERT_EQ(
        near(QStringLiteral("mkdir -p Small && mount -t tmpfs -o size=8m tmpfs Small")).exitCode,
        0);
    remote(QStringLiteral("cd %1 && find . -mindepth 1 -delete").arg(cRemoteMovies));
    writeRemote(cRemoteMovies + QStringLiteral("/First.mov"), QByteArray(1'000'000, 'f'));
    QVariantMap values = profile();
    values[QStringLiteral("prefPath2")] = QString(cNearHome + QStringLiteral("/Small"));
    const QString words = QStringLiteral("The disk here is full");
    expectTrouble(
        [] {
            writeRemote(cRemoteMovies + QStringLiteral("/Second.mov"), QByteArray(16'000'000, 's'));
        },
        words, values);
    expectHealthLine(words, values);
    near(QStringLiteral("umount Small"));
}

} // namespace
} // namespace kelvo
