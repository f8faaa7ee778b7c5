#include "lab/lab_network.h"

#include "support/service_name_rules.h"
#include "support/wait_until.h"

#include <QFile>

#include <fcntl.h>
#include <sched.h>
#include <unistd.h>

namespace kelvo {
namespace {

constexpr char cBusVariable[] = "DBUS_SYSTEM_BUS_ADDRESS";
const QString cAnnouncer = QStringLiteral("/tmp/mdns_announcer");

/// The lab's commands, which the fixture keeps for its tests.
struct LabCommands : LabTest {
    using LabTest::lab;
    using LabTest::near;
    using LabTest::remote;
    using LabTest::writeRemote;
};

QString serviceFile(const QString& name) {
    return QString(u"/etc/avahi/services/" + QString::fromLatin1(name.toUtf8().toHex()) +
                   u".service");
}

void runLab(const QStringList& arguments) {
    const CommandResult result = LabCommands::lab(arguments);
    EXPECT_EQ(result.exitCode, 0) << result.output.constData();
}

} // namespace

LabNetwork::~LabNetwork() {
    fBrowser.reset();
    if (fAnnouncer.state() != QProcess::NotRunning) {
        fAnnouncer.kill();
        fAnnouncer.waitForFinished();
        setRunning(false); // so that the next test's daemon has not heard of these names
    }
    if (fOwnNetwork < 0)
        return;
    EXPECT_EQ(::setns(fOwnNetwork, CLONE_NEWNET), 0);
    ::close(fOwnNetwork);
    ::qunsetenv(cBusVariable);
}

QString LabNetwork::prepare() {
    for (const QString& command : {QStringLiteral("able"), QStringLiteral("status")}) {
        const CommandResult result = LabCommands::lab({command});
        if (result.exitCode != 0)
            return QString::fromUtf8(result.output);
    }
    runLab({QStringLiteral("reset")});
    QFile holder(qEnvironmentVariable("KELVO_LAB") + QStringLiteral("/near.pid"));
    if (!holder.open(QFile::ReadOnly))
        return QStringLiteral("KELVO_LAB does not name the lab's state folder");
    enterNearHost(holder.readAll().trimmed());
    fBrowser = std::make_unique<AvahiBrowser>(fConsole, fMainQueue);
    return {};
}

void LabNetwork::enterNearHost(const QByteArray& holder) {
    const QByteArray host = "/proc/" + holder;
    fOwnNetwork = ::open("/proc/thread-self/ns/net", O_RDONLY | O_CLOEXEC);
    const int near = ::open(QByteArray(host + "/ns/net").constData(), O_RDONLY | O_CLOEXEC);
    EXPECT_EQ(::setns(near, CLONE_NEWNET), 0);
    ::close(near);
    ::qputenv(cBusVariable, QByteArray("unix:path=" + host + "/root/run/dbus/system_bus_socket"));
}

void LabNetwork::announce(const QString& name, quint32 port) {
    const QString text =
        QStringLiteral("<?xml version=\"1.0\" standalone='no'?>\n"
                       "<!DOCTYPE service-group SYSTEM \"avahi-service.dtd\">\n"
                       "<service-group><name>%1</name><service><type>_smb._tcp</type>"
                       "<port>%2</port></service></service-group>\n")
            .arg(name.toHtmlEscaped())
            .arg(port);
    // The daemon takes a file for unchanged that is of the same second: each gets one of its own.
    static int second = 1000000000;
    const QString draft = QStringLiteral("/tmp/service");
    LabCommands::writeRemote(draft, text.toUtf8());
    EXPECT_EQ(remote(QStringLiteral("touch -d @%1 %2 && mv %2 %3")
                         .arg(QString::number(++second), draft, serviceFile(name)))
                  .exitCode,
              0);
}

void LabNetwork::withdraw(const QString& name) {
    EXPECT_EQ(remote(QString(u"rm " + serviceFile(name))).exitCode, 0);
}

void LabNetwork::announceBytes(const QList<QByteArray>& names) {
    QFile program(QStringLiteral(KELVO_ANNOUNCER));
    ASSERT_TRUE(program.open(QFile::ReadOnly));
    LabCommands::writeRemote(cAnnouncer, program.readAll());
    ASSERT_EQ(remote(QString(u"chmod 755 " + cAnnouncer)).exitCode, 0);
    fAnnouncer.start(
        QStringLiteral(KELVO_LAB_COMMAND),
        {QStringLiteral("remote"), cAnnouncer, cRemoteAddress, QStringLiteral("Loud-Host")});
    for (const QByteArray& name : names)
        fAnnouncer.write(name.toHex() + '\n');
    fAnnouncer.closeWriteChannel();
    while (!fAnnouncer.canReadLine()) {
        ASSERT_TRUE(fAnnouncer.waitForReadyRead(30000)) << fAnnouncer.readAllStandardError().data();
    }
}

void LabNetwork::setRunning(bool running) {
    runLab(
        {QStringLiteral("discovery"), running ? QStringLiteral("start") : QStringLiteral("stop")});
}

void LabNetwork::setSpareCable(bool plugged) {
    runLab({QStringLiteral("spare"), plugged ? QStringLiteral("plug") : QStringLiteral("unplug")});
}

bool LabNetwork::wasRefused(const QString& name) const {
    const QString told = QString(u"refused the service name [" + escapedForLog(name) + u']');
    return fConsole.logged().filter(told).size() == 1;
}

bool LabNetwork::becomes(const std::function<bool()>& condition, int seconds) {
    return waitUntil(
        [&] {
            fMainQueue.runDue(); // what the browser's own thread has to tell
            return condition();
        },
        std::chrono::seconds(seconds));
}

CommandResult LabNetwork::remote(const QString& shellText) {
    return LabCommands::remote(shellText);
}

CommandResult LabNetwork::near(const QString& shellText) {
    return LabCommands::near(shellText);
}

} // namespace kelvo
