// tray_reader: a desktop panel on the session bus that prints what the newest item of the tray
// says,
// "<status> | <first line of the menu>", once and after each change.
#include "support/session_bus.h"
#include "support/tray_panel.h"

#include <QCoreApplication>
#include <QTimer>

#include <cstdio>
#include <memory>
#include <utility>

namespace {

constexpr int cLookInterval = 50; // milliseconds

void say(const QString& line) {
    std::puts(line.toUtf8().constData());
    std::fflush(stdout);
}

QString shownBy(kelvo::TrayPanel& panel) {
    const QString status = panel.properties().value(QStringLiteral("Status")).toString();
    const auto menu = panel.menu();
    return menu.isEmpty()
               ? status
               : QString(status + u" | " +
                         menu.constFirst().properties.value(QStringLiteral("label")).toString());
}

} // namespace

int main(int argc, char** argv) {
    const QCoreApplication application(argc, argv);
    QDBusConnection bus = QDBusConnection::sessionBus();
    kelvo::TrayService service(bus);
    if (!service.appear(true))
        return 1;
    say(QStringLiteral("ready"));
    std::unique_ptr<kelvo::TrayPanel> panel;
    QString told;
    bool looks = false; // reading runs the event loop
    QTimer timer;
    QObject::connect(&timer, &QTimer::timeout, &application, [&] {
        if (service.items().isEmpty() || std::exchange(looks, true))
            return;
        if (!panel)
            panel = std::make_unique<kelvo::TrayPanel>(bus, service.items().constLast());
        if (const QString now = shownBy(*panel); std::exchange(told, now) != now)
            say(now);
        looks = false;
    });
    timer.start(cLookInterval);
    return QCoreApplication::exec();
}
