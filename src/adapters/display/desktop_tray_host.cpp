#include "adapters/display/desktop_tray_host.h"

#include <QDBusMessage>
#include <QDBusPendingCallWatcher>
#include <QDBusPendingReply>
#include <QGuiApplication>
#include <QTimer>

#include <cstdlib>
#include <string>
#include <utility>
#include <xcb/xcb.h>

namespace kelvo {
namespace {

const QString cService = QStringLiteral("org.kde.StatusNotifierWatcher");
const QString cPath = QStringLiteral("/StatusNotifierWatcher");

template <typename Reply>
using Answer = std::unique_ptr<Reply, decltype(&std::free)>;

/// Null on any other platform than X11.
xcb_connection_t* x11Connection() {
    const auto* x11 = qGuiApp->nativeInterface<QNativeInterface::QX11Application>();
    return x11 ? x11->connection() : nullptr;
}

xcb_atom_t atom(xcb_connection_t* x11, const std::string& name) {
    const auto cookie =
        xcb_intern_atom(x11, 0, static_cast<std::uint16_t>(name.size()), name.c_str());
    const Answer<xcb_intern_atom_reply_t> reply(xcb_intern_atom_reply(x11, cookie, nullptr),
                                                &std::free);
    return reply ? reply->atom : xcb_atom_t{};
}

/// Every X11 connection of this toolkit is to the screen named by DISPLAY, the first by default.
int screenNumber() {
    int number = 0;
    char* host = nullptr;
    int display = 0;
    if (xcb_parse_display(nullptr, &host, &display, &number))
        std::free(host);
    return number;
}

} // namespace

DesktopTrayHost::DesktopTrayHost(const QDBusConnection& bus) : fBus(bus) {
    watchBus();
    // Asking the display takes several ways there and back; the window shall not wait for that.
    QTimer::singleShot(0, this, [this] { watchX11(); });
}

DesktopTrayHost::~DesktopTrayHost() = default;

Subscription DesktopTrayHost::observe(std::function<void()> changed) {
    auto observer = std::make_shared<Observer>(Observer{std::move(changed)});
    fObservers->push_back(observer);
    return Subscription([observers = std::weak_ptr(fObservers), observer] {
        observer->ended = true;
        if (const auto alive = observers.lock())
            std::erase(*alive, observer);
    });
}

void DesktopTrayHost::set(bool& place, bool present) {
    const TrayKind before = kind();
    place = present;
    if (kind() == before)
        return;
    for (const auto& observer : Observers(*fObservers)) {
        if (!observer->ended)
            observer->changed();
    }
}

// -- the D-Bus kind: a watcher service with at least one host that draws the icons

void DesktopTrayHost::watchBus() {
    if (!fBus.isConnected())
        return;
    fWatcher.setConnection(fBus);
    fWatcher.setWatchMode(QDBusServiceWatcher::WatchForOwnerChange);
    fWatcher.addWatchedService(cService);
    connect(&fWatcher, &QDBusServiceWatcher::serviceOwnerChanged, this, &DesktopTrayHost::askBus);
    for (const char* signal : {"StatusNotifierHostRegistered", "StatusNotifierHostUnregistered"})
        fBus.connect(cService, cPath, cService, QString::fromLatin1(signal), this, SLOT(askBus()));
    askBus();
}

void DesktopTrayHost::askBus() {
    QDBusMessage question = QDBusMessage::createMethodCall(
        cService, cPath, QStringLiteral("org.freedesktop.DBus.Properties"), QStringLiteral("Get"));
    question << cService << QStringLiteral("IsStatusNotifierHostRegistered");
    question.setAutoStartService(false);
    auto* answer = new QDBusPendingCallWatcher(fBus.asyncCall(question), this);
    connect(answer, &QDBusPendingCallWatcher::finished, this,
            [this, answer, number = ++fLastQuestion] {
                answer->deleteLater();
                const QDBusPendingReply<QDBusVariant> reply = *answer;
                if (number == fLastQuestion)
                    set(fOnBus, reply.isValid() && reply.value().variant().toBool());
            });
}

// -- the X11 kind: the owner of a selection, which announces itself on the root window

void DesktopTrayHost::watchX11() {
    xcb_connection_t* x11 = x11Connection();
    if (!x11)
        return;
    fSelection = atom(x11, "_NET_SYSTEM_TRAY_S" + std::to_string(screenNumber()));
    fManagerAtom = atom(x11, "MANAGER");
    qGuiApp->installNativeEventFilter(this);
    askX11();
}

void DesktopTrayHost::askX11() {
    xcb_connection_t* x11 = x11Connection();
    const Answer<xcb_get_selection_owner_reply_t> reply(
        xcb_get_selection_owner_reply(x11, xcb_get_selection_owner(x11, fSelection), nullptr),
        &std::free);
    fManagerWindow = reply ? reply->owner : xcb_window_t{};
    if (fManagerWindow) {
        const std::uint32_t events = XCB_EVENT_MASK_STRUCTURE_NOTIFY;
        xcb_change_window_attributes(x11, fManagerWindow, XCB_CW_EVENT_MASK, &events);
        xcb_flush(x11);
    }
    set(fOnX11, fManagerWindow != 0);
}

bool DesktopTrayHost::nativeEventFilter(const QByteArray& type, void* message, qintptr*) {
    if (type != "xcb_generic_event_t")
        return false;
    const auto* event = static_cast<const xcb_generic_event_t*>(message);
    switch (event->response_type & 0x7f) {
    case XCB_CLIENT_MESSAGE: {
        const auto* note = reinterpret_cast<const xcb_client_message_event_t*>(event);
        if (note->type == fManagerAtom && note->data.data32[1] == fSelection)
            QTimer::singleShot(0, this, &DesktopTrayHost::askX11);
        break;
    }
    case XCB_DESTROY_NOTIFY: {
        const auto* gone = reinterpret_cast<const xcb_destroy_notify_event_t*>(event);
        if (fManagerWindow && gone->window == fManagerWindow)
            QTimer::singleShot(0, this, &DesktopTrayHost::askX11);
        break;
    }
    default:
        break;
    }
    return false;
}

} // namespace kelvo
