#include "support/virtual_desktop.h"

#include <QDir>
#include <QFile>
#include <QStandardPaths>

#include <chrono>
#include <thread>

namespace kelvo {
namespace {

constexpr int cPatience = 20'000; // milliseconds

} // namespace

VirtualDesktop::~VirtualDesktop() {
    if (fManager.state() == QProcess::NotRunning)
        return;
    fManager.terminate();
    if (!fManager.waitForFinished(cPatience))
        fManager.kill();
    fManager.waitForFinished(cPatience);
}

QString VirtualDesktop::missingTool() {
    for (const char* tool : {"Xvfb", "openbox", "xdotool", "maim"}) {
        if (QStandardPaths::findExecutable(QString::fromLatin1(tool)).isEmpty())
            return QString::fromLatin1(tool);
    }
    return {};
}

bool VirtualDesktop::start(const QSize& size) {
    fName = fDisplay.start(size);
    if (fName.isEmpty())
        return false;
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    environment.insert(QStringLiteral("DISPLAY"), fName);
    fManager.setProcessEnvironment(environment);
    fManager.start(QStringLiteral("openbox"), QStringList());
    const bool manages =
        fManager.waitForStarted(cPatience) && waitUntil([this] {
            return !tool("xdotool", {QStringLiteral("get_num_desktops")}).isEmpty();
        });
    // A window that comes while openbox begins may stay unseen, and nothing tells when it is ready.
    std::this_thread::sleep_for(std::chrono::milliseconds(600));
    return manages;
}

QString VirtualDesktop::tool(const char* program, const QStringList& arguments) const {
    QProcess process;
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    environment.insert(QStringLiteral("DISPLAY"), fName);
    process.setProcessEnvironment(environment);
    process.start(QString::fromLatin1(program), arguments);
    process.waitForFinished(cPatience);
    return QString::fromUtf8(process.readAllStandardOutput()).trimmed();
}

void VirtualDesktop::keys(const QStringList& names) const {
    tool("xdotool",
         QStringList{QStringLiteral("key"), QStringLiteral("--delay"), QStringLiteral("40")} +
             names);
}

void VirtualDesktop::type(const QString& text) const {
    tool("xdotool",
         {QStringLiteral("type"), QStringLiteral("--delay"), QStringLiteral("30"), text});
}

void VirtualDesktop::click(const QPoint& place, int button) const {
    tool("xdotool", {QStringLiteral("mousemove"), QString::number(place.x()),
                     QString::number(place.y()), QStringLiteral("click"), QString::number(button)});
}

QString VirtualDesktop::activeTitle() const {
    return tool("xdotool", {QStringLiteral("getactivewindow"), QStringLiteral("getwindowname")});
}

bool VirtualDesktop::becomesActive(const QString& start) const {
    return waitUntil([&] { return activeTitle().startsWith(start); });
}

bool VirtualDesktop::keepPicture(const QString& folder, const char* picture) const {
    QDir().mkpath(folder);
    const QString file = folder + u'/' + QString::fromLatin1(picture) + u".png";
    QFile::remove(file);
    tool("maim", {file});
    return QFile::exists(file);
}

} // namespace kelvo
