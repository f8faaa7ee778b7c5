// A program with nothing but the tray icon, driven by lines on standard input and heard by lines on
// standard output, so that tests can look at the real icon on a real display.
#include "adapters/display/desktop_tray_host.h"
#include "adapters/display/status_notifier_item.h"
#include "adapters/process/qt_main_queue.h"
#include "ui/widgets/tray_icon.h"

#include <QApplication>
#include <QScreen>
#include <QSet>
#include <QSocketNotifier>

#include <unistd.h>

#include <cstdio>

namespace {

using namespace kelvo;

void say(const QString& line) {
    std::fputs(qPrintable(line + u'\n'), stdout);
    std::fflush(stdout);
}

/// What stands on the screen where the icon lies, as text: the shape of everything that is not the
/// commonest colour.
QString picture(const QRect& place) {
    const QImage screen = QGuiApplication::primaryScreen()
                              ->grabWindow(0, place.x(), place.y(), place.width(), place.height())
                              .toImage();
    QHash<QRgb, int> colors;
    for (int y = 0; y < screen.height(); ++y) {
        for (int x = 0; x < screen.width(); ++x)
            ++colors[screen.pixel(x, y)];
    }
    QRgb ground = 0;
    int most = 0;
    for (auto color = colors.cbegin(); color != colors.cend(); ++color) {
        if (color.value() > most) {
            most = color.value();
            ground = color.key();
        }
    }
    QString shape;
    for (int y = 0; y < screen.height(); ++y) {
        for (int x = 0; x < screen.width(); ++x)
            shape += screen.pixel(x, y) == ground ? u'.' : u'#';
        shape += u'/';
    }
    return shape;
}

void tellPlace(const TrayIcon& icon) {
    const QSystemTrayIcon* shown = icon.shownIcon();
    const QRect place = shown ? shown->geometry() : QRect();
    say(QStringLiteral("place %1 %2 %3 %4")
            .arg(place.x())
            .arg(place.y())
            .arg(place.width())
            .arg(place.height()));
}

/// `order` ends in the place.
void tellScreen(const QByteArray& order) {
    const QList<QByteArray> words = order.split(' ');
    const QRect place(words.value(1).toInt(), words.value(2).toInt(), words.value(3).toInt(),
                      words.value(4).toInt());
    say(QString::fromLatin1(order) + u' ' + picture(place));
}

void obey(TrayIcon& icon, const QByteArray& order) {
    if (order == "off")
        icon.show(StatusMenuState::Off);
    else if (order == "resting")
        icon.show(StatusMenuState::Resting);
    else if (order == "running")
        icon.show(StatusMenuState::Running);
    else if (order == "trouble")
        icon.show(StatusMenuState::Trouble);
    else if (order == "work")
        icon.showWork({.headline = QStringLiteral("Syncing: <b>48 %, about 4 min"),
                       .nextPass = QStringLiteral("Next pass in 23 s"),
                       .health = {.lastSuccess = QStringLiteral("Last success just now, 3 files")},
                       .mayCancel = true});
    else if (order == "hide")
        icon.hide();
    else if (order == "reachable")
        say(icon.isReachable() ? QStringLiteral("reachable yes") : QStringLiteral("reachable no"));
    else if (order == "place")
        tellPlace(icon);
    else if (order.startsWith("screen "))
        tellScreen(order);
    else if (order == "picture")
        say(QStringLiteral("picture ") +
            (icon.shownIcon() ? picture(icon.shownIcon()->geometry()) : QString()));
    else
        QCoreApplication::quit();
}

} // namespace

int main(int argc, char** argv) {
    QApplication application(argc, argv);
    QApplication::setQuitOnLastWindowClosed(false);
    DesktopTrayHost host;
    StatusNotifierItem item;
    QtMainQueue mainQueue;
    TrayIcon icon(host, item, mainQueue);
    icon.setActions({
        .showWindow = [] { say(QStringLiteral("chosen showWindow")); },
        .startOrStop = [] { say(QStringLiteral("chosen startOrStop")); },
        .quitAndRelaunch = [] { say(QStringLiteral("chosen quitAndRelaunch")); },
        .quit = [] { say(QStringLiteral("chosen quit")); },
    });

    QByteArray unread;
    QSocketNotifier orders(STDIN_FILENO, QSocketNotifier::Read);
    QObject::connect(&orders, &QSocketNotifier::activated, &application, [&] {
        char buffer[256];
        const ssize_t length = ::read(STDIN_FILENO, buffer, sizeof buffer);
        if (length <= 0) {
            QCoreApplication::quit();
            return;
        }
        unread.append(buffer, length);
        for (qsizetype end = unread.indexOf('\n'); end >= 0; end = unread.indexOf('\n')) {
            const QByteArray order = unread.left(end);
            unread.remove(0, end + 1);
            obey(icon, order);
        }
    });
    return QApplication::exec();
}
