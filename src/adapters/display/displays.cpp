#include "adapters/display/displays.h"

#include "adapters/system/unique_fd.h"

#include <QDir>
#include <QLibraryInfo>

#include <sys/socket.h>
#include <sys/un.h>

#include <algorithm>
#include <xcb/xcb.h>

namespace kelvo {

bool xDisplayAnswers(const QByteArray& name) {
    xcb_connection_t* connection =
        xcb_connect(name.isEmpty() ? nullptr : name.constData(), nullptr);
    const bool answers = xcb_connection_has_error(connection) == 0;
    xcb_disconnect(connection);
    return answers;
}

bool waylandDisplayAnswers() {
    if (qEnvironmentVariableIsSet("WAYLAND_SOCKET"))
        return true; // connected already, by whoever started the program
    QByteArray path = qgetenv("WAYLAND_DISPLAY");
    if (path.isEmpty())
        path = "wayland-0";
    if (!path.startsWith('/'))
        path.prepend(qgetenv("XDG_RUNTIME_DIR") + '/');
    sockaddr_un address{};
    if (path.size() >= static_cast<qsizetype>(sizeof address.sun_path))
        return false;
    address.sun_family = AF_UNIX;
    std::ranges::copy(path, address.sun_path);
    const UniqueFd socket(::socket(AF_UNIX, SOCK_STREAM | SOCK_CLOEXEC | SOCK_NONBLOCK, 0));
    return socket && ::connect(socket.get(), reinterpret_cast<const sockaddr*>(&address),
                               sizeof address) == 0;
}

bool hasWaylandPlatform() {
    const QDir folder(QLibraryInfo::path(QLibraryInfo::PluginsPath) + u"/platforms");
    return !folder.entryList({QStringLiteral("libqwayland-*.so")}).isEmpty();
}

} // namespace kelvo
