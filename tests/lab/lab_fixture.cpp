#include "lab/lab_fixture.h"

#include "support/plist_text.h"

#include <QElapsedTimer>
#include <QProcess>
#include <QRegularExpression>

namespace kelvo {

namespace {

const QString cLabCommand = QStringLiteral(KELVO_LAB_COMMAND);
const QString cProgram = QStringLiteral(KELVO_PROGRAM);
constexpr double cSeconds = 60;

constexpr char cWriteText[] = R"sh(mkdir -p -- "${0%/*}" && cat > "$0")sh";
constexpr char cChecksumText[] =
    R"sh([ ! -d "$0" ] || { cd -- "$0" && find . -type f -print0 | xargs -0 -r sha256sum -z; })sh";

CommandResult run(const QStringList& arguments, double seconds, const QByteArray& input = {}) {
    QElapsedTimer clock;
    clock.start();
    QProcess process;
    process.setProcessChannelMode(QProcess::MergedChannels);
    process.start(cLabCommand, arguments);
    process.write(input);
    process.closeWriteChannel();
    CommandResult result;
    if (process.waitForFinished(static_cast<int>(seconds * 1000))) {
        if (process.exitStatus() == QProcess::NormalExit)
            result.exitCode = process.exitCode();
    } else {
        process.kill();
        process.waitForFinished();
    }
    result.output = process.readAll();
    result.seconds = static_cast<double>(clock.elapsed()) / 1000;
    return result;
}

// `argument` is $0 of the shell text, so that no path needs quoting.
CommandResult runShell(const char* host, const QString& text, double seconds,
                       const QString& argument = QStringLiteral("sh"),
                       const QByteArray& input = {}) {
    return run({QString::fromLatin1(host), QStringLiteral("/bin/sh"), QStringLiteral("-c"), text,
                argument},
               seconds, input);
}

void write(const char* host, const QString& path, const QByteArray& content) {
    const CommandResult result =
        runShell(host, QString::fromLatin1(cWriteText), cSeconds, path, content);
    ASSERT_EQ(result.exitCode, 0) << result.output.constData();
}

// Each record of `sha256sum -z` is 64 digits, two more characters and "./" before the path.
Checksums checksums(const char* host, const QString& folder) {
    const CommandResult result =
        runShell(host, QString::fromLatin1(cChecksumText), cSeconds, folder);
    EXPECT_EQ(result.exitCode, 0) << result.output.constData();
    Checksums found;
    const QList<QByteArray> records = result.output.split('\0');
    for (const QByteArray& record : records) {
        if (!record.isEmpty())
            found.insert(QString::fromUtf8(record.mid(68)), record.left(64));
    }
    return found;
}

} // namespace

void LabTest::SetUp() {
    const CommandResult able = lab({QStringLiteral("able")});
    if (able.exitCode != 0)
        GTEST_SKIP() << able.output.constData();
    const CommandResult status = lab({QStringLiteral("status")});
    if (status.exitCode != 0)
        GTEST_SKIP() << "no lab is up (raise one with tests/lab/lab up): "
                     << status.output.constData();
    const CommandResult reset = lab({QStringLiteral("reset")});
    ASSERT_EQ(reset.exitCode, 0) << reset.output.constData();
}

CommandResult LabTest::lab(const QStringList& arguments, double seconds) {
    return run(arguments, seconds);
}

CommandResult LabTest::near(const QString& shellText, double seconds) {
    return runShell("near", shellText, seconds);
}

CommandResult LabTest::remote(const QString& shellText, double seconds) {
    return runShell("remote", shellText, seconds);
}

void LabTest::writeNear(const QString& path, const QByteArray& content) {
    write("near", path, content);
}

void LabTest::writeRemote(const QString& path, const QByteArray& content) {
    write("remote", path, content);
}

Checksums LabTest::nearChecksums(const QString& folder) {
    return checksums("near", folder);
}

Checksums LabTest::remoteChecksums(const QString& folder) {
    return checksums("remote", folder);
}

Checksums LabTest::moviesOf(const Checksums& all) {
    static const QRegularExpression cEnding(
        QStringLiteral("\\.(mov|mp4|m4v|mkv|avi|mpg|mpeg|webm|mts)$"),
        QRegularExpression::CaseInsensitiveOption);
    static const QRegularExpression cBuiltIn(QStringLiteral("\\.[mM][oOpP][vV4][^/]*$"));
    Checksums movies;
    for (auto each = all.cbegin(); each != all.cend(); ++each) {
        if (each.key().contains(cEnding) || each.key().contains(cBuiltIn))
            movies.insert(each.key(), each.value());
    }
    return movies;
}

QVariantMap LabTest::remoteProfile() {
    return {{QStringLiteral("prefAutoStartScanOnLaunch"), true},
            {QStringLiteral("prefRsyncWithSSH"), true},
            {QStringLiteral("prefRemoteUsername"), cRemoteUser},
            {QStringLiteral("prefRemoteBonjourName"), cRemoteHost},
            {QStringLiteral("prefRemotePath"), QStringLiteral("Movies")},
            {QStringLiteral("prefPath2"), cIncoming},
            {QStringLiteral("prefDelayBetweenScans"), 2.0}};
}

std::unique_ptr<RunningProgram> LabTest::startProgramBy(const QStringList& command,
                                                        const QVariantMap& profile,
                                                        const QStringList& arguments) {
    writeNear(cNearHome + QStringLiteral("/.config/kelvo-mirror/preferences.plist"),
              plistText(profile));
    return std::make_unique<RunningProgram>(
        cLabCommand, QStringList{QStringLiteral("near")} + command +
                         QStringList{cProgram, QStringLiteral("--headless")} + arguments);
}

} // namespace kelvo
