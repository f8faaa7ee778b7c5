// VirtualDisplay: an X display of a test's own, gone with the test.
#pragma once

#include <QProcess>
#include <QSize>
#include <QString>

namespace kelvo {

class VirtualDisplay {
public:
    ~VirtualDisplay() {
        if (fServer.state() == QProcess::NotRunning)
            return;
        fServer.terminate();
        if (!fServer.waitForFinished())
            fServer.kill();
        fServer.waitForFinished();
    }

    /// Starts the server and returns its name, for DISPLAY; empty when none came up.
    QString start(const QSize& size = {800, 600}) {
        const QString screen = QStringLiteral("%1x%2x24").arg(size.width()).arg(size.height());
        fServer.start(QStringLiteral("Xvfb"),
                      {QStringLiteral("-displayfd"), QStringLiteral("1"), QStringLiteral("-screen"),
                       QStringLiteral("0"), screen, QStringLiteral("-nolisten"),
                       QStringLiteral("tcp"), QStringLiteral("-noreset")});
        while (!fServer.canReadLine()) {
            if (!fServer.waitForReadyRead(20000))
                return {};
        }
        return u':' + QString::fromLatin1(fServer.readLine().trimmed());
    }

private:
    QProcess fServer;
};

} // namespace kelvo
